#include "host/core/FHistory.h"
#include "host/core/FHold.h"
#include "host/core/FObjectEditorWgt.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/gui/panels/FEntriesWgt.h"
#include "host/gui/panels/FObjectEditorPanel.h"
#include "host/gui/window/FNoticeBar.h"
#include "tests/support/window/FWindowTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeView>

namespace {

class FObjectEditorPanelTest : public FWindowTest {
 public:
    FObjectEditorPanelTest() {
        EXPECT_TRUE(
            run("parameter load(100)\nparameter span(2 * load)\ndesign slim()\n"
                "genericIntegrationConfiguration values()\n"
                "genericIntegrationComputation solver() { .setExecutable(\"ccx\") }\n"
                "genericIntegrationComputation other() { .setExecutable(\"ngspice\") }\n"
                "point origin()"));
        openPanel("editor");
    }

    void select(const QStringList& names) {
        QList<FExpr<FObject>> objects;
        for (const QString& name : names) {
            objects.append(FExpr<FObject>(object<FManaged>(name)));
        }
        FSelectionSet::instance()->set(objects);
        settle();
    }
    /** The control of an attribute of what is selected. */
    template <class Widget>
    Widget* field(const QString& command) {
        settle();
        return window().panels().dockOf("editor")->findChild<Widget*>(command);
    }
    void replace(QLineEdit* line, const QString& text, Qt::Key end = Qt::Key_Return) {
        line->setFocus();
        line->selectAll();
        type(line, text);
        press(line, end);
        settle();
    }
    QString faultOf(QWidget* control) { return dynamic_cast<FAttributeEditor*>(control->parentWidget())->fault(); }
    QString besides(QWidget* control) {
        const auto* label = control->parentWidget()->findChild<QLabel*>("valueBeside");
        return label->isHidden() ? QString() : label->text();
    }
    static QString lastStep() {
        return FHistory::instance()->getLabels().value(FHistory::instance()->getLabels().size() - 1);
    }
};

}  // namespace

TEST_F(FObjectEditorPanelTest, anExpressionIsCommittedAsOneStepAndShowsItsValue) {
    select({"span"});
    auto* line = field<QLineEdit>("setValue");
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(), "2*load");
    EXPECT_EQ(besides(line), "= 200");
    const QString before = savedModel();
    const int steps = FHistory::instance()->getLabels().size();
    replace(line, "load + 1");
    EXPECT_EQ(textOf("span + 0"), "101");
    EXPECT_EQ(besides(line), "= 101");
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps + 1);
    EXPECT_EQ(lastStep(), "Value");
    // The value follows what the expression names.
    ASSERT_TRUE(run("load.setValue(5)"));
    settle();
    EXPECT_EQ(besides(line), "= 6");
    trigger("undo");
    trigger("undo");
    settle();
    EXPECT_EQ(savedModel(), before);
    EXPECT_EQ(line->text(), "2*load");
}

TEST_F(FObjectEditorPanelTest, refusedTextStaysWithItsReasonUntilEscape) {
    select({"span"});
    auto* line = field<QLineEdit>("setValue");
    const QString before = savedModel();
    for (const auto& [text, reason] : {std::pair("2 *", "olumn"), {"lod", "load"}, {"span + 1", "depend"}}) {
        replace(line, text);
        EXPECT_EQ(line->text(), text);
        EXPECT_TRUE(faultOf(line).contains(reason)) << faultOf(line).toStdString();
        EXPECT_TRUE(line->parentWidget()->findChild<QLabel*>("fieldFault")->isVisible());
        EXPECT_EQ(savedModel(), before);
    }
    // A step elsewhere neither tries the text again nor replaces it.
    const int messages = log().size();
    ASSERT_TRUE(run("load.setValue(7)"));
    settle();
    EXPECT_EQ(line->text(), "span + 1");
    EXPECT_EQ(log().size(), messages);
    ASSERT_TRUE(run("genericIntegrationComputation solver()"));
    trigger("run");
    EXPECT_TRUE(window().notices().text().contains("would use 2*load")) << window().notices().text().toStdString();
    EXPECT_EQ(window().focusWidget(), line);
    press(line, Qt::Key_Escape);
    settle();
    EXPECT_EQ(line->text(), "2*load");
    EXPECT_EQ(faultOf(line), QString());
    EXPECT_EQ(besides(line), "= 14");
}

