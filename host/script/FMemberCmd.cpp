#include "host/script/FMemberCmd.h"

#include "host/core/FHistory.h"
#include "host/script/FCmdManager.h"
#include "host/script/FListLimits.h"

#include <algorithm>
#include <utility>

FClassData FMemberCmd::mClass("FMemberCmd", &FCmd::mClass);
FClassData FAttribCmd::mClass("FAttribCmd", &FMemberCmd::mClass);

FObject* FMemberCmd::clone() const {
    return getRow() ? new FMemberCmd(*getRow()) : new FMemberCmd;
}

FObject* FAttribCmd::clone() const {
    return getRow() ? new FAttribCmd(*getRow()) : new FAttribCmd;
}

void FMemberCmd::setKept() {
    FCmd::setKept();
    FObject* receiver = mReceiver.getStored();
    if (receiver && !receiver->isCmd() && readsFromParts(*receiver)) {
        followKnownParts(receiver);
    } else {
        mReceiver.registerClient(this);
    }
}

std::vector<FExprBase> FMemberCmd::getOperands() const {
    std::vector<FExprBase> operands = FCmd::getOperands();
    operands.push_back(mReceiver);
    operands.insert(operands.end(), mFollowed.begin(), mFollowed.end());
    return operands;
}

QString FMemberCmd::toExpressionString() const {
    return operandText(mReceiver) + QLatin1Char('.') + getName() + argumentText();
}

bool FMemberCmd::readsFromParts(const FObject& receiver) const {
    const auto rows = FCmdManager::instance()->findMembers(receiver.getClassData(), getName());
    return std::any_of(rows.begin(), rows.end(), [](const FCmdRow* row) { return row->sources != nullptr; });
}

// Where nothing has to be evaluated for it, a cycle is noticed already when the expression is set.
void FMemberCmd::followKnownParts(FObject* receiver) const {
    const auto& arguments = getArguments();
    const bool isConstant = std::all_of(arguments.begin(), arguments.end(), [](const FExprBase& argument) {
        return dynamic_cast<const FBasicType*>(argument.getStored());
    });
    for (const FCmdRow* row : FCmdManager::instance()->findMembers(receiver->getClassData(), getName())) {
        FCmdRow::Values values;
        QString reason;
        if (isConstant && convertArguments(*row, values, reason)) {
            followOnly(sourcesOf(*row, receiver, values));
            return;
        }
    }
}

std::vector<FExprBase> FMemberCmd::sourcesOf(const FCmdRow& row, FObject* receiver,
                                             const FCmdRow::Values& values) const {
    // What was registered with the receiver when the expression was kept isn't followed again.
    if (!isKept() || (!row.sources && receiver == mReceiver.getStored())) {
        return {};
    }
    return row.sources ? row.sources(receiver, values) : std::vector{FExprBase(receiver)};
}

bool FMemberCmd::followOnly(const std::vector<FExprBase>& sources) const {
    return sources == mFollowed || followAlso(sources, std::exchange(mFollowed, {}));
}

bool FMemberCmd::followAlso(const std::vector<FExprBase>& sources, const std::vector<FExprBase>& noLonger) const {
    for (const FExprBase& before : noLonger) {
        before.unregisterClient(this);
    }
    bool isAcyclic = true;
    for (const FExprBase& source : sources) {
        if (source.registerClient(this)) {
            mFollowed.push_back(source);
        } else {
            isAcyclic = false;
        }
    }
    if (!isAcyclic) {
        warn(getName() + QStringLiteral(": circular dependency: its value would be computed from itself"));
    }
    return isAcyclic;
}

// ---- execution ----

FExprBase FMemberCmd::execute() const {
    FObject* receiver = mReceiver.getObject();
    if (!receiver || receiver == FNull::null()) {
        warnNoReceiver();
        return {};
    }
    const FClassData* own = mIsOpen || !getRow() ? nullptr : getRow()->owner;
    const auto rows = rowsFor(*receiver, own);
    FObjectList* list = receiver->castToObjectList();
    if (rows.empty() && list) {
        return actOnList(*list, own);
    }
    if (rows.empty()) {
        warnWrongReceiver(*receiver);
        return {};
    }
    FCmdRow::Values values;
    const FCmdRow* row = chooseRow(rows, values);
    return row && followOnly(sourcesOf(*row, receiver, values)) ? act(*row, receiver, values) : FExprBase();
}

std::vector<const FCmdRow*> FMemberCmd::rowsFor(const FObject& object, const FClassData* own) const {
    const bool fits = !own || own->isSuperClassOf(object.getClassData());
    return fits ? FCmdManager::instance()->findMembers(object.getClassData(), getName())
                : std::vector<const FCmdRow*>();
}

FExprBase FMemberCmd::act(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    if (!row.isQuery()) {
        // The class of the receiver may show only now.
        if (isKept()) {
            warn(QStringLiteral("%1.%2 changes something and can't be part of an expression that is kept")
                     .arg(receiver->getClass(), getName()));
            return {};
        }
        FHistory::instance()->record(dynamic_cast<const FRecorded*>(receiver));
    }
    FExprBase result = callRow(row, receiver, values);
    acted(receiver);
    return result;
}

