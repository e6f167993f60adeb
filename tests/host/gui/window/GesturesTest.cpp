#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/panels/FObjectTreeModel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/script/FProject.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/randomCases.h"
#include "tests/support/window/FWindowTest.h"

#include <QAction>
#include <QDockWidget>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <random>

namespace {

/** Random gestures; after each, the window shows what the model is. */
class GesturesTest : public FWindowTest {
 public:
    ~GesturesTest() override { FProject::instance()->close(false); }

    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

    QString anyObject() {
        const QStringList names = FObjectManager::instance()->getNames();
        return names.isEmpty() ? QString() : names.at(pick(names.size()));
    }

    void create() {
        static const QStringList statements{
            "parameter p(%1)",
            "design d()",
            "genericIntegrationDefinition definition()",
            "genericIntegrationConfiguration values()",
            "genericIntegrationComputation solver()",
            "genericIntegrationCommandFile deck()",
        };
        QString statement = statements.at(pick(statements.size()));
        enter(statement.replace("%1", QString::number(pick(100))));
    }

    void connectObjects() {
        enter(QStringLiteral("%1.setConfiguration(%2)").arg(anyObject(), anyObject()));
        enter(QStringLiteral("%1.setDefinition(%2)").arg(anyObject(), anyObject()));
        enter(QStringLiteral("%1.setFiles([%2])").arg(anyObject(), anyObject()));
    }

    void select() {
        QList<FExpr<FObject>> objects;
        for (int count = pick(3); count >= 0; --count) {
            if (FManaged* object = FObjectManager::instance()->find(anyObject())) {
                objects.append(FExpr<FObject>(object));
            }
        }
        FSelectionSet::instance()->set(objects);
        settle();
    }

    void rename() {
        auto* view = find<QTreeView>("objectTree");
        const QModelIndexList rows = view->selectionModel()->selectedRows();
        if (!rows.isEmpty()) {
            view->model()->setData(rows.first(), QStringLiteral("name%1").arg(pick(5)), Qt::EditRole);
            settle();
        }
    }

    void triggerIfPossible(const QString& id) {
        settle();
        if (action(id)->isEnabled()) {
            action(id)->trigger();
            settle();
        }
    }

    void gesture() {
        switch (pick(11)) {
            case 0:
            case 1:
                return create();
            case 2:
                return connectObjects();
            case 3:
            case 4:
                return select();
            case 5:
                return rename();
            case 6:
                return triggerIfPossible("delete");
            case 7:
            case 8:
                return triggerIfPossible("undo");
            case 9:
                return triggerIfPossible("redo");
            default:
                window().panels().dockOf(pick(2) == 0 ? "objects" : "history")->setVisible(pick(3) > 0);
        }
    }

    void checkWindow() {
        settle();
        QSet<const FManaged*> shown;
        collect(*find<QTreeView>("objectTree")->model(), {}, shown);
        for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
            const bool isExpected = object->getSystemLevel() <= 1;
            EXPECT_TRUE(!isExpected || shown.contains(object)) << object->getName().toStdString() << " isn't shown";
        }
        for (const FManaged* object : shown) {
            EXPECT_TRUE(FObjectManager::instance()->contains(object)) << "a dead object is shown";
        }
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(FHistory::instance()->inTransaction());
    }

 private:
    void collect(const QAbstractItemModel& model, const QModelIndex& parent, QSet<const FManaged*>& shown) {
        const auto& tree = window().panels().get<FObjectTreeWgt>().model();
        const auto& filter = dynamic_cast<const QSortFilterProxyModel&>(model);
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            if (const FManaged* object = tree.objectAt(filter.mapToSource(index))) {
                EXPECT_FALSE(shown.contains(object)) << "shown twice";
                EXPECT_EQ(index.data(FObjectTreeModel::nameRole).toString(), object->getName());
                shown.insert(object);
            }
            collect(model, index, shown);
        }
    }

    std::mt19937 mRandom{1};
};

}  // namespace

TEST_F(GesturesTest, theWindowShowsWhatTheModelIs) {
    const int cases = randomCases(250);
    for (int step = 0; step < cases && !HasFailure(); ++step) {
        gesture();
        checkWindow();
    }
    undoAndRedoAll([this] { checkWindow(); });
    // A project that is saved and opened again gives the same window.
    const FTestFolder folder;
    ASSERT_TRUE(FProject::instance()->save(folder.path("p.mrx")));
    window().projectFiles().open(folder.path("p.mrx"));
    checkWindow();
    FProject::instance()->close(false);
}
