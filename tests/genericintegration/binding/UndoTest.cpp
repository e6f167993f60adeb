#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FHistory.h"
#include "host/core/FIni.h"
#include "host/core/FUserStep.h"
#include "host/script/FProject.h"
#include "host/script/FProjectText.h"
#include "tests/genericintegration/binding/FModelMirror.h"
#include "tests/genericintegration/binding/FModelState.h"
#include "tests/genericintegration/binding/FRandomCommands.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/randomCases.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

constexpr std::size_t usualLimit = std::size_t{256} << 20U;
constexpr int sequenceLength = 60;

int caseCount() {
    return randomCases(80);
}

FHistory& history() {
    return *FHistory::instance();
}

int steps() {
    return history().getLabels().size();
}

/** Random sequences of all commands that there are, and what undo and redo make of them. */
class UndoTest : public FModelTest, public FTestFolder {
 public:
    ~UndoTest() override {
        QDir::setCurrent(mWorkFolder);
        FIni::setFile({});
        history().setLimit(usualLimit);
    }

 protected:
    UndoTest() {
        QDir::setCurrent(path());  // for commands that write files
        for (const QString& statement : beginning()) {
            run(statement);
        }
        EXPECT_TRUE(run("t2.save(\"" + path("t2.lodm") + "\")"));
        write("more.merix", "parameter t7(1)\nt7.setValue(t7 + 1)\n");
        FIni::setFile(path("t2.lodm/none"));  // settings don't matter here, and would wait for the disk
    }

    FRandomCommands commandsOf(int seed) const {
        return {static_cast<quint32>(seed), {path("t2.lodm"), path("more.merix")}};
    }

    /** Statements that most sequences begin with, so that later ones find objects that belong together. */
    static QStringList beginning() {
        return {"genericIntegrationCommandFile t0() { .setContent(\"<entry>a</entry> <entry>G|b</entry>\") }",
                "genericIntegrationResultsFile t1() { .setFileName(\"out.dat\") }",
                "parameter t4(2)",
                R"(genericIntegrationDefinition t2() { .addEntry("a", 1) .addEntry("G|b", "x") .addEntry("n", 2, 5, 1);
                       .setFiles([t0, t1]) })",
                "genericIntegrationConfiguration t3() { .setDefinition(t2); .setEntryValue(\"a\", t4 * 3) }",
                R"(genericIntegrationComputation t5() { .setConfiguration(t3); .setExecutable("sh");
                       .setArguments(["-c", "echo 1 > out.dat"]) })",
                "t5.openSoftwareConnector()"};
    }

    void start(int seed) {
        clear();
        mScript.clear();
        mHandles.clear();
        mStates = {modelState()};
        for (const QString& statement : seed % 4 ? beginning() : QStringList()) {
            EXPECT_TRUE(run(statement)) << statement.toStdString();
            noteSteps(steps() - 1);
        }
    }

    /** After what may have made steps, which all but the last leave a state that isn't known. */
    void noteSteps(int before) {
        if (steps() > before) {
            mStates.resize(before + 1);
            mStates.resize(steps());
            mStates.append(modelState());
            checkHandles();
        } else {
            expectState();
        }
    }

    void expectState() {
        const QString wanted = mStates[steps()];
        if (!wanted.isNull()) {
            EXPECT_EQ(modelState().toStdString(), wanted.toStdString()) << scriptText();
        }
        checkHandles();
    }

    /** A number always means the very same object, also after that was destroyed and came back. */
    void checkHandles() {
        EXPECT_EQ(mMirror.differences().toStdString(), "") << scriptText();
        for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
            FExprBase& handle = mHandles[object->getDbId()];
            handle = handle.isEmpty() ? FExprBase(object) : handle;
            EXPECT_EQ(handle.getStored(), object) << scriptText();
        }
    }

    /** A statement that fails leaves no step. */
    bool carryOut(const QString& statement) {
        const int before = steps();
        mScript.append(statement);
        const bool done = run(statement);
        const bool isInterrupted =
            statement.contains("run()") || statement.contains("do()") || statement.contains("include");
        EXPECT_TRUE(done || isInterrupted || steps() == before) << scriptText();
        return done;
    }

    /** What windows do without a command, as one step. */
    static void edit(FRandomCommands& commands) {
        const FUserStep step("edit");
        const auto objects = FObjectManager::instance()->getManaged(FManaged::null());
        FManaged* object = objects.isEmpty() ? nullptr : objects[commands.pick(objects.size())];
        if (auto* file = dynamic_cast<FGenIntResultsFile*>(object)) {
            editValues(*file, commands);
        } else if (auto* configuration = dynamic_cast<FConfigurationGenInt*>(object)) {
            configuration->reinit(commands.chance(50));
        } else {
            commands.editObject();
        }
    }

    /** As the editor does: the values are changed in place. */
    static void editValues(FGenIntResultsFile& file, FRandomCommands& commands) {
        if (commands.chance(40)) {
            file.addValue(QString(), commands.pick(5), commands.pick(5), "f", "First", commands.chance(50),
                          FExpr<FUnsigned>(new FUnsigned(3)));
        } else if (file.getValues()->count() > 0) {
            file.setCurValue(file.getValues()->at(commands.pick(file.getValues()->count())));
        }
        file.setCurValueName(QStringLiteral("v%1").arg(commands.pick(5)));
        file.setCurrentAnchor(QStringLiteral("anchor %1").arg(commands.pick(5)));
        if (commands.chance(30)) {
            file.deleteCurrentValue();
        }
        history().addStep(&file);
        if (commands.chance(10)) {
            const FExprBase copy(file.clone());
        }
        file.createParam(file.getValues()->count() > 0 ? "v1" : "v2", "t5", false);
    }

    void act(FRandomCommands& commands) {
        const int before = steps();
        const int logged = log().size();
        const int kind = commands.pick(100);
        if (kind < 10) {
            mScript.append("# edit");
            edit(commands);
        } else if (kind < 18) {
            carryOut(commands.failingStatement());
        } else if (kind < 22) {
            group(commands);
        } else if (kind < 26) {
            carryOut(commands.interruptedStatement());
        } else if (carryOut(commands.statement()) && log().size() == logged && commands.getLastRow()) {
            mCarriedOut.insert(commands.getLastRow());
        }
        noteSteps(before);
    }

    /** Several statements in one transaction, which counts only if it and all within it come to their end. */
    void group(FRandomCommands& commands) {
        const int before = steps();
        mScript.append("# group");
        history().startTransaction("group");
        bool good = true;
        for (int i = commands.pick(4); i > 0; --i) {
            const bool fails = commands.chance(20);
            good = carryOut(fails ? commands.failingStatement() : commands.statement()) && good;
        }
        const bool isKept = commands.chance(60);
        isKept ? history().commit() : history().rollback();
        mScript.append(isKept ? "# end" : "# rollback");
        EXPECT_LE(steps(), before + (good && isKept ? 1 : 0)) << scriptText();
    }

    void go(bool forward, int count) {
        for (int i = 0; i < count && !HasFailure() && (forward ? history().redo() : history().undo()); ++i) {
            mScript.append(forward ? "# redo" : "# undo");
            expectState();
        }
    }

    /** The states, each once, up to the end of the history. */
    QStringList statesOnTheWay(bool forward) {
        QStringList states{modelState()};
        while (forward ? history().redo() : history().undo()) {
            const QString state = modelState();
            if (state != states.last()) {
                states.append(state);
            }
        }
        return states;
    }

    std::string scriptText() const { return mScript.join('\n').toStdString(); }

    QVector<QString> mStates;  // by the number of steps; null where a state was passed over
    QStringList mScript;
    QHash<int, FExprBase> mHandles;
    FModelMirror mMirror;
    QString mWorkFolder = QDir::currentPath();
    QSet<const FCmdRow*> mCarriedOut;  // without a message
};

