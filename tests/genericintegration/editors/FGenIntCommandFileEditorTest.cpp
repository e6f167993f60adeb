#include "genericintegration/editors/FGenIntCommandFileSyntaxHighlighter.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntryDef.h"
#include "host/gui/base/FTheme.h"
#include "host/script/FProject.h"
#include "tests/genericintegration/editors/FTemplatePageTest.h"
#include "tests/support/FTestFolder.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <random>

namespace {

class FGenIntCommandFileEditorTest : public FTemplatePageTest {
 public:
    void typeAtEnd(const QString& text) {
        edit().moveCursor(QTextCursor::End);
        type(&edit(), text);
    }
    QColor colorAt(const QString& text, bool isBackground = false) {
        const QTextCursor place = at(text, 0);
        for (const QTextLayout::FormatRange& range : place.block().layout()->formats()) {
            if (range.start <= place.positionInBlock() && place.positionInBlock() < range.start + range.length) {
                return isBackground ? range.format.background().color() : range.format.foreground().color();
            }
        }
        return {};
    }
    QLabel& reports() { return *find<QLabel>("templateReportText"); }
};

}  // namespace

TEST_F(FGenIntCommandFileEditorTest, typedTextBecomesOneStepAfterAPause) {
    open("a\n");
    const QString before = savedModel();
    page().buffer().setDelay(50);
    typeAtEnd("x");
    typeAtEnd("yz");
    EXPECT_EQ(content(), "a\n");
    const int steps = FHistory::instance()->getLabels().size();
    ASSERT_TRUE(waitUntil([&] { return content() == "a\nxyz"; }));
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps + 1);
    EXPECT_EQ(lastStep(), "text altered");
    EXPECT_EQ(edit().textCursor().position(), 5) << "the cursor stays";
    EXPECT_TRUE(object<FConfigurationGenInt>("values")->isOutOfDate());
    undo();
    EXPECT_EQ(savedModel(), before);
    EXPECT_EQ(shown(), "a\n");
    redo();
    EXPECT_EQ(shown(), "a\nxyz");
    // Text that is typed and taken back leaves no step.
    typeAtEnd("q");
    press(&edit(), Qt::Key_Backspace);
    page().setAlteredText();
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps + 1);
}

