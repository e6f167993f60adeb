#include "genericintegration/connector/dialogs/FSoftConConnectConnectorDialog.h"
#include "genericintegration/connector/dialogs/FSoftConInputDialog.h"
#include "host/core/FIni.h"
#include "host/design/FConnectorInterface.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

#include <QCheckBox>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTreeWidget>

namespace {

class DialogsTest : public FWindowTest {
 public:
    DialogsTest() {
        folder.write("a.inp", "1");
        folder.write("b.inp", "2");
    }

    void open(QFileDialog& dialog) {
        dialog.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        auto* list = dialog.findChild<QListView*>("listView");
        ASSERT_NE(list, nullptr);
        ASSERT_TRUE(waitUntil([list] { return list->model()->rowCount(list->rootIndex()) == 2; }));
    }
    static void mark(const QFileDialog& dialog, const QString& name, QItemSelectionModel::SelectionFlag how) {
        const auto* list = dialog.findChild<QListView*>("listView");
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0, list->rootIndex()),
                                                           Qt::DisplayRole, name, 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        list->selectionModel()->select(found.first(), how | QItemSelectionModel::Rows);
    }
    static QLineEdit* names(const QFileDialog& dialog) { return dialog.findChild<QLineEdit*>(); }
    static QPushButton* button(const QDialog& dialog, const QString& text) {
        for (QPushButton* candidate : dialog.findChildren<QPushButton*>()) {
            if (QString(candidate->text()).remove('&') == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    FTestFolder folder;
};

}  // namespace

TEST_F(DialogsTest, theFieldListsTheMarkedFilesAndTheButtonSaysWhetherTheyAreNew) {
    FSoftConInputDialog dialog(&window(), "Add", folder.path(), QString(), true);
    open(dialog);
    mark(dialog, "a.inp", QItemSelectionModel::Select);
    EXPECT_EQ(names(dialog)->text(), "a.inp");
    mark(dialog, "b.inp", QItemSelectionModel::Select);
    EXPECT_EQ(names(dialog)->text(), "\"a.inp\" \"b.inp\"");
    mark(dialog, "a.inp", QItemSelectionModel::Deselect);
    EXPECT_EQ(names(dialog)->text(), "b.inp");
    QPushButton* add = button(dialog, "Add");
    ASSERT_NE(add, nullptr);
    names(dialog)->clear();
    EXPECT_FALSE(add->isEnabled());
    // What is typed stays, also while the dialog marks what fits.
    names(dialog)->setFocus();
    QTest::keyClicks(names(dialog), folder.path("a.inp"));
    EXPECT_EQ(names(dialog)->text(), folder.path("a.inp"));
    names(dialog)->clear();
    QTest::keyClicks(names(dialog), "new.inp");
    EXPECT_EQ(add->text(), "Add New");
    EXPECT_TRUE(add->isEnabled());
    dialog.accept();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.selectedFiles().join(" "), folder.path("new.inp"))
        << dialog.selectedFiles().join(" ").toStdString();
    EXPECT_TRUE(dialog.areNonExistingAccepted());
}

TEST_F(DialogsTest, theBoxForTemplatesStartsAsTheUserLeftIt) {
    const auto isChecked = [this](bool byDefault) {
        const FSoftConInputDialog dialog(&window(), "Add", folder.path(), QString(), byDefault);
        auto* box = dialog.findChild<QCheckBox*>("convertToTemplate");
        EXPECT_GE(dialog.layout()->indexOf(box), 0) << "it is in the layout of the dialog";
        return box->isChecked();
    };
    EXPECT_TRUE(isChecked(true));
    EXPECT_FALSE(isChecked(false));
    FIni().setValue("SoftwareConnector/convertToTemplate", true);
    EXPECT_TRUE(isChecked(false));
    FIni().remove("SoftwareConnector/convertToTemplate");
}

TEST_F(DialogsTest, resultsOfOtherConnectorsAreOfferedAsExpressions) {
    ASSERT_TRUE(
        run("genericIntegrationResultsFile polar() { .setFileName(\"out/polar.dat\") }\n"
            "genericIntegrationDefinition d() { .addEntry(\"Imports|picture\", resultsFileName(\"flow.png\")) "
            ".setFiles([polar]) }\n"
            "genericIntegrationConfiguration c() { .setDefinition(d) }\n"
            "genericIntegrationComputation solver() { .setConfiguration(c) }\n"
            "softwareConnector first() { .setComputation(solver) }\nsoftwareConnector second()"));
    auto* caller = dynamic_cast<FConnectorInterface*>(object<FManaged>("second"));
    FSoftConConnectConnectorDialog dialog(&window(), caller);
    dialog.open();
    auto* tree = dialog.findChild<QTreeWidget*>("connectTree");
    ASSERT_EQ(tree->topLevelItemCount(), 1) << "not the calling one";
    QTreeWidgetItem* top = tree->topLevelItem(0);
    EXPECT_EQ(top->text(0), "first/solver");
    ASSERT_EQ(top->childCount(), 2);
    tree->setCurrentItem(top);
    EXPECT_FALSE(button(dialog, "Add")->isEnabled());
    tree->setCurrentItem(top->child(0));
    top->child(1)->setSelected(true);
    button(dialog, "Add")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.getSelectedExpressions(),
              (QStringList{"solver.getResults().getResultFileName(\"flow.png\")",
                           "solver.getResults().getResultTemplateName(\"out/polar.dat\")"}));
}
