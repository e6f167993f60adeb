#include "genericintegration/connector/FSceneMenu.h"

#include "genericintegration/connector/FSceneFurniture.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/connector/FSoftwareConnectorItem.h"
#include "host/gui/base/FIcons.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace {

void addSizeActions(QMenu& menu, FSoftConScene& scene, const QString& presentSize) {
    auto* group = new QActionGroup(&menu);
    using F = FSoftwareConnector;
    for (const QString& size : {F::smIconSize_Largest, F::smIconSize_Medium, F::smIconSize_Smallest}) {
        QAction* action = menu.addAction(FIcons::get(QStringLiteral(":/softConItemSize_") + size), size);
        action->setCheckable(true);
        action->setChecked(size == presentSize);
        group->addAction(action);
    }
    QObject::connect(group, &QActionGroup::triggered, &scene, &FSoftConScene::resizeItem);
}

}  // namespace

void FSceneMenu::open(FSoftConScene& scene, FSoftwareConnector& connector, SoftConArea area,
                      FSoftwareConnectorItem* item, const QPoint& screenPosition) {
    auto* menu = new QMenu(&connector);
    menu->setObjectName(QStringLiteral("connectorMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (area < filledAreas) {
        menu->addAction(FIcons::get(QStringLiteral("list-add")),
                        QStringLiteral("Add %1").arg(FSceneFurniture::labels()[static_cast<std::size_t>(area)]), &scene,
                        [&scene, area] { scene.add(area); });
    }
    menu->addSeparator();
    addSizeActions(*menu, scene, connector.getItemSizeStr());
    if (item) {
        menu->addAction(FIcons::get(QStringLiteral("edit-copy")), QStringLiteral("Copy File Name"), item,
                        &FSoftwareConnectorItem::copyFileName);
    }
    menu->popup(screenPosition);
}