TEST_F(FObjectEditorPanelTest, typedTextIsNotReplacedAndNoStepLosesIt) {
    select({"span"});
    auto* line = field<QLineEdit>("setValue");
    line->setFocus();
    line->selectAll();
    type(line, "42");
    {
        const FHistoryTransaction step("elsewhere");
        object<FManaged>("load")->setName("force");
    }
    settle();
    EXPECT_EQ(line->text(), "42");
    // The next step of the user takes it over first, as a step of its own.
    enter("parameter next(1)");
    EXPECT_EQ(textOf("span + 0"), "42");
    EXPECT_EQ(FHistory::instance()->getLabels().count("Value"), 1);
}

TEST_F(FObjectEditorPanelTest, eachKindOfValueHasItsField) {
    select({"solver"});
    replace(field<QLineEdit>("setExecutable"), "a \"b\" c");
    EXPECT_EQ(textOf("getAttribute(solver, \"setExecutable\")"), "a \"b\" c");
    replace(field<QLineEdit>("setTimeLimit"), "2 * 60");
    EXPECT_EQ(field<QLineEdit>("setTimeLimit")->text(), "120");
    replace(field<QLineEdit>("setTimeLimit"), "-1");
    EXPECT_TRUE(faultOf(field<QLineEdit>("setTimeLimit")).contains("can't be -1"));
    replace(field<QLineEdit>("setTimeLimit"), "\"long\"");
    EXPECT_TRUE(faultOf(field<QLineEdit>("setTimeLimit")).contains("can't be read"));
    press(field<QLineEdit>("setTimeLimit"), Qt::Key_Escape);

    auto* lines = field<QPlainTextEdit>("setArguments");
    lines->setFocus();
    type(lines, "-i");
    press(lines, Qt::Key_Return);
    type(lines, "cantilever");
    press(lines, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(evaluate("getAttribute(solver, \"setArguments\")").getObject()->toExpressionString(),
              "[\"-i\",\"cantilever\"]");

    auto* box = field<QCheckBox>("setConsoleFiles");
    const bool before = box->isChecked();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, box->height() / 2));
    settle();
    EXPECT_EQ(textOf("getAttribute(solver, \"setConsoleFiles\")"), before ? "false" : "true");

    auto* choice = field<QComboBox>("setDesign");
    choice->setFocus();
    type(choice, "slim");
    press(choice, Qt::Key_Down);
    settle();
    EXPECT_EQ(textOf("getAttribute(solver, \"setDesign\")"), "slim");
    press(choice, Qt::Key_Home);
    settle();
    EXPECT_TRUE(evaluate("getAttribute(solver, \"setDesign\")").isEmpty());
}

