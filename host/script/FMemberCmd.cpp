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
            follow(*row, receiver, values);
            return;
        }
    }
}

bool FMemberCmd::follow(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    if (!isKept() || (!row.sources && !mReceiver.isCmd())) {
        return true;
    }
    std::vector<FExprBase> sources = row.sources ? row.sources(receiver, values) : std::vector{FExprBase(receiver)};
    if (sources == mFollowed) {
        return true;
    }
    for (const FExprBase& before : mFollowed) {
        before.unregisterClient(this);
    }
    mFollowed.clear();
    for (const FExprBase& source : sources) {
        if (source.registerClient(this)) {
            mFollowed.push_back(source);
        }
    }
    if (mFollowed.size() < sources.size()) {
        warn(getName() + QStringLiteral(": what it asks for depends on the result itself"));
    }
    return mFollowed.size() == sources.size();
}

FExprBase FMemberCmd::execute() const {
    FObject* receiver = mReceiver.getObject();
    if (!receiver || receiver == FNull::null()) {
        warn(getName() + QStringLiteral(": there is no object to apply it to"));
        return {};
    }
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
    return row && follow(*row, receiver, values) ? act(*row, receiver, values) : FExprBase();
}

FExprBase FMemberCmd::act(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const {
    if (!row.isQuery()) {
        // Of which class the receiver is may show only now.
        if (isKept()) {
            warn(QStringLiteral("%1.%2 does something and can't stand in an expression that is kept")
                     .arg(receiver->getClass(), getName()));
            return {};
        }
        FCmdParser::willAct(receiver);
    }
    FExprBase result = callRow(row, receiver, values);
    acted(receiver);
    return result;
}

FExprBase FMemberCmd::actOnList(FObjectList& list) const {
    auto* results = new FObjectList(FObject::null());
    FExprBase keep(results);
    results->setAsSelectionSet(true);
    bool isKnown = false;
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
    if (!isKnown && elements.size() == 1) {
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
