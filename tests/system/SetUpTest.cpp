#include "tests/system/FProgramTest.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/** The subcommands that work on a project without a script. The program doubles a number. */
class SetUpTest : public FProgramTest {
 protected:
    const QString mSetUp = R"(
genericIntegrationCommandFile input() {
    .setFileName("in.txt")
    .setContent("x=<entry>x</entry>
name=<entry>name</entry>
")
}
genericIntegrationResultsFile output() {
    .setFileName("out.txt")
    .setValues([["double", 0, 0, "double", Last, "FDouble", ""], ["name", 1, 0, "double", Last, "FDouble", ""]])
}
genericIntegrationDefinition def() { .addEntry("x", 2) .addEntry("name", "a") .setFiles([input, output]) }
genericIntegrationConfiguration conf() { .setDefinition(def) }
genericIntegrationComputation comp() {
    .setConfiguration(conf)
    .setExecutable("sh")
    .setArguments(["-c", ". ./in.txt; echo double $((2*x)) > out.txt; echo name 1 >> out.txt"])
}
)";

    void makeProject(const QString& further = QString()) const {
        const Outcome made = script(mSetUp + further + "\nprint(saveProject(\"p.mrx\"))");
        ASSERT_EQ(made.output, "true\n") << made.errors.toStdString();
    }
    /** All files below the folder of the test, with their contents. */
    QMap<QString, QByteArray> files() const {
        QMap<QString, QByteArray> all;
        for (QDirIterator walk(path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); walk.hasNext();) {
            const QString name = walk.next().mid(path().size() + 1);
            all.insert(name, read(name));
        }
        return all;
    }
};

TEST_F(SetUpTest, checkReportsTheProblemsOfAProject) {
    makeProject();
    const Outcome good = merix({"check", "p.mrx"});
    EXPECT_EQ(good.output, "no problems found\n") << good.errors.toStdString();
    EXPECT_EQ(good.exitCode, 0);

    makeProject("input.setContent(\"x=<entry>x</entry>\n<entry>naem</entry>\")\n");
    const QMap<QString, QByteArray> before = files();
    const Outcome bad = merix({"check", "p.mrx"});
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_TRUE(bad.output.contains("error: input:2:1: ")) << bad.output.toStdString();
    EXPECT_TRUE(bad.output.contains("warning: def: ")) << bad.output.toStdString();
    EXPECT_TRUE(bad.output.endsWith("\n1 error, 1 warning\n")) << bad.output.toStdString();
    const Outcome json = merix({"check", "p.mrx", "--json"});
    const QJsonObject all = QJsonDocument::fromJson(json.output.toUtf8()).object();
    EXPECT_EQ(all["errors"].toInt(), 1) << json.output.toStdString();
    EXPECT_EQ(all["problems"].toArray()[0].toObject()["place"].toString(), "input:2:1");
    EXPECT_EQ(all["problems"].toArray()[0].toObject()["remedy"].toString(), "Did you mean \"<entry>name</entry>\"?");
    EXPECT_EQ(files(), before);

    const Outcome unknown = merix({"check", "p.mrx", "--computation", "comq"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_TRUE((unknown.output + unknown.errors).contains("did you mean \"comp\"")) << unknown.errors.toStdString();
    EXPECT_EQ(merix({"check", "none.mrx"}).exitCode, 3);
}

TEST_F(SetUpTest, checkExecutesAScriptWithoutRunsAndWithoutWriting) {
    const QString rest = R"(
print("ran", comp.run(), comp.rereadResults())
conf.setEntryValue("x", [1])
print(comp.run(), comp.getResults().getTable("out.txt").getElementAt("double"))
print(saveProject("s.mrx"), def.save("d.lodm"))
t = comp.getResults().getTable("out.txt")
conf.setEntryValue("x", t.getElementAt("double"))
print(comp.run(), t.getElementAt("dubble"), conf.setEntryValue("y", 1))
)";
    write("s.merix", (mSetUp + rest).toUtf8());
    const QMap<QString, QByteArray> before = files();
    const Outcome outcome = merix({"check", "s.merix", "--json"});
    const QJsonObject all = QJsonDocument::fromJson(outcome.output.toUtf8()).object();
    const QStringList told{"holds a list", "would depend on itself", "out.txt has no value \"dubble\" (did you mean",
                           "has no entry \"y\""};
    const QJsonArray problems = all["problems"].toArray();
    ASSERT_EQ(problems.size(), told.size()) << outcome.output.toStdString() << outcome.errors.toStdString();
    for (int i = 0; i < told.size(); ++i) {
        EXPECT_TRUE(problems[i].toObject()["text"].toString().contains(told[i])) << outcome.output.toStdString();
    }
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.errors.contains("ran false false")) << outcome.errors.toStdString();
    EXPECT_EQ(files(), before) << QStringList(files().keys()).join('\n').toStdString();

    write("s.merix", (mSetUp + "x = comp.run()\ncomp.setExecutible(\"sh\")").toUtf8());
    const Outcome wrong = merix({"check", "s.merix"});
    EXPECT_EQ(wrong.exitCode, 1);
    EXPECT_TRUE(wrong.output.contains("did you mean \"setExecutable\"")) << wrong.output.toStdString();
    EXPECT_EQ(merix({"check", "-"}, mSetUp).output, "no problems found\n");
}

