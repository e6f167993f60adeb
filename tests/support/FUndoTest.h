#pragma once

#include "tests/support/FModelTest.h"
#include "tests/support/FRandomCommands.h"

#include <QHash>
#include <QSet>
#include <QVector>

/** Random sequences of all commands that there are, and what undo and redo make of them. */
class FUndoTest : public FModelTest {
 public:
    ~FUndoTest() override;

 protected:
    /** Sequences as many as MERIX_RANDOM_CASES says: each state must come back, and each command have been tried. */
    void everyStateComesBack();
    /** Within a small limit, the steps that are left do the same. */
    void memoryStaysWithinTheLimit();
    /** A project that was saved and opened again is saved to the same bytes. */
    void projectsComeBack();

    /** Statements that most sequences begin with, so that later ones find objects that belong together. */
    virtual QStringList beginning() const { return {}; }
    /** Files that commands may read. */
    virtual QStringList files() const { return {}; }
    /** What windows do without a command, as one step. */
    virtual void edit(FRandomCommands& commands) { commands.editObject(); }

 private:
    void start(int seed);
    void act(FRandomCommands& commands);
    void group(FRandomCommands& commands);
    bool carryOut(const QString& statement);
    void noteSteps(int before);
    void expectState();
    void checkHandles();
    void go(bool forward, int count);
    QStringList statesOnTheWay(bool forward);
    std::string scriptText() const { return mScript.join('\n').toStdString(); }

    QVector<QString> mStates;  // by the number of steps; null where a state was passed over
    QStringList mScript;
    QHash<int, FExprBase> mHandles;
    QSet<const FCmdRow*> mCarriedOut;  // without a message
};
