#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/gui/base/FObjectMime.h"
#include "host/gui/window/FDocumentTabs.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/randomCases.h"
#include "tests/support/window/FWindowTest.h"
#include "tests/support/window/doubleClick.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QGraphicsProxyWidget>
#include <QMimeData>
#include <QRegularExpression>
#include <QTreeWidget>

#include <random>

namespace {

/** Random gestures in connectors; after each, the scenes and tabs show what the model is. */
class ConnectorGesturesTest : public FWindowTest {
 public:
    ConnectorGesturesTest() {
        FMerixCtrl::instance()->setProjectFile(mFolder.path("p.mrx"));
        for (const char* name : {"a.inp", "b.inp", "c.dat", "in/d.msh"}) {
            mFolder.write(QString::fromLatin1(name), "x = <entry>x</entry> 1\n");
        }
    }
    ~ConnectorGesturesTest() override { window().documents().closeAll(); }

    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

    static QList<FSoftwareConnector*> connectors() {
        QList<FSoftwareConnector*> found;
        for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
            found.append(dynamic_cast<FSoftwareConnector*>(connector));
        }
        return found;
    }
    FSoftConObjectItem* anyItem(const FSoftwareConnector& connector) {
        const QList<FSoftConObjectItem*>& items = connector.getScene()->objectItems();
        return items.isEmpty() ? nullptr : items.at(pick(items.size()));
    }

    void mouse(FSoftwareConnector& connector, bool isDouble) {
        connector.gotoOverview();
        const FSoftConObjectItem* item = anyItem(connector);
        if (!item) {
            return;
        }
        FSoftConView* view = connector.getView();
        const QPointF centre = item->mapToScene(item->boundingRect().center());
        view->ensureVisible(QRectF(centre, QSizeF(1, 1)));
        const QPoint point = view->mapFromScene(centre);
        QTest::mouseMove(view->viewport(), point);
        isDouble ? doubleClick(view->viewport(), point)
                 : QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
    }

    void deleteAny(const FSoftwareConnector& connector) {
        const FSoftConObjectItem* item = anyItem(connector);
        if (item && item->deleteProxy()) {
            qobject_cast<QAbstractButton*>(item->deleteProxy()->widget())->click();
        }
    }

    void drop(const FSoftwareConnector& connector, const QMimeData& data) {
        FSoftConView* view = connector.getView();
        const QPointF place((pick(2) * 2 - 1) * 150, pick(2) == 0 ? -60 : 120);
        view->ensureVisible(QRectF(place, QSizeF(1, 1)));
        const QPoint point = view->mapFromScene(place);
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &enter);
        QDragMoveEvent move(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
        QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
    }
    void dropFile(const FSoftwareConnector& connector) {
        static const QStringList names{"a.inp", "b.inp", "c.dat", "in"};
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(mFolder.path(names.at(pick(names.size()))))});
        drop(connector, data);
    }
    void dropPoint(const FSoftwareConnector& connector) {
        enter("point p(1, 2, 3)");
        const QStringList names = FObjectManager::instance()->getNames().filter(QRegularExpression("^p\\d*$"));
        if (!names.isEmpty()) {
            const std::unique_ptr<QMimeData> data(
                FObjectMime::encode({FObjectManager::instance()->find(names.at(pick(names.size())))}));
            drop(connector, *data);
        }
    }

    void link(FSoftwareConnector& connector) {
        QTimer::singleShot(0, &connector, [this, &connector] {
            auto* tree = connector.findChild<QTreeWidget*>("connectTree");
            ASSERT_NE(tree, nullptr);
            const QTreeWidgetItem* top = tree->topLevelItem(0);
            if (top && top->childCount() > 0) {
                tree->setCurrentItem(top->child(pick(top->childCount())));
            }
            connector.findChild<QDialog*>("connectConnector")->accept();
        });
        connector.connectOtherConnector();
    }

    void gesture() {
        const QList<FSoftwareConnector*> all = connectors();
        if (all.isEmpty() || (all.size() < 3 && pick(12) == 0)) {
            enter("softwareConnector con()");
            connectors().last()->showConnector();
            return;
        }
        FSoftwareConnector& connector = *all.at(pick(all.size()));
        switch (pick(14)) {
            case 0:
            case 1:
            case 2:
                return dropFile(connector);
            case 3:
                return deleteAny(connector);
            case 4:
                return mouse(connector, pick(2) == 0);
            case 5:
                return connector.setItemSizeStr(QStringList{"Large", "Medium", "Small"}.at(pick(3)));
            case 6:
                return link(connector);
            case 7:
                return dropPoint(connector);
            case 8:
            case 9:
                return undoOrRedo("undo");
            case 10:
                return undoOrRedo("redo");
            case 11:
                emit connector.tabCloseRequested(pick(connector.count()));
                return;
            case 12:
                return pick(4) == 0 ? enter(QStringLiteral("destroy(%1)").arg(connector.getName()))
                                    : connector.showConnector();
            default:
                return pick(2) == 0 ? connector.getScene()->addExport() : window().documents().closeAll();
        }
    }
    void undoOrRedo(const QString& id) {
        settle();
        if (action(id)->isEnabled()) {
            trigger(id);
        }
    }

    static QSet<const FObject*> objectsOf(const FSoftwareConnector& connector) {
        QSet<const FObject*> objects;
        const FSetUpObjects setUp(connector.getComputation());
        for (const FSetUpObjects::Shown& shown :
             connector.getComputation() ? setUp.shown() : QList<FSetUpObjects::Shown>()) {
            objects.insert(shown.object.getStored());
        }
        return objects;
    }

    void check() {
        settle();
        for (const FSoftwareConnector* connector : connectors()) {
            const FSoftConScene& scene = *connector->getScene();
            QSet<const FObject*> shown;
            for (const FSoftConObjectItem* item : scene.objectItems()) {
                EXPECT_EQ(item->scene(), &scene);
                EXPECT_FALSE(shown.contains(item->getObject().getStored())) << "shown twice";
                shown.insert(item->getObject().getStored());
            }
            EXPECT_EQ(shown, objectsOf(*connector)) << connector->getName().toStdString();
            int inScene = 0;
            for (QGraphicsItem* item : scene.items()) {
                inScene += dynamic_cast<FSoftConObjectItem*>(item) ? 1 : 0;
            }
            EXPECT_EQ(inScene, scene.objectItems().size()) << "an item was left behind";
            EXPECT_GE(connector->count(), 1);
        }
        // The windows of connectors that are gone went along.
        const int views = window().findChildren<FSoftConView*>().size();
        EXPECT_LE(views, connectors().size());
        EXPECT_FALSE(FHistory::instance()->inTransaction());
    }

 private:
    FTestFolder mFolder;
    std::mt19937 mRandom{1};
};

}  // namespace

TEST_F(ConnectorGesturesTest, theScenesShowWhatTheModelIs) {
    const int cases = randomCases(150);
    for (int step = 0; step < cases && !HasFailure(); ++step) {
        gesture();
        check();
    }
    undoAndRedoAll([this] { check(); });
}
