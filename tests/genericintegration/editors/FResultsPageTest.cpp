#include "tests/genericintegration/editors/FResultsPageTest.h"

#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/marking/FPreviewRow.h"
#include "genericintegration/marking/FResultMarks.h"
#include "genericintegration/marking/FResultSample.h"
#include "host/core/FHistory.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "tests/support/window/doubleClick.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSpinBox>
#include <QTextBlock>

#include <algorithm>

namespace {

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

QString painted(const FResultMarks& marks, const QString& shown) {
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

}  // namespace

FResultsPageTest::FResultsPageTest() {
    EXPECT_TRUE(run(setUp)) << logText();
    window().showTemplate(object<FManaged>("out"), 0, 0);
    settle();
    FHistory::instance()->clear();
}

QStringList FResultsPageTest::labels() {
    return FHistory::instance()->getLabels();
}

// ---- gestures ----

void FResultsPageTest::clickOn(const char* id) {
    QTest::mouseClick(find(id), Qt::LeftButton);
    settle();
}

void FResultsPageTest::enterText(const char* id, const QString& entered) {
    line(id).selectAll();
    press(&line(id), Qt::Key_Delete);
    type(&line(id), entered);
    press(&line(id), Qt::Key_Return);
    settle();
}

void FResultsPageTest::enterRows(const QString& entered) {
    auto* rows = qobject_cast<QLineEdit*>(page().findChild<FAttributeEditor*>()->focusProxy());
    rows->selectAll();
    type(rows, entered);
    press(rows, Qt::Key_Return);
    settle();
}

void FResultsPageTest::choose(const char* id, Qt::Key key) {
    combo(id).setFocus();
    press(&combo(id), key);
    settle();
}

void FResultsPageTest::clickRow(int row) {
    const QModelIndex index = preview().model()->index(row, 0);
    preview().scrollTo(index);
    QTest::mouseClick(preview().viewport(), Qt::LeftButton, {}, preview().visualRect(index).center());
    settle();
}

int FResultsPageTest::rowOf(const QString& value) {
    int row = 0;
    while (row < preview().rowCount() && preview().verticalHeaderItem(row)->text() != value) {
        ++row;
    }
    return row;
}

QPoint FResultsPageTest::pointOf(const QString& part, int character) {
    QTextCursor cursor(edit().document());
    cursor.setPosition(edit().toPlainText().indexOf(part) + character);
    edit().setTextCursor(cursor);
    const QRect left = edit().cursorRect(cursor);
    cursor.movePosition(QTextCursor::Right);
    return {(left.left() + edit().cursorRect(cursor).left()) / 2, left.center().y()};
}

void FResultsPageTest::doubleClickOn(const QString& part, int character) {
    doubleClick(edit().viewport(), pointOf(part, character));
    settle();
}

bool FResultsPageTest::choose(const QString& id, const QString& part) {
    const QPoint point = pointOf(part);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, edit().viewport()->mapToGlobal(point));
    return chooseFrom(event, id);
}

bool FResultsPageTest::chooseFrom(QContextMenuEvent& event, const QString& id) {
    QApplication::sendEvent(edit().viewport(), &event);
    auto* menu = find<QMenu>("sampleMenu");
    auto* action = find<QAction>(id);
    const bool isPossible = action->isEnabled();
    action->trigger();
    menu->close();
    settle();
    return isPossible;
}

void FResultsPageTest::mark(const QString& part) {
    QTextCursor cursor(edit().document());
    cursor.setPosition(edit().toPlainText().indexOf(part));
    cursor.setPosition(cursor.position() + part.size(), QTextCursor::KeepAnchor);
    edit().setTextCursor(cursor);
}

// ---- what is shown ----

QString FResultsPageTest::marked() {
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

void FResultsPageTest::agree(const std::string& about) {
    SCOPED_TRACE(about);
    settle();
    page().refreshResultsPreview();  // not the point here: it comes a moment later
    fieldsAgree();
    previewAgrees();
    valueAgrees(shownValue());
}

void FResultsPageTest::fieldsAgree() {
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
}

void FResultsPageTest::previewAgrees() {
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
}

// After a script has set all values again, the one of the same name is shown.
const FGenIntResultsFileValue* FResultsPageTest::shownValue() {
    const FTemplateValues::Values values = FTemplateValues::among(file().getValues()->getObjects());
    const FGenIntResultsFileValue* value = file().getCurValue().ptr();
    if (std::find(values.begin(), values.end(), value) != values.end()) {
        return value;
    }
    const auto isNamed = [this](const FGenIntResultsFileValue* each) { return each->mName == current(); };
    const auto same = std::find_if(values.begin(), values.end(), isNamed);
    return same == values.end() ? file().getValue(current()).ptr() : *same;
}

void FResultsPageTest::valueAgrees(const FGenIntResultsFileValue* value) {
    EXPECT_EQ(find("line")->isEnabled(), value != nullptr);
    EXPECT_EQ(text(selector().currentText()), text(value ? value->mName : ""));
    if (!value) {
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

void FResultsPageTest::step(const QString& label, const std::function<void()>& gesture) {
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