TEST_F(SetUpTest, writesTheInputRunsAndReadsItBack) {
    makeProject("parameter p(1)\n");
    const QByteArray project = read("p.mrx");
    const Outcome written =
        merix({"write", "p.mrx", "--set", "p=7", "--set", "x=3*p", "--set", "name=b c", "--out", "by hand/1"});
    EXPECT_EQ(written.exitCode, 0) << written.errors.toStdString();
    EXPECT_EQ(written.output, path("by hand/1/in.txt") + ": 2 tags replaced, 0 not replaced\n");
    EXPECT_EQ(read("by hand/1/in.txt"), "x=21\nname=b c\n");
    for (const auto& [value, text] : {std::pair("format(7, \"%4d\")", "   7"), std::pair("  pi() ", "  pi() "),
                                      std::pair("pi()", "pi()"), std::pair("no(7)", "no(7)")}) {
        merix({"write", "p.mrx", "--set", QString("name=") + value, "--out", "text"});
        EXPECT_EQ(read("text/in.txt"), QByteArray("x=2\nname=") + text + "\n") << value;
    }

    write("by hand/1/out.txt", "double 42\nname 1\n");
    const QMap<QString, QByteArray> before = files();
    const Outcome seen = merix({"read", "p.mrx", "--dir", "by hand/1"});
    EXPECT_EQ(seen.exitCode, 0) << seen.errors.toStdString();
    EXPECT_TRUE(seen.output.contains("double") && seen.output.contains("42")) << seen.output.toStdString();
    for (const char* form : {"--json", "--csv", "--explain"}) {
        const Outcome other = merix({"read", "p.mrx", "--dir", "by hand/1", form});
        EXPECT_TRUE(other.output.contains("42")) << form << other.output.toStdString();
        EXPECT_NE(other.output, seen.output) << form;
    }
    EXPECT_EQ(files(), before) << QStringList(files().keys()).join('\n').toStdString();
    const Outcome missing = merix({"read", "p.mrx", "--dir", "by hand", "--csv"});
    EXPECT_EQ(missing.exitCode, 1) << "no output file";
    EXPECT_TRUE(missing.output.contains("\ndouble,NaN,out.txt,,file not read\n")) << missing.output.toStdString();
    write("empty/out.txt", "");
    const Outcome empty = merix({"read", "p.mrx", "--dir", "empty"});
    EXPECT_TRUE(empty.output.contains("double = NaN\n")) << empty.output.toStdString();
    EXPECT_TRUE(empty.errors.contains("nothing is in 'out.txt'")) << empty.errors.toStdString();
    EXPECT_TRUE(missing.errors.contains("there is no file \"" + path("by hand/out.txt")))
        << missing.errors.toStdString();
    ASSERT_TRUE(QDir(path("by hand")).mkdir("out.txt"));
    EXPECT_TRUE(merix({"read", "p.mrx", "--dir", "by hand"}).errors.contains("it is a folder"));
    EXPECT_EQ(merix({"read", "p.mrx", "--dir", "none"}).exitCode, 3);

    const Outcome ran = merix({"run", "p.mrx", "--set", "x=1+4", "--json"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors.toStdString();
    EXPECT_TRUE(ran.output.contains("10")) << ran.output.toStdString();
    EXPECT_FALSE(QJsonDocument::fromJson(ran.output.toUtf8()).isNull());
    EXPECT_EQ(read("p.results/baseline/comp/in.txt"), "x=5\nname=a\n");
    EXPECT_EQ(read("p.mrx"), project);
    const Outcome old = merix({"read", "p.mrx", "--dir", "p.results/baseline/comp", "--csv"});
    EXPECT_TRUE(old.output.contains("double,10,out.txt:1:8,10,earlier set-up\n")) << old.output.toStdString();
    EXPECT_TRUE(old.errors.contains("are of an earlier set-up (x was 5, is 2)")) << old.errors.toStdString();
    QFile::link(path(), path("link"));
    EXPECT_EQ(merix({"read", "link/p.mrx", "--dir", "link/p.results/baseline/comp", "--csv"}).output, old.output);
    QFile::remove(path("link"));
    EXPECT_EQ(QDir(path()).entryList({"p.mrx*"}), QStringList({"p.mrx"}));
    EXPECT_EQ(merix({"run", "p.mrx", "--set", "x=1 +"}).exitCode, 2);
}

TEST_F(SetUpTest, callsAreRefusedWithTheNearestName) {
    makeProject("genericIntegrationComputation other() { .setConfiguration(conf) .setExecutable(\"false\") }\n");
    const QList<QPair<QStringList, QString>> cases{
        {{"run", "p.mrx"}, "--computation: \"comp\", \"other\""},
        {{"run", "p.mrx", "--computation", "othr"}, "did you mean \"other\""},
        {{"run", "p.mrx", "--computation", "comp", "--set", "nmae=b"}, "did you mean \"name\""},
        {{"write", "p.mrx", "--computation", "comp", "--set", "x", "--out", "d"}, "NAME=VALUE"},
        {{"write", "p.mrx", "--computation", "comp", "--set", "x=abc", "--out", "d"}, "\"abc\" is no value"},
        {{"write", "p.mrx"}, "--out"},
    };
    for (const auto& [arguments, message] : cases) {
        const Outcome outcome = merix(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << message.toStdString();
        EXPECT_TRUE(outcome.errors.contains(message)) << outcome.errors.toStdString();
        EXPECT_EQ(outcome.output, "");
    }
    EXPECT_FALSE(QFile::exists(path("d")));
    EXPECT_EQ(merix({"run", "p.mrx", "--computation", "other"}).exitCode, 1) << "the program failed";
}

TEST_F(SetUpTest, aChainIsExportedImportedAndRun) {
    makeProject(R"(
genericIntegrationResultsFile sum() { .setFileName("sum.txt") .setValues([["sum", 0, 0, "", First, "FDouble", ""]]) }
genericIntegrationDefinition def2() { .addEntry("data", inputFile("none")) .setFiles([sum]) }
genericIntegrationConfiguration conf2() {
    .setDefinition(def2); .setEntryValue("data", inputFile(comp.getResults().getResultTemplateName("out.txt")))
}
genericIntegrationComputation adder() {
    .setConfiguration(conf2); .setExecutable("sh"); .setArguments(["-c", "read w x < out.txt; echo $((x+1)) > sum.txt"])
}
)");
    const Outcome single = merix({"export", "p.mrx", "--computation", "adder", "--out", "ä/a.lodm"});
    EXPECT_EQ(single.exitCode, 3) << "no folder";
    const Outcome exported = merix({"export", "p.mrx", "--computation", "adder", "--chain", "--out", "a.lodm"});
    EXPECT_EQ(exported.exitCode, 0) << exported.errors.toStdString();
    EXPECT_EQ(exported.errors + exported.output, "");

    ASSERT_TRUE(QDir(path()).mkdir("other"));
    const Outcome imported = merix({"import", "a.lodm", "--into", "other/q"});
    EXPECT_EQ(imported.exitCode, 0) << imported.errors.toStdString();
    const QStringList adder{"other/q.mrx", "--computation", "adder"};
    EXPECT_EQ(merix(QStringList{"write", "--out", "w"} + adder).exitCode, 1) << "no results to link to";
    const Outcome ran = merix(QStringList{"run", "--chain"} + adder);
    EXPECT_EQ(ran.exitCode, 0) << ran.errors.toStdString();
    EXPECT_EQ(ran.output, "sum = 5\n");
    const Outcome written = merix(QStringList{"write", "--out", "w"} + adder);
    EXPECT_EQ(written.exitCode, 0) << written.errors.toStdString();
    EXPECT_TRUE(read("w/out.txt").startsWith("double 4")) << "of the last run";
    const Outcome outdated = merix(QStringList{"write", "--out", "w", "--set", "conf.x=5"} + adder);
    EXPECT_TRUE(outdated.errors.contains("aren't valid (finished, of an earlier set-up (x was 2, is 5))"))
        << outdated.errors.toStdString();
    EXPECT_EQ(merix(QStringList{"run", "--chain", "--set", "x=5"} + adder).output, "sum = 11\n");
    EXPECT_EQ(merix({"import", "a.lodm", "--into", "other/q.mrx"}).exitCode, 0);
    const Outcome again = merix({"run", "other/q.mrx", "--computation", "adder_01", "--chain"});
    EXPECT_EQ(again.output, "sum = 5\n") << again.errors.toStdString();

    const QByteArray project = read("other/q.mrx");
    write("cut.lodm", read("a.lodm").chopped(100));
    const Outcome cut = merix({"import", "cut.lodm", "--into", "other/q.mrx"});
    EXPECT_EQ(cut.exitCode, 1);
    EXPECT_TRUE(cut.errors.contains("can't be imported whole")) << cut.errors.toStdString();
    EXPECT_EQ(read("other/q.mrx"), project);
    write("empty.lodm", "\n");
    EXPECT_EQ(merix({"import", "empty.lodm", "--into", "other/new.mrx"}).exitCode, 1);
    EXPECT_FALSE(has("other/new.mrx"));
    EXPECT_EQ(merix({"import", "p.mrx", "--into", "other/q.mrx"}).exitCode, 2) << "of another kind";
    EXPECT_EQ(merix({"import", "none.lodm", "--into", "other/q.mrx"}).exitCode, 3);
}

TEST_F(SetUpTest, examplesHaveNoProblems) {
    for (const char* name : {"cantilever/cantilever.merix", "cantilever/designs.merix", "bandpass/bandpass.merix",
                             "heat-exchanger/heat-exchanger.merix"}) {
        const Outcome outcome = merix({"check", QString(MERIX_EXAMPLES "/") + name, "--json"});
        const QJsonObject all = QJsonDocument::fromJson(outcome.output.toUtf8()).object();
        for (const QJsonValue& problem : all["problems"].toArray()) {
            const QString text = problem.toObject()["text"].toString();
            EXPECT_TRUE(text.contains("was not found")) << name << ": " << text.toStdString();
        }
        EXPECT_TRUE(all.contains("errors")) << outcome.errors.toStdString();
    }
}

}  // namespace
