#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "host/core/FHistory.h"
#include "host/core/FUserStep.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/gui/window/FDocumentTabs.h"
#include "tests/genericintegration/editors/FResultsPageTest.h"
#include "tests/support/randomCases.h"
#include "tests/support/window/doubleClick.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QRandomGenerator>
#include <QTreeView>

class FGenIntResultsFileEditorTest : public FResultsPageTest {};

TEST_F(FGenIntResultsFileEditorTest, eachFieldChangesTheTemplateInOneStep) {
    agree();
    EXPECT_EQ(text(current()), "drag");
    EXPECT_EQ(text(marked().section('\n', 0, 0)), "aaaaaalcccllll") << "anchor, line and column";
    step("change line", [this] { press(find("line"), Qt::Key_Up); });
    step("change column", [this] {
        find("column")->setFocus();
        press(find("column"), Qt::Key_Up);
    });
    step("change anchor", [this] { enterText("anchor", "step"); });
    step("change occurrence", [this] { choose("occurrence", Qt::Key_Down); });
    step("change value type", [this] { choose("valueType", Qt::Key_Down); });
    EXPECT_TRUE(find("importType")->isVisibleTo(&page()));
    EXPECT_EQ(text(file().getCurValue()->mImportType), "tecplot");
    step("active average calculation", [this] { clickOn("average"); });
    EXPECT_FALSE(combo("valueType").isVisibleTo(&page()));
    EXPECT_EQ(file().getCurValue()->mType, FDouble::null());
    step("change average rows", [this] {
        auto* rows = page().findChild<FAttributeEditor*>();
        type(rows->focusProxy(), "2");
        press(rows->focusProxy(), Qt::Key_Return);
    });
    EXPECT_EQ(text(preview().item(rowOf("drag"), 0)->text()), "10");
    trigger("undo");
    trigger("redo");
    step("deactivate average calculation", [this] { clickOn("average"); });
    step("change results value", [this] { clickRow(rowOf("lift")); });
    EXPECT_EQ(text(current()), "lift");
    step("change results value", [this] {
        QHeaderView& header = *preview().verticalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(5, header.sectionViewportPosition(rowOf("last")) + 5));
    });
    EXPECT_EQ(text(current()), "last");
    step("change column separator", [this] { clickOn("customSeparator"); });
    step("change column separator", [this] { clickOn("spacesAndTabs"); });
    step("change column separator", [this] { enterText("regularExpression", "[ =]+"); });
    step("template path changed", [this] { enterText("templatePath", "a/b"); });
    EXPECT_EQ(text(line("templatePath").text()), "a/b/");
    step("template path changed", [this] { enterText("templatePath", "c\\"); });
    EXPECT_EQ(text(file().getFileName()), "c\\out.dat");
    step("add results value", [this] { clickOn("addValue"); });
    EXPECT_EQ(text(current()), "ResultsValue_03");
    EXPECT_EQ(file().getCurLine(), 1) << "a new value starts as a copy of what the form shows";
    EXPECT_EQ(text(file().getCurrentAnchor()), "step");
    step("delete results value", [this] { clickOn("deleteValue"); });
}

TEST_F(FGenIntResultsFileEditorTest, aFileNameWithoutFoldersAndAnotherImportTypeCanBeSet) {
    // The field of the name is only there to be read, unless somebody enables it.
    EXPECT_FALSE(line("templateName").isEnabled());
    line("templateName").setEnabled(true);
    step("template name changed", [this] { enterText("templateName", "new.dat"); });
    EXPECT_EQ(text(file().getFileName()), "new.dat");

    ASSERT_TRUE(run("out.setValues([[\"drag\", 0, 0, \"\", First, \"FFileName\", \"stl\", 0, NULL]])"));
    settle();
    EXPECT_EQ(text(combo("importType").currentText()), "") << "the type isn't one of those that can be chosen";
    step("change file import type", [this] { choose("importType", Qt::Key_Down); });
    EXPECT_EQ(text(combo("importType").currentText()), "tecplot");
}

