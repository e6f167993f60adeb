#pragma once

#include "host/gui/base/FPartsAccessible.h"

class FChainView;

/** What a screen reader finds in the picture of chains: a list of its boxes. */
class FChainAccessible : public FPartsAccessible {
 public:
    explicit FChainAccessible(FChainView* view);

    QAccessibleInterface* focusChild() const override;

    /** Makes the classes known to Qt; further calls do nothing. */
    static void install();

 protected:
    QList<QObject*> parts() const override;

 private:
    FChainView& view() const;
};
