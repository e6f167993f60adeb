#pragma once

#include "genericintegration/connector/FSoftConTemplateItem.h"

/** An input template. A click shows the values of the configuration. */
class FSoftConInputTemplateItem : public FClass<FSoftConInputTemplateItem, FSoftConTemplateItem> {
 public:
    static FClassData mClass;

    FSoftConInputTemplateItem() = default;
    using FClass::FClass;

    FExpr<FObject> getEditorObject() const override;
    void createObject(const QString& path, const QString& relativePath) override;
};
