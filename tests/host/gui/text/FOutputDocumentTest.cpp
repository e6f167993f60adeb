#include "host/gui/text/FFindBar.h"
#include "host/gui/text/FOutputDocument.h"
#include "host/gui/text/FOutputViewer.h"
#include "host/gui/window/FDocumentTabs.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"
#include "tests/support/window/doubleClick.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

namespace {

class FOutputDocumentTest : public FWindowTest {
 public:
    FOutputDocumentTest() {
        EXPECT_TRUE(run("parameter span(1)"));
        settle();
    }

    /** Lines "line N of the output". */
    static QByteArray lines(int from, int to) {
        QByteArray text;
        for (int line = from; line <= to; ++line) {
            text += "line " + QByteArray::number(line) + " of the output\n";
        }
        return text;
    }
    FOutputViewer& show(const FNavigator::Place& place) {
        window().showFile(place);
        auto* document = qobject_cast<FOutputDocument*>(window().documents().currentWidget());
        EXPECT_NE(document, nullptr);
        EXPECT_TRUE(waitUntil([&] { return document->viewer().text().isIndexed(); }));
        return document->viewer();
    }
    FOutputViewer& show(const QByteArray& text) { return show({folder.write("out.txt", text)}); }
    QString label(const QString& name) { return find<QLabel>(name)->text(); }
    void append(const QByteArray& bytes) {
        QFile file(folder.path("out.txt"));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
    }

    FTestFolder folder;
};

}  // namespace

TEST_F(FOutputDocumentTest, aPlaceIsMarkedWithItsReason) {
    FOutputViewer& view = show({folder.write("out.txt", lines(1, 5000)), 4321, 6, 4, "\"speed\" is followed by D-01"});
    EXPECT_TRUE(view.getVisibleText().contains("line 4321 of"));
    EXPECT_EQ(label("placeReason"), "\"speed\" is followed by D-01");
    EXPECT_TRUE(label("outputStatus").contains("of 5001")) << label("outputStatus").toStdString();
    EXPECT_EQ(window().documents().tabText(0), "out.txt");
    // The same document shows the next place.
    show({folder.path("out.txt"), 7});
    EXPECT_EQ(window().documents().count(), 1);
    EXPECT_TRUE(view.getVisibleText().contains("line 7 of"));
    EXPECT_FALSE(find("placeReason")->isVisible());
    QLineEdit* line = find<QLineEdit>("goToLine");
    type(line, "3000");
    press(line, Qt::Key_Return);
    EXPECT_TRUE(view.getVisibleText().contains("line 3000 of"));
    const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(reader->text(QAccessible::Value), view.getVisibleText());
    EXPECT_TRUE(reader->text(QAccessible::Description).contains("from line 2"));
}

TEST_F(FOutputDocumentTest, keysScrollAndSelect) {
    FOutputViewer& view = show(lines(1, 5000));
    press(&view, Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(view.getVisibleText().contains("line 5000 of"));
    press(&view, Qt::Key_PageUp);
    EXPECT_FALSE(view.getVisibleText().contains("line 5000 of"));
    press(&view, Qt::Key_Home, Qt::ControlModifier);
    press(&view, Qt::Key_Down);
    EXPECT_TRUE(view.getVisibleText().startsWith("line 2 of"));
    view.verticalScrollBar()->setValue(99);
    EXPECT_TRUE(view.getVisibleText().startsWith("line 100 of"));
    press(&view, Qt::Key_Down, Qt::ShiftModifier);
    for (int i = 0; i < 4; ++i) {
        press(&view, Qt::Key_Right, Qt::ShiftModifier);
    }
    press(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "line 100 of the output\nline");
    press(&view, Qt::Key_Up, Qt::ShiftModifier);
    press(&view, Qt::Key_Home, Qt::ControlModifier);
    doubleClick(view.viewport(), QPoint(view.viewport()->width() / 2, view.fontMetrics().lineSpacing() / 2));
    press(&view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.getSelectedText().size(), lines(1, 5000).size());
}

TEST_F(FOutputDocumentTest, theMouseSelects) {
    FOutputViewer& view = show(QByteArray("alpha \xC2\xB5 beta\nsecond\n"));
    EXPECT_TRUE(QFontInfo(view.font()).fixedPitch()) << QFontInfo(view.font()).family().toStdString();
    const int cell = view.fontMetrics().horizontalAdvance('0');
    const int gutter = 6 * cell;  // four digits and a margin
    const int height = view.fontMetrics().lineSpacing();
    const QPoint beta(gutter + 9 * cell + cell / 2, height / 2);
    doubleClick(view.viewport(), beta);
    EXPECT_EQ(view.getSelectedText(), "beta");
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(gutter + 6 * cell + 1, height / 2));
    QMouseEvent move(QEvent::MouseMove, QPoint(gutter + 3 * cell + 1, height + height / 2), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint());
    EXPECT_EQ(view.getSelectedText(), QString::fromUtf8("\u00B5 beta\nsec"));
}