TEST_F(FGenIntCommandFileEditorTest, whoeverReadsTheModelGetsWhatWasTyped) {
    FTestFolder folder;
    open("a\n");
    page().buffer().setDelay(1'000'000);
    typeAtEnd("1");
    undo();
    EXPECT_EQ(content(), "a\n") << "undo takes back what was typed, and nothing before";
    typeAtEnd("2");
    find("templateName")->setFocus();
    EXPECT_EQ(content(), "a\n2");
    auto* name = find<QLineEdit>("templateName");
    name->clear();
    type(name, "new.inp");
    press(name, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(name->text(), "new.inp") << "what isn't in the model yet";
    name->setText(QString());
    type(name, "new.inp");
    press(name, Qt::Key_Return);
    EXPECT_EQ(file().getFileName(), "new.inp");
    press(name, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(file().getFileName(), "deck.inp");
    EXPECT_EQ(name->text(), "deck.inp");
    edit().setFocus();
    typeAtEnd("3");
    FProject::instance()->save(folder.path("p.mrx"));
    EXPECT_EQ(content(), "a\n23");
    typeAtEnd("4");
    enter("force = 1");
    EXPECT_EQ(content(), "a\n234");
    // A change by a script before the text is written keeps both.
    setText("first\na\n234");
    typeAtEnd("5");
    {
        FHistoryTransaction step("by another");
        file().setContent("first, changed\na\n234");
    }
    EXPECT_EQ(shown(), "first\na\n2345") << "typed text stays";
    page().setAlteredText();
    EXPECT_EQ(content(), "first, changed\na\n2345");
    EXPECT_EQ(shown(), content());
    FProject::instance()->close(false);
}

TEST_F(FGenIntCommandFileEditorTest, onlyWhatIsEditedChanges) {
    const QString text = QString::fromUtf8("one\r\ntwo\u00a0x\rthree\u2028four\nfive = 5\r\nsix\ufeff\r\n");
    open(text);
    edit().setTextCursor(at("two", 1));
    type(&edit(), "Q");
    page().setAlteredText();
    EXPECT_EQ(content(), QString(text).replace("two", "tQwo"));
    edit().setTextCursor(at("five", 0));
    press(&edit(), Qt::Key_Return);
    page().setAlteredText();
    EXPECT_EQ(content(), QString(text).replace("two", "tQwo").replace("five", "\r\nfive"));
    undo();
    click("five");
    EXPECT_EQ(content(), QString(text).replace("two", "tQwo").replace("5", "<entry>five</entry>"));
    ASSERT_TRUE(run("other.setContent(\"[B64]\")"));
    // A text that looks like a stored one is taken as it is.
    setText("[B6x\n");
    edit().setTextCursor(at("x", 0));
    type(&edit(), "4]");
    page().setAlteredText();
    EXPECT_EQ(content(), "[B64]x\n");
}

TEST_F(FGenIntCommandFileEditorTest, changesElsewhereKeepCursorAndScrollBars) {
    QStringList lines;
    for (int i = 0; i < 300; ++i) {
        lines.append(QStringLiteral("line %1 <entry>force</entry> %2").arg(i).arg(QString(300, 'x')));
    }
    open(lines.join('\n'));
    edit().verticalScrollBar()->setValue(100);
    edit().horizontalScrollBar()->setValue(50);
    edit().setTextCursor(at("line 110", 3));
    edit().verticalScrollBar()->setValue(100);
    edit().horizontalScrollBar()->setValue(50);
    ASSERT_TRUE(run("other.setContent(\"x\")"));
    {
        FHistoryTransaction step("rename");
        entry("force")->setName("load");
    }
    settle();
    EXPECT_EQ(shown(), lines.join('\n').replace("force", "load"));
    EXPECT_EQ(edit().verticalScrollBar()->value(), 100);
    EXPECT_EQ(edit().horizontalScrollBar()->value(), 50);
    find<QToolButton>("templateMode")->click();
    EXPECT_EQ(edit().verticalScrollBar()->value(), 100);
    EXPECT_EQ(edit().textCursor().block().text().left(8), "line 110");
    // The name in the page is that of the file.
    auto* name = find<QLineEdit>("templateName");
    name->setFocus();
    name->setText("run/new.inp");
    press(name, Qt::Key_Return);
    EXPECT_EQ(file().getFileName(), "run/new.inp");
    EXPECT_EQ(lastStep(), "set file name");
    undo();
    EXPECT_EQ(name->text(), "deck.inp");
}

TEST_F(FGenIntCommandFileEditorTest, coloursFollowNamesModePaletteAndStyleSheet) {
    open("a = 5\n<entry>force</entry> <entry>weight</entry> </entry>\n<entry>lost\n");
    EXPECT_EQ(colorAt("a", true), QColor(207, 246, 207));
    EXPECT_EQ(colorAt("<entry>force"), QColor(Qt::blue));
    EXPECT_EQ(colorAt("force"), QColor(Qt::darkGreen));
    EXPECT_EQ(colorAt("weight"), QColor(Qt::darkRed));
    EXPECT_EQ(colorAt(" </entry>\n<entry>lost"), QColor());
    EXPECT_EQ(colorAt("</entry>\n<entry>lost"), QColor(Qt::darkRed));
    EXPECT_EQ(colorAt("lost"), QColor(Qt::red));
    ASSERT_TRUE(run("beam.addEntry(\"weight\", 1)"));
    settle();
    EXPECT_EQ(colorAt("weight"), QColor(Qt::darkGreen));
    edit().highlightSearch(QRegExp("force"));
    EXPECT_EQ(colorAt("force", true), QColor(Qt::yellow));
    edit().resetHighlight();
    find<QToolButton>("templateMode")->click();
    EXPECT_EQ(colorAt("a", true), QColor());
    EXPECT_EQ(colorAt("force"), QColor(Qt::darkGreen));
    EXPECT_FALSE(page().buffer().isPending()) << "colours are no change of the text";
    // All pages share the colours, also those that aren't in view.
    window().showTemplate(&file("other"), 0, 0);
    settle();
    page().setStyleSheet("FGenIntCommandFileEditor { qproperty-highlight_color_ValueForeground: #123456; }");
    settle();
    EXPECT_FALSE(page().isVisible());
    EXPECT_EQ(page().property("highlight_color_ValueForeground").value<QColor>(), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(colorAt("force"), QColor(0x12, 0x34, 0x56));
    page().setStyleSheet({});
    page().setValueForeground(Qt::darkGreen);
    FTheme::choose(FTheme::Appearance::Dark);
    settle();
    EXPECT_GT(colorAt("force").lightness(), 128);
    EXPECT_LT(colorAt("force", true).lightness(), 100);
    FTheme::choose(FTheme::Appearance::Desktop);
}

TEST_F(FGenIntCommandFileEditorTest, aLargeTextIsColouredInViewAndOffersEverywhere) {
    QString text;
    while (text.size() < 3'000'000) {
        text += QStringLiteral("alpha = 1.5, <entry>force</entry> and more\n");
    }
    text += "beta = 7\n" + QString(30'000, 'z') + "= 3\n";
    open(text);
    ASSERT_TRUE(waitUntil([&] { return reports().text().contains("more than 20,000 characters"); }));
    EXPECT_EQ(edit().highlighter().document(), nullptr);
    EXPECT_EQ(colorAt("force"), QColor(Qt::darkGreen));
    EXPECT_TRUE(edit().document()->lastBlock().previous().previous().previous().layout()->formats().isEmpty());
    edit().moveCursor(QTextCursor::End);
    settle();
    EXPECT_EQ(colorAt("beta", true), QColor(207, 246, 207));
    EXPECT_EQ(colorAt("zzz", true), QColor()) << "too long";
    ASSERT_TRUE(waitUntil([&] { return reports().isVisible(); }));  // it moves the text
    settle();
    click("beta");
    EXPECT_TRUE(content().contains("\nbeta = <entry>beta</entry>\n"));
    EXPECT_EQ(colorAt("beta</entry>"), QColor(Qt::darkGreen));
    const QString before = content();
    edit().setTextCursor(at("beta =", 0));
    type(&edit(), "Q");
    undo();
    EXPECT_EQ(content(), before);
    EXPECT_EQ(shown(), before);
}

TEST_F(FGenIntCommandFileEditorTest, theSizeDecidesHoweverItChanges) {
    const auto isWhole = [&] { return edit().highlighter().document() != nullptr; };
    const QString large = QStringLiteral("alpha = 1.5, <entry>force</entry> and more\n").repeated(50'000);
    const auto paste = [&](const QString& text) {
        QApplication::clipboard()->setText(text);
        edit().paste();
        settle();
    };
    open("first = 1\nlast = 2\n");
    EXPECT_TRUE(isWhole());
    edit().setTextCursor(at("last", 0));
    paste(large);
    EXPECT_FALSE(isWhole());
    EXPECT_EQ(edit().textCursor().block().text(), "last = 2");
    EXPECT_EQ(colorAt("last", true), QColor(207, 246, 207));
    undo();
    EXPECT_TRUE(isWhole());
    EXPECT_EQ(shown(), "first = 1\nlast = 2\n");
    EXPECT_EQ(edit().textCursor().block().text(), "last = 2");
    EXPECT_EQ(colorAt("first", true), QColor(207, 246, 207));
    redo();
    EXPECT_FALSE(isWhole());
    edit().selectAll();
    press(&edit(), Qt::Key_Delete);
    settle();
    EXPECT_TRUE(isWhole());
    // By many small changes in one.
    QTextCursor cursor(edit().document());
    cursor.beginEditBlock();
    while (edit().document()->characterCount() < large.size()) {
        cursor.insertText(large.left(4200));
    }
    cursor.endEditBlock();
    settle();
    EXPECT_FALSE(isWhole());
    EXPECT_EQ(colorAt("force"), QColor(Qt::darkGreen));
    // A line that is too long for the widget.
    page().setAlteredText();
    setText("one two\nlast\n");
    edit().setTextCursor(at("two", 0));
    paste(QString(300'000, 'z') + "\r\nmore ");
    EXPECT_EQ(content(), "one " + QString(300'000, 'z') + "\nmore two\nlast\n");
    EXPECT_TRUE(edit().isReadOnly());
    EXPECT_EQ(edit().textCursor().block().text(), "more two");
    EXPECT_EQ(edit().textCursor().positionInBlock(), 5);
    EXPECT_EQ(lastStep(), "text altered");
    undo();
    EXPECT_FALSE(edit().isReadOnly());
    EXPECT_EQ(shown(), "one two\nlast\n");
    // One that becomes too long while it is edited.
    setText(QString(60'000, 'x') + "\n" + QString(60'000, 'y'));
    edit().setTextCursor(at("\ny", 1));
    press(&edit(), Qt::Key_Backspace);
    page().setAlteredText();
    EXPECT_TRUE(edit().isReadOnly());
    EXPECT_LT(edit().textCursor().block().length(), 2000);
    EXPECT_EQ(edit().textCursor().block().previous().text().back(), 'x');
}

TEST_F(FGenIntCommandFileEditorTest, aLineThatIsTooLongForAWidgetIsShownInPieces) {
    const QString text = "one\r\n" + QString(4'000'000, 'z') + "<entry>none</entry>\nlast\n";
    open(text);
    EXPECT_EQ(shown().remove('\n'), QString(text).remove('\n').remove('\r'));
    EXPECT_LT(edit().document()->findBlockByNumber(1).length(), 2000);
    const int steps = FHistory::instance()->getLabels().size();
    edit().setTextCursor(at("last", 0));
    type(&edit(), "x");
    page().setAlteredText();
    edit().addEntryViaContextMenu();
    EXPECT_EQ(content(), text);
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps);
    ASSERT_TRUE(waitUntil(
        [&] { return reports().text().contains("can't be edited here") && reports().text().contains("none"); }));
    emit reports().linkActivated("go:0");
    EXPECT_EQ(edit().textCursor().block().text().mid(edit().textCursor().positionInBlock(), 7), "<entry>");
    setText("short again\n");
    undo();
    settle();
    EXPECT_TRUE(edit().isReadOnly());
    chooseInText("&Redo sample");
    EXPECT_FALSE(edit().isReadOnly());
}

TEST_F(FGenIntCommandFileEditorTest, reportsShowTheirPlaceAndOfferARemedy) {
    open("one\ntwo <entry>forse</entry> three\n<entry>forse</entry>\n");
    ASSERT_TRUE(waitUntil([&] { return reports().isVisible(); }));
    EXPECT_TRUE(reports().text().contains("line 2: ")) << reports().text().toStdString();
    emit reports().linkActivated("go:0");
    EXPECT_EQ(edit().textCursor().blockNumber(), 1);
    EXPECT_EQ(edit().textCursor().positionInBlock(), 4);
    EXPECT_TRUE(edit().hasFocus());
    emit reports().linkActivated("use:0");
    EXPECT_EQ(content(), "one\ntwo <entry>force</entry> three\n<entry>force</entry>\n");
    ASSERT_TRUE(waitUntil([&] { return !reports().isVisible(); }));
    undo();
    EXPECT_EQ(lastStep(), "sample");
    // The list of problems leads to the same place.
    window().showPlace("deck:3:8", "");
    EXPECT_EQ(edit().textCursor().blockNumber(), 2);
}

TEST_F(FGenIntCommandFileEditorTest, valuesAreShownBesideTheTemplate) {
    open("a\r\nspan <entry>Geometry|span</entry> m\n<entry>none</entry>\n<entry>force</entry>");
    find<QToolButton>("showValues")->click();
    auto* written = find<FEditor>("writtenText");
    EXPECT_EQ(written->toPlainText(), "a\nspan 2.5 m\n\n10");
    const auto marks = [&] {
        QStringList texts;
        for (const QTextEdit::ExtraSelection& mark : written->extraSelections()) {
            texts.append(mark.cursor.selectedText());
        }
        return texts.join(' ');
    };
    EXPECT_EQ(marks(), "2.5 10");
    EXPECT_EQ(edit().extraSelections().value(1).cursor.selectedText(), "<entry>force</entry>");
    ASSERT_TRUE(run("values.setEntryValue(\"Geometry|span\", 40)"));
    ASSERT_TRUE(waitUntil([&] { return marks() == "40 10"; }));
    FTheme::choose(FTheme::Appearance::Dark);
    settle();
    EXPECT_LT(written->extraSelections().value(0).format.background().color().lightness(), 128);
    FTheme::choose(FTheme::Appearance::Desktop);
    find<QToolButton>("showValues")->click();
    EXPECT_TRUE(edit().extraSelections().isEmpty());
}

TEST_F(FGenIntCommandFileEditorTest, aPageGoesWithItsTemplateAndLetsGoWhenItIsClosed) {
    open("text\n");
    const QPointer<FGenIntCommandFileEditor> opened(&page());
    typeAtEnd("more");
    ASSERT_TRUE(run("beam.setFiles([other])"));
    {
        FHistoryTransaction step("destroy");
        FManaged::destroy(&file());
    }
    settle();
    EXPECT_FALSE(opened);
    FHistory::instance()->undo();
    open();
    EXPECT_EQ(shown(), "text\nmore");
    // Without a window around it.
    FGenIntCommandFileEditor alone(nullptr, FExpr<FGenIntCommandFile>(&file()), {});
    EXPECT_EQ(alone.edit().toPlainText(), "") << "no text before it is shown";
    alone.show();
    EXPECT_EQ(alone.edit().toPlainText(), "text\nmore");
    setText("third\n");
    EXPECT_EQ(alone.edit().toPlainText(), "third\n");
    EXPECT_EQ(shown(), "third\n");
    alone.letGo();
    setText("fourth\n");
    EXPECT_EQ(alone.edit().toPlainText(), "");
}

TEST_F(FGenIntCommandFileEditorTest, anySequenceOfGesturesKeepsTextTemplateAndProjectTheSame) {
    std::mt19937 random(13);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const QStringList pieces{
        "x",        "7",      " = ", "\n", "<entry>force</entry>", ",", "key = 2.5\r\n", QString(QChar(0xa0)),
        "</entry>", "<entry>"};
    open("a = 1\r\nb = 2\nforce <entry>force</entry>\r\n");
    page().buffer().setDelay(1'000'000);
    const auto steps = [] { return FHistory::instance()->getLabels().size(); };
    const int first = steps();
    for (int round = 0; round < 300; ++round) {
        const int end = edit().document()->characterCount() - 1;
        QTextCursor cursor(edit().document());
        cursor.setPosition(below(end + 1));
        if (below(3) == 0) {
            cursor.setPosition(std::min(end, cursor.position() + below(6)), QTextCursor::KeepAnchor);
        }
        switch (below(9)) {
            case 0:
            case 1:
                edit().setTextCursor(cursor);
                edit().insertPlainText(pieces[below(pieces.size())]);
                break;
            case 2:
                edit().setTextCursor(cursor);
                press(&edit(), below(2) == 0 ? Qt::Key_Backspace : Qt::Key_Return);
                break;
            case 3:
                edit().setTextCursor(cursor);
                edit().addEntryViaContextMenu();
                break;
            case 4: {
                const QTextBlock block = cursor.block();
                for (const char* word : {"= ", "<entry>f"}) {
                    if (block.text().contains(word) && shown().contains(word)) {
                        hover(word);
                        below(2) == 0   ? edit().addEntryViaButton()
                        : below(2) == 0 ? edit().removeEntry()
                                        : edit().deleteEntry();
                    }
                }
                break;
            }
            case 5:
                FUserStep::commitEdits();
                if (steps() > first) {
                    undo();
                }
                break;
            case 6:
                FUserStep::commitEdits();
                FHistory::instance()->redo();
                break;
            case 7: {
                FUserStep step("script");
                file().setContent(content().replace(below(std::max(content().size(), 1)), 1, "s\r\n"));
                break;
            }
            default:
                page().setAlteredText();
        }
        if (!page().buffer().isPending()) {
            QTextDocument expected(content());
            ASSERT_EQ(edit().document()->toRawText(), expected.toRawText()) << round;
        }
    }
    FUserStep::commitEdits();
    QTextDocument expected(content());
    EXPECT_EQ(edit().document()->toRawText(), expected.toRawText());
    const QString saved = savedModel();
    EXPECT_TRUE(saved.contains(file().getContent()));
    while (steps() > first && FHistory::instance()->undo()) {
    }
    EXPECT_EQ(shown(), "a = 1\nb = 2\nforce <entry>force</entry>\n");
    while (FHistory::instance()->redo()) {
    }
    EXPECT_EQ(savedModel(), saved);
    EXPECT_EQ(edit().document()->toRawText(), expected.toRawText());
}
