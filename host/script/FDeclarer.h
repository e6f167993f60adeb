#pragma once

#include "host/script/FBinder.h"
#include "host/script/FSyntaxStatement.h"

/** Makes the objects of declarations, and executes the commands of their blocks. */
class FDeclarer {
 public:
    enum class Outcome {
        Done,
        Null,    //!< an argument didn't fit; the command has warned
        Failed,  //!< a name or command isn't known; nothing has been done
    };

    /** @param use  Once for a script, Saved for a saved text */
    FDeclarer(FScriptNames& names, const QString& file, FBinder::Use use) : mNames(names), mFile(file), mUse(use) {}

    /** Makes the object, which the declared name means from now on. */
    Outcome create(const FSyntaxDeclaration& declaration, FExprBase& object);
    /** Executes a line of a block on the object. */
    Outcome command(const FExprBase& object, const FSyntaxBlockLine& line);
    /** Executes a chain of commands. */
    Outcome command(const FSyntaxExpr& chain);
    /** What was wrong last. */
    const FSyntaxError& getError() const { return mError; }

 private:
    Outcome carryOut(const FBinder& binder, const FExprBase& command);

    FScriptNames& mNames;
    QString mFile;
    FBinder::Use mUse;
    FSyntaxError mError;
};
