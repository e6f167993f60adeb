#pragma once

#include "genericintegration/connector/FSoftConTemplateItem.h"

/** A result template. A click selects nothing. */
class FSoftConOutputTemplateItem : public FClass<FSoftConOutputTemplateItem, FSoftConTemplateItem> {
 public:
    static FClassData mClass;

    FSoftConOutputTemplateItem() = default;
    using FClass::FClass;

    FExpr<FObject> getEditorObject() const override { return {}; }
    void createObject(const QString& path, const QString& relativePath) override;
};
