#include "genericintegration/editors/FKeptSplitter.h"
#include "genericintegration/editors/FResultsFileView.h"
#include "host/core/FIni.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FFormRow.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/gui/window/FDocumentTabs.h"
#include "tests/genericintegration/editors/FResultsPageTest.h"

#include <QApplication>
#include <QLabel>
#include <QSpinBox>
#include <QTextBlock>

class FResultsFileViewTest : public FResultsPageTest {};

TEST_F(FResultsFileViewTest, theLabelsHaveRoomInALargerFont) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2 * usual.pointSizeF());
    const auto labelHeight = [this] { return find("findNumbers")->parentWidget()->height(); };
    const int height = labelHeight();
    FTheme::choose(FTheme::Appearance::Dark);
    settle();
    EXPECT_EQ(labelHeight(), height) << "colours change nothing";
    FTheme::choose(FTheme::Appearance::Desktop);
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

TEST_F(FResultsFileViewTest, thePreviewTellsWhatIsUnusual) {
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

TEST_F(FResultsFileViewTest, aParameterIsMadeForTheRowUnderTheMouse) {
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

TEST_F(FResultsFileViewTest, problemsAreAboveTheText) {
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

TEST_F(FResultsFileViewTest, theDivisionIsKept) {
    const auto sizes = [this] { return page().findChild<FKeptSplitter*>()->sizes(); };
    window().resize(1800, 900);
    settle();
    const QList<int> usual = sizes();
    EXPECT_LT(usual.first(), usual.last());
    page().findChild<FKeptSplitter*>()->setSizes({1000, 1000});
    const QList<int> wanted = sizes();
    find("anchor")->setFocus();
    openPanel("console");
    EXPECT_FALSE(FIni().value("GenericIntegration/splitter/main").toString().isEmpty());
    emit window().documents().tabCloseRequested(0);
    window().showTemplate(&file(), 0, 0);
    settle();
    EXPECT_EQ(sizes(), wanted);
}

TEST_F(FResultsFileViewTest, theRowsOfAnAverageAreMarkedWhereverTheViewIs) {
    constexpr int rows = 20'000;
    ASSERT_TRUE(run(QString("out.setValues([[\"mean\", 0, 0, \"\", First, \"FDouble\", \"\", 1, %1]])").arg(rows)));
    {
        const FUserStep step("sample");
        file().setContent(QString("7\n").repeated(rows));
    }
    clickRow(0);
    EXPECT_EQ(text(preview().item(0, 0)->text()), "7");
    for (const int row : {rows, rows / 2, 1}) {
        page().goTo(row, 1);
        const QTextBlock block = edit().document()->findBlockByNumber(row - 1);
        EXPECT_EQ(block.begin().fragment().charFormat().background().color(),
                  FGenIntResultsFileEditor::getColumnBackground())
            << row;
    }
}

TEST_F(FResultsFileViewTest, aFaultBelowAFieldMovesNothing) {
    clickOn("average");
    auto* field = page().findChild<FAttributeEditor*>();
    const auto top = [this] { return preview().mapTo(&page(), QPoint()).y(); };
    const int before = top();
    enterRows("1.5");
    EXPECT_EQ(text(field->fault()), "1.5 isn't a number of rows. The average stays as it is");
    EXPECT_EQ(top(), before);
    EXPECT_FALSE(field->findChild<QLabel*>("fieldFault")->visibleRegion().isEmpty());
    clickRow(1);
    EXPECT_EQ(text(field->fault()), "") << "it is about another value";
    EXPECT_EQ(text(qobject_cast<QLineEdit*>(field->focusProxy())->text()), "");
}
