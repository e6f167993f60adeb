#pragma once

#include "genericintegration/connector/FSoftConFileNameItem.h"

/** An input file that is a result of another computation. It can't become a template. */
class FSoftConFileNameRefItem : public FClass<FSoftConFileNameRefItem, FSoftConFileNameItem> {
 public:
    static FClassData mClass;

    FSoftConFileNameRefItem() = default;
    using FClass::FClass;

    void updateItem() override;

 protected:
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
};
