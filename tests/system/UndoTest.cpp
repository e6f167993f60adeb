#include "tests/system/FProgramTest.h"
#include "tests/system/FSetUp.h"

namespace {

class UndoTest : public FProgramTest {
 protected:
    static FSetUp setUp() {
        FSetUp setUp = FSetUp::shell("echo f 1 > out.dat");
        setUp.entries = QStringList{"\"a\", 1", "\"G|b\", \"text\""};
        setUp.inputs = {{"in.txt", "<entry>a</entry> <entry>G|b</entry> <entry>in.txt</entry>"}};
        setUp.results = {{"out.dat", {FSetUp::value("f", 0, 0, "f ")}}};
        return setUp;
    }

    /** Prints the state of all that the steps change, and a line that ends it. */
    static QString report() {
        const QList<QPair<QString, QStringList>> attributes{{"par", {"setValue"}},
                                                            {"in1", {"setFileName", "setContent"}},
                                                            {"out1", {"setValues"}},
                                                            {"comp", {"setConfiguration", "setArguments"}}};
        QString text;
        for (const auto& [object, names] : attributes) {
            text += "if (exists(\"" + object + "\")) { print(\"" + object + "\"";
            for (const QString& name : names) {
                text += ", getAttribute(" + object + ", \"" + name + "\")";
            }
            text += ") }\n";
        }
        return text +
               "if (exists(\"def\")) { print(def.getEntryNames()) }\n"
               "if (exists(\"conf\")) { print(conf.getPreviewText(\"in.txt\")) }\n"
               "print(\"----\")\n";
    }
};

TEST_F(UndoTest, bringsBackEachStateOfASetUp) {
    const QStringList steps{
        "parameter par(2)",
        "conf.setEntryValue(\"a\", par * 3)",
        "in1.setContent(" + FSetUp::quoted("\"q\" \\ \r\n<entry>a</entry> <entry>g|B</entry> <entry>in.txt</entry>") +
            ")",
        "out1.setValues([" + FSetUp::average("m \"1\"", 2, 3) + "])",
        "def.renameEntry(\"G\", \"Group\")",
        "for (name in [\"u\"]) { def.addEntry(name, name) }",
        "comp.setArguments([\"-c\", \"exit 3\"])",
        "destroy(conf)"};
    QString text = setUp().text() + report();
    for (const QString& step : steps) {
        text += step + "\nok = comp.run()\n" + report();
    }
    text += QString("undo()\n" + report()).repeated(steps.size());
    text += QString("redo()\n" + report()).repeated(steps.size());
    const Outcome outcome = script(text + "print(redo())");
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();

    const QStringList states = outcome.output.split("----\n");
    ASSERT_EQ(states.size(), 3 * steps.size() + 2);
    EXPECT_EQ(states.last(), "false\n");
    const int count = steps.size();
    for (int i = 0; i < count; ++i) {
        EXPECT_NE(states[i], states[i + 1]) << steps[i].toStdString();
        EXPECT_EQ(states[2 * count - i], states[i]) << "undo of " << steps[i].toStdString();
        EXPECT_EQ(states[2 * count + i + 1], states[i + 1]) << "redo of " << steps[i].toStdString();
    }
}

}  // namespace
