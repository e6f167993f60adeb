#pragma once

#include "genericintegration/connector/FSoftConFileNameItem.h"

/** An input file that is a result of another computation. It can't become a template. */
class FSoftConFileNameRefItem : public FClass<FSoftConFileNameRefItem, FSoftConFileNameItem> {
 public:
    static FClassData mClass;

    FSoftConFileNameRefItem() = default;
    using FClass::FClass;

    bool isReference() const override { return true; }
    void updateItem() override;
    bool open() override { return false; }

 protected:
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override { Q_UNUSED(event) }
};
