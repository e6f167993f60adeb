#include "tests/system/FProgramTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class CommandLineTest : public FProgramTest {
 protected:
    /** Each of the lines is there once, in this order. */
    static void expectOrder(const QString& output, const QStringList& lines) {
        int last = -1;
        for (const QString& line : lines) {
            EXPECT_EQ(output.count(line), 1) << line.toStdString();
            EXPECT_GT(output.indexOf(line), last) << line.toStdString();
            last = output.indexOf(line);
        }
    }
};

TEST_F(CommandLineTest, wrongCallsAreReportedWithCode2) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{"scrpt"}, QStringList{"--no-such-option"}, QStringList{"commands", "FThng"}}) {
        const Outcome outcome = merix(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(outcome.output, "");
        EXPECT_NE(outcome.errors, "");
    }
    EXPECT_TRUE(merix({"scrpt"}).errors.contains("\"scrpt\" is neither a subcommand"));
    EXPECT_TRUE(merix({"commands", "getElementAtt"}).errors.contains("did you mean \"getElementAt\"?"));
    EXPECT_TRUE(merix({"commands", "FGenIntFil"}).errors.contains("did you mean \"FGenIntFile\"?"));
}

TEST_F(CommandLineTest, scriptsComeFromFilesAndFromTheStandardInput) {
    EXPECT_EQ(merix({"script", "missing.merix"}).exitCode, 3);
    const Outcome fromInput =
        merix({"script", "-", "a b", "ä"}, "print(arguments, arguments.count())\nexit(7)\nprint(1)");
    EXPECT_EQ(fromInput.exitCode, 7);
    EXPECT_EQ(fromInput.output, "[a b,ä] 2\n");
    EXPECT_EQ(fromInput.errors, "");

    write("parts/inner.merix", "y = x + 1\nprint(readText(\"inner.txt\"))\n");
    write("parts/inner.txt", "beside");
    const Outcome included = script("x = 1\ninclude(\"parts/inner.merix\")\nprint(y)\n");
    EXPECT_EQ(included.output, "beside\n2\n") << included.errors.toStdString();
}

TEST_F(CommandLineTest, errorsHaveAPlaceAndCode1WarningsCode0) {
    const Outcome syntax = script("print(1)\nprint(\n");
    EXPECT_EQ(syntax.exitCode, 1);
    EXPECT_EQ(syntax.output, "");
    EXPECT_TRUE(syntax.errors.startsWith("error: test.merix:")) << syntax.errors.toStdString();
    const Outcome unknown = script("print(1)\nprnt(2)\nprint(3)\n");
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_EQ(unknown.output, "1\n");
    EXPECT_EQ(unknown.errors, "error: test.merix:2:1: there is no function \"prnt\" (did you mean \"print\"?)\n");
    const Outcome warned = script("print(sqrt(\"x\"))\n");
    EXPECT_EQ(warned.exitCode, 0);
    EXPECT_EQ(warned.output, "NULL\n");
    EXPECT_TRUE(warned.errors.startsWith("warning: test.merix:1:7: sqrt: argument 1 (x) must be of type double"));
}

TEST_F(CommandLineTest, strictEndsAScriptAtTheFirstStatementThatWarns) {
    write("inner.merix", "print(sqrt(\"x\"))\nprint(\"unreached\")\n");
    struct Case {
        const char* statement;
        const char* output;
        const char* error;
    };
    // Each statement warns.
    for (const Case& c : {Case{"p.setValue(sqrt(\"x\"))", "", ":2:12: sqrt: argument 1 (x) must be of type double"},
                          Case{"if (sqrt(\"x\")) {} else { print(\"else\") }", "", ":2:5: sqrt"},
                          Case{"for (i in [1, 2]) { p.setValue(sqrt(\"x\")); print(i) }", "", ":2:32: sqrt"},
                          Case{"for (i in 5) {}", "", ":2:11: the value after \"in\" is no list"},
                          Case{"parameter p(2)", "", ":2:11: the name \"p\" is taken"},
                          Case{"print(sqrt(\"x\"), exit(0))", "NULL NULL\n", ":2:7: sqrt"},
                          Case{"include(\"inner.merix\")", "NULL\n", "inner.merix:1:7: sqrt"}}) {
        const QString text = QString("parameter p(1)\n%1\nprint(\"unreached\")\n").arg(c.statement);
        write("strict.merix", text.toUtf8());
        const Outcome strict = merix({"script", "--strict", "strict.merix"});
        EXPECT_EQ(strict.exitCode, 1) << c.statement;
        EXPECT_EQ(strict.output, c.output) << c.statement;
        EXPECT_TRUE(strict.errors.startsWith("error: ") && strict.errors.contains(c.error))
            << strict.errors.toStdString();
        EXPECT_EQ(strict.errors.count('\n'), 1) << strict.errors.toStdString();
        EXPECT_EQ(merix({"script", "strict.merix"}).exitCode, 0) << c.statement;
    }
    const Outcome good = merix({"script", "--strict", "-", "--strict"}, "print(arguments)\n");
    EXPECT_EQ(good.exitCode, 0);
    EXPECT_EQ(good.output, "[--strict]\n") << "after FILE it is an argument of the script";
}

