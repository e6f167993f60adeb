#include "host/script/FCmdInput.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/script/FCmdManager.h"
#include "host/script/FSavedTextReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

/** Statements that one script may carry out; an endless loop ends here. */
constexpr qint64 mostSteps = 100'000'000;
constexpr int mostIncludes = 50;

const FSyntaxExpr* topCall(const FSyntaxExpr& expression) {
    if (expression.kind == FSyntaxExpr::Kind::Chain) {
        return &expression.operands.back();
    }
    return expression.kind == FSyntaxExpr::Kind::Call ? &expression : nullptr;
}

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

}  // namespace

/** Opens a transaction unless the statement does without; what isn't finished is taken back. */
class FCmdInput::Step {
 public:
    Step(const QString& label, bool wraps) : mWraps(wraps) {
        if (mWraps) {
            FHistory::instance()->startTransaction(label);
        }
    }
    ~Step() {
        if (mWraps) {
            mDone ? FHistory::instance()->commit(1) : FHistory::instance()->rollback();
        }
    }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

    bool done(bool good) { return mDone = good; }

 private:
    bool mWraps;
    bool mDone = false;
};

FCmdInput* FCmdInput::current() {
    return dynamic_cast<FCmdInput*>(currentParser());
}

void FCmdInput::readInputString(QTextStream& stream, const QString& file) {
    mText = stream.readAll();
    mFile = file;
}

bool FCmdInput::exec() {
    const Activation activation(this);
    return run(mText, mFile) && mErrors == 0;
}

bool FCmdInput::run(const QString& text, const QString& file) {
    const bool isSaved = mMode == Mode::SavedText;
    const FScript script = parseScript(text, file, {isSaved, isSaved});
    for (const FSyntaxError& error : script.errors) {
        report(error.place, error.message);
    }
    if (isSaved) {
        mErrors += FSavedTextReader(mNames, file).read(script.statements);
        return true;
    }
    return script.errors.empty() && runBody(script.statements);
}

bool FCmdInput::include(const QString& path) {
    const QString resolved = resolvePath(path);
    QFile file(resolved);
    if (!file.open(QIODevice::ReadOnly)) {
        FLogMsg::error(mFile, QStringLiteral("can't include \"%1\": %2").arg(resolved, file.errorString()));
        ++mErrors;
        return false;
    }
    if (mIncludes >= mostIncludes) {
        FLogMsg::error(mFile, QStringLiteral("\"%1\" is included from more than %2 files within one another")
                                  .arg(resolved)
                                  .arg(mostIncludes));
        ++mErrors;
        return false;
    }
    ++mIncludes;
    const QString outer = mFile;
    mFile = resolved;
    const bool done = run(QString::fromUtf8(file.readAll()), resolved);
    mFile = outer;
    --mIncludes;
    return done;
}

void FCmdInput::requestExit(int code) {
    mExitCode = code;
    mExiting = true;
}

QString FCmdInput::resolvePath(const QString& path) const {
    const QString besideScript = QFileInfo(mFile).dir().filePath(path);
    const bool isBeside = !mFile.isEmpty() && QDir::isRelativePath(path) && QFileInfo::exists(besideScript);
    return isBeside ? besideScript : path;
}

bool FCmdInput::report(const FPlace& place, const QString& message) {
    FLogMsg::error(place.toString(mFile), message);
    ++mErrors;
    return false;
}

bool FCmdInput::countStep(const FPlace& place) {
    return ++mSteps <= mostSteps ||
           report(place,
                  QStringLiteral("the script has carried out %1 statements; does a loop never end?").arg(mostSteps));
}

bool FCmdInput::runBody(const FSyntaxBody& body) {
    for (const FSyntaxStatement& statement : body) {
        const bool done = runStatement(statement);
        if (mExiting) {
            return true;
        }
        if (!done) {
            return false;
        }
    }
    return true;
}

bool FCmdInput::runStatement(const FSyntaxStatement& statement) {
    if (!countStep(statement.place)) {
        return false;
    }
    const char* word = blockWord(statement);
    Step step(QString::fromLatin1(word),
              word && !FHistory::instance()->inTransaction() && !std::visit(FindUnwrapped(), statement.content));
    return step.done(std::visit([this](const auto& content) { return run(content); }, statement.content));
}