TEST_F(FObjectEditorPanelTest, tabVisitsTheFieldsInTheOrderInWhichTheyAreShown) {
    for (const char* name : {"solver", "values", "solver"}) {
        select({name});
        QWidget* panel = &window().panels().get<FObjectEditorPanel>();
        QStringList shown;
        for (const FAttributeEditor* field : panel->findChildren<FAttributeEditor*>()) {
            shown.append(field->focusProxy()->objectName());
        }
        auto* first = panel->findChild<QLineEdit*>("objectName");
        first->setFocus();
        QStringList visited;
        for (int i = 0; i < shown.size(); ++i) {
            press(qApp->focusWidget(), Qt::Key_Tab);
            visited.append(qApp->focusWidget()->objectName());
        }
        EXPECT_EQ(visited, shown);
        press(qApp->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(panel->findChild<FEntriesWgt*>()->isAncestorOf(qApp->focusWidget()), name == QString("values"));
    }
}

TEST_F(FObjectEditorPanelTest, severalObjectsShowWhatTheyShare) {
    select({"solver", "other"});
    EXPECT_EQ(find<QLineEdit>("objectName")->text(), "2 objects");
    EXPECT_TRUE(find<QLineEdit>("objectName")->isReadOnly());
    EXPECT_EQ(find<QLabel>("objectClass")->text(), "computation");
    auto* line = field<QLineEdit>("setExecutable");
    EXPECT_EQ(line->text(), QString());
    EXPECT_EQ(line->placeholderText(), "several");
    EXPECT_EQ(field<QLineEdit>("setStandardInput")->placeholderText(), QString());
    // Leaving a field that wasn't changed changes nothing.
    const QString before = savedModel();
    line->setFocus();
    press(line, Qt::Key_Tab);
    EXPECT_EQ(savedModel(), before);
    replace(line, "solve", Qt::Key_Tab);
    EXPECT_EQ(textOf("getAttribute(solver, \"setExecutable\")"), "solve");
    EXPECT_EQ(textOf("getAttribute(other, \"setExecutable\")"), "solve");
    trigger("undo");
    EXPECT_EQ(savedModel(), before);
    select({"solver", "span"});
    EXPECT_EQ(field<QLineEdit>("setValue"), nullptr);
    EXPECT_EQ(find<QLabel>("objectClass")->text(), "of several classes");
    // Configurations of one definition have the same entries.
    ASSERT_TRUE(
        run("genericIntegrationDefinition plate() { .addEntry(\"thickness\", 2) }\n"
            "values.setDefinition(plate)\n"
            "genericIntegrationConfiguration thick() { .setDefinition(plate) }"));
    select({"values", "thick"});
    EXPECT_EQ(rowsOf(*find<QTreeView>("entryTree")->model()).join(' '), "thickness");
    EXPECT_EQ(find<QLabel>("objectClass")->text(), "entries of values");
    select({"values", "span"});
    EXPECT_FALSE(find<QTreeView>("entryTree")->isVisible());
}

TEST_F(FObjectEditorPanelTest, theNameIsEditedAndADestroyedObjectIsGoneAtOnce) {
    select({"span"});
    auto* name = find<QLineEdit>("objectName");
    replace(name, "1 leng-th");
    EXPECT_NE(object<FManaged>("length"), nullptr);
    EXPECT_EQ(lastStep(), "rename");
    trigger("undo");
    settle();
    EXPECT_EQ(name->text(), "span");
    QPointer<QLineEdit> line = field<QLineEdit>("setValue");
    ASSERT_TRUE(run("destroy(span)"));
    EXPECT_TRUE(!line || !line->isVisible());
    settle();
    EXPECT_TRUE(find<QLabel>("editorHint")->isVisible());
    trigger("undo");
    settle();
    EXPECT_NE(object<FManaged>("span"), nullptr);
}

TEST_F(FObjectEditorPanelTest, requiredAndGroupedRowsAreRebuiltOnRequest) {
    select({"solver"});
    const auto rows = window().panels().dockOf("editor")->findChildren<QWidget*>("AttributeRow");
    int last = 0;
    for (const QWidget* row : rows) {
        last += row->property("last").toBool() ? 1 : 0;
    }
    EXPECT_EQ(last, 2);  // groups
    EXPECT_NE(rows.first()->findChild<QLabel*>(), nullptr);
    bool isMarked = false;
    for (const QWidget* row : rows) {
        isMarked = isMarked || row->findChild<QLabel*>()->text() == "Executable *";
    }
    EXPECT_TRUE(isMarked);
    const QPointer<QLineEdit> old = field<QLineEdit>("setExecutable");
    FObjectEditorWgt::instance()->reinitialize();
    settle();
    EXPECT_TRUE(!old || !old->isVisible());
    // While editors are held, they don't follow.
    {
        const FEditorUpdateBlocker blocker;
        ASSERT_TRUE(run("solver.setExecutable(\"new\")"));
        settle();
        EXPECT_EQ(field<QLineEdit>("setExecutable")->text(), "ccx");
    }
    settle();
    EXPECT_EQ(field<QLineEdit>("setExecutable")->text(), "new");
}
