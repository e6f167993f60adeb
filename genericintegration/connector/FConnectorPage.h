#pragma once

#include "genericintegration/connector/FSoftwareConnector.h"
#include "host/core/FExpr.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FObjectPage.h"

#include <QWidget>

/** The place of a connector in the window. It never deletes the connector, which belongs to the model. */
class FConnectorPage : public QWidget, public FObjectPage {
    Q_OBJECT

 public:
    FConnectorPage(FSoftwareConnector& connector, FNavigator& navigator);
    ~FConnectorPage() override;

    QWidget* widget() override { return this; }
    void goTo(int line, int column) override;
    FObjectPage* showPageOf(const FManaged* object) override;
    bool isPartFocused() const override;
    void deletePart() override;
    void letGo() override;

 private:
    void deleteFocusedItem();

    FExpr<FSoftwareConnector> mConnector;
    FQueuedCall mDelete{[this] { deleteFocusedItem(); }};
};
