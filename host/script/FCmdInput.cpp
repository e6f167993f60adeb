#include "host/script/FCmdInput.h"

#include "host/core/FChanges.h"
#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FTextDecoder.h"
#include "host/core/FViewCtrl.h"
#include "host/script/FDeclarer.h"
#include "host/script/FFailedOutcomes.h"
#include "host/script/FScriptStep.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <new>

namespace {

/** Statements that one script may execute; an endless loop ends here. */
constexpr qint64 mostSteps = 100'000'000;
constexpr int mostIncludes = 50;

std::function<void()>& pauseOfScripts() {
    static std::function<void()> pause;
    return pause;
}

void takePause() {
    if (pauseOfScripts()) {
        pauseOfScripts()();
    }
}

const FSyntaxExpr* topCall(const FSyntaxExpr& expression) {
    if (expression.kind == FSyntaxExpr::Kind::Chain) {
        return &expression.operands.back();
    }
    return expression.kind == FSyntaxExpr::Kind::Call ? &expression : nullptr;
}

/** The word of a loop or branch, which is one step as a whole; null for other statements. */
const char* blockWord(const FSyntaxStatement& statement) {
    return std::holds_alternative<FSyntaxIf>(statement.content)      ? "if"
           : std::holds_alternative<FSyntaxFor>(statement.content)   ? "for"
           : std::holds_alternative<FSyntaxWhile>(statement.content) ? "while"
                                                                     : nullptr;
}

}  // namespace

FCmdInput* FCmdInput::current() {
    return dynamic_cast<FCmdInput*>(currentParser());
}

void FCmdInput::setPause(std::function<void()> pause) {
    pauseOfScripts() = std::move(pause);
}

void FCmdInput::readInputString(QTextStream& stream, const QString& file) {
    mSource = {stream.readAll(), file};
    mLastValue = FExprBase();
    mFile = file;
}

QString FCmdInput::readFile(const QString& path) {
    const bool isStandardInput = path == QLatin1String("-");
    QFile file(path);
    if (!(isStandardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly))) {
        return file.errorString();
    }
    mFile = isStandardInput ? QStringLiteral("standard input") : path;
    mSource.file = mFile;
    mLastValue = FExprBase();
    return mSource.read(file);
}

QString FCmdInput::FSource::read(QFile& opened) {
    QByteArray bytes;
    const QString fault = FFile::readBytes(opened, longestScript, bytes);
    if (!fault.isEmpty()) {
        return fault;
    }
    text = FTextDecoder::decode(bytes);
    invalidLine = text.contains(QChar::ReplacementCharacter) ? FTextDecoder::firstInvalidLine(bytes) : 0;
    return {};
}

bool FCmdInput::exec() {
    const Activation activation(this);
    const int strictBefore = FLogMsg::getStrictErrors();
    // A console executes its lines one after the other.
    mErrors = 0;
    mSteps = 0;
    mExiting = false;
    mExitCode = 0;
    mIgnoredFailures.clear();
    bool done = false;
    try {
        done = run(mSource);
    } catch (const std::bad_alloc&) {
        report(mStatementPlace, QStringLiteral("there isn't enough memory for this statement"));
    }
    return done && mErrors == 0 && FLogMsg::getStrictErrors() == strictBefore;
}

bool FCmdInput::run(const FSource& source) {
    const FScript script = parseScript(source.text, source.file);
    for (const FSyntaxError& error : script.errors) {
        report(error.place, error.message);
    }
    const int strictBefore = FLogMsg::getStrictErrors();
    for (const FSyntaxError& warning : script.warnings) {
        FLogMsg::warning({}, warning.message, {}, warning.place.toString(source.file));
    }
    if (source.invalidLine > 0) {
        FLogMsg::warning({}, QStringLiteral("the script isn't valid UTF-8 in line %1").arg(source.invalidLine),
                         QStringLiteral("Save it as UTF-8, or characters of its texts are lost"),
                         QStringLiteral("%1:%2").arg(source.file, QString::number(source.invalidLine)));
    }
    return script.errors.empty() && FLogMsg::getStrictErrors() == strictBefore && runBody(script.statements);
}

bool FCmdInput::include(const QString& path) {
    const QString resolved = resolvePath(path);
    QFile file(resolved);
    FSource source{QString(), resolved};
    QString fault = FFile::openOrdinary(file);
    fault = fault.isEmpty() ? source.read(file) : fault;
    if (!fault.isEmpty()) {
        FLogMsg::error(mFile, QStringLiteral("can't include \"%1\": %2").arg(resolved, fault));
        ++mErrors;
        return false;
    }
    if (mIncludes >= mostIncludes) {
        FLogMsg::error(mFile, QStringLiteral("\"%1\" is included from more than %2 files within one another")
                                  .arg(resolved, QString::number(mostIncludes)));
        ++mErrors;
        return false;
    }
    ++mIncludes;
    const QString outer = mFile;
    mFile = resolved;
    const bool done = run(source);
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
                  QStringLiteral("the script has executed %1 statements; does a loop never end?").arg(mostSteps));
}

