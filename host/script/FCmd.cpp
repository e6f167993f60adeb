#include "host/script/FCmd.h"

#include "host/core/FHistory.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"
#include "host/core/FQuotedText.h"
#include "host/core/FTypeDocu.h"
#include "host/script/FCmdManager.h"
#include "host/script/FFailedOutcomes.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <optional>
#include <utility>

FClassData FCmd::mClass("FCmd", &FObject::mClass);

namespace {

/** The command whose operation is being executed, the innermost one. */
const FCmd* running = nullptr;

/** A value in a message: texts in quotes, and long ones cut. */
QString shown(const FExprBase& handle) {
    constexpr int longest = 60;
    const FObject* object = handle.getObject();
    const auto* text = dynamic_cast<const FString*>(object);
    const QString whole = !object ? QStringLiteral("NULL") : text ? quoteText(text->getValue()) : handle.toString();
    return whole.size() > longest ? whole.left(longest) + QStringLiteral("…") : whole;
}

/** What an argument must be, where `given` was found. */
QString wanted(const FCmdArgument& argument, const FExprBase& given) {
    FObject* object = given.getObject();
    const bool takesList = argument.type.cls == &FObjectList::mClass;
    if (takesList && object && object != FNull::null() && !object->castToObjectList()) {
        return QStringLiteral("a list, such as [%1]").arg(shown(given));
    }
    return QStringLiteral("of type ") + argument.type.script;
}

}  // namespace

FCmd::FCmd(const FCmdRow& row) : mpRow(&row), mName(row.name) {
    setOutOfDate(true);
}

FObject* FCmd::clone() const {
    return mpRow ? new FCmd(*mpRow) : new FCmd;
}

const FClassData& FCmd::classOfRow(const FClassData& family) const {
    return mpRow && mpRow->commandClass ? *mpRow->commandClass : family;
}

void FCmd::setPlace(const QString& file, const FPlace& place) {
    mFile = file;
    mPlace = place;
}

void FCmd::setKept() {
    mKept = true;
    for (const FExprBase& argument : mArguments) {
        argument.registerClient(this);
    }
}

FExprBase FCmd::getValue() const {
    update();
    return mResult;
}

const FObject* FCmd::getEvaluatedType() const {
    const FClassData* result = mpRow ? mpRow->returnType.cls : nullptr;
    return result ? result->mpNull : FObject::null();
}

// Arguments that the result keeps as expressions are evaluated when somebody asks for them.
bool FCmd::updatesSuppliersItself() const {
    return !mKept || (mpRow && std::any_of(mpRow->arguments.begin(), mpRow->arguments.end(),
                                           [](const FCmdArgument& argument) { return argument.type.isKept; }));
}

bool FCmd::isSafeAlone(bool mayReadFiles) const {
    const FCmdRow::Effect effect = mpRow ? mpRow->effect : FCmdRow::Effect::Pure;
    return effect == FCmdRow::Effect::Pure || (effect == FCmdRow::Effect::ReadsFiles && mayReadFiles);
}

QString FCmd::operandText(const FExprBase& operand) {
    const FObject* stored = operand.getStored();
    return stored ? stored->toExpressionString() : QStringLiteral("NULL");
}

QString FCmd::argumentText() const {
    QStringList texts;
    for (const FExprBase& argument : mArguments) {
        texts.append(operandText(argument));
    }
    return QLatin1Char('(') + texts.join(QLatin1Char(',')) + QLatin1Char(')');
}

QString FCmd::toExpressionString() const {
    return mName + argumentText();
}

bool FCmd::doUpdate() const {
    const FImmediateUpdateBlocker blocker;
    if (mUseParentReg && !keepsResult()) {
        destroyChildrenOf(this);
    }
    mHasWarned = false;
    mResult = execute();
    return FObject::doUpdate();
}

FExprBase FCmd::execute() const {
    FCmdRow::Values values;
    const FCmdRow* row = chooseRow(FCmdManager::instance()->findGlobals(mName), values);
    // A global command of a class acts on the class's prototype.
    FObject* receiver = row && row->owner ? const_cast<FObject*>(row->owner->mpNull) : nullptr;
    return row ? callRow(*row, receiver, values) : FExprBase();
}

