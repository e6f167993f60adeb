#pragma once

#include "genericintegration/connector/FSoftConEntryItem.h"

/** A file that a run leaves. */
class FSoftConImportItem : public FClass<FSoftConImportItem, FSoftConEntryItem> {
 public:
    static FClassData mClass;

    FSoftConImportItem() = default;
    using FClass::FClass;

    void createObject(const QString& path, const QString& relativePath) override;
    QString getDisplayName(const FExpr<FEntry>& entry, bool resolved) const override;
    QString getToolTip() const override;
    void updateItem() override;
};