TEST_F(UndoTest, everyStateComesBack) {
    for (int seed = 0; seed < caseCount() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FRandomCommands commands = commandsOf(seed);
        if (seed % 4 == 3) {
            commands.favourRest(mCarriedOut);
        }
        start(seed);
        for (int i = 0; i < sequenceLength && !HasFailure(); ++i) {
            const int kind = commands.pick(100);
            kind < 85 ? act(commands) : go(kind >= 95, 1 + commands.pick(8));
        }
        for (const bool forward : {true, false, true}) {
            go(forward, mStates.size());
            EXPECT_TRUE(HasFailure() || steps() == (forward ? mStates.size() - 1 : 0)) << scriptText();
        }
        history().clear();
        EXPECT_EQ(history().getSize(), 0U);
    }
    for (const FCmdRow* row : FRandomCommands::getActingRows()) {
        // To read results without a message takes the files of a run, and to choose some a window.
        const bool mayWarn = row->name == "rereadResults" || row->name == "chooseResultsFile";
        EXPECT_TRUE(HasFailure() || mCarriedOut.contains(row) || mayWarn)
            << row->className().toStdString() << " was never carried out without a message";
    }
}

TEST_F(UndoTest, memoryStaysWithinTheLimit) {
    for (int seed = 0; seed < caseCount() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FRandomCommands commands = commandsOf(seed);
        history().setLimit(usualLimit);
        start(seed);
        const std::size_t limit = 500U << static_cast<unsigned>(seed % 6);
        history().setLimit(limit);
        QStringList states = mStates.toList();
        for (int i = 0; i < sequenceLength && !HasFailure(); ++i) {
            {
                const FHistoryTransaction one("one");
                run(commands.statement());
            }
            const QString state = modelState();
            if (state != states.last()) {
                states.append(state);
            }
            EXPECT_LE(history().getSize(), limit);
        }
        QStringList back = statesOnTheWay(false);
        EXPECT_LE(history().getSize(), limit);
        std::reverse(back.begin(), back.end());
        EXPECT_EQ(back.join("\n\n").toStdString(), states.mid(states.size() - back.size()).join("\n\n").toStdString());
        const QStringList forth = statesOnTheWay(true);
        EXPECT_TRUE(forth == back.mid(0, forth.size()));
        history().clear();
        EXPECT_EQ(history().getSize(), 0U);
    }
}

TEST_F(UndoTest, projectsComeBack) {
    const QString file = path("project.mrx");
    for (int seed = 0; seed < caseCount() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FRandomCommands commands = commandsOf(seed);
        start(seed);
        for (int i = 0; i < sequenceLength && !HasFailure(); ++i) {
            act(commands);
        }
        auto blocker = std::make_unique<FHistoryBlocker>();
        for (FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
            // Else what is saved might name what isn't, and what stays would have its name.
            object->setInProject(true);
            object->setInUserConfig(false);
        }
        // What names results or other objects that aren't saved has no form that could be read.
        for (FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
            if (saved(*object).isEmpty()) {
                FManaged::destroy(object);
            }
        }
        blocker.reset();
        const QByteArray text = FProjectText::write();
        const int logged = log().size();
        EXPECT_TRUE(FProject::instance()->save(file));
        EXPECT_TRUE(FProject::instance()->open(file, false))
            << log().mid(logged).join('\n').toStdString() << text.toStdString() << scriptText();
        EXPECT_EQ(FProjectText::write().toStdString(), text.toStdString()) << scriptText();
        EXPECT_EQ(mMirror.differences().toStdString(), "") << scriptText();
        FProject::instance()->create();
    }
}

}  // namespace