TEST_F(FOutputDocumentTest, aFileThatGrowsIsFollowed) {
    FOutputViewer& view = show(lines(1, 100));
    append(lines(101, 200));
    ASSERT_TRUE(waitUntil([&] { return view.text().lineCount() == 201; }));
    EXPECT_TRUE(view.getVisibleText().startsWith("line 1 of")) << "what the user reads stays in view";
    QCheckBox* tail = find<QCheckBox>("followEnd");
    tail->click();
    EXPECT_TRUE(view.getVisibleText().contains("line 200 of"));
    append(lines(201, 300));
    ASSERT_TRUE(waitUntil([&] { return view.getVisibleText().contains("line 300 of"); }));
    press(&view, Qt::Key_PageUp);
    EXPECT_FALSE(tail->isChecked()) << "who scrolls up wants to read";
    // Another run writes a new file.
    folder.write("out.txt", "short\n");
    ASSERT_TRUE(waitUntil([&] { return view.getVisibleText() == "short\n\n"; })) << view.getVisibleText().toStdString();
    // A file that is gone stays in view.
    QFile::remove(folder.path("out.txt"));
    view.follow();
    EXPECT_EQ(view.getVisibleText(), "short\n\n");
}

TEST_F(FOutputDocumentTest, findGoesFromPlaceToPlace) {
    FOutputViewer& view = show(lines(1, 5000) + "The End of it\n" + lines(5001, 9000));
    QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
    QLineEdit* what = find<QLineEdit>("findText");
    ASSERT_TRUE(what->isVisible());
    type(what, "the end");
    press(what, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return view.getSelectedText() == "The End"; }));
    EXPECT_TRUE(view.getVisibleText().contains("The End of it"));
    press(what, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return label("findMessage").contains("other end"); }));
    find<QCheckBox>("findCase")->click();
    press(what, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return label("findMessage") == "Not found"; }));
    what->setText("line 77 ");
    press(what, Qt::Key_F3, Qt::ShiftModifier);
    ASSERT_TRUE(waitUntil([&] { return view.getSelectedText() == "line 77 "; }));
    press(what, Qt::Key_Escape);
    EXPECT_FALSE(what->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &view);
}

TEST_F(FOutputDocumentTest, anyBytesAreShown) {
    // A line of 3 MB without an end, bytes that aren't UTF-8, and a mark far to the right.
    QByteArray text = "first \xB5\r\n" + QByteArray("0123456789").repeated(300'000);
    text.replace(text.size() - 10, 6, "target");
    FOutputViewer& view = show(text);
    EXPECT_TRUE(view.getVisibleText().startsWith(QString("first ") + QChar(0xFFFD) + "\n0123"));
    show({folder.path("out.txt"), 2, 2'999'991, 6});
    EXPECT_TRUE(view.getVisibleText().contains("target")) << view.getVisibleText().toStdString();
    // UTF-16 with a mark, an empty file, and none.
    const QString wide = QString::fromUtf8("\u20AC 5\n");
    QByteArray utf16("\xFF\xFE");
    utf16.append(reinterpret_cast<const char*>(wide.utf16()), 2 * wide.size());
    EXPECT_EQ(show({folder.write("wide.txt", utf16)}).getVisibleText(), wide + "\n");
    EXPECT_EQ(show({folder.write("empty.txt", "")}).getVisibleText(), "\n");
    show({folder.path("none.txt"), 5});
    EXPECT_TRUE(window().documents().currentWidget()->findChild<QLabel*>("outputStatus")->text().contains("No such"));
}
