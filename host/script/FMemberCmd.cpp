#include "host/script/FMemberCmd.h"

#include "host/script/FCmdManager.h"
#include "host/script/FCmdParser.h"
#include "host/script/FListLimits.h"

#include <algorithm>

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
    mReceiver.registerClient(this);
    followConstantSource();
}

std::vector<FExprBase> FMemberCmd::getOperands() const {
    std::vector<FExprBase> operands = FCmd::getOperands();
    operands.push_back(mReceiver);
    operands.push_back(mSource);
    return operands;
}

QString FMemberCmd::toExpressionString() const {
    return operandText(mReceiver) + QLatin1Char('.') + getName() + argumentText();
}

void FMemberCmd::followReceiver(FObject* receiver) const {
    if (!isKept() || !mReceiver.isCmd() || mFollowed.getStored() == receiver) {
        return;
    }
    mFollowed.unregisterClient(this);
    mFollowed = FExprBase(receiver);
    mFollowed.registerClient(this);
}

// Where nothing has to be evaluated for it, a cycle is noticed already when the expression is set.
void FMemberCmd::followConstantSource() const {
    FObject* receiver = mReceiver.getStored();
    const auto& arguments = getArguments();
    const bool isConstant = std::all_of(arguments.begin(), arguments.end(), [](const FExprBase& argument) {
        return dynamic_cast<const FBasicType*>(argument.getStored());
    });
    if (!receiver || receiver->isCmd() || !isConstant) {
        return;
    }
    for (const FCmdRow* row : FCmdManager::instance()->findMembers(receiver->getClassData(), getName())) {
        FCmdRow::Values values;
        QString reason;
        if (row->source && convertArguments(*row, values, reason)) {
            followSource(*row, receiver, values);
            return;
        }
    }
}

bool FMemberCmd::followSource(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    if (!isKept() || !row.source) {
        return true;
    }
    const FExprBase source = row.source(receiver, values);
    if (source == mSource) {
        return true;
    }
    mSource.unregisterClient(this);
    mSource = source;
    if (mSource.registerClient(this)) {
        return true;
    }
    mSource = FExprBase();
    warn(getName() + QStringLiteral(": what it asks for depends on the result itself"));
    return false;
}

FExprBase FMemberCmd::execute() const {
    FObject* receiver = mReceiver.getObject();
    if (!receiver || receiver == FNull::null()) {
        warn(getName() + QStringLiteral(": there is no object to apply it to"));
        return {};
    }
    followReceiver(receiver);
    const auto rows = FCmdManager::instance()->findMembers(receiver->getClassData(), getName());
    if (rows.empty()) {
        if (FObjectList* list = receiver->castToObjectList()) {
            return actOnList(*list);
        }
        warn(FCmdManager::instance()->unknownMember(receiver->getClassData(), getName()));
        return {};
    }
    FCmdRow::Values values;
    const FCmdRow* row = chooseRow(rows, values);
    return row ? act(*row, receiver, values) : FExprBase();
}

FExprBase FMemberCmd::act(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    if (!row.isQuery()) {
        FCmdParser::willAct(receiver);
    }
    if (!followSource(row, receiver, values)) {
        return {};
    }
    FExprBase result = callRow(row, receiver, values);
    acted(receiver);
    return result;
}

FExprBase FMemberCmd::actOnList(FObjectList& list) const {
    auto* results = new FObjectList(FObject::null());
    FExprBase keep(results);
    results->setAsSelectionSet(true);
    bool isKnown = list.count() == 0;
    const std::vector<FExpr<FObject>> elements = list.getObjects();
    for (const FExpr<FObject>& element : elements) {
        FObject* object = element.getObject();
        const auto rows = object ? FCmdManager::instance()->findMembers(object->getClassData(), getName())
                                 : std::vector<const FCmdRow*>();
        if (rows.empty()) {
            continue;
        }
        isKnown = true;
        FCmdRow::Values values;
        const FCmdRow* row = chooseRow(rows, values);
        if (!row) {
            return {};
        }
        const FExprBase result = act(*row, object, values);
        if (elements.size() == 1) {
            return result;
        }
        results->add(FExpr<FObject>(result));
    }
    if (!isKnown) {
        warn(FCmdManager::instance()->unknownMember(list.getElementType()->getClassData(), getName()));
        return {};
    }
    const QString fault = listFault(*results);
    if (!fault.isEmpty()) {
        warn(fault);
        return {};
    }
    return keep;
}

FExprBase FAttribCmd::valueOf(const FObject* receiver) const {
    const FCmdRow* row = getRow();
    const bool fits = row && row->getter && receiver && receiver->isTypeOf(row->owner->mpNull);
    return fits ? row->getter(receiver) : FExprBase();
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
