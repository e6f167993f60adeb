#include "host/gui/text/FManualText.h"
#include "tests/support/window/FWindowTest.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextFragment>
#include <QTextTable>
#include <QToolButton>

namespace {

class FManualWindowTest : public FWindowTest {
 public:
    FManualText* text() { return find<FManualText>("manualText"); }
    QString title() { return text()->document()->firstBlock().text(); }

    /** Clicks on the first link with that text. */
    void click(const QString& link) {
        const QTextCursor found = text()->document()->find(link);
        ASSERT_FALSE(found.isNull()) << link.toStdString();
        text()->setTextCursor(found);
        QTextCursor place(found);
        place.setPosition(found.selectionStart() + 1);
        QTest::mouseClick(text()->viewport(), Qt::LeftButton, {}, text()->cursorRect(place).center());
    }

    QSizeF firstPicture() {
        for (QTextBlock block = text()->document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (part.fragment().charFormat().isImageFormat()) {
                    const QUrl name(part.fragment().charFormat().toImageFormat().name());
                    return text()->document()->resource(QTextDocument::ImageResource, name).value<QImage>().size();
                }
            }
        }
        return {};
    }
};

}  // namespace

TEST_F(FManualWindowTest, pagesHavePicturesInTheirWidthAndLinks) {
    trigger("tutorial");
    EXPECT_EQ(title(), "The first set-up with the mouse");
    settle();
    const double width = firstPicture().width();
    EXPECT_GT(width, text()->viewport()->width() / 2);
    EXPECT_LE(width, text()->viewport()->width());
    QWidget* window = find("manual");
    window->resize(window->width() / 2, window->height());
    settle();
    EXPECT_LE(firstPicture().width(), text()->viewport()->width());
    EXPECT_GT(firstPicture().width(), 0);

    find<QToolButton>("manualContents")->click();
    click("Troubleshooting");
    EXPECT_EQ(title(), "Troubleshooting");
    click("see Marks");
    EXPECT_EQ(title(), "Marks");
    EXPECT_EQ(text()->textCursor().block().text(), "What a number is");
    EXPECT_TRUE(text()->viewport()->rect().contains(text()->cursorRect()));
    EXPECT_GT(text()->verticalScrollBar()->value(), 0);
    find<QToolButton>("manualBack")->click();
    EXPECT_EQ(title(), "Troubleshooting");
    const QTextTable* table = QTextCursor(text()->document()->find("question")).currentTable();
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->format().borderCollapse());
    find<QToolButton>("manualForward")->click();
    EXPECT_EQ(title(), "Marks");
}
