#include "host/core/FObjectList.h"

#include <QStringList>

#include <algorithm>

FClassData FObjectList::mClass("FObjectList", &FObject::mClass);

namespace {

template <class TextOf>
QString listText(const std::vector<FExpr<FObject>>& objects, TextOf textOf) {
    QStringList texts;
    for (const FExpr<FObject>& object : objects) {
        texts.append(textOf(object));
    }
    return QLatin1Char('[') + texts.join(QLatin1Char(',')) + QLatin1Char(']');
}

}  // namespace

void FObjectList::remove(const FExpr<FObject>& element) {
    mObjects.erase(std::remove(mObjects.begin(), mObjects.end(), element), mObjects.end());
}

FExpr<FObject> FObjectList::at(int index) const {
    return index >= 0 && index < count() ? mObjects[static_cast<std::size_t>(index)] : FExpr<FObject>();
}

const FObject* FObjectList::getElementType() const {
    if (mpElementType && mpElementType != FObject::null()) {
        return mpElementType;
    }
    const FObject* common = nullptr;
    for (const FExpr<FObject>& object : mObjects) {
        const FObject* type = object.getType();
        if (!common) {
            common = type;
        }
        while (common && type && !type->isTypeOf(common)) {
            common = common->getSuperClass();
        }
    }
    return common ? common : FObject::null();
}

QString FObjectList::toString() const {
    return listText(mObjects, [](const FExpr<FObject>& object) { return object.toString(); });
}

QString FObjectList::toExpressionString() const {
    return listText(mObjects, [](const FExpr<FObject>& object) {
        return object.getStored() ? object.getStored()->toExpressionString() : QStringLiteral("NULL");
    });
}

QString FObjectList::getKeptText(QString& fault) const {
    for (const FExpr<FObject>& object : mObjects) {
        const FObject* stored = object.getStored();
        if (stored && !stored->getKeptText(fault).isEmpty()) {
            fault =
                QStringLiteral("the list holds \"%1\", which isn't saved; write the list out").arg(stored->toString());
        }
        if (!fault.isEmpty()) {
            break;
        }
    }
    return {};
}

QString FObjectList::toHistoryString() const {
    return listText(mObjects, [](const FExpr<FObject>& object) { return object.toHistoryString(); });
}
