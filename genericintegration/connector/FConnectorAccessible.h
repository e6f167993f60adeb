#pragma once

#include "host/gui/base/FPartsAccessible.h"

class FSoftConView;

/** What a screen reader finds in the view of a connector: the buttons of its areas, and its items. */
class FConnectorAccessible : public FPartsAccessible {
 public:
    explicit FConnectorAccessible(FSoftConView* view);

    /** Makes the classes known to Qt; further calls do nothing. */
    static void install();

 protected:
    QList<QObject*> parts() const override;
};
