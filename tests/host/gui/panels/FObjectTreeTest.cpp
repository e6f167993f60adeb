#include "host/core/FSelectionSet.h"
#include "host/gui/base/FObjectMime.h"
#include "host/gui/panels/FObjectTreeModel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace {

class FObjectTreeTest : public FWindowTest {
 public:
    FObjectTreeTest() { openPanel("objects"); }

    QTreeView& view() { return *find<QTreeView>("objectTree"); }
    std::string rows() {
        settle();
        return rowsOf(*view().model()).join('\n').toStdString();
    }
    QModelIndex indexOf(const QString& text) {
        settle();
        const QModelIndexList found = view().model()->match(view().model()->index(0, 0), Qt::DisplayRole, text, 1,
                                                            Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_FALSE(found.isEmpty()) << text.toStdString();
        return found.value(0);
    }
    void click(const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QModelIndex index = indexOf(text);
        view().scrollTo(index);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, view().visualRect(index).center());
        settle();
    }
    static QStringList selected() {
        QStringList names;
        for (const FExpr<FObject>& object : FSelectionSet::instance()->getObjects()) {
            names.append(object.toString());
        }
        return names;
    }
};

const char* const setUp = R"(
genericIntegrationCommandFile deck() { .setFileName("deck.inp") }
genericIntegrationDefinition beam() { .setFiles([deck]) }
genericIntegrationConfiguration values() { .setDefinition(beam) }
genericIntegrationComputation solver() { .setConfiguration(values) }
parameter span(2.4)
)";

const char* const setUpRows = "solver\n  beam\n    deck\n  values\nParameters\n  span = 2.4";

}  // namespace

TEST_F(FObjectTreeTest, partsAreBelowWhatTheyBelongToThroughEveryChange) {
    FObjectTreeModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_TRUE(run(setUp));
    EXPECT_EQ(rows(), setUpRows);
    ASSERT_TRUE(run("solver.setConfiguration(NULL)"));
    EXPECT_EQ(rows(), "solver\nConfigurations\n  values\nDefinitions\n  beam\n    deck\nParameters\n  span = 2.4");
    ASSERT_TRUE(run("undo()"));
    EXPECT_EQ(rows(), setUpRows);
    ASSERT_TRUE(run("destroy(beam)\ndestroy(span)"));
    EXPECT_EQ(rows(), "solver\n  values");
    ASSERT_TRUE(run("undo()\nundo()"));
    EXPECT_EQ(rows(), setUpRows);
    EXPECT_EQ(rowsOf(model).join('\n').toStdString(), setUpRows);
}

TEST_F(FObjectTreeTest, nothingOfADestroyedObjectIsShownBeforeTheEventLoop) {
    ASSERT_TRUE(run(setUp));
    EXPECT_EQ(rows(), setUpRows);
    ASSERT_TRUE(run("destroy(span)"));
    EXPECT_FALSE(rowsOf(*view().model()).join('\n').contains("span"));
}

TEST_F(FObjectTreeTest, selectionGoesBothWays) {
    ASSERT_TRUE(run(setUp));
    click("beam");
    click("values", Qt::ControlModifier);
    EXPECT_EQ(selected(), (QStringList{"beam", "values"}));
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("span"))});
    settle();
    EXPECT_EQ(view().selectionModel()->selectedRows().value(0).data().toString(), "span = 2.4");
    // An object that leaves isn't selected any more, and undo doesn't select it.
    trigger("delete");
    EXPECT_EQ(selected(), QStringList());
    trigger("undo");
    EXPECT_EQ(selected(), QStringList());
    EXPECT_EQ(rows(), setUpRows);
}

TEST_F(FObjectTreeTest, whatIsSelectedStaysSelectedWhenItsRowAppearsOrMoves) {
    ASSERT_TRUE(run(setUp));
    window().showObject(object<FManaged>("deck"));
    EXPECT_EQ(view().currentIndex().data().toString(), "deck");
    settle();
    EXPECT_EQ(selected(), QStringList("deck"));
    view().collapse(indexOf("solver"));
    window().showObject(object<FManaged>("values"));
    EXPECT_TRUE(view().isExpanded(indexOf("solver")));
    ASSERT_TRUE(run("solver.setConfiguration(NULL)"));
    settle();
    EXPECT_EQ(selected(), QStringList("values"));
    EXPECT_TRUE(view().selectionModel()->isSelected(indexOf("values")));
    ASSERT_TRUE(run("destroy(values)"));
    settle();
    EXPECT_EQ(selected(), QStringList());
}

