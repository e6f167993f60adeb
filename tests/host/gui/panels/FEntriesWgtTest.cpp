#include "host/core/FHistory.h"
#include "host/core/FSelectionSet.h"
#include "host/design/FEntryDef.h"
#include "host/gui/panels/FEntriesWgt.h"
#include "host/gui/panels/FEntryModel.h"
#include "host/gui/panels/FObjectEditorPanel.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/run/FExternComputation.h"
#include "tests/support/window/FWindowTest.h"
#include "tests/support/window/doubleClick.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTreeView>

namespace {

class FEntriesWgtTest : public FWindowTest {
 public:
    FEntriesWgtTest() {
        EXPECT_TRUE(run(R"(
parameter load(100)
genericIntegrationCommandFile deck() {
    .setFileName("deck.inp")
    .setContent("span <entry>Geometry|span</entry>
force <entry>force</entry> <entry>force</entry>
<entry>FORCE</entry>")
}
genericIntegrationDefinition beam() {
    .addEntry("Geometry|span", 2.4)
    .addEntry("Rib|width", 1, 3, 1)
    .addEntry("force", 10, 1, 1, false, "at the tip")
    .addEntry("mesh", inputFile("mesh.msh"))
    .setFiles([deck])
}
genericIntegrationConfiguration values() { .setDefinition(beam) }
genericIntegrationComputation solver() { .setConfiguration(values) }
)"));
        openPanel("editor");
        select("solver");
    }

    void select(const QString& name) {
        FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>(name))});
        settle();
    }
    QTreeView& view() { return *find<QTreeView>("entryTree"); }
    std::string rows() {
        settle();
        return rowsOf(*view().model()).join(' ').simplified().toStdString();
    }
    QModelIndex cell(const QString& path, int column = FEntryModel::valueColumn) {
        settle();
        const QModelIndex index = entries().model().indexOf(path);
        EXPECT_TRUE(index.isValid()) << path.toStdString();
        return index.sibling(index.row(), column);
    }
    QString text(const QString& path, int column = FEntryModel::valueColumn) {
        return cell(path, column).data().toString();
    }
    FEntriesWgt& entries() { return window().panels().get<FObjectEditorPanel>().entries(); }
    /** Opens the editor of a cell as a user does. */
    template <class Editor = QLineEdit>
    Editor* edit(const QModelIndex& index) {
        view().setCurrentIndex(index);
        settle();
        view().scrollTo(index);
        doubleClick(view().viewport(), view().visualRect(index).center());
        settle();
        auto* editor = view().findChild<Editor*>("entryEditor");
        EXPECT_NE(editor, nullptr);
        return editor;
    }
    void replace(const QModelIndex& index, const QString& text, Qt::Key end = Qt::Key_Return) {
        QLineEdit* editor = edit(index);
        editor->selectAll();
        type(editor, text);
        press(editor, end);
        settle();
    }
    void act(const QString& name, const QString& path) {
        view().setCurrentIndex(cell(path));
        settle();
        auto* found = find<QAction>(name);
        EXPECT_TRUE(found->isEnabled()) << name.toStdString();
        found->trigger();
        settle();
    }
    bool may(const QString& name, const QString& path) {
        view().setCurrentIndex(cell(path));
        settle();
        return find<QAction>(name)->isEnabled();
    }
    static QString lastStep() {
        const QStringList labels = FHistory::instance()->getLabels();
        return labels.isEmpty() ? QString() : labels.last();
    }
};

const char* const allRows = "Geometry span Rib width[0] force mesh file folder";

}  // namespace

