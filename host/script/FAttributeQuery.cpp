#include "host/script/FAttributeQuery.h"

#include "host/core/FLogMsg.h"
#include "host/script/FBinder.h"
#include "host/script/FCmdManager.h"
#include "host/script/FScriptParser.h"

#include <algorithm>
#include <tuple>

namespace {

bool passes(const FCmdRow& row, const FAttributeQuery::Filter& filter) {
    const FCmdPresentation& look = row.presentation;
    return !look.hidden && look.userLevel <= filter.userLevel && (look.systemFlag & ~filter.systemFlags) == 0;
}

template <class Condition>
void keepIf(FAttributeQuery::Rows& rows, Condition condition) {
    rows.erase(std::remove_if(rows.begin(), rows.end(), [&](const FCmdRow* row) { return !condition(*row); }),
               rows.end());
}

bool failed(const FCmdRow& attribute, const QString& reason) {
    FLogMsg::error(attribute.className(), QStringLiteral("can't tell from \"%1\" whether the attribute is required: %2")
                                              .arg(attribute.presentation.attrRequiredCmd, reason));
    return false;
}

/** Evaluates the attribute's condition for one object. */
bool isRequiredBy(const FExprBase& object, const FCmdRow& attribute) {
    const FParsedExpression parsed = parseExpression(attribute.presentation.attrRequiredCmd);
    if (parsed.error) {
        return failed(attribute, parsed.error->message);
    }
    FScriptNames names;
    names.setVariable(QStringLiteral("receiver"), object);
    FBinder binder(names, QString());
    const FExprBase bound = binder.bind(parsed.expression, FBinder::Use::Kept);
    if (binder.getError()) {
        return failed(attribute, binder.getError()->message);
    }
    const auto* flag = dynamic_cast<const FBool*>(valueObject(bound));
    return flag ? flag->getValue() : failed(attribute, QStringLiteral("it is neither true nor false"));
}

}  // namespace

FAttributeQuery::FAttributeQuery(const FExprBase& receiver) {
    collect(receiver);
}

void FAttributeQuery::collect(const FExprBase& handle) {
    FObject* object = handle.getObject();
    if (!object || object == FNull::null()) {
        return;
    }
    if (const FObjectList* list = object->castToObjectList()) {
        for (const FExpr<FObject>& element : list->getObjects()) {
            collect(element);
        }
        return;
    }
    mObjects.emplace_back(object);
}

FAttributeQuery::Rows FAttributeQuery::sharedMembers(const Filter& filter) const {
    if (mObjects.empty()) {
        return {};
    }
    const FClassData& first = mObjects.front().getObject()->getClassData();
    Rows rows = FCmdManager::instance()->membersOf(first);
    keepIf(rows, [&](const FCmdRow& row) { return passes(row, filter); });
    QSet<const FClassData*> seen{&first};
    for (const FExprBase& handle : mObjects) {
        const FObject* object = handle.getObject();
        if (!object || seen.contains(&object->getClassData())) {
            continue;
        }
        seen.insert(&object->getClassData());
        const Rows others = FCmdManager::instance()->membersOf(object->getClassData());
        keepIf(rows, [&](const FCmdRow& row) { return std::find(others.begin(), others.end(), &row) != others.end(); });
    }
    return rows;
}

FAttributeQuery::Rows FAttributeQuery::getAttributes(const Filter& filter) const {
    Rows rows = sharedMembers(filter);
    keepIf(rows, [](const FCmdRow& row) { return row.kind == FCmdRow::Kind::Attribute; });
    std::stable_sort(rows.begin(), rows.end(), [](const FCmdRow* a, const FCmdRow* b) {
        return std::tie(a->presentation.category, a->presentation.weight) <
               std::tie(b->presentation.category, b->presentation.weight);
    });
    return rows;
}

FAttributeQuery::Rows FAttributeQuery::getMenuMembers(const Filter& filter) const {
    Rows rows = sharedMembers(filter);
    keepIf(rows, [](const FCmdRow& row) { return !row.presentation.menuEntry.isEmpty(); });
    std::stable_sort(rows.begin(), rows.end(), [](const FCmdRow* a, const FCmdRow* b) {
        return a->presentation.menuPlace < b->presentation.menuPlace;
    });
    return rows;
}

bool FAttributeQuery::isRequired(const FCmdRow& attribute) const {
    return !attribute.presentation.attrRequiredCmd.isEmpty() &&
           std::any_of(mObjects.begin(), mObjects.end(),
                       [&](const FExprBase& object) { return isRequiredBy(object, attribute); });
}

bool FAttributeQuery::keepsExpression(const FCmdRow& attribute) {
    return attribute.kind == FCmdRow::Kind::Attribute && !attribute.arguments.empty() &&
           attribute.arguments.front().type.isKept;
}

std::optional<FAttributeQuery::Expression> FAttributeQuery::getExpression(const FCmdRow& attribute) const {
    std::optional<Expression> common;
    for (const FExprBase& handle : mObjects) {
        const FObject* object = handle.getObject();
        if (!keepsExpression(attribute) || !object || !object->isTypeOf(attribute.owner->mpNull)) {
            return {};
        }
        const FExprBase kept = attribute.getter(object);
        const QString text = kept.toHistoryString();
        if (common && common->handle != kept && common->text != text) {
            return {};
        }
        common = common ? common : Expression{kept, text};
    }
    return common;
}
