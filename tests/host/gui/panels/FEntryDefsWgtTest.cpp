#include "host/core/FHistory.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/panels/FEntryDefModel.h"
#include "host/gui/panels/FEntryDefsWgt.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

namespace {

class FEntryDefsWgtTest : public FWindowTest {
 public:
    FEntryDefsWgtTest() {
        EXPECT_TRUE(run(R"(
genericIntegrationCommandFile deck() {
    .setFileName("deck.inp")
    .setContent("span <entry>Geometry|span</entry>
width <entry>rib|width</entry>")
}
genericIntegrationDefinition beam() {
    .addEntry("Geometry|span", 2.4, 1, 1, false, "in m")
    .addEntry("Rib|width", 1, 3, 0)
    .addEntry("title", "a beam")
    .addEntry("mesh", inputFile("mesh.msh"))
    .setFiles([deck])
}
genericIntegrationConfiguration values() { .setDefinition(beam) }
)"));
        openPanel("editor");
        select("beam");
    }

    void select(const QString& name) {
        FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>(name))});
        settle();
    }
    QTreeView& view() { return *find<QTreeView>("definitionTree"); }
    FEntryDefModel& model() { return *dynamic_cast<FEntryDefModel*>(view().model()); }
    QModelIndex cell(const QString& path, int column) {
        settle();
        return model().indexOf(path).siblingAtColumn(column);
    }
    std::string row(const QString& path) {
        QStringList texts;
        for (int column = 0; column < FEntryDefModel::columns; ++column) {
            texts.append(cell(path, column).data().toString());
        }
        return texts.join('|').toStdString();
    }
    void replace(const QModelIndex& index, const QString& text) {
        view().setCurrentIndex(index);
        settle();
        view().edit(index);
        auto* editor = view().findChild<QLineEdit*>("entryEditor");
        ASSERT_NE(editor, nullptr);
        editor->selectAll();
        type(editor, text);
        press(editor, Qt::Key_Return);
        settle();
    }
};

}  // namespace

TEST_F(FEntryDefsWgtTest, aDefinitionShowsItsEntriesWithTypesCountsAndUses) {
    const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(row("Geometry"), "Geometry||group|1");
    EXPECT_EQ(row("Geometry|span"), "span|2.4|number|1");
    EXPECT_EQ(row("Rib|width"), "width|1|number|0 to 3");
    EXPECT_EQ(row("title"), "title|\"a beam\"|text|1");
    EXPECT_EQ(row("mesh"), "mesh|inputFile(\"mesh.msh\")|input file|1");
    ASSERT_TRUE(waitUntil([this] { return !model().usesOf(cell("Rib|width", 0)).isEmpty(); }));
    view().setCurrentIndex(cell("Rib|width", 0));
    settle();
    EXPECT_TRUE(find<QLabel>("definitionDetails")->text().contains("deck:2"));
    EXPECT_FALSE(find<QTreeView>("entryTree")->isVisible());
    select("values");
    EXPECT_TRUE(find<QTreeView>("entryTree")->isVisible());
    EXPECT_FALSE(view().isVisible());
    select("beam");
    ASSERT_TRUE(run("destroy(beam)"));
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(FEntryDefsWgtTest, aNewDefaultIsOneStepThatConfigurationsFollow) {
    ASSERT_TRUE(run("values.setEntryValue(\"title\", \"mine\")"));
    const QString before = savedModel();
    replace(cell("Geometry|span", FEntryDefModel::valueColumn), "3");
    EXPECT_EQ(row("Geometry|span"), "span|3|number|1");
    EXPECT_EQ(textOf("values.getEntryValue(\"Geometry|span\")"), "3");
    EXPECT_EQ(FHistory::instance()->getLabels().last(), "Set the default of Geometry|span");
    replace(cell("title", FEntryDefModel::valueColumn), "7");
    EXPECT_EQ(row("title"), "title|7|number|1");
    EXPECT_EQ(textOf("values.getEntryValue(\"title\")"), "mine") << "a value of its own stays";
    const QString changed = savedModel();
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(savedModel(), before);
    EXPECT_EQ(row("title"), "title|\"a beam\"|text|1");
    trigger("redo");
    trigger("redo");
    EXPECT_EQ(savedModel(), changed);
    replace(cell("mesh", FEntryDefModel::valueColumn), "beam");
    EXPECT_TRUE(find<QLabel>("definitionDetails")->text().contains("can't be a default"));
    EXPECT_EQ(cell("mesh", FEntryDefModel::valueColumn).data().toString(), "beam") << "what was refused stays";
    EXPECT_EQ(savedModel(), changed);
}

TEST_F(FEntryDefsWgtTest, entriesAreAddedRenamedAndRemovedWithoutAConfiguration) {
    ASSERT_TRUE(run("destroy(values)"));
    settle();
    const QString before = savedModel();
    view().setCurrentIndex(cell("Geometry", 0));
    find<QAction>("addDefinedEntry")->trigger();
    QTest::keyClicks(find<QLineEdit>("newEntryPath"), "height");
    press(find<QLineEdit>("newEntryPath"), Qt::Key_Return);
    EXPECT_EQ(row("Geometry|height"), "height|0|number|1");
    EXPECT_EQ(view().currentIndex(), cell("Geometry|height", 0));
    replace(cell("Geometry|span", 0), "width");
    EXPECT_EQ(row("Geometry|width"), "width|2.4|number|1");
    EXPECT_TRUE(waitUntil([this] { return model().usesOf(cell("Geometry|width", 0)) == QStringList("deck:1"); }))
        << "tags follow";
    view().setCurrentIndex(cell("Geometry", 0));
    press(&view(), Qt::Key_Delete);
    settle();
    EXPECT_FALSE(model().indexOf("Geometry").isValid());
    for (int step = 0; step < 3; ++step) {
        trigger("undo");
    }
    EXPECT_EQ(savedModel(), before);
}