TEST_F(CommandLineTest, theReferenceFindsCommandsByName) {
    const QString list = merix({"commands"}).output;
    const QString full = merix({"commands", "--full"}).output;
    EXPECT_TRUE(list.contains("\n  .setFileName(string ")) << list.toStdString();
    EXPECT_FALSE(list.contains("setDbId")) << "only for the program itself";
    EXPECT_LT(3 * list.size(), full.size());
    const QString found = merix({"commands", "getelementat"}).output;
    EXPECT_EQ(found.count("\n.getElementAt("), 4) << found.toStdString();
    EXPECT_FALSE(found.contains("\n.getRowNames(")) << found.toStdString();
    EXPECT_TRUE(full.contains("\n.setDbId("));
}

TEST_F(CommandLineTest, outputThatCantBeWrittenEndsTheProgramWithCode3) {
    write("print.merix", "x = [print(1), exit(0)]\nprint(2)\n");
    for (const QString call : {"script print.merix > /dev/full", "commands > /dev/full", "script print.merix >&-",
                               "--help > /dev/full", "check print.merix > /dev/full"}) {
        QProcess shell;
        shell.setWorkingDirectory(path());
        shell.start("sh", {"-c", "\"$0\" " + call, MERIX_PROGRAM});
        ASSERT_TRUE(shell.waitForFinished());
        EXPECT_EQ(shell.exitCode(), 3) << call.toStdString();
        const QByteArray errors = shell.readAllStandardError();
        EXPECT_EQ(errors.count("error: standard output: can't write to it"), 1) << errors.toStdString();
    }
}