TEST_F(FGenIntResultsFileEditorTest, theRowsOfAnAverageFollowAnExpression) {
    clickOn("average");
    ASSERT_TRUE(run("parameter rows(3)"));
    enterRows("rows - 1");
    EXPECT_EQ(text(file().getCurNumAverageRows().toString()), "rows-1");
    const FAttributeEditor& field = *page().findChild<FAttributeEditor*>();
    EXPECT_EQ(text(field.findChild<QLabel*>("valueBeside")->text()), "= 2");
    EXPECT_EQ(text(preview().item(rowOf("drag"), 0)->text()), "5.5") << "of 2 and 9";
    ASSERT_TRUE(run("rows.setValue(2)"));
    EXPECT_TRUE(waitUntil([this] { return preview().item(rowOf("drag"), 0)->text() == "9"; }));
    agree();
    const QStringList steps = labels();
    enterRows("1.5");
    EXPECT_FALSE(field.fault().isEmpty());
    EXPECT_EQ(text(labels()), text(steps));
}

TEST_F(FGenIntResultsFileEditorTest, anAverageIsOfTheNumberThatWasPointedAt) {
    ASSERT_TRUE(run("out.setValues([])\nout.setContent(\"a1;2.5;3.5\na2;4.5;5.5\")"));
    settle();
    doubleClickOn("5.5");
    ASSERT_EQ(text(file().getCurrentAnchor()), "a2;");
    clickOn("average");
    enterRows("2");
    EXPECT_EQ(text(preview().item(0, 0)->text()), "4.5") << "of 3.5 and 5.5, although the anchor doesn't count now";
    EXPECT_TRUE(preview().item(0, 0)->toolTip().contains("An average has no anchor"));
    // What was entered is a step of the project, and not of the field.
    press(page().findChild<FAttributeEditor*>()->focusProxy(), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_TRUE(find<QLabel>("valuePlace")->text().contains("not found: a mean over 0"));
    agree();
    clickOn("average");
    EXPECT_EQ(text(find<QLabel>("valuePlace")->text()), "line 2, column 8: 5.5");
    EXPECT_EQ(file().getCurColumn(), 1);
    agree();
}

TEST_F(FGenIntResultsFileEditorTest, theTypeOfAValueReturnsWithTheEndOfItsAverage) {
    choose("valueType", Qt::Key_Down);
    clickOn("average");
    EXPECT_EQ(text(combo("valueType").currentText()), "FDouble");
    clickOn("average");
    EXPECT_EQ(text(combo("valueType").currentText()), "FFileName");
    EXPECT_EQ(file().getCurValue()->mType, FFileName::null());
    agree();
}

TEST_F(FGenIntResultsFileEditorTest, deletingLeavesTheNeighbourAndAtLastNothing) {
    clickOn("deleteValue");
    EXPECT_EQ(text(current()), "lift") << "the new first one";
    clickRow(1);
    EXPECT_EQ(text(current()), "last");
    clickOn("deleteValue");
    EXPECT_EQ(text(current()), "lift");
    clickOn("deleteValue");
    EXPECT_EQ(selector().count(), 0);
    EXPECT_EQ(text(preview().item(0, 0)->text()), "please add a value");
    EXPECT_FALSE(find("deleteValue")->isEnabled());
    EXPECT_FALSE(find("anchor")->isEnabled());
    agree();
    clickOn("addValue");
    EXPECT_EQ(text(current()), "ResultsValue_00");
    agree();
}

TEST_F(FGenIntResultsFileEditorTest, parametersFollowANameWhileItIsTyped) {
    QTest::mouseClick(preview().cellWidget(0, 2), Qt::LeftButton);
    settle();
    EXPECT_EQ(labels().last(), "create evaluation: eval_drag");
    ASSERT_TRUE(run("parameter other(solver.getResults().getTable(\"run/out.dat\").getElementAt(\"lift\"))"));
    const QString before = savedModel();
    const auto expression = [this](const char* name) { return saved(*object<FManaged>(name)); };
    const QString other = expression("other");
    EXPECT_TRUE(expression("eval_drag").contains("getTable(\"run/out.dat\").getElementAt(\"drag\")"));

    const QStringList known = labels();
    QLineEdit& name = *selector().lineEdit();
    name.selectAll();
    type(&name, "lift2");
    settle();
    EXPECT_EQ(text(name.text()), "lift2") << "what is typed stays although \"lift\" on the way is taken";
    EXPECT_EQ(text(current()), "lift2");
    EXPECT_TRUE(expression("eval_drag").contains("getElementAt(\"lift2\")"));
    EXPECT_EQ(text(expression("other")), text(other));
    EXPECT_EQ(text(labels()), text(known + QStringList("Set results value name"))) << "typing is one step";
    agree();
    enterText("templatePath", "");
    EXPECT_TRUE(expression("eval_drag").contains("getTable(\"out.dat\").getElementAt(\"lift2\")"));
    EXPECT_TRUE(expression("other").contains("getTable(\"out.dat\").getElementAt(\"lift\")"));
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(text(savedModel()), text(before));
    agree();

    name.setFocus();
    name.selectAll();
    type(&name, "lift");
    EXPECT_EQ(text(name.text()), "lift");
    EXPECT_EQ(preview().currentRow(), rowOf("lift_01")) << "its own row, and not that of the other one";
    name.selectAll();
    type(&name, "LIFT");
    EXPECT_EQ(text(current()), "LIFT_01");
    press(&name, Qt::Key_Return);
    EXPECT_EQ(text(name.text()), "LIFT_01");
    type(&name, "-%");
    EXPECT_EQ(text(current()), "LIFT_01") << "no name may hold these";
    settle();
    press(&name, Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(text(savedModel()), text(before)) << "there is one undo";
}

TEST_F(FGenIntResultsFileEditorTest, turningASpinBoxIsOneStepWhileItHasTheFocus) {
    find("line")->setFocus();
    for (int count = 0; count < 3; ++count) {
        press(find("line"), Qt::Key_Up);
    }
    EXPECT_EQ(text(labels()), text(QStringList("change line")));
    find("column")->setFocus();
    find("line")->setFocus();
    press(find("line"), Qt::Key_Up);
    EXPECT_EQ(labels().size(), 2);
    clickRow(1);
    clickRow(0);
    find("line")->setFocus();
    press(find("line"), Qt::Key_Up);
    EXPECT_EQ(labels().size(), 5);
    EXPECT_EQ(file().getCurLine(), 5);
    trigger("undo");
    EXPECT_EQ(file().getCurLine(), 4);
    agree();
    // The menu, too, undoes steps of the project, for the keyboard as for the mouse.
    const auto menuAt = [](QWidget* widget) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
        QApplication::sendEvent(widget, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    for (QWidget* field : {find("line"), find("valueSelector")}) {
        for (QWidget* part : {field, static_cast<QWidget*>(field->findChild<QLineEdit*>())}) {
            QMenu* menu = menuAt(part);
            ASSERT_TRUE(menu);
            EXPECT_EQ(menu->actions().value(0), action("undo"));
            menu->close();
        }
    }
    QMenu* menu = menuAt(find("line"));
    menu->actions().last()->trigger();
    menu->close();
    EXPECT_EQ(file().getCurLine(), 3) << "Step down";
}

TEST_F(FGenIntResultsFileEditorTest, aPageIsThereOnceAndGoesWithItsObject) {
    FDocumentTabs& tabs = window().documents();
    EXPECT_EQ(tabs.count(), 1);
    EXPECT_EQ(text(tabs.tabText(0)), "out");
    {
        const FUserStep step("rename");
        file().setName("fresh");
    }
    settle();
    EXPECT_EQ(text(tabs.tabText(0)), "fresh");
    trigger("undo");
    EXPECT_EQ(text(tabs.tabText(0)), "out");
    window().showPlace("out:5:3", "");
    EXPECT_EQ(tabs.count(), 1);
    EXPECT_EQ(edit().textCursor().blockNumber(), 4);
    EXPECT_EQ(edit().textCursor().positionInBlock(), 2);
    window().showPlace("beam", "");
    EXPECT_EQ(tabs.count(), 1) << "only some classes have a page";

    // What isn't shown isn't read.
    window().openResults(FExpr<FResultsGeneric>());
    tabs.open("other", "other", QIcon(), [] { return new QWidget; });
    ASSERT_TRUE(run("out.setContent(\"drag = 7\")"));
    EXPECT_NE(edit().toPlainText(), "drag = 7");
    tabs.setCurrentIndex(0);
    EXPECT_EQ(text(edit().toPlainText()), "drag = 7");

    // What was typed is taken over before the tab closes, and nothing after that.
    line("anchor").selectAll();
    type(&line("anchor"), "ag =");
    const QPointer<QWidget> shown = &page();
    emit tabs.tabCloseRequested(0);
    settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_EQ(text(file().getCurrentAnchor()), "ag =");

    window().showTemplate(&file(), 0, 0);
    settle();
    type(&line("anchor"), "zzz");
    enter("destroy(out)");
    EXPECT_EQ(tabs.count(), 1);
    trigger("undo");
    EXPECT_EQ(text(file().getCurrentAnchor()), "ag =");
    EXPECT_EQ(tabs.count(), 1);
    auto* tree = find<QTreeView>("objectTree");
    tree->expandAll();
    const QModelIndex row =
        tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, "out", 1, Qt::MatchRecursive).value(0);
    tree->scrollTo(row);
    doubleClick(tree->viewport(), tree->visualRect(row).center());
    settle();
    EXPECT_EQ(tabs.count(), 2);
    agree();
    emit tabs.tabCloseRequested(1);
    tree->setFocus();
    press(tree, Qt::Key_Return);
    settle();
    EXPECT_EQ(tabs.count(), 2) << "Enter opens it, too";
}

TEST_F(FGenIntResultsFileEditorTest, whateverHappensAllThatIsShownIsWhatTheTemplateHolds) {
    QRandomGenerator random(3);
    const auto below = [&random](int count) { return random.bounded(count); };
    const QStringList anchors{"drag", "step", "", "none", "="};
    const std::vector<std::function<void()>> gestures{
        [&] { press(find("line"), below(2) ? Qt::Key_Up : Qt::Key_Down); },
        [&] { press(find("column"), below(2) ? Qt::Key_Up : Qt::Key_Down); },
        [&] { enterText("anchor", anchors[below(anchors.size())]); },
        [&] {
            line("anchor").setFocus();
            type(QApplication::focusWidget(), "1");
        },
        [&] { choose("occurrence", below(2) ? Qt::Key_Up : Qt::Key_Down); },
        [&] { choose("valueType", below(2) ? Qt::Key_Up : Qt::Key_Down); },
        [&] { clickOn("average"); },
        [&] { clickOn("addValue"); },
        [&] { clickOn("deleteValue"); },
        [&] { clickRow(below(preview().rowCount())); },
        [&] { clickOn(below(2) ? "customSeparator" : "findNumbers"); },
        [&] { clickOn("spacesAndTabs"); },
        [&] {
            selector().setFocus();
            type(selector().lineEdit(), QString(QChar('a' + below(3))));
        },
        [&] { doubleClickOn(QString::number(below(10))); },
        [&] { enterText("templatePath", anchors[below(2)]); },
        [&] { run(QString("out.setContent(\"drag = %1\nstep %2\")").arg(below(9)).arg(below(9))); },
        [&] {
            enter(
                "out.setValues([[\"a\", 0, 0, \"drag\", First, \"FDouble\", \"\", 0, NULL], "
                "[\"A\", 1, 0, \"drag\", Last, \"FFileName\", \"\", 1, 2]])");
        },
        [&] { enter(QString("out.setNumberSeparator(%1)").arg(below(2) ? "true" : "false")); },
        [&] { press(edit().viewport(), Qt::Key_Z, Qt::ControlModifier); },
    };
    for (int round = 0; round < randomCases(250) && !HasFailure(); ++round) {
        const int choice = below(static_cast<int>(gestures.size()) + 6);
        if (choice < static_cast<int>(gestures.size())) {
            gestures[static_cast<std::size_t>(choice)]();
        } else if (action(choice % 3 == 0 ? "redo" : "undo")->isEnabled()) {
            trigger(choice % 3 == 0 ? "redo" : "undo");
        }
        find("addValue")->setFocus();  // takes over what was typed
        agree(QString("round %1, gesture %2").arg(round).arg(choice).toStdString());
    }
    while (FHistory::instance()->undo()) {
    }
    agree("at the start");
}