std::optional<FExprBase> FCmdInput::evaluate(const FSyntaxExpr& expression) {
    FBinder binder(mNames, mFile);
    const FExprBase bound = binder.bind(expression, FBinder::Use::Once);
    if (binder.getError()) {
        report(binder.getError()->place, binder.getError()->message);
        return {};
    }
    const int errorsBefore = mErrors;
    FExprBase value = bound.isCmd() ? FExprBase(bound.getObject()) : bound;
    // An included script may have failed.
    return mErrors == errorsBefore ? std::optional<FExprBase>(value) : std::nullopt;
}

bool FCmdInput::run(const FSyntaxExpr& expression) {
    const FSyntaxExpr* call = topCall(expression);
    Step step(call ? call->name : QString(), !isUnwrapped(expression));
    return step.done(evaluate(expression).has_value());
}

bool FCmdInput::run(const FSyntaxDeclaration& declaration) {
    using Outcome = FDeclarer::Outcome;
    Step step(declaration.creator.name, true);
    FDeclarer declarer(mNames, mFile, FBinder::Use::Once);
    FExprBase object;
    Outcome outcome = declarer.create(declaration, object);
    if (outcome == Outcome::Null) {
        return step.done(true);
    }
    for (std::size_t i = 0; i < declaration.block.size() && outcome != Outcome::Failed; ++i) {
        outcome = declarer.command(object, declaration.block[i]);
    }
    return step.done(outcome != Outcome::Failed || report(declarer.getError().place, declarer.getError().message));
}

bool FCmdInput::run(const FSyntaxAssignment& assignment) {
    if (mNames.isObject(assignment.variable)) {
        return report(
            assignment.value.place,
            QStringLiteral("\"%1\" is an object and can't be a variable; use another name").arg(assignment.variable));
    }
    const FSyntaxExpr* call = topCall(assignment.value);
    Step step(call ? call->name : assignment.variable, !isUnwrapped(assignment.value));
    const std::optional<FExprBase> value = evaluate(assignment.value);
    if (!value) {
        return false;
    }
    mNames.setVariable(assignment.variable, value->isEmpty() ? FExprBase(FNull::null()) : *value);
    return step.done(true);
}

std::optional<bool> FCmdInput::evaluateCondition(const FSyntaxExpr& expression) {
    Step step(QStringLiteral("condition"), !isUnwrapped(expression));
    const std::optional<FExprBase> value = evaluate(expression);
    if (!value) {
        return {};
    }
    step.done(true);
    const auto* flag = dynamic_cast<const FBool*>(valueObject(*value));
    if (!flag) {
        FLogMsg::warning(expression.place.toString(mFile), QStringLiteral("the condition is neither true nor false"),
                         QStringLiteral("taken as false"));
    }
    return flag && flag->getValue();
}

bool FCmdInput::run(const FSyntaxIf& branches) {
    for (const FSyntaxIf::Branch& branch : branches.branches) {
        const std::optional<bool> holds = evaluateCondition(branch.condition);
        if (!holds) {
            return false;
        }
        if (*holds) {
            return mExiting || runBody(branch.body);
        }
    }
    return mExiting || runBody(branches.otherwise);
}

bool FCmdInput::run(const FSyntaxWhile& loop) {
    for (;;) {
        const std::optional<bool> holds = evaluateCondition(loop.condition);
        if (!holds || !countStep(loop.condition.place)) {
            return false;
        }
        if (!*holds || mExiting) {
            return true;
        }
        if (!runBody(loop.body)) {
            return false;
        }
    }
}

bool FCmdInput::run(const FSyntaxFor& loop) {
    if (mNames.isObject(loop.variable)) {
        return report(
            loop.variablePlace,
            QStringLiteral("\"%1\" is an object and can't be a variable; use another name").arg(loop.variable));
    }
    const std::optional<FExprBase> value = evaluate(loop.list);
    if (!value) {
        return false;
    }
    FObject* object = value->getObject();
    const FObjectList* list = object ? object->castToObjectList() : nullptr;
    if (!list) {
        FLogMsg::warning(loop.list.place.toString(mFile), QStringLiteral("there is no list to go through"));
        return true;
    }
    const std::vector<FExpr<FObject>> elements = list->getObjects();
    for (const FExpr<FObject>& element : elements) {
        mNames.setVariable(loop.variable, element);
        if (!runBody(loop.body)) {
            return false;
        }
        if (mExiting) {
            break;
        }
    }
    return true;
}