TEST_F(FObjectTreeTest, aNameIsEditedInPlaceAsOneStep) {
    ASSERT_TRUE(run(setUp));
    const QString before = savedModel();
    click("deck");
    press(&view(), Qt::Key_F2);
    settle();
    auto* editor = view().findChild<QLineEdit*>("nameEditor");
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    type(editor, "1-deck 2");  // what no name can contain isn't typed
    EXPECT_EQ(editor->text(), "deck2");
    press(editor, Qt::Key_Return);
    settle();
    EXPECT_NE(object<FManaged>("deck2"), nullptr);
    EXPECT_NE(rows().find("    deck2"), std::string::npos);
    trigger("undo");
    EXPECT_EQ(savedModel(), before);
    // A name that is taken gets a suffix, and a message says so.
    view().model()->setData(indexOf("deck"), "beam", Qt::EditRole);
    settle();
    EXPECT_NE(object<FManaged>("beam_01"), nullptr);
}

TEST_F(FObjectTreeTest, theFilterKeepsWhatLeadsToAMatch) {
    ASSERT_TRUE(run(setUp));
    settle();
    type(find<QLineEdit>("objectFilter"), "DEC");
    EXPECT_EQ(rows(), "solver\n  beam\n    deck");
    // Showing an object that the filter hides ends the filter.
    window().showObject(object<FManaged>("span"));
    EXPECT_EQ(rows(), setUpRows);
}

TEST_F(FObjectTreeTest, draggedObjectsAreNumbersOfThisProcess) {
    ASSERT_TRUE(run(setUp));
    const std::unique_ptr<QMimeData> data(view().model()->mimeData({indexOf("beam"), indexOf("deck")}));
    EXPECT_EQ(FObjectMime::decode(data.get()), (QList<FManaged*>{object<FManaged>("beam"), object<FManaged>("deck")}));
    const QString format = data->formats().value(0);
    QByteArray foreign = data->data(format);
    foreign[7] = static_cast<char>(foreign[7] + 1);  // another process
    data->setData(format, foreign);
    EXPECT_EQ(FObjectMime::decode(data.get()), QList<FManaged*>());
    data->setData(format, foreign.left(11));
    EXPECT_EQ(FObjectMime::decode(data.get()), QList<FManaged*>());
}

TEST_F(FObjectTreeTest, openBranchesStayOpenWhenManyObjectsCome) {
    ASSERT_TRUE(run(setUp));
    settle();
    view().collapse(indexOf("Parameters"));
    view().expand(indexOf("beam"));
    ASSERT_TRUE(
        run("for (i in [1, 2, 3, 4, 5, 6]) { for (j in [1, 2, 3, 4, 5, 6, 7, 8, 9, 10]) {"
            "for (k in [1, 2, 3, 4, 5, 6, 7, 8, 9, 10]) { parameter p(k) } } }"));
    settle();
    EXPECT_TRUE(view().isExpanded(indexOf("beam")));
    EXPECT_FALSE(view().isExpanded(indexOf("Parameters")));
    EXPECT_EQ(view().model()->rowCount(indexOf("Parameters")), 601);
}

TEST_F(FObjectTreeTest, newGeometryIsAddedFromTheMenuAndNamed) {
    const auto add = [this](int row) {
        QMenu menu;
        window().panels().get<FObjectTreeWgt>().fillMenu(menu);
        menu.findChild<QMenu*>("newObjectMenu")->actions().at(row)->trigger();
        settle();
    };
    const QString before = savedModel();
    add(1);
    auto* name = view().findChild<QLineEdit*>();
    ASSERT_NE(name, nullptr) << "its name can be typed";
    name->setText("tip");
    press(name, Qt::Key_Return);
    settle();
    EXPECT_TRUE(savedModel().contains("point tip(")) << savedModel().toStdString();
    dialogs().answers << "/data/wing \"2\".csv" << QString();
    add(2);

    add(3);
    add(4);
    add(5);
    EXPECT_EQ(rows(), "Geometry\n  tip\n  curve\n  group\n  feature");
    for (int step = 0; step < 5; ++step) {
        trigger("undo");
    }
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
}
