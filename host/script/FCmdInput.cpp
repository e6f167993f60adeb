#include "host/script/FCmdInput.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCreateCmd.h"

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
    return std::any_of(expression.operands.begin(), expression.operands.end(), isUnwrapped);
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
    return (isSaved || script.errors.empty()) && runBody(script.statements);
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
        // A saved text is read to its end, whatever of it couldn't be.
        if (!done && mMode == Mode::Script) {
            return false;
        }
    }
    return true;
}

bool FCmdInput::runStatement(const FSyntaxStatement& statement) {
    if (!countStep(statement.place) || !isAllowed(statement)) {
        return false;
    }
    return std::visit([this](const auto& content) { return run(content); }, statement.content);
}

bool FCmdInput::isAllowed(const FSyntaxStatement& statement) {
    if (mMode == Mode::Script || std::holds_alternative<FSyntaxDeclaration>(statement.content)) {
        return true;
    }
    const auto* expression = std::get_if<FSyntaxExpr>(&statement.content);
    const bool isCommand = expression && expression->kind == FSyntaxExpr::Kind::Chain &&
                           expression->operands.size() == 2 &&
                           expression->operands.front().kind == FSyntaxExpr::Kind::Name;
    if (isCommand && isDataCommand(expression->operands.back(), mNames.find(expression->operands.front().name))) {
        return true;
    }
    return report(statement.place,
                  QStringLiteral("a saved text may hold declarations and attributes only; passed over"));
}

bool FCmdInput::isDataCommand(const FSyntaxExpr& call, const FExprBase& receiver) {
    const FObject* object = receiver.getStored();
    const auto rows = object ? FCmdManager::instance()->findMembers(object->getClassData(), call.name)
                             : std::vector<const FCmdRow*>();
    return rows.empty() || std::all_of(rows.begin(), rows.end(), [](const FCmdRow* row) { return row->isData; });
}

std::optional<FExprBase> FCmdInput::evaluate(const FSyntaxExpr& expression) {
    FBinder binder(mNames, mFile);
    const auto use = mMode == Mode::SavedText ? FBinder::Use::Kept : FBinder::Use::Once;
    const FExprBase bound = binder.bind(expression, use);
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
    if (mMode == Mode::Script) {
        return step.done(evaluate(expression).has_value());
    }
    FBinder binder(mNames, mFile);
    const FExprBase receiver = binder.bind(expression.operands.front(), FBinder::Use::Kept);
    const FExprBase bound = binder.bindMember(receiver, expression.operands.back(), FBinder::Use::Once);
    if (binder.getError()) {
        return step.done(report(binder.getError()->place, binder.getError()->message));
    }
    bound.getObject();
    return step.done(true);
}

bool FCmdInput::run(const FSyntaxDeclaration& declaration) {
    Step step(declaration.creator.name, true);
    const FExprBase object = declare(declaration);
    if (object.isEmpty()) {
        // A creator whose arguments don't fit has warned, and gives NULL.
        return step.done(mErrors == 0 || mMode == Mode::SavedText);
    }
    return step.done(runBlock(object, declaration) || mMode == Mode::SavedText);
}

FExprBase FCmdInput::declare(const FSyntaxDeclaration& declaration) {
    const FSyntaxExpr& call = declaration.creator;
    const auto rows = FCmdManager::instance()->findCreators(call.name);
    if (rows.empty()) {
        report(call.place, FCmdManager::instance()->unknownCreator(call.name));
        return {};
    }
    FBinder binder(mNames, mFile);
    const bool isEntity = rows.front()->kind == FCmdRow::Kind::CreateEntity;
    auto* command = isEntity ? new FCreateEntityCmd(*rows.front()) : new FCreateCmd(*rows.front());
    const FExprBase keep(command);
    const auto use = mMode == Mode::SavedText ? FBinder::Use::Kept : FBinder::Use::Once;
    command->setArguments(binder.bindArguments(rows, call, use));
    if (binder.getError()) {
        report(binder.getError()->place, binder.getError()->message);
        return {};
    }
    command->setPlace(mFile, call.place);
    command->setTargetName(declaration.name);
    mCreated = FExpr<FManaged>();
    command->update();
    const FExprBase object = mCreated;
    const FManaged* made = mCreated.ptr();
    if (made) {
        mNames.setDeclared(declaration.name, object);
        if (made->getName() != declaration.name) {
            FLogMsg::warning(declaration.namePlace.toString(mFile),
                             QStringLiteral("the name \"%1\" is taken; the new object is \"%2\"")
                                 .arg(declaration.name, made->getName()));
        }
    }
    return object;
}

bool FCmdInput::runBlock(const FExprBase& object, const FSyntaxDeclaration& declaration) {
    bool good = true;
    for (const FSyntaxBlockLine& line : declaration.block) {
        FBinder binder(mNames, mFile);
        FExprBase receiver = object;
        for (const FSyntaxExpr& call : line) {
            if (mMode == Mode::SavedText && !isDataCommand(call, receiver)) {
                report(call.place, QStringLiteral("\"%1\" can't stand in a saved text; passed over").arg(call.name));
                good = false;
                break;
            }
            receiver = binder.getError() ? receiver : binder.bindMember(receiver, call, FBinder::Use::Once);
        }
        if (binder.getError()) {
            good = report(binder.getError()->place, binder.getError()->message);
        } else {
            receiver.getObject();
        }
        if (!good && mMode == Mode::Script) {
            return false;
        }
    }
    return good;
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
