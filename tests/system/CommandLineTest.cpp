#include "tests/system/FProgramTest.h"

namespace {

class CommandLineTest : public FProgramTest {};

TEST_F(CommandLineTest, wrongCallsAreToldWithCode2) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{"scrpt"}, QStringList{"--no-such-option"}, QStringList{"commands", "FThng"}}) {
        const Outcome outcome = merix(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(outcome.output, "");
        EXPECT_NE(outcome.errors, "");
    }
    EXPECT_TRUE(merix({"scrpt"}).errors.contains("\"scrpt\" is neither a subcommand"));
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

TEST_F(CommandLineTest, theLoadTraceIsPrintedWhenAskedFor) {
    EXPECT_EQ(script("print(1)").output, "1\n");
    const QString trace = script("print(1)", {}, {"VERBOSE=1"}).output;
    const QStringList order{"init FObject prototype: FEnum<GenIntAnchorOccurrence>\n",
                            "init FObject prototype: FCreateCmdFGenIntCommandFilegenericIntegrationCommandFile\n",
                            "init FManaged prototype: FGenIntCommandFile\n",
                            "init FObject prototype: FAttribCmdFGenIntFilesetContentstring\n",
                            "init FObject prototype: FMemberCmdFGenIntResultsFilesetTabSeaparatorbool\n",
                            "init FManaged prototype: FGenIntResultsFile\n"};
    int last = -1;
    for (const QString& line : order) {
        EXPECT_EQ(trace.count(line), 1) << line.toStdString();
        EXPECT_GT(trace.indexOf(line), last) << line.toStdString();
        last = trace.indexOf(line);
    }
}

}  // namespace
