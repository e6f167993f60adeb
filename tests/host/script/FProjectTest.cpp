#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FQuotedText.h"
#include "host/script/FProject.h"
#include "host/script/FProjectText.h"
#include "tests/support/FFileSizeLimit.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <QDateTime>
#include <QDir>

namespace {

class FProjectTest : public FModelTest, public FTestFolder {
 public:
    ~FProjectTest() override { FProject::instance()->close(false); }

 protected:
    static bool save() { return FProject::instance()->save(QString()); }
    bool save(const QString& name) { return FProject::instance()->save(path(name)); }
    bool open(const QString& name, bool recover = false) { return FProject::instance()->open(path(name), recover); }
    void setAge(const QString& name, int seconds) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(
            file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime));
    }
    /** The project p.mrx has an object a, whose number 1 is saved and 2 isn't. */
    void saveAndChange() {
        ASSERT_TRUE(run("thing a(1)"));
        ASSERT_TRUE(save("p"));
        ASSERT_TRUE(run("a.setNumber(2)"));
    }
};

TEST_F(FProjectTest, whatIsSavedComesBack) {
    ASSERT_TRUE(run(R"(
parameter span(12.5)
parameter twice(2 * span)
parameter last(3)
twice.setValue(2 * last)
thing DocuName(4)
thing Δ() { .setFriend(getObjects("FThing").at(0)) }
)"));
    const int id = FObjectManager::instance()->find("last")->getDbId();
    ASSERT_TRUE(save("p.mrx"));
    ASSERT_TRUE(open("p.mrx")) << logText();
    EXPECT_EQ(FObjectManager::instance()->find("last")->getDbId(), id);
    EXPECT_EQ(FHistory::instance()->getLabels(), QStringList());
    EXPECT_EQ(textOf("getAttribute(Δ, \"setFriend\")"), "DocuName") << "and not the word of that name";
    ASSERT_TRUE(run("parameter next(1)\nlast.setValue(5)\nundo()"));
    EXPECT_GT(FObjectManager::instance()->find("next")->getDbId(), id);
    EXPECT_EQ(textOf("twice.getValue()"), "6");
    EXPECT_LT(read("p.mrx").indexOf("parameter last"), read("p.mrx").indexOf("parameter twice"));
}

TEST_F(FProjectTest, aLoopIsAutosavedWhileItRuns) {
    ASSERT_TRUE(run("thing a(1)"));
    ASSERT_TRUE(save("p"));
    QByteArrayList saved;
    const auto listening = QObject::connect(FChanges::instance(), &FChanges::statementDone,
                                            [this, &saved] { saved << read("p.mrx.autosave"); });
    ASSERT_TRUE(run("for (i in [2, 3]) { a.setNumber(i) }"));
    QObject::disconnect(listening);
    ASSERT_EQ(saved.size(), 2);
    EXPECT_TRUE(saved.first().contains("setNumber(2)")) << "the step is still open";
    EXPECT_EQ(FHistory::instance()->getLabels().last(), "for (test:1)");
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(textOf("a.getNumber()"), "1");
}

TEST_F(FProjectTest, whatALoopThatFailedHadAutosavedGoes) {
    ASSERT_TRUE(run("thing a(1)"));
    ASSERT_TRUE(save("p"));
    EXPECT_FALSE(run("for (i in [2, 3]) { a.setNumber(i); noSuch() }"));
    EXPECT_EQ(textOf("a.getNumber()"), "1");
    EXPECT_FALSE(has("p.mrx.autosave")) << "the project has what there is";
}

TEST_F(FProjectTest, namesInARingComeBack) {
    auto* a = FObjectManager::instance();
    ASSERT_TRUE(run("thing a(1)\nthing b(2)\nthing c(3) { .setFriend(a) }\nthing d(4)"));
    // A ring of handles that the update graph doesn't see.
    write("ring.mrx",
          "// merix project, format 1\nthing b(2) {\n.setDbId(9)\n.setFriend(c)\n.setText(\"b\")\n}\n"
          "thing c(3) {\n.setDbId(2)\n.setFriend(d)\n}\nthing d(4) {\n.setFriend(a)\n}\nthing a(e.getNumber())\n"
          "d.setText(\"later\")\nthing e(7)\n");
    ASSERT_TRUE(open("ring.mrx")) << logText();
    EXPECT_EQ(textOf("[b.getNumber(),getAttribute(b, \"setFriend\"),getAttribute(d, \"setFriend\"),a.getNumber()]"),
              "[2,c,a,7]");
    EXPECT_EQ(a->find("b")->getDbId(), 9);
    EXPECT_EQ(a->find(2)->getName(), "c");
    // What is really missing is reported, and costs no more than what needs it.
    write("ring.mrx",
          "// merix project, format 1\nthing a(b.getNumber())\nthing b(a.getNumber())\nthing c(1) {\n"
          ".setFriend(nobody)\n.setText(\"c\")\n.setFriend(a)\n.setNumber(5)\n}\n");
    EXPECT_FALSE(open("ring.mrx"));
    EXPECT_EQ(FObjectManager::instance()->getNames(), QStringList{"c"});
    EXPECT_EQ(textOf("c.getNumber()"), "5");
    EXPECT_TRUE(logHolds("ring.mrx:5:12: nothing is named \"nobody\""));
    EXPECT_TRUE(logHolds("ring.mrx:2:1: \"a\" can't be made: it needs \"b\", which in turn needs it"));
    EXPECT_TRUE(logHolds("ring.mrx:3:9: nothing is named \"a\""));
}

TEST_F(FProjectTest, theVersionBeforeIsKept) {
    EXPECT_FALSE(save());
    EXPECT_TRUE(logHolds("the project has no file yet"));
    saveAndChange();
    ASSERT_TRUE(save());
    ASSERT_TRUE(save());
    EXPECT_FALSE(has("p.mrx.autosave"));
    EXPECT_TRUE(read("p.mrx~").contains("thing a(1)")) << "an unchanged project isn't a version";
    ASSERT_TRUE(run("a.setNumber(3)"));
    {
        const FFileSizeLimit full(20);
        EXPECT_FALSE(save());
    }
    EXPECT_EQ(QDir(path()).entryList({"*.saving*"}), QStringList());
    EXPECT_FALSE(save("no/such/folder/p.mrx"));
    EXPECT_EQ(log().filter("it can't be written: ").size(), 2) << logText();
    EXPECT_TRUE(read("p.mrx").contains("thing a(2)"));
    EXPECT_EQ(FMerixCtrl::instance()->getProjectFile(), path("p.mrx"));
}

TEST_F(FProjectTest, aDamagedFileIsKeptAndTheRestIsRead) {
    write("p.mrx",
          "// merix projeXt, format 1\nthing a(1) {\n.setText(\"x\")\n.setNumbr(2)\n.setNumber(\"3\")\n}\nthng b()\n"
          "thing c(3) {\n.setFriend(a)\n.setText(\"no end)\n}\nthing d(4)\n");
    EXPECT_FALSE(open("p.mrx"));
    EXPECT_EQ(FObjectManager::instance()->getNames(), (QStringList{"a", "c", "d"}));
    for (const char* told :
         {"p.mrx:1: a project begins with the line \"// merix project, format 1\", but this file begins with",
          "p.mrx:4:2: FThing has no command \"setNumbr\"", "p.mrx:5:2: setNumber: argument 1",
          "p.mrx:7:1: there is no creator \"thng\"", "p.mrx:10:", "5 errors; what they concern was not loaded"}) {
        EXPECT_TRUE(logHolds(told)) << told << "\n" << logText();
    }
    const QByteArray damaged = read("p.mrx");
    ASSERT_TRUE(save());
    ASSERT_TRUE(run("a.setNumber(9)"));
    ASSERT_TRUE(save());
    EXPECT_EQ(read("p.mrx.damaged"), damaged);
    // So is one whose unsaved work is recovered after a crash.
    write("crash.mrx", damaged);
    EXPECT_FALSE(open("crash.mrx"));
    ASSERT_TRUE(run("a.setNumber(7)"));
    for (int crash = 0; crash < 2; ++crash) {
        FProject::instance()->close(true);
        ASSERT_TRUE(open("crash.mrx", true)) << logText();
    }
    ASSERT_TRUE(save());
    EXPECT_EQ(read("crash.mrx.damaged"), damaged);
    EXPECT_TRUE(read("crash.mrx").startsWith("// merix project, format 1\n\nthing a(7)"));
    ASSERT_FALSE(open("none.mrx"));
    EXPECT_TRUE(open("p.mrx"));
    // Unsaved work that couldn't be read whole is saved over at once.
    write("p.mrx.autosave", damaged);
    EXPECT_FALSE(open("p.mrx", true));
    EXPECT_EQ(read("p.mrx.damaged2"), damaged);
    EXPECT_TRUE(read("p.mrx").contains("thing a(9)"));
}

TEST_F(FProjectTest, aNumberThatNoObjectCanHaveIsTold) {
    write("p.mrx",
          "// merix project, format 1\nthing a(1) {\n.setDbId(2147483647)\n}\nthing b(2) {\n.setDbId(-3)\n}\n");
    EXPECT_FALSE(open("p.mrx"));
    EXPECT_TRUE(logHolds("p.mrx:3:2: setDbId: 2147483647 can't be the number of an object")) << logText();
    EXPECT_TRUE(logHolds("p.mrx:6:2: setDbId: -3 can't be the number of an object")) << logText();
    ASSERT_TRUE(run("thing c(3)"));
    EXPECT_EQ(FObjectManager::instance()->find("c")->getDbId(), 3);
}

TEST_F(FProjectTest, anotherProgramsChangeIsntSavedOver) {
    saveAndChange();
    write("p.mrx", read("p.mrx") + "thing b()\n");
    EXPECT_FALSE(save());
    EXPECT_TRUE(logHolds("another program has changed the file"));
    EXPECT_TRUE(read("p.mrx").contains("thing b"));
    ASSERT_TRUE(save("q.mrx"));
    EXPECT_TRUE(save());
}

TEST_F(FProjectTest, theFilesBesideAProjectAreItsOwn) {
    write("other.txt", "not to be touched");
    ASSERT_TRUE(save("p.mrx"));
    ASSERT_TRUE(QFile::setPermissions(path("p.mrx"), QFile::ReadOwner | QFile::WriteOwner));
    for (const char* name : {"p.mrx~", "p.mrx.autosave"}) {
        ASSERT_TRUE(QFile::link(path("other.txt"), path(name)));
    }
    ASSERT_TRUE(run("thing a(1)"));
    EXPECT_EQ(QFile::permissions(path("p.mrx.autosave")), QFile::permissions(path("p.mrx")));
    ASSERT_TRUE(save());
    EXPECT_EQ(QFile::permissions(path("p.mrx~")), QFile::permissions(path("p.mrx")));
    EXPECT_EQ(read("other.txt"), "not to be touched");
    // What killed saves have left goes, and nothing else.
    write("p.mrx.saving-abcdef", "");
    write("p.mrx.saving-ABCDEF", "");
    write("pxmrx.saving-abcdef", "");
    ASSERT_TRUE(run("a.setNumber(2)"));
    ASSERT_TRUE(save());
    EXPECT_EQ(QDir(path()).entryList({"*.saving-*"}), (QStringList{"p.mrx.saving-ABCDEF", "pxmrx.saving-abcdef"}));
    // A link to the project is the project.
    ASSERT_TRUE(QFile::link(path("p.mrx"), path("link.mrx")));
    ASSERT_TRUE(open("link.mrx"));
    EXPECT_EQ(FMerixCtrl::instance()->getProjectFile(), path("p.mrx"));
}

TEST_F(FProjectTest, whatCantBeOpenedLeavesThePresentProject) {
    ASSERT_TRUE(run("thing a(1)"));
    write("newer.mrx", "// merix project, format 2\nthing b()\n");
    write("huge.mrx", "");
    ASSERT_TRUE(QFile::resize(path("huge.mrx"), qint64{1} << 30U));
    write("picture.gif", "GIF89a\nthing b()\n");
    ASSERT_TRUE(QFile::link("/dev/zero", path("endless.mrx")));
    for (const char* name : {"newer.mrx", "huge.mrx", "missing.mrx", ".", "picture.gif", "endless.mrx"}) {
        EXPECT_FALSE(open(name)) << name;
    }
    EXPECT_TRUE(logHolds("written in format 2; this program reads formats up to 1"));
    EXPECT_TRUE(logHolds("a project can't have more than"));
    EXPECT_TRUE(logHolds("picture.gif: it is no project: its first line is \"GIF89a\""));
    EXPECT_EQ(FObjectManager::instance()->getNames(), QStringList{"a"});
    EXPECT_TRUE(FHistory::instance()->undo());
}

TEST_F(FProjectTest, aProjectOpenElsewhereIsntSavedOver) {
    saveAndChange();
    ASSERT_TRUE(has("p.mrx.lock"));
    FProject::instance()->create();
    EXPECT_FALSE(has("p.mrx.lock"));
    QLockFile other(path("p.mrx.lock"));
    ASSERT_TRUE(other.lock());
    EXPECT_TRUE(open("p.mrx"));
    EXPECT_TRUE(logHolds("the project is open elsewhere"));
    ASSERT_TRUE(run("a.setNumber(3)"));
    EXPECT_FALSE(has("p.mrx.autosave"));
    write("p.mrx.autosave", "that of the other process");
    FProject::instance()->create();
    FMerixCtrl::instance()->setReadOnly(true);
    EXPECT_TRUE(open("p.mrx"));
    FMerixCtrl::instance()->setReadOnly(false);
    EXPECT_FALSE(logHolds("there is unsaved work")) << logText();
    QFile::remove(path("p.mrx.autosave"));
    EXPECT_TRUE(open("p.mrx"));
    EXPECT_FALSE(save("p.mrx"));
    EXPECT_TRUE(save("q.mrx"));
    EXPECT_EQ(FProject::instance()->getHolder(), "");
    other.unlock();
    for (const auto& takeOver : {+[] { return save(); },
                                 +[] {
                                     FProject::instance()->takeOverIfFree();
                                     return FProject::instance()->getHolder().isEmpty();
                                 }}) {
        ASSERT_TRUE(other.tryLock(0));
        ASSERT_TRUE(open("p.mrx"));
        EXPECT_FALSE(takeOver());
        other.unlock();
        EXPECT_TRUE(takeOver());
        EXPECT_FALSE(other.tryLock(0)) << "it is held here now";
        ASSERT_TRUE(run("a.setNumber(4)"));
        EXPECT_TRUE(has("p.mrx.autosave"));
        FProject::instance()->create();
    }
}

TEST_F(FProjectTest, aDamagedLockLocksNobodyOut) {
    saveAndChange();
    FProject::instance()->create();
    for (const char* content : {"", "not a number\n"}) {
        write("p.mrx.lock", content);
        EXPECT_TRUE(open("p.mrx"));
        EXPECT_TRUE(logHolds("the project is open elsewhere (its lock \"" + path("p.mrx.lock") + "\" can't be read)"))
            << "its process may just be writing it";
        setAge("p.mrx.lock", 60);
        EXPECT_TRUE(open("p.mrx"));
        EXPECT_TRUE(log().last().contains("the lock file was empty or damaged"));
        EXPECT_TRUE(save());
        FProject::instance()->create();
    }
}

TEST_F(FProjectTest, unsavedWorkSurvivesACrash) {
    saveAndChange();
    const QByteArray unsaved = read("p.mrx.autosave");
    EXPECT_TRUE(unsaved.contains("thing a(2)"));
    FProject::instance()->close(true);
    EXPECT_TRUE(has("p.mrx.autosave"));
    ASSERT_TRUE(open("p.mrx", true));
    EXPECT_EQ(textOf("a.getNumber()"), "2");
    FProject::instance()->close(false);
    EXPECT_TRUE(has("p.mrx.autosave")) << "recovered, but not saved";
    ASSERT_TRUE(open("p.mrx"));
    ASSERT_TRUE(run("a.setNumber(7)"));
    ASSERT_TRUE(open("p.mrx"));
    EXPECT_FALSE(has("p.mrx.autosave")) << "given up by opening another project";
    EXPECT_TRUE(has("p.mrx.autosave~"));
    ASSERT_TRUE(run("a.setNumber(8)"));
    FProject::instance()->close(false);
    EXPECT_FALSE(has("p.mrx.autosave")) << "an orderly end";

    // What nobody took isn't lost by further work.
    write("p.mrx.autosave", unsaved + "thing taken()\n");
    ASSERT_TRUE(open("p.mrx"));
    EXPECT_EQ(textOf("a.getNumber()"), "1");
    EXPECT_EQ(log().filter("there is unsaved work of ").size(), 2) << logText();
    ASSERT_TRUE(run("a.setNumber(3)"));
    EXPECT_TRUE(read("p.mrx.autosave").contains("thing a(3)"));
    EXPECT_TRUE(read("p.mrx.autosave~2").contains("taken"));
    ASSERT_TRUE(run("undo()"));
    FProject::instance()->close(true);
    EXPECT_FALSE(has("p.mrx.autosave")) << "nothing is unsaved";
    ASSERT_TRUE(open("p.mrx"));
    ASSERT_TRUE(run("a.setNumber(3)"));
    ASSERT_TRUE(open("p.mrx", true));
    EXPECT_EQ(textOf("a.getNumber()"), "3") << "one's own unsaved work counts as well";
    write("p.mrx.autosave", unsaved);
    setAge("p.mrx.autosave", 86400);
    FProject::instance()->create();
    ASSERT_TRUE(open("p.mrx"));
    EXPECT_TRUE(logHolds(" (the project is newer), from a session that didn't end well"));
    ASSERT_TRUE(open("p.mrx", true));
    EXPECT_EQ(textOf("a.getNumber()"), "2");
    write("p.mrx.autosave", read("p.mrx"));
    ASSERT_TRUE(open("p.mrx", true));
    EXPECT_TRUE(logHolds("there is no unsaved work to recover"));
    EXPECT_FALSE(has("p.mrx.autosave"));
}

TEST_F(FProjectTest, aProjectIsDataAndDoesNothing) {
    write("secret.txt", "12");
    const QString secret = quoteText(path("secret.txt"));
    const QString project =
        "// merix project, format 1\nthing a(1)\nthing b(readText(" + secret + "))\nthing c(2) {\n.setText(readText(" +
        secret + "))\n.setNumber(3).destroy(a)\n.setText(\"kept\").add(1)\n.add(1,exit(2))\n}\n" +
        "parameter p(readText(" + secret + "))\nparameter q(destroy(a))\nparameter r(include(" + secret +
        "))\nparameter s() {\n.setValue(saveProject(" + quoteText(path("written.mrx")) +
        "))\n}\ndestroy(a)\nprint(1)\nwhile (true) {}\nx = exit(3)\na.destroy()\nreadText(" + secret + ").at(0)\n";
    write("p.mrx", project.toUtf8());
    EXPECT_FALSE(open("p.mrx"));
    EXPECT_EQ(FObjectManager::instance()->getNames(), (QStringList{"a", "c", "p", "s"}));
    EXPECT_EQ(textOf("getAttribute(c, \"setText\")"), "");
    EXPECT_EQ(textOf("c.getNumber()"), "2");
    EXPECT_FALSE(has("written.mrx"));
    for (int line : {3, 5, 6, 7, 8, 11, 12, 14, 16, 17, 18, 19, 20, 21}) {
        EXPECT_TRUE(logHolds(QString("p.mrx:%1:").arg(line))) << line << "\n" << logText();
    }
    EXPECT_TRUE(logHolds("changes something and can't be part of an expression that is kept"));
    EXPECT_TRUE(logHolds("can't appear in a saved text"));
    // An expression that reads files may be kept; it is evaluated when somebody asks.
    const auto* parameter = FObjectManager::instance()->find("p");
    EXPECT_TRUE(parameter->isOutOfDate());
    EXPECT_EQ(textOf("p.getValue()"), "12");
}

}  // namespace
