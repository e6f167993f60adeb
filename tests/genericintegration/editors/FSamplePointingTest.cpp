#include "genericintegration/editors/FSamplePointing.h"
#include "host/core/FUserStep.h"
#include "tests/genericintegration/editors/FResultsPageTest.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBlock>

class FSamplePointingTest : public FResultsPageTest {};

TEST_F(FSamplePointingTest, pointingAtANumberReadsIt) {
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

TEST_F(FSamplePointingTest, theNumberPointedAtStaysInPlaceAndIsNamedAtOnce) {
    const QString heading = "stress" + QString(400, ' ') + "strain";
    ASSERT_TRUE(run(QString("out.setValues([])\nout.setContent(\"%1\n3.5 4.5\")").arg(heading)));
    settle();
    window().resize(window().width(), 700);
    settle();
    find<QScrollArea>("resultsForm")->verticalScrollBar()->setValue(0);
    ASSERT_TRUE(selector().visibleRegion().isEmpty());
    doubleClickOn("3.5");
    EXPECT_EQ(selector().visibleRegion().boundingRect().size(), selector().size()) << "what is typed is in view";
    EXPECT_GT(edit().cursorRect().left(), edit().viewport()->width()) << "the caret is out of view";
    EXPECT_EQ(edit().horizontalScrollBar()->value(), 0);
    type(QApplication::focusWidget(), "peak");
    EXPECT_EQ(text(current()), "peak");
    agree();
    press(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(QApplication::focusWidget(), &edit()) << "for the next number";
    press(&edit(), Qt::Key_Down);
    press(&edit(), Qt::Key_End);
    press(&edit(), Qt::Key_Return);
    type(QApplication::focusWidget(), "other");
    EXPECT_EQ(text(preview().item(rowOf("other"), 0)->text()), "4.5");
    agree();
}

TEST_F(FSamplePointingTest, whereTheReaderReadsElsewhereItsPlaceIsFramed) {
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
    EXPECT_EQ(text(find<QLabel>("valuePlace")->text()), "line 1, column 5, in the frame: 1");
    agree();
    enterText("anchor", "");
    EXPECT_FALSE(isExplained());
    agree();
}

TEST_F(FSamplePointingTest, aLineThatIsTooLongForAWidgetIsReadAndMarkedInPieces) {
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
