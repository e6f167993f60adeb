#pragma once

#include "host/core/FHistory.h"
#include "host/core/FImmediateUpdateBlocker.h"

#include <optional>

/**
 * A change by a user, as one step of the history: a statement of a script, an import, a gesture in a window. All
 * changes of the model are made inside one. It holds an update blocker inside its transaction, so that updates end
 * before the step does. The outermost one first takes over text that was typed into editors and isn't in the model yet.
 */
class MERIX_EXPORT FUserStep {
 public:
    explicit FUserStep(const QString& label);
    ~FUserStep();
    FUserStep(const FUserStep&) = delete;
    FUserStep& operator=(const FUserStep&) = delete;

    /** Takes back at the end of the step what was done in it. */
    void rollback() { mIsFailed = true; }
    /** Makes it a part of the step before; see FHistory. */
    void joinLast() { FHistory::instance()->joinLast(); }

    /**
     * Takes over text that is still in editors, as a step of its own; nothing happens in an open step. Whatever reads
     * the model as a whole without a step calls it first: undo, redo and saving.
     */
    static void commitEdits();

 private:
    std::optional<FImmediateUpdateBlocker> mBlocker;
    bool mIsFailed = false;
};
