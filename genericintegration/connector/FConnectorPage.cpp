#include "genericintegration/connector/FConnectorPage.h"

#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"
#include "host/gui/base/FNavigator.h"

#include <QGraphicsItem>
#include <QVBoxLayout>

FConnectorPage::FConnectorPage(FSoftwareConnector& connector, FNavigator& navigator) : mConnector(&connector) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&connector);
    setFocusProxy(&connector);
    connector.setNavigator(&navigator);
    connector.show();
    connect(connector.getScene(), &QGraphicsScene::focusItemChanged, this, [&navigator] { navigator.partFocused(); });
}

FConnectorPage::~FConnectorPage() {
    letGo();
}

void FConnectorPage::goTo(int line, int column) {
    Q_UNUSED(line)
    Q_UNUSED(column)
    if (mConnector) {
        mConnector->gotoOverview();
    }
}

FObjectPage* FConnectorPage::showPageOf(const FManaged* object) {
    return mConnector ? mConnector->showPageOf(object) : nullptr;
}

bool FConnectorPage::isPartFocused() const {
    return mConnector && mConnector->getView()->hasFocus() && mConnector->getScene()->keys().isAtRemovable();
}

// While the menu that has chosen it is being closed, the view would not paint again where items were.
void FConnectorPage::deletePart() {
    mDelete.request();
}

void FConnectorPage::deleteFocusedItem() {
    if (mConnector) {
        mConnector->getScene()->keys().removeLast();
    }
}

void FConnectorPage::letGo() {
    auto* connector = static_cast<FSoftwareConnector*>(mConnector.getStored());
    if (connector && connector->parent() == this) {
        connector->setNavigator(nullptr);
        connector->hide();
        connector->setParent(nullptr);
    }
    mConnector = FExpr<FSoftwareConnector>();
}
