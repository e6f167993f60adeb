#pragma once

#include "host/script/FSyntaxStatement.h"

/**
 * One step of the history that a script makes: a transaction for the life of the object, taken back at its end unless
 * it was said to be done. Commands that keep steps of their own (undo, or a run that takes its time) are in none.
 */
class FScriptStep {
 public:
    /** @param wraps  false for no transaction */
    FScriptStep(const QString& label, bool wraps);
    /** A step that evaluates an expression. */
    FScriptStep(const QString& label, const FSyntaxExpr& expression);
    /** A loop or a branch outside of any transaction is one step as a whole; other statements look after themselves. */
    explicit FScriptStep(const FSyntaxStatement& statement);
    ~FScriptStep();
    FScriptStep(const FScriptStep&) = delete;
    FScriptStep& operator=(const FScriptStep&) = delete;

    bool done(bool good) { return mDone = good; }

 private:
    bool mWraps;
    bool mDone = false;
};
