#include "host/script/FScriptStep.h"

#include "host/core/FHistory.h"
#include "host/script/FCmdManager.h"

#include <algorithm>

namespace {

/** Whether a command in the expression keeps steps of its own: undo, or a run that takes its time. */
bool isUnwrapped(const FSyntaxExpr& expression) {
    if (expression.kind == FSyntaxExpr::Kind::Call) {
        auto rows = FCmdManager::instance()->findGlobals(expression.name);
        const auto members = FCmdManager::instance()->findMembersOfAnyClass(expression.name);
        rows.insert(rows.end(), members.begin(), members.end());
        if (std::any_of(rows.begin(), rows.end(), [](const FCmdRow* row) { return row->isUnwrapped; })) {
            return true;
        }
    }
    return std::any_of(expression.operands.begin(), expression.operands.end(),
                       [](const FSyntaxExpr& operand) { return isUnwrapped(operand); });
}

bool hasUnwrapped(const FSyntaxBody& body);

/** The same for the parts of a statement; a declaration is a step in any case. */
struct FindUnwrapped {
    bool operator()(const FSyntaxExpr& expression) const { return isUnwrapped(expression); }
    bool operator()(const FSyntaxDeclaration&) const { return false; }
    bool operator()(const FSyntaxAssignment& assignment) const { return isUnwrapped(assignment.value); }
    bool operator()(const FSyntaxWhile& loop) const { return isUnwrapped(loop.condition) || hasUnwrapped(loop.body); }
    bool operator()(const FSyntaxFor& loop) const { return isUnwrapped(loop.list) || hasUnwrapped(loop.body); }
    bool operator()(const FSyntaxIf& branches) const {
        return hasUnwrapped(branches.otherwise) ||
               std::any_of(branches.branches.begin(), branches.branches.end(), [](const FSyntaxIf::Branch& branch) {
                   return isUnwrapped(branch.condition) || hasUnwrapped(branch.body);
               });
    }
};

bool hasUnwrapped(const FSyntaxBody& body) {
    return std::any_of(body.begin(), body.end(), [](const FSyntaxStatement& statement) {
        return std::visit(FindUnwrapped(), statement.content);
    });
}

/** The word of a loop or branch, which is one step as a whole; null for other statements. */
const char* blockWord(const FSyntaxStatement& statement) {
    return std::holds_alternative<FSyntaxIf>(statement.content)      ? "if"
           : std::holds_alternative<FSyntaxFor>(statement.content)   ? "for"
           : std::holds_alternative<FSyntaxWhile>(statement.content) ? "while"
                                                                     : nullptr;
}

/** Whether a loop or branch is a step now. */
bool isOwnStep(const FSyntaxStatement& statement) {
    return blockWord(statement) && !FHistory::instance()->inTransaction() &&
           !std::visit(FindUnwrapped(), statement.content);
}

}  // namespace

FScriptStep::FScriptStep(const QString& label, bool wraps) : mWraps(wraps) {
    if (mWraps) {
        FHistory::instance()->startTransaction(label);
    }
}

FScriptStep::FScriptStep(const QString& label, const FSyntaxExpr& expression)
    : FScriptStep(label, !isUnwrapped(expression)) {}

FScriptStep::FScriptStep(const FSyntaxStatement& statement)
    : FScriptStep(QString::fromLatin1(blockWord(statement)), isOwnStep(statement)) {}

FScriptStep::~FScriptStep() {
    if (mWraps) {
        mDone ? FHistory::instance()->commit(1) : FHistory::instance()->rollback();
    }
}
