#include "tests/support/FUndoTest.h"

#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/script/FProject.h"
#include "host/script/FProjectText.h"
#include "tests/support/FModelState.h"
#include "tests/support/randomCases.h"

#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr std::size_t usualLimit = std::size_t{256} << 20U;
constexpr int sequenceLength = 60;

int caseCount() {
    return randomCases(40);
}

FHistory& history() {
    return *FHistory::instance();
}

bool holdsUnsaved() {
    const QList<FManaged*> objects = FObjectManager::instance()->getManaged(FManaged::null());
    return std::any_of(objects.begin(), objects.end(), [](const FManaged* object) {
        QString text;
        QTextStream stream(&text);
        object->saveScopeManner(stream, 0, false, true);
        stream.flush();
        return text.isEmpty();
    });
}

int steps() {
    return history().getLabels().size();
}

}  // namespace

FUndoTest::~FUndoTest() {
    history().setLimit(usualLimit);
}

void FUndoTest::start(int seed) {
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
void FUndoTest::noteSteps(int before) {
    if (steps() > before) {
        mStates.resize(before + 1);
        mStates.resize(steps());
        mStates.append(modelState());
        checkHandles();
    } else {
        expectState();
    }
}

void FUndoTest::expectState() {
    const QString wanted = mStates[steps()];
    if (!wanted.isNull()) {
        EXPECT_EQ(modelState().toStdString(), wanted.toStdString()) << scriptText();
    }
    checkHandles();
}

/** A number always means the very same object, also after that was destroyed and came back. */
void FUndoTest::checkHandles() {
    for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        FExprBase& handle = mHandles[object->getDbId()];
        handle = handle.isEmpty() ? FExprBase(object) : handle;
        EXPECT_EQ(handle.getStored(), object) << scriptText();
    }
}

/** A statement that fails leaves no step. */
bool FUndoTest::carryOut(const QString& statement) {
    const int before = steps();
    mScript.append(statement);
    const bool done = run(statement);
    EXPECT_TRUE(done || steps() == before) << scriptText();
    return done;
}

void FUndoTest::act(FRandomCommands& commands) {
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
    } else if (carryOut(commands.statement()) && log().size() == logged && commands.getLastRow()) {
        mCarriedOut.insert(commands.getLastRow());
    }
    noteSteps(before);
}

/** Several statements in one transaction, which counts only if it and all within it come to their end. */
void FUndoTest::group(FRandomCommands& commands) {
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

void FUndoTest::go(bool forward, int count) {
    for (int i = 0; i < count && !HasFailure() && (forward ? history().redo() : history().undo()); ++i) {
        mScript.append(forward ? "# redo" : "# undo");
        expectState();
    }
}

void FUndoTest::everyStateComesBack() {
    for (int seed = 0; seed < caseCount() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FRandomCommands commands(static_cast<quint32>(seed), files());
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
        EXPECT_TRUE(HasFailure() || mCarriedOut.contains(row))
            << row->className().toStdString() << " was never carried out without a message";
    }
}

/** The states, each once, up to the end of the history. */
QStringList FUndoTest::statesOnTheWay(bool forward) {
    QStringList states{modelState()};
    while (forward ? history().redo() : history().undo()) {
        const QString state = modelState();
        if (state != states.last()) {
            states.append(state);
        }
    }
    return states;
}

void FUndoTest::memoryStaysWithinTheLimit() {
    for (int seed = 0; seed < caseCount() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FRandomCommands commands(static_cast<quint32>(seed), files());
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

void FUndoTest::projectsComeBack() {
    const QTemporaryDir folder;
    const QString file = folder.filePath("project.mrx");
    int saves = 0;
    for (int seed = 0; seed < caseCount() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FRandomCommands commands(static_cast<quint32>(seed), files());
        start(seed);
        for (int i = 0; i < sequenceLength && !HasFailure(); ++i) {
            act(commands);
        }
        for (FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
            // Else what is saved might name what isn't, and what stays would have its name.
            object->setInProject(true);
            object->setInUserConfig(false);
        }
        const QByteArray saved = FProjectText::write();
        // What names results or other objects that aren't saved has no form that could be read.
        if (holdsUnsaved()) {
            continue;
        }
        ++saves;
        const int logged = log().size();
        EXPECT_TRUE(FProject::instance()->save(file));
        EXPECT_TRUE(FProject::instance()->open(file, false))
            << log().mid(logged).join('\n').toStdString() << saved.toStdString() << scriptText();
        EXPECT_EQ(FProjectText::write().toStdString(), saved.toStdString()) << scriptText();
        FProject::instance()->create();
    }
    EXPECT_GT(saves, caseCount() / 10);
}