namespace {

void noteOutcome(const FCmdRow& row, const FExprBase& result) {
    const auto* done = dynamic_cast<const FBool*>(result.getObject());
    if (done && !done->getValue()) {
        FFailedOutcomes::add(row.name);
    }
}

}  // namespace

FExprBase FCmd::callRow(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    std::optional<FHistoryPause> pause;
    if (row.isUnwrapped) {
        pause.emplace();
    }
    if (!mUseParentReg) {
        return callWatched(row, receiver, values);
    }
    startParentReg(this);
    FExprBase result = callWatched(row, receiver, values);
    stopParentReg();
    return result;
}

FExprBase FCmd::callWatched(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    const QScopedValueRollback<const FCmd*> watch(running, this);  // also if there isn't enough memory
    FExprBase result = row.call(receiver, values);
    if (row.isOutcome) {
        noteOutcome(row, result);
    }
    return result;
}

void FCmd::warnNow(const QString& source, const QString& message, const QString& consequence) {
    if (running) {
        running->warn(message, consequence);
    } else {
        FLogMsg::warning(source, message, consequence);
    }
}

bool FCmd::convertArguments(const FCmdRow& row, FCmdRow::Values& values, QString& reason) const {
    values.clear();
    std::size_t given = 0;
    for (const FCmdArgument& argument : row.arguments) {
        if (argument.type.takesRest) {
            values.emplace_back(
                std::vector<FExprBase>(mArguments.begin() + static_cast<std::ptrdiff_t>(given), mArguments.end()));
            return true;
        }
        const bool isGiven = given < mArguments.size();
        const FExprBase& handle = isGiven ? mArguments[given] : argument.byDefault;
        ++given;
        std::any value;
        const bool acceptsNull = argument.type.isHandle &&
                                 (row.kind == FCmdRow::Kind::Attribute || cmdtype::isScriptNull(argument.byDefault));
        const bool fits = argument.type.convert(handle, value) || (acceptsNull && cmdtype::isScriptNull(handle));
        if (!fits) {
            reason = isGiven ? QStringLiteral("argument %1 (%2) must be %3, but is %4")
                                   .arg(QString::number(given), argument.name, wanted(argument, handle), shown(handle))
                             : QStringLiteral("argument %1 (%2, of type %3) is missing")
                                   .arg(QString::number(given), argument.name, argument.type.script);
            return false;
        }
        values.push_back(std::move(value));
    }
    if (given < mArguments.size()) {
        reason = QStringLiteral("%1 arguments given, %2 expected").arg(mArguments.size()).arg(row.arguments.size());
        return false;
    }
    return true;
}

const FCmdRow* FCmd::chooseRow(const std::vector<const FCmdRow*>& rows, FCmdRow::Values& values) const {
    QStringList reasons;
    for (const FCmdRow* row : rows) {
        QString reason;
        if (convertArguments(*row, values, reason)) {
            return row;
        }
        reasons.append(reason);
    }
    warn(mName + QStringLiteral(": ") + reasons.join(QStringLiteral("; or: ")), refusalText());
    return nullptr;
}

void FCmd::warn(const QString& message, const QString& consequence) const {
    mHasWarned = true;
    const QString place = mPlace.toString(mFile);
    consequence.isEmpty() ? FLogMsg::noResult(mName, message, place)
                          : FLogMsg::warning(mName, message, consequence, place);
}

void FCmd::initCmdDocu() const {
    if (!mpRow || !FTypeDocu::get(getClass(), 1).isEmpty()) {
        return;
    }
    for (const FDocuKey& key : FDocuKey::ofCommand(*mpRow)) {
        const QString text = FTypeDocu::translate(key.key, key.disambiguation);
        if (key.argument < 0) {
            addTypeDocu(text, key.area);
        } else {
            FTypeDocu::add(argumentDocuName(key.argument), text, key.area);
        }
    }
}

QString FCmd::argumentDocuName(int argument) const {
    return getClass() + QStringLiteral(":argument") + QString::number(argument);
}