TEST_F(FEntriesWgtTest, theTreeIsThatOfTheConfigurationThroughEveryChange) {
    const QAbstractItemModelTester tester(&entries().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(rows(), allRows);
    ASSERT_TRUE(run("beam.addEntry(\"Geometry|height\", 3)\nbeam.renameEntry(\"force\", \"tip load\")"));
    EXPECT_EQ(rows(), "Geometry span height Rib width[0] tip load mesh file folder");
    ASSERT_TRUE(run("undo()\nundo()"));
    EXPECT_EQ(rows(), allRows);
    view().collapse(cell("Geometry", 0));
    ASSERT_TRUE(run("values.setEntryValue(\"mesh\", 5)"));
    EXPECT_EQ(rows(), "Geometry span Rib width[0] force mesh");
    EXPECT_FALSE(view().isExpanded(cell("Geometry", 0)));
    EXPECT_TRUE(view().isExpanded(cell("Rib", 0)));
    ASSERT_TRUE(run("solver.setConfiguration(NULL)"));
    settle();
    EXPECT_FALSE(view().isVisible());
    ASSERT_TRUE(run("undo()"));
    EXPECT_EQ(rows(), "Geometry span Rib width[0] force mesh");
    ASSERT_TRUE(run("destroy(values)"));
    EXPECT_EQ(view().model()->rowCount(), 0);
}

TEST_F(FEntriesWgtTest, aValueIsAnExpressionThatIsCommittedAsOneStep) {
    const QString before = savedModel();
    EXPECT_EQ(cell("force").data(Qt::AccessibleDescriptionRole).toString(), "default");
    replace(cell("force"), "2 * load");
    EXPECT_EQ(textOf("values.getEntryValue(\"force\")"), "200");
    EXPECT_EQ(text("force"), "2*load");
    EXPECT_EQ(text("force", FEntryModel::resultColumn), "200");
    EXPECT_EQ(cell("force").data(Qt::AccessibleDescriptionRole).toString(), QString());
    EXPECT_EQ(lastStep(), "Set force to 2 * load");
    ASSERT_TRUE(run("load.setValue(7)"));
    EXPECT_EQ(text("force", FEntryModel::resultColumn), "14");
    ASSERT_TRUE(run("undo()"));
    act("resetEntry", "force");
    EXPECT_EQ(text("force"), "10");
    EXPECT_FALSE(may("resetEntry", "force"));
    trigger("undo");
    EXPECT_EQ(text("force"), "2*load");
    trigger("undo");
    EXPECT_EQ(savedModel(), before);
}

TEST_F(FEntriesWgtTest, refusedTextStaysInItsRowWithTheReason) {
    const QString before = savedModel();
    replace(cell("force"), "2 * ");
    EXPECT_EQ(text("force"), "2 * ");
    EXPECT_FALSE(cell("force").data(FEntryModel::faultRole).toString().isEmpty());
    EXPECT_TRUE(find<QLabel>("entryDetails")->text().contains("column"));
    replace(cell("force"), "values.getEntryValue(\"force\")");
    EXPECT_TRUE(cell("force").data(FEntryModel::faultRole).toString().contains("depend on itself"));
    EXPECT_EQ(savedModel(), before);
    // A run would use another value than the one that is shown.
    window().panels().show("chain");
    trigger("run");
    EXPECT_EQ(object<FExternComputation>("solver")->getLastRun().state, FRunRecord::State::Ready);
    EXPECT_TRUE(window().notices().text().contains("for force") && window().notices().text().contains("would use 10"))
        << window().notices().text().toStdString();
    // The editor starts with what was refused; Escape gives it up.
    auto* editor = view().findChild<QLineEdit*>("entryEditor");
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(window().focusWidget(), editor);
    EXPECT_EQ(editor->text(), "values.getEntryValue(\"force\")");
    press(editor, Qt::Key_Escape);
    EXPECT_EQ(text("force"), "10");
    EXPECT_TRUE(waitUntil([this] { return window().notices().text().isEmpty(); }));
}

TEST_F(FEntriesWgtTest, aStepElsewhereTakesOverTheOpenEditorFirst) {
    QLineEdit* editor = edit(cell("force"));
    editor->selectAll();
    type(editor, "33");
    enter("parameter next(1)");
    EXPECT_EQ(textOf("values.getEntryValue(\"force\")"), "33");
    EXPECT_EQ(FHistory::instance()->getLabels().count("Set force to 33"), 1);
}

TEST_F(FEntriesWgtTest, partsOfAFileAreRowsOfTheirOwn) {
    const auto part = [&](int row) { return view().model()->index(row, FEntryModel::valueColumn, cell("mesh", 0)); };
    EXPECT_EQ(part(0).data().toString(), "\"mesh.msh\"");
    const QString before = savedModel();
    replace(part(0), "\"fine.msh\"");
    EXPECT_EQ(text("mesh"), "inputFile(\"fine.msh\")");
    EXPECT_EQ(lastStep(), "Set file of mesh to \"fine.msh\"");
    replace(part(1), "\"meshes\"");
    EXPECT_EQ(text("mesh"), "inputFile(\"fine.msh\",\"meshes\")");
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(savedModel(), before);
    replace(cell("mesh"), "resultsFileName(\"old.dat\")");
    auto* box = edit<QComboBox>(part(1));
    ASSERT_NE(box, nullptr);
    box->setFocus();
    type(box, "me");
    press(box, Qt::Key_Return);
    settle();
    EXPECT_EQ(text("mesh"), "resultsFileName(\"old.dat\",4)");
    replace(cell("mesh"), "geometryExport(\"a.stl\", 0, [])");
    replace(view().model()->index(2, FEntryModel::valueColumn, cell("mesh", 0)), "[load]");
    EXPECT_EQ(text("mesh"), "geometryExport(\"a.stl\",0,[load])");
}

TEST_F(FEntriesWgtTest, occurrencesAreAddedUpToTheMostAndRemovedDownToTheLeast) {
    const QString before = savedModel();
    EXPECT_FALSE(may("addOccurrence", "force"));
    EXPECT_FALSE(may("removeOccurrence", "Rib|width[0]"));
    act("addOccurrence", "Rib|width[0]");
    act("addOccurrence", "Rib|width[0]");
    EXPECT_EQ(rows(), "Geometry span Rib width[0] width[1] width[2] force mesh file folder");
    EXPECT_FALSE(may("addOccurrence", "Rib|width[1]"));
    replace(cell("Rib|width[2]"), "8");
    EXPECT_EQ(textOf("values.getEntryValue(\"Rib|width[2]\")"), "8");
    act("removeOccurrence", "Rib|width[0]");
    EXPECT_EQ(rows(), "Geometry span Rib width[0] width[1] force mesh file folder");
    for (int step = 0; step < 4; ++step) {
        trigger("undo");
    }
    EXPECT_EQ(savedModel(), before);
    EXPECT_EQ(rows(), allRows);
}

TEST_F(FEntriesWgtTest, entriesOfTheDefinitionAreAddedRenamedAndRemoved) {
    const QString before = savedModel();
    act("addEntry", "Geometry|span");
    EXPECT_EQ(find<QLineEdit>("newEntryPath")->text(), "Geometry|newEntry");
    QTest::keyClicks(find<QLineEdit>("newEntryPath"), "height");
    auto* standard = find<QLineEdit>("newEntryDefault");
    standard->clear();
    type(standard, "2 * load +");
    press(find<QLineEdit>("newEntryPath"), Qt::Key_Return);
    EXPECT_TRUE(find<QLabel>("newEntryFault")->isVisible());
    standard->clear();
    type(standard, "2 * load");
    type(find<QLineEdit>("newEntryDescription"), "in mm");
    press(find<QLineEdit>("newEntryPath"), Qt::Key_Return);
    EXPECT_EQ(rows(), "Geometry span height Rib width[0] force mesh file folder");
    EXPECT_EQ(textOf("values.getEntryValue(\"Geometry|height\")"), "200");
    act("addEntry", "Rib");
    QTest::keyClicks(find<QLineEdit>("newEntryPath"), "holes");
    find<QSpinBox>("newEntryMost")->setValue(4);
    find<QSpinBox>("newEntryLeast")->setValue(2);
    press(find<QLineEdit>("newEntryPath"), Qt::Key_Return);
    EXPECT_EQ(rows(), "Geometry span height Rib width[0] holes[0] holes[1] force mesh file folder");
    trigger("undo");
    EXPECT_EQ(textOf("beam.getEntryNames()"),
              textOf("[\"Geometry|span\", \"Geometry|height\", \"Rib|width\", \"force\", \"mesh\"]"));
    view().setCurrentIndex(cell("force"));
    press(&view(), Qt::Key_F2);
    settle();
    auto* editor = view().findChild<QLineEdit*>("entryEditor");
    ASSERT_NE(editor, nullptr);
    type(editor, "a|b");
    press(editor, Qt::Key_Return);
    EXPECT_TRUE(cell("force").data(FEntryModel::faultRole).toString().contains("can't be the name"));
    replace(cell("force", 0), "tip load");
    EXPECT_TRUE(textOf("getAttribute(deck, \"setContent\")").size() > 0);
    EXPECT_EQ(rows(), "Geometry span height Rib width[0] tip load mesh file folder");
    act("removeEntry", "Geometry");
    EXPECT_EQ(rows(), "Rib width[0] tip load mesh file folder");
    for (int step = 0; step < 3; ++step) {
        trigger("undo");
    }
    EXPECT_EQ(savedModel(), before);
}

TEST_F(FEntriesWgtTest, whereTemplatesUseAnEntryIsShown) {
    ASSERT_TRUE(waitUntil([this] { return !entries().model().usesOf(cell("force")).isEmpty(); }));
    EXPECT_EQ(entries().model().usesOf(cell("force")), (QStringList{"deck:2", "deck:3"}));
    EXPECT_TRUE(entries().showEntry("Geometry|span"));
    settle();
    EXPECT_TRUE(find<QLabel>("entryDetails")->text().contains("deck:1"));
    EXPECT_TRUE(cell("force").data(Qt::ToolTipRole).toString().contains("at the tip"));
    EXPECT_TRUE(entries().showEntry("mesh"));
    settle();
    EXPECT_TRUE(find<QLabel>("entryDetails")->text().contains("No template names it"));
}

TEST_F(FEntriesWgtTest, ofTenThousandEntriesOnlyTheChangedOneIsShownAgain) {
    ASSERT_TRUE(run("beam.addEntry(\"point\", 1, 10000, 10000)"));
    settle();
    EXPECT_EQ(view().model()->rowCount(), 10004);
    const QSignalSpy reset(view().model(), &QAbstractItemModel::modelReset);
    const QSignalSpy changed(view().model(), &QAbstractItemModel::dataChanged);
    ASSERT_TRUE(run("values.setEntryValue(\"point[9999]\", load)"));
    settle();
    EXPECT_EQ(reset.count(), 0);
    EXPECT_LE(changed.count(), 10) << "of 10,000 rows";
    EXPECT_EQ(text("point[9999]", FEntryModel::resultColumn), "100");
}