bool FCmdInput::runBody(const FSyntaxBody& body) {
    for (const FSyntaxStatement& statement : body) {
        const bool done = runStatement(statement);
        if (FHistory::instance()->inTransaction()) {
            emit FChanges::instance()->statementDone();
        } else {
            FLogMsg::endLine();
        }
        takePause();
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
    mStatementPlace = statement.place;
    const FBusy busy;
    // A statement that contains others is one step as a whole.
    const char* word = blockWord(statement);
    if (!word) {
        return std::visit([this](const auto& content) { return run(content); }, statement.content);
    }
    FScriptStep step(
        QStringLiteral("%1 (%2:%3)")
            .arg(QString::fromLatin1(word), QFileInfo(mFile).fileName(), QString::number(statement.place.line)));
    return step.end(std::visit([this](const auto& content) { return run(content); }, statement.content));
}

std::optional<FExprBase> FCmdInput::evaluate(const FSyntaxExpr& expression) {
    FBinder binder(mNames, mFile);
    const FExprBase bound = binder.bind(expression, FBinder::Use::Once);
    if (binder.getError()) {
        report(binder.getError()->place, binder.getError()->message);
        return {};
    }
    const int errorsBefore = mErrors;
    const int strictBefore = FLogMsg::getStrictErrors();
    FExprBase value = bound.isCmd() ? FExprBase(bound.getObject()) : bound;
    // An included script may have failed.
    const bool isClean = mErrors == errorsBefore && FLogMsg::getStrictErrors() == strictBefore;
    return isClean ? std::optional<FExprBase>(value) : std::nullopt;
}

bool FCmdInput::run(const FSyntaxExpr& expression) {
    const FSyntaxExpr* call = topCall(expression);
    const QString command = call ? call->name : QString();
    FScriptStep step(command);
    const int failuresBefore = FFailedOutcomes::count(command);
    const std::optional<FExprBase> value = evaluate(expression);
    const int failures = FFailedOutcomes::count(command) - failuresBefore;
    mLastValue = value.value_or(FExprBase());
    if (call && failures > 0) {
        addIgnoredFailures(*call, failures);
    }
    return step.end(value.has_value());
}

// The cause was logged before. A run that fails is no reason to end a study; in a window, the user may have cancelled.
void FCmdInput::addIgnoredFailures(const FSyntaxExpr& call, int count) {
    mIgnoredFailures[call.name] += count;
    if (call.name != QLatin1String("run") && !FViewCtrl::instance()->hasGui()) {
        FLogMsg{FLogMsg::Kind::Info,
                {},
                call.name + QStringLiteral(" returned false, and the script continues"),
                QStringLiteral("To end it there, write \"if (!%1(…)) { exit(1) }\"").arg(call.name),
                FLogMsg::Stream::StandardError,
                call.place.toString(mFile)}
            .send();
    }
}

bool FCmdInput::run(const FSyntaxDeclaration& declaration) {
    using Outcome = FDeclarer::Outcome;
    FScriptStep step(declaration.creator.name);
    FDeclarer declarer(mNames, mFile, FBinder::Use::Once);
    FExprBase object;
    Outcome outcome = declarer.create(declaration, object);
    if (outcome == Outcome::Null) {
        return step.end(true);
    }
    for (std::size_t i = 0; i < declaration.block.size() && outcome != Outcome::Failed; ++i) {
        outcome = declarer.command(object, declaration.block[i]);
    }
    if (outcome == Outcome::Failed) {
        report(declarer.getError().place, declarer.getError().message);
    }
    return step.end(outcome != Outcome::Failed);
}

bool FCmdInput::canBeVariable(const QString& name, const FPlace& place) {
    return !mNames.isObject(name) ||
           report(place, QStringLiteral("\"%1\" is an object and can't be a variable; use another name").arg(name));
}

bool FCmdInput::run(const FSyntaxAssignment& assignment) {
    if (!canBeVariable(assignment.variable, assignment.value.place)) {
        return false;
    }
    const FSyntaxExpr* call = topCall(assignment.value);
    FScriptStep step(call ? call->name : assignment.variable);
    const std::optional<FExprBase> value = evaluate(assignment.value);
    if (!step.end(value.has_value())) {
        return false;
    }
    mNames.setVariable(assignment.variable, value->isEmpty() ? FExprBase(FNull::null()) : *value);
    return true;
}

std::optional<bool> FCmdInput::evaluateCondition(const FSyntaxExpr& expression) {
    FScriptStep step(QStringLiteral("condition"));
    const std::optional<FExprBase> value = evaluate(expression);
    if (!value) {
        step.end(false);
        return {};
    }
    const auto* flag = dynamic_cast<const FBool*>(valueObject(*value));
    if (!flag) {
        FLogMsg::warning(expression.place.toString(mFile), QStringLiteral("the condition is neither true nor false"),
                         QStringLiteral("It is taken as false"));
    }
    return step.end(true) ? std::optional<bool>(flag && flag->getValue()) : std::nullopt;
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
        takePause();
        if (!*holds || mExiting) {
            return true;
        }
        if (!runBody(loop.body)) {
            return false;
        }
    }
}

bool FCmdInput::run(const FSyntaxFor& loop) {
    if (!canBeVariable(loop.variable, loop.variablePlace)) {
        return false;
    }
    const std::optional<FExprBase> value = evaluate(loop.list);
    if (!value) {
        return false;
    }
    FObject* object = value->getObject();
    const FObjectList* list = object ? object->castToObjectList() : nullptr;
    if (!list) {
        FLogMsg::warning(loop.list.place.toString(mFile), QStringLiteral("the value after \"in\" is no list"));
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
