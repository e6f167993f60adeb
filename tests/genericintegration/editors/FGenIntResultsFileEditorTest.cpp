#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/marking/FPreviewRow.h"
#include "genericintegration/marking/FResultMarks.h"
#include "genericintegration/marking/FResultSample.h"
#include "host/core/FHistory.h"
#include "host/core/FIni.h"
#include "host/core/FUserStep.h"
#include "host/core/FViewCtrl.h"
#include "host/gui/base/FFormRow.h"
#include "host/gui/base/FSpinBox.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/gui/window/FDocumentTabs.h"
#include "tests/support/randomCases.h"
#include "tests/support/window/FWindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeView>

namespace {

std::string text(const QString& shown) {
    return shown.toStdString();
}

std::string text(const QStringList& shown) {
    return shown.join('|').toStdString();
}

const char* const setUp = R"(
genericIntegrationResultsFile out() {
    .setContent("drag = 1.5 2.5
lift = 3.5D-01

step 1
  7 8
step 2
  9 10
")
    .setFileName("run/out.dat")
    .setValues([["drag", 0, 0, "drag =", First, "FDouble", "", 0, NULL], ["lift", 0, 0, "lift =", First, "FDouble", "", 0, NULL],
                ["last", 1, 1, "step", Last, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition beam() { .setFiles([out]) }
genericIntegrationConfiguration values() { .setDefinition(beam) }
genericIntegrationComputation solver() { .setConfiguration(values) }
)";

class FResultsEditorTest : public FWindowTest {
 public:
    FResultsEditorTest() {
        EXPECT_TRUE(run(setUp)) << logText();
        window().showTemplate(object<FManaged>("out"), 0, 0);
        settle();
        FHistory::instance()->clear();
    }

    FGenIntResultsFile& file() { return *object<FGenIntResultsFile>("out"); }
    FGenIntResultsFileEditor& page() { return *find<FGenIntResultsFileEditor>("resultTemplatePage"); }
    FGenIntResultsFileEdit& edit() { return *find<FGenIntResultsFileEdit>("sampleText"); }
    QComboBox& combo(const char* id) { return *find<QComboBox>(id); }
    QLineEdit& line(const char* id) { return *find<QLineEdit>(id); }
    QComboBox& selector() { return combo("valueSelector"); }
    FResultsPreview& preview() { return *find<FResultsPreview>("resultsPreview"); }
    QString current() { return file().getCurValue() ? file().getCurValue()->mName : QString(); }
    static QStringList labels() { return FHistory::instance()->getLabels(); }

    void clickOn(const char* id) {
        QTest::mouseClick(find(id), Qt::LeftButton);
        settle();
    }
    void enterText(const char* id, const QString& entered) {
        line(id).selectAll();
        press(&line(id), Qt::Key_Delete);
        type(&line(id), entered);
        press(&line(id), Qt::Key_Return);
        settle();
    }
    void enterRows(const QString& entered) {
        auto* rows = qobject_cast<QLineEdit*>(page().findChild<FAttributeEditor*>()->focusProxy());
        rows->selectAll();
        type(rows, entered);
        press(rows, Qt::Key_Return);
        settle();
    }
    void choose(const char* id, Qt::Key key) {
        combo(id).setFocus();
        press(&combo(id), key);
        settle();
    }
    void clickRow(int row) {
        const QModelIndex index = preview().model()->index(row, 0);
        preview().scrollTo(index);
        QTest::mouseClick(preview().viewport(), Qt::LeftButton, {}, preview().visualRect(index).center());
        settle();
    }
    int rowOf(const QString& value) {
        int row = 0;
        while (row < preview().rowCount() && preview().verticalHeaderItem(row)->text() != value) {
            ++row;
        }
        return row;
    }
    /** A point on a character of the sample. */
    QPoint pointOf(const QString& part, int character = 0) {
        QTextCursor cursor(edit().document());
        cursor.setPosition(edit().toPlainText().indexOf(part) + character);
        edit().setTextCursor(cursor);
        const QRect left = edit().cursorRect(cursor);
        cursor.movePosition(QTextCursor::Right);
        return {(left.left() + edit().cursorRect(cursor).left()) / 2, left.center().y()};
    }
    void doubleClickOn(const QString& part, int character = 0) {
        QTest::mouseDClick(edit().viewport(), Qt::LeftButton, {}, pointOf(part, character));
        settle();
    }
    /** Opens the menu at a part of the sample and chooses an action; false if that isn't possible. */
    bool choose(const QString& id, const QString& part) {
        const QPoint point = pointOf(part);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, edit().viewport()->mapToGlobal(point));
        return chooseFrom(event, id);
    }
    bool chooseFrom(QContextMenuEvent& event, const QString& id) {
        QApplication::sendEvent(edit().viewport(), &event);
        auto* menu = find<QMenu>("sampleMenu");
        auto* action = find<QAction>(id);
        const bool isPossible = action->isEnabled();
        action->trigger();
        menu->close();
        settle();
        return isPossible;
    }
    void mark(const QString& part) {
        QTextCursor cursor(edit().document());
        cursor.setPosition(edit().toPlainText().indexOf(part));
        cursor.setPosition(cursor.position() + part.size(), QTextCursor::KeepAnchor);
        edit().setTextCursor(cursor);
    }

    /** The characters of the sample: l, c and a for those that are marked as line, column and anchor. */
    QString marked() {
        QString letters;
        for (QTextBlock block = edit().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QColor color = part.fragment().charFormat().background().color();
                const bool isPlain = part.fragment().charFormat().background().style() == Qt::NoBrush;
                const QChar letter = isPlain                                                    ? ' '
                                     : color == FGenIntResultsFileEditor::getColumnBackground() ? 'c'
                                     : color == FGenIntResultsFileEditor::getAnchorBackground() ? 'a'
                                                                                                : 'l';
                letters += QString(part.fragment().length(), letter);
            }
            letters += block.next().isValid() ? "\n" : "";
        }
        return letters;
    }

    static QString painted(const FResultMarks& marks, const QString& shown) {
        QString letters = QString(shown.size(), ' ');
        const auto paint = [&letters](FTextRange range, QChar letter) {
            letters.replace(range.begin, range.length, QString(range.length, letter));
        };
        for (const FTextRange& range : marks.lines) {
            paint(range, 'l');
        }
        for (const FTextRange& range : marks.columns) {
            paint(range, 'c');
        }
        if (marks.anchor) {
            paint(*marks.anchor, 'a');
        }
        for (int place = 0; place < shown.size(); ++place) {
            letters[place] = shown[place] == '\n' ? QChar('\n') : letters[place];
        }
        return letters;
    }

    /** Everything that is shown is what the template holds. */
    void agree(const std::string& about = "") {
        SCOPED_TRACE(about);
        settle();
        page().refreshResultsPreview();  // not the point here: it comes a moment later
        EXPECT_EQ(text(line("templatePath").text() + line("templateName").text()), text(file().getFileName()));
        EXPECT_EQ(text(edit().toPlainText()), text(file().getPlainContent()));
        EXPECT_EQ(find<QRadioButton>("findNumbers")->isChecked(), file().getNumberSeparator());
        EXPECT_EQ(find<QCheckBox>("spacesAndTabs")->isChecked(), file().getSpacesAndTabsSeparator());
        EXPECT_EQ(find("spacesAndTabs")->isVisibleTo(&page()), !file().getNumberSeparator());
        EXPECT_EQ(text(line("regularExpression").text()), text(file().getRegExprSeparator()));
        const FTemplateValues::Values values = FTemplateValues::among(file().getValues()->getObjects());
        QStringList names;
        QStringList shown;
        for (const FGenIntResultsFileValue* value : values) {
            names.append(value->mName);
        }
        for (int item = 0; item < selector().count(); ++item) {
            shown.append(selector().itemText(item));
        }
        names.sort();
        shown.sort();
        EXPECT_EQ(text(shown), text(names));

        // After a script has set all values again, the one of the same name is shown.
        const FGenIntResultsFileValue* value = file().getCurValue().ptr();
        if (std::find(values.begin(), values.end(), value) == values.end()) {
            const auto isNamed = [this](const FGenIntResultsFileValue* each) { return each->mName == current(); };
            const auto same = std::find_if(values.begin(), values.end(), isNamed);
            value = same == values.end() ? file().getValue(current()).ptr() : *same;
        }
        const bool isThere = value != nullptr;
        EXPECT_EQ(find("line")->isEnabled(), isThere);
        EXPECT_EQ(text(selector().currentText()), text(isThere ? value->mName : ""));
        FTableData table;
        if (!file().getPlainContent().isEmpty()) {
            FGenIntReader::instance()->parseFile(FExpr<FGenIntResultsFile>(&file()), &table, "");
        }
        if (table.count() > 0) {
            EXPECT_EQ(preview().rowCount(), table.getRowCount());
        }
        for (int row = 0; table.count() > 0 && row < table.getRowCount(); ++row) {
            EXPECT_EQ(text(preview().item(row, 0)->text()), text(FPreviewRow(table, row).value));
            EXPECT_EQ(text(preview().verticalHeaderItem(row)->text()), text(FPreviewRow(table, row).header));
        }
        if (!isThere) {
            EXPECT_EQ(text(marked().simplified()), "");
            return;
        }
        EXPECT_EQ(find<QSpinBox>("line")->value(), value->mLine);
        EXPECT_EQ(find<QSpinBox>("column")->value(), value->mColumn);
        EXPECT_EQ(text(line("anchor").text()), text(value->mAnchor));
        EXPECT_EQ(text(combo("occurrence").currentText()), text(value->mOccurrence.getStringValue()));
        EXPECT_EQ(find<QCheckBox>("average")->isChecked(), value->mCalcAverage);
        EXPECT_EQ(find("line")->isVisibleTo(&page()), !value->mCalcAverage);
        const FResultSample sample(file().getPlainContent());
        const FValueDescription place = FTemplateValues::describe(*value);
        const FSeparatorSettings separators = FTemplateValues::separatorsOf(file());
        const FFoundValue found = sample.read(place, separators);
        const FResultMarks marks = FResultMarks::of(sample, place, separators, found);
        EXPECT_EQ(marked().toStdString(), painted(marks, edit().toPlainText()).toStdString());
        EXPECT_EQ(edit().extraSelections().size(), static_cast<int>(marks.readerPlaces.size()));
    }

    /** A gesture is one step of that label, which undo takes back and redo repeats. */
    void step(const QString& label, const std::function<void()>& gesture) {
        SCOPED_TRACE(label.toStdString());
        const QString before = savedModel();
        const QString valueBefore = current();
        const QStringList known = labels();
        gesture();
        settle();
        EXPECT_EQ(text(labels()), text(known + QStringList(label)));
        const QString after = savedModel();
        const QString valueAfter = current();
        agree("done");
        trigger("undo");
        EXPECT_EQ(text(savedModel()), text(before));
        EXPECT_EQ(text(current()), text(valueBefore));
        agree("undone");
        trigger("redo");
        EXPECT_EQ(text(savedModel()), text(after));
        EXPECT_EQ(text(current()), text(valueAfter));
        agree("redone");
        EXPECT_TRUE(after != before || valueAfter != valueBefore);
    }
};

}  // namespace

TEST_F(FResultsEditorTest, eachFieldChangesTheTemplateInOneStep) {
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

TEST_F(FResultsEditorTest, aFileNameWithoutFoldersAndAnotherImportTypeCanBeSet) {
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

TEST_F(FResultsEditorTest, theLabelsHaveRoomInALargerFont) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2 * usual.pointSizeF());
    QApplication::setFont(large);
    settle();
    const int measure = QFontMetrics(large).horizontalAdvance("Regular Expression");
    for (const FFormRow* row : page().findChildren<FFormRow*>()) {
        const QLabel& label = *row->label();
        EXPECT_TRUE(!row->isVisible() || label.width() == measure) << text(label.text());
        EXPECT_EQ(label.height() == measure, label.text() == "Find numbers" || label.text() == "Custom");
    }
    QApplication::setFont(usual);
}

TEST_F(FResultsEditorTest, aParameterIsMadeForTheRowUnderTheMouse) {
    {
        const FUserStep step("rename");
        file().setName("fresh");
    }
    QCursor::setPos(preview().cellWidget(1, 2)->mapToGlobal({2, 2}));
    page().createParam();
    EXPECT_EQ(text(labels().last()), "create evaluation: eval_lift");
    const QString before = savedModel();
    QCursor::setPos(preview().viewport()->mapToGlobal(preview().visualItemRect(preview().item(1, 1)).center()));
    page().createParam();
    EXPECT_TRUE(logHolds("error: fresh: Cannot create parameter. Index out of range.")) << logText();
    page().setResultsFile({});
    page().createParam();
    EXPECT_TRUE(logHolds("error: fresh: Cannot create parameter. No template file found.")) << logText();
    EXPECT_EQ(text(savedModel()), text(before));
}

TEST_F(FResultsEditorTest, theRowsOfAnAverageFollowAnExpression) {
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
    EXPECT_EQ(text(field.fault()), "1.5 isn't a number of rows. The average stays as it is");
    EXPECT_EQ(text(labels()), text(steps));
}

TEST_F(FResultsEditorTest, aLineThatIsTooLongForAWidgetIsReadAndMarkedInPieces) {
    {
        const FUserStep step("sample");
        file().setContent("head = 1\r\n" + QString(";   2.5, ").repeated(50'000) + "\nlast = 3\n");
    }
    settle();
    EXPECT_LT(edit().document()->findBlockByNumber(1).length(), 2000);
    EXPECT_EQ(edit().lineNumberOf(edit().document()->blockCount() - 2), 3);
    // The end of a piece cuts this number.
    doubleClickOn("2\n.5", 2);
    press(&selector(), Qt::Key_Return);
    EXPECT_EQ(file().getCurColumn(), 555);
    EXPECT_EQ(text(preview().item(rowOf(current()), 0)->text()), "2.5");
    EXPECT_EQ(text(find<QLabel>("valuePlace")->text()), "line 2, column 5000: 2.5");
    const QString shown = edit().toPlainText();
    const int place = shown.indexOf("2\n.5");
    EXPECT_EQ(text(marked().mid(place - 1, 6)), "lc\nccl");
    EXPECT_EQ(marked().count('c'), 3);
    doubleClickOn("3");
    EXPECT_EQ(text(preview().item(rowOf("last_01"), 0)->text()), "3");
    page().goTo(2, 5000);
    EXPECT_EQ(edit().textCursor().position(), place);
}

TEST_F(FResultsEditorTest, theTypeOfAValueReturnsWithTheEndOfItsAverage) {
    choose("valueType", Qt::Key_Down);
    clickOn("average");
    EXPECT_EQ(text(combo("valueType").currentText()), "FDouble");
    clickOn("average");
    EXPECT_EQ(text(combo("valueType").currentText()), "FFileName");
    EXPECT_EQ(file().getCurValue()->mType, FFileName::null());
    agree();
}

TEST_F(FResultsEditorTest, deletingLeavesTheNeighbourAndAtLastNothing) {
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

TEST_F(FResultsEditorTest, parametersFollowANameWhileItIsTyped) {
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

TEST_F(FResultsEditorTest, turningASpinBoxIsOneStepWhileItHasTheFocus) {
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
}

TEST_F(FResultsEditorTest, thePreviewTellsWhatIsUnusual) {
    EXPECT_EQ(text(preview().item(1, 0)->text()), "3.5");
    EXPECT_TRUE(preview().item(1, 0)->toolTip().contains("D-01"));
    EXPECT_NE(preview().item(1, 0)->background().style(), Qt::NoBrush);
    EXPECT_FALSE(preview().item(1, 0)->icon().isNull()) << "not by colour alone";
    EXPECT_EQ(preview().item(0, 0)->background().style(), Qt::NoBrush);
    EXPECT_EQ(text(preview().item(0, 0)->toolTip()), "row index:0,column index:0");
    find("column")->setFocus();
    for (int count = 0; count < 5; ++count) {
        press(find("column"), Qt::Key_Up);
    }
    EXPECT_EQ(text(preview().item(0, 0)->text()), "1.5") << "the preview waits while a box is turned";
    ASSERT_TRUE(waitUntil([this] { return preview().item(0, 0)->text() == "not a number"; }));
    EXPECT_FALSE(preview().cellWidget(0, 2)->isEnabled());
    EXPECT_TRUE(find<QLabel>("valuePlace")->text().contains("not found"));
    FTheme::choose(FTheme::Appearance::Dark);
    settle();
    const QColor dark = preview().item(1, 0)->background().color();
    EXPECT_LT(dark.lightness(), 128);
    clickRow(1);
    const QTextCharFormat format = edit().document()->findBlockByNumber(1).begin().fragment().charFormat();
    EXPECT_LT(format.background().color().lightness(), 128) << "readable in a dark palette";
    FTheme::choose(FTheme::Appearance::Desktop);
}

TEST_F(FResultsEditorTest, pointingAtANumberReadsIt) {
    doubleClickOn("2.5");
    EXPECT_EQ(text(labels()), text(QStringList("add results value")));
    EXPECT_EQ(text(preview().item(1, 0)->text()), "2.5");
    EXPECT_EQ(text(current()), "drag_01") << "the name comes from the text before it";
    agree();
    doubleClickOn("9");
    EXPECT_EQ(text(current()), "step");
    EXPECT_EQ(text(file().getCurrentAnchor()), "step");
    agree();
    const QStringList known = labels();
    doubleClickOn("1.5");
    EXPECT_EQ(text(labels()), text(known + QStringList("change results value"))) << "it is read already";
    EXPECT_EQ(text(current()), "drag");
    doubleClickOn("lift");
    EXPECT_EQ(labels().size(), known.size() + 1);
    EXPECT_EQ(text(edit().textCursor().selectedText()), "lift") << "a word is selected as in any text";

    step("change place", [this] { EXPECT_TRUE(choose("readHere", "8")); });
    EXPECT_EQ(text(find<QLabel>("valuePlace")->text()), "line 5, column 5: 8");
    step("change anchor", [this] {
        mark("lift");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        EXPECT_TRUE(chooseFrom(event, "useAsAnchor"));
    });
    EXPECT_EQ(text(file().getCurrentAnchor()), "lift");
    EXPECT_EQ(text(find<QLabel>("valuePlace")->text()), "line 5, column 5: 8") << "the number stays";
    EXPECT_FALSE(choose("readNumber", "drag"));
}

TEST_F(FResultsEditorTest, theNumberPointedAtStaysInPlaceAndIsNamedAtOnce) {
    const QString heading = "stress" + QString(400, ' ') + "strain";
    ASSERT_TRUE(run(QString("out.setValues([])\nout.setContent(\"%1\n3.5 4.5\")").arg(heading)));
    settle();
    doubleClickOn("3.5");
    EXPECT_GT(edit().cursorRect().left(), edit().viewport()->width()) << "the caret is out of view";
    EXPECT_EQ(edit().horizontalScrollBar()->value(), 0);
    type(QApplication::focusWidget(), "peak");
    EXPECT_EQ(text(current()), "peak");
    agree();
}

TEST_F(FResultsEditorTest, whereTheReaderReadsElsewhereItsPlaceIsFramed) {
    ASSERT_TRUE(run(
        "out.setContent(\"x = 1 x = 2\")\nout.setValues([[\"v\", 0, 0, \"x =\", First, \"FDouble\", \"\", 0, NULL]])"));
    clickRow(0);
    selector().setCurrentIndex(0);
    settle();
    ASSERT_EQ(edit().extraSelections().size(), 1);
    EXPECT_EQ(text(edit().extraSelections().first().cursor.selectedText()), "1");
    EXPECT_EQ(text(marked()), "aaalllllllc");
    const auto isExplained = [this] { return preview().item(0, 0)->toolTip().contains("read at the frame"); };
    EXPECT_TRUE(isExplained());
    agree();
    enterText("anchor", "");
    EXPECT_FALSE(isExplained());
    agree();
}

TEST_F(FResultsEditorTest, aPageIsThereOnceAndGoesWithItsObject) {
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
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(row).center());
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(row).center());
    settle();
    EXPECT_EQ(tabs.count(), 2);
    agree();
}

TEST_F(FResultsEditorTest, problemsAreAboveTheText) {
    EXPECT_FALSE(find("templateReports")->isVisible());
    ASSERT_TRUE(
        run("out.setValues([[\"a\", 0, 0, \"drag =\", First, \"FDouble\", \"\", 0, NULL],"
            "[\"b\", 0, -1, \"drag =\", First, \"FDouble\", \"\", 0, NULL]])"));
    ASSERT_TRUE(waitUntil([this] { return find("templateReports")->isVisible(); }));
    settle();
    auto* report = find<QLabel>("templateReportText");
    EXPECT_TRUE(report->text().contains("has the column -1"));
    QTest::mouseClick(report, Qt::LeftButton, {}, QPoint(report->width() / 4, report->fontMetrics().height() / 2));
    settle();
    EXPECT_EQ(text(current()), "b");
    EXPECT_EQ(find<QSpinBox>("column")->value(), -1) << "it is shown as it is";
    agree();
}

TEST_F(FResultsEditorTest, theDivisionIsKept) {
    const auto sizes = [this] { return page().findChild<QSplitter*>(QString(), Qt::FindDirectChildrenOnly)->sizes(); };
    window().resize(1800, 900);
    settle();
    const QList<int> usual = sizes();
    EXPECT_LT(usual.first(), usual.last());
    page().findChild<QSplitter*>(QString(), Qt::FindDirectChildrenOnly)->setSizes({1000, 1000});
    const QList<int> wanted = sizes();
    find("anchor")->setFocus();
    openPanel("console");
    EXPECT_FALSE(FIni().value("GenericIntegration/splitter/main").toString().isEmpty());
    emit window().documents().tabCloseRequested(0);
    window().showTemplate(&file(), 0, 0);
    settle();
    EXPECT_EQ(sizes(), wanted);
}

TEST_F(FResultsEditorTest, whateverHappensAllThatIsShownIsWhatTheTemplateHolds) {
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