TEST_F(CommandLineTest, whatIsTooLargeForMemoryIsReported) {
    QFile large(path("large.txt"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(1'200'000'000));
    const Outcome read = script("x = readText(\"large.txt\")\nprint(x)\ninclude(\"large.txt\")");
    EXPECT_EQ(read.output, "NULL\n");
    EXPECT_EQ(read.exitCode, 1);
    EXPECT_TRUE(read.errors.contains("it has 1200000000 bytes, and at most 500000000")) << read.errors.toStdString();
    EXPECT_TRUE(read.errors.contains("can't include")) << read.errors.toStdString();
}

TEST_F(CommandLineTest, aRepeatedMessageTakesOneLine) {
    const Outcome outcome = script("for (i in [1, 2, 3]) { sqrt(\"x\") }\nopenProject(\"no.mrx\")\n");
    EXPECT_EQ(outcome.errors.count("sqrt"), 1) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("The result is NULL (3 times)\n")) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("\nnote: test.merix:2:1: openProject returned false"))
        << outcome.errors.toStdString();
    EXPECT_EQ(outcome.exitCode, 1) << "of openProject()";
    EXPECT_EQ(script("ok = saveProject(\"/proc/x/y.mrx\")\n").exitCode, 0) << "the script uses the result";
}

TEST_F(CommandLineTest, scriptsInAnotherEncodingAreReported) {
    write("inner.merix", "// \n// caf\xE9\n");
    write("outer.merix", "print(1)\nprint(\"caf\xE9\".length())\ninclude(\"inner.merix\")\n");
    const Outcome outcome = merix({"script", "outer.merix"});
    EXPECT_EQ(outcome.output, "1\n4\n");
    for (const char* place : {"outer.merix:2: the script isn't valid UTF-8 in line 2",
                              "inner.merix:2: the script isn't valid UTF-8 in line 2"}) {
        EXPECT_TRUE(outcome.errors.contains(place)) << outcome.errors.toStdString();
    }
}

TEST_F(CommandLineTest, theReferenceAsJsonHasThePresentation) {
    const QJsonArray commands = QJsonDocument::fromJson(merix({"commands", "--json"}).output.toUtf8()).array();
    const auto settings = [&](const char* command, const QStringList& keys) {
        for (const QJsonValue& value : commands) {
            if (value["command"].toString() == command) {
                QJsonObject found;
                for (const QString& key : keys) {
                    found.insert(key, value[key]);
                }
                return QJsonDocument(found).toJson(QJsonDocument::Compact).toStdString();
            }
        }
        return std::string("not found");
    };
    EXPECT_EQ(settings("FAttribCmdFGenIntComputationsetConfigurationFConfigurationGenInt",
                       {"attrName", "category", "attrRequiredCmd", "attrAsExpr", "cmdFlags", "userLevel", "weight",
                        "needsGuiReinit", "readOnly", "hidden", "isData", "isQuery"}),
              R"({"attrAsExpr":false,"attrName":"Configuration","attrRequiredCmd":"true","category":)"
              R"("Execution Settings","cmdFlags":16,"hidden":false,"isData":true,"isQuery":false,)"
              R"("needsGuiReinit":false,"readOnly":false,"userLevel":1,"weight":5})");
    EXPECT_EQ(settings("FMemberCmdFGenIntComputationopenSoftwareConnector",
                       {"menuEntry", "menuPlace", "menuIcon", "systemFlag", "attrAsExpr", "selectOnExec"}),
              R"({"attrAsExpr":true,"menuEntry":"Open Software Connector","menuIcon":":/softConIcon",)"
              R"("menuPlace":1,"selectOnExec":true,"systemFlag":1})");
    EXPECT_EQ(settings("FAttribCmdFConfigurationGenIntsetDefinitionFDefinitionGenInt", {"needsGuiReinit"}),
              R"({"needsGuiReinit":true})");
    EXPECT_EQ(settings("FCmdundonullFBoolundo", {"isUnwrapped"}), R"({"isUnwrapped":true})");
    EXPECT_EQ(settings("FMemberCmdFManagedsetDbIdint", {"hidden"}), R"({"hidden":true})");
}

TEST_F(CommandLineTest, theLoadTraceIsPrintedOnRequest) {
    EXPECT_EQ(script("print(1)").output, "1\n");
    const QString trace = script("print(1)", {}, {"VERBOSE=1"}).output;
    const QStringList order{"init FObject prototype: FEnum<GenIntAnchorOccurrence>\n",
                            "init FObject prototype: FCreateCmdFGenIntCommandFilegenericIntegrationCommandFile\n",
                            "init FManaged prototype: FGenIntCommandFile\n",
                            "init FObject prototype: FAttribCmdFGenIntFilesetContentstring\n",
                            "init FObject prototype: FMemberCmdFGenIntResultsFilesetTabSeaparatorbool\n",
                            "init FManaged prototype: FGenIntResultsFile\n",
                            "init FManaged prototype: FGenIntComputation\n",
                            "init FObject prototype: FCreateCmdFSoftwareConnectorsoftwareConnector\n",
                            "init FObject prototype: FCmdchooseResultsFilenullFStringchooseResultsFileCommand\n",
                            "init FObject prototype: FEnum<SoftConItemSize>\n",
                            "init FView prototype: FSoftwareConnector\n"};
    expectOrder(trace, order);
    // Classes of windows are built among the others.
    const Outcome window =
        merix({"gui", "--screenshot", path("w.png")}, QString(), {"VERBOSE=1", "QT_QPA_PLATFORM=offscreen"});
    expectOrder(window.output,
                {order[6], "init FView prototype: FGenIntCommandFileEditor\n",
                 "init FView prototype: FGenIntResultsFileEditor\n", order[7], order[10],
                 "init FObject prototype: FSoftwareConnectorItem\n", "init FObject prototype: FSoftConImportItem\n",
                 "init FObject prototype: FCreateCmdFGenIntEditorgenericIntegrationEditor\n",
                 "init FManaged prototype: FGenIntEditor\n"});
}

}  // namespace
