#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmd.h"
#include "host/script/FScriptNames.h"
#include "host/script/FSyntaxError.h"
#include "host/script/FSyntaxExpr.h"

#include <optional>

/**
 * Makes objects and commands of an expression as it is written: names become the objects that they stand for, variables
 * their values. Nothing is evaluated.
 */
class MERIX_EXPORT FBinder {
 public:
    /** What the expression is for. */
    enum class Use {
        Once,   //!< executed now, all commands are allowed
        Kept,   //!< kept by an object: only queries are allowed
        Saved,  //!< a command of a saved text: only commands flagged as data, whose arguments are queries and read no
                //!< file
    };

    FBinder(const FScriptNames& names, const QString& file) : mNames(names), mFile(file) {}

    /** An empty handle, with an error, for an unknown name or command. */
    FExprBase bind(const FSyntaxExpr& expression, Use use);
    /** A command on a receiver that is bound already. @param receiverName  as which it was written, for messages */
    FExprBase bindMember(const FExprBase& receiver, const FSyntaxExpr& call, Use use, const QString& receiverName = {});
    /** The arguments of a call, each as the rows want it. Stops at the first error. */
    std::vector<FExprBase> bindArguments(const std::vector<const FCmdRow*>& rows, const FSyntaxExpr& call, Use use);

    const std::optional<FSyntaxError>& getError() const { return mError; }

 private:
    FExprBase bindName(const FSyntaxExpr& expression, Use use);
    FExprBase keptForm(const FExprBase& found, const FSyntaxExpr& expression);
    FExprBase bindCall(const FSyntaxExpr& expression, Use use);
    FExprBase bindChain(const FSyntaxExpr& expression, Use use);
    FExprBase bindOperators(const FSyntaxExpr& expression, Use use);
    FExprBase bindList(const FSyntaxExpr& expression, Use use);
    std::vector<FExprBase> bindAll(const std::vector<FSyntaxExpr>& expressions, Use use);
    std::vector<const FCmdRow*> memberRows(const FExprBase& receiver, const FSyntaxExpr& call, bool& isOpen);
    bool mayStand(const std::vector<const FCmdRow*>& rows, const FSyntaxExpr& call, Use use);
    /** What a saved text has evaluated at once, unless it is an object that the command takes as such. */
    FExprBase bindEvaluated(const FSyntaxExpr& expression, bool isObject);
    FExprBase finish(FCmd* command, const FSyntaxExpr& expression, Use use);
    FExprBase fail(const FPlace& place, const QString& message);

    const FScriptNames& mNames;
    QString mFile;
    std::optional<FSyntaxError> mError;
};
