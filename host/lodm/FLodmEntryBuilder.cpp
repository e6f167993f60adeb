#include "host/lodm/FLodmEntryBuilder.h"

#include "host/core/FLogMsg.h"
#include "host/core/FPrototypes.h"
#include "host/design/FEntryDef.h"
#include "host/lodm/FLodmDefaultValue.h"
#include "host/script/FScriptParser.h"

QList<FExpr<FEntryBase>> FLodmEntryBuilder::build(const std::vector<FLodmEntry>& nodes) {
    QList<FExpr<FEntryBase>> entries;
    for (const FLodmEntry& node : nodes) {
        const FExprBase value = valueOf(node);
        const bool hasDefault = value.isValid();
        const FObject* type = node.type.isEmpty() ? nullptr : FPrototypes::find(node.type);
        const FExpr<FEntryBase> entry = FEntryDef::make(node.name, node.least, node.most, node.hidden, hasDefault,
                                                        node.description, hasDefault ? value : FExprBase(type));
        for (const FExpr<FEntryBase>& child : build(node.children)) {
            entry->addEntry(child);
        }
        entries.append(entry);
    }
    return entries;
}

void FLodmEntryBuilder::setNames(const FScriptNames& names, bool tells) {
    mNames = names;
    mTells = tells;
    mHasNames = true;
}

FExprBase FLodmEntryBuilder::valueOf(const FLodmEntry& entry) {
    const bool isLate = FLodmDefaultValue(entry).hasNames();
    mIsWaiting = mIsWaiting || (isLate && !mHasNames);
    if (isLate && !mHasNames) {
        return {};
    }
    QString reason;
    const FExprBase result = evaluate(entry, reason);
    // A default without names was already reported in the first build.
    if (!reason.isEmpty() && isLate == mHasNames) {
        warn(entry, reason);
    }
    return result;
}

// A suggestion for a missing name compares it with all names, so only the first few get one.
FExprBase FLodmEntryBuilder::evaluate(const FLodmEntry& entry, QString& reason) const {
    constexpr int mostSuggestions = 20;
    const FLodmDefaultValue value(entry);
    const QString missing = mFaulty < mostSuggestions ? QString() : value.missingName(mNames);
    if (missing.isEmpty()) {
        return value.evaluate(mNames, reason);
    }
    reason = QStringLiteral("nothing is named \"%1\"").arg(missing);
    return {};
}

void FLodmEntryBuilder::warn(const FLodmEntry& entry, const QString& reason) {
    if (++mFaulty <= mostErrors && mTells) {
        FLogMsg::warning(entry.valuePlace.toString(mSource),
                         QStringLiteral("the default of entry \"%1\" can't be taken over: %2").arg(entry.name, reason),
                         QStringLiteral("The entry has none now; give it one"));
    }
}

void FLodmEntryBuilder::reportRest() const {
    if (mFaulty > mostErrors) {
        FLogMsg::warning(mSource, QStringLiteral("%1 more defaults can't be taken over").arg(mFaulty - mostErrors),
                         QStringLiteral("Their entries have none now; give them one"));
    }
}