FExprBase FMemberCmd::actOnList(const FObjectList& list, const FClassData* own) const {
    Traversal traversal{own, std::exchange(mFollowed, {})};
    const std::optional<FExprBase> result = actOnElements(list, traversal);
    for (const FExprBase& before : traversal.followedBefore) {
        before.unregisterClient(this);
    }
    if (!result) {
        warnWrongReceiver(*list.getElementType());
    }
    return result && !traversal.isRefused ? *result : FExprBase();
}

std::optional<FExprBase> FMemberCmd::actOnElements(const FObjectList& list, Traversal& traversal) const {
    auto* results = new FObjectList(FObject::null());
    FExprBase keep(results);
    results->setAsSelectionSet(true);
    // The command may change the list.
    const std::vector<FExpr<FObject>> elements = list.getObjects();
    for (auto element = elements.begin(); element != elements.end() && !traversal.isRefused; ++element) {
        FObject* object = element->getObject();
        if (const auto result = object ? actOnElement(*object, traversal) : std::nullopt) {
            results->add(FExpr<FObject>(*result));
        }
    }
    if (elements.size() == 1) {
        return results->count() == 1 ? std::optional<FExprBase>(results->at(0)) : std::nullopt;
    }
    const QString fault = listFault(*results);
    if (!fault.isEmpty()) {
        warn(fault);
        traversal.isRefused = true;
    }
    return keep;
}

std::optional<FExprBase> FMemberCmd::actOnElement(FObject& element, Traversal& traversal) const {
    const auto rows = rowsFor(element, traversal.own);
    if (rows.empty()) {
        const FObjectList* nested = element.castToObjectList();
        return nested ? actOnElements(*nested, traversal) : std::nullopt;
    }
    traversal.own = traversal.own ? traversal.own : rows.front()->owner;
    FCmdRow::Values values;
    const FCmdRow* row = chooseRow(rows, values);
    traversal.isRefused = !row || !followAlso(sourcesOf(*row, &element, values), {});
    return traversal.isRefused ? FExprBase() : act(*row, &element, values);
}

// ---- messages ----

QString FMemberCmd::writtenReceiver() const {
    const auto* call = dynamic_cast<const FMemberCmd*>(mReceiver.getStored());
    if (!mReceiverName.isEmpty() || !call) {
        return mReceiverName.isEmpty() ? operandText(mReceiver) : mReceiverName;
    }
    return call->writtenReceiver() + QLatin1Char('.') + call->getName() + call->argumentText();
}

/** That the call gave nothing, and why, or what it could have given. */
QString FMemberCmd::missingResult() const {
    const FObject* receiver = mReceiver.getObject();
    const FCmdRow* row = getRow();
    const bool isExplained = row && row->explanation && receiver && receiver->isTypeOf(row->owner->mpNull);
    const QString explanation = isExplained ? row->explanation(receiver) : QString();
    const QString text =
        QStringLiteral("%1%2 of \"%3\" returned nothing").arg(getName(), argumentText(), writtenReceiver());
    return explanation.isEmpty() ? text : text + QStringLiteral("; ") + explanation;
}

void FMemberCmd::warnNoReceiver() const {
    const auto* call = dynamic_cast<const FCmd*>(mReceiver.getStored());
    if (call && call->hasWarned()) {
        warnedBefore();
        return;
    }
    const auto* member = dynamic_cast<const FMemberCmd*>(call);
    const QString reason = member ? member->missingResult() : QStringLiteral("\"%1\" is NULL").arg(writtenReceiver());
    warn(QStringLiteral("%1: there is no object to apply it to: %2").arg(getName(), reason));
}

void FMemberCmd::warnWrongReceiver(const FObject& receiver) const {
    warn(QStringLiteral("\"%1\": %2")
             .arg(writtenReceiver(), FCmdManager::instance()->unknownMember(receiver.getClassData(), getName())));
}

// ---- attributes ----

QString FAttribCmd::refusalText() const {
    return QStringLiteral("\"%1\" stays unchanged").arg(writtenReceiver());
}

FExprBase FAttribCmd::valueOf(const FObject* receiver) const {
    const FCmdRow* row = getRow();
    const bool fits = row && row->getter && receiver && receiver->isTypeOf(row->owner->mpNull);
    return fits ? row->getter(receiver) : FExprBase();
}

const FClassData* FAttribCmd::getValueClass() const {
    const FCmdRow* row = getRow();
    return row && !row->arguments.empty() ? row->arguments.front().type.cls : nullptr;
}

void FAttribCmd::getAttrValue(FExprBase& value) const {
    value = FExprBase();
    FObject* receiver = getReceiver().getObject();
    mCurrentValue = FExprBase();
    FObjectList* list = receiver ? receiver->castToObjectList() : nullptr;
    if (!list) {
        mCurrentValue = valueOf(receiver);
        value = mCurrentValue;
        return;
    }
    FExprBase common;
    for (int i = 0; i < list->count(); ++i) {
        const FObject* element = list->at(i).getObject();
        const FExprBase next = valueOf(element);
        const bool ofClass = element && element->isTypeOf(getRow()->owner->mpNull);
        if (!ofClass || (i > 0 && next != common && next.toString() != common.toString())) {
            return;
        }
        common = i > 0 ? common : next;
    }
    value = common;
}
