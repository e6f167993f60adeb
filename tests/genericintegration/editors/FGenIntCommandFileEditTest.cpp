#include "host/design/FEntryDef.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FNoticeBar.h"
#include "tests/genericintegration/editors/FTemplatePageTest.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSpontaneKeyEvent>
#include <QTreeView>
#include <QWheelEvent>
#include <QWindow>

namespace {

class FGenIntCommandFileEditTest : public FTemplatePageTest {};

double defaultOf(const FEntryDef* entry) {
    return entry ? FExpr<FBasicType>(entry->getDefaultValue())->toDouble() : -1;
}

}  // namespace

TEST_F(FGenIntCommandFileEditTest, aClickMakesAnEntryOfANumber) {
    struct Case {
        QString line, hovered, name, text;
        double value;
    };
    const Case cases[] = {
        {"Length = 12.5 mm", "Length", "Length", "Length = <entry>Length</entry> mm", 12.5},
        {"Length = 12.5 mm", "12.5", "Length", "Length = <entry>Length</entry> mm", 12.5},
        {"1.5e3, 2.0", "2.0", "newEntry", "1.5e3, <entry>newEntry</entry>", 2},
        {"1.5e3, 2.0", "1.5", "newEntry", "<entry>newEntry</entry>, 2.0", 1500},
        {"<p name=\"mass\">12</p>", "12", "mass", "<p name=\"mass\"><entry>mass</entry></p>", 12},
        {"force = 7", "7", "force_01", "force = <entry>force_01</entry>", 7},
    };
    open("x");
    for (const Case& c : cases) {
        setText("* head\n" + c.line + "\nend");
        const QString before = savedModel();
        click(c.hovered);
        EXPECT_EQ(content(), "* head\n" + c.text + "\nend") << c.line.toStdString();
        EXPECT_EQ(shown(), content());
        EXPECT_EQ(defaultOf(entry(c.name)), c.value) << c.line.toStdString();
        EXPECT_EQ(lastStep(), "create commandfile entry");
        undo();
        EXPECT_EQ(savedModel(), before) << c.line.toStdString();
        EXPECT_EQ(shown(), content());
    }
}

TEST_F(FGenIntCommandFileEditTest, aNewEntryLeavesTheWrittenFileAsItIs) {
    const QString text = "a = 2500.0\nb = 007, c = 3.\nd = 1.50e+03, e = 12.5\nE      1800.0STEEL\n";
    open(text);
    ASSERT_TRUE(run("genericIntegrationConfiguration others() { .setDefinition(beam) }"));
    for (const QString number : {"2500.0", "007", "3.", "1.50e+03", "12.5"}) {
        click(number);
        ASSERT_FALSE(content().contains(number)) << number.toStdString();
    }
    for (const QString selected : {"  1800.0", "STEEL"}) {
        select(selected);
        chooseInText("New Entry");
    }
    EXPECT_EQ(content().count("<entry>"), 7);
    EXPECT_EQ(defaultOf(entry("a")), 2500);
    EXPECT_EQ(object<FConfiguration>("values")->getValueEntry("a")->getValue().toHistoryString(), "\"2500.0\"");
    EXPECT_TRUE(object<FConfiguration>("values")->getValueEntry("e")->hasDefaultValue());
    for (const char* configuration : {"values", "others"}) {
        EXPECT_EQ(textOf(QString("%1.getPreviewText(\"deck.inp\")").arg(configuration)).toStdString(),
                  text.toStdString());
    }
    for (const char* way : {"Remove", "Delete (from all files)"}) {
        chooseForTag("<entry>b", way);
        EXPECT_TRUE(content().contains("b = 007,")) << way << content().toStdString();
        EXPECT_EQ(entry("b"), nullptr) << way;
        EXPECT_EQ(object<FConfiguration>("values")->getValueEntry("b"), nullptr) << way;
        chooseForTag("<entry>E_entry", way);
        EXPECT_TRUE(content().endsWith("</entry>STEEL\n")) << way << content().toStdString();
        undo();
        undo();
    }
    chooseForTag("<entry>b", "Rename");
    type(find<QLineEdit>("entryName"), "A");
    press(find<QLineEdit>("entryName"), Qt::Key_Return);
    EXPECT_TRUE(content().contains("b = <entry>A_01</entry>")) << "in tags, case doesn't matter";
    for (int step = 0; step < 8; ++step) {
        undo();
    }
    EXPECT_EQ(content(), text);
    EXPECT_EQ(object<FConfiguration>("values")->getValueEntry("a"), nullptr);
}

TEST_F(FGenIntCommandFileEditTest, buttonsAppearOnlyOverWhatIsOffered) {
    open("key = 1.5 and words\n<entry>force</entry>\n<entry>open 2\n\nlast");
    EXPECT_EQ(hover("key")->text(), "key = 1.5");
    const QToolButton& shown = *hover("key");
    EXPECT_EQ(shown.mask().boundingRect() | shown.rect(), shown.rect())
        << "what a mask covers beside its widget isn't painted again";
    EXPECT_EQ(hover("<entry>force")->objectName(), "editEntryButton");
    EXPECT_EQ(hover("words"), nullptr);
    EXPECT_EQ(hover("2"), nullptr) << "in a line with an open tag";
    // Behind the end of a line is directly behind its tag.
    const auto move = [&](const QPoint& place) {
        QTest::mouseMove(edit().viewport(), place);
        settle();
    };
    move({edit().viewport()->width() - 5, edit().cursorRect(at("<entry>force", 1)).center().y()});
    EXPECT_TRUE(find("editEntryButton")->isVisible());
    ASSERT_NE(hover("key"), nullptr);
    move(edit().viewport()->rect().bottomRight() - QPoint(5, 5));
    EXPECT_FALSE(edit().findChild<QToolButton*>("addEntryButton")->isVisible());
    find<QToolButton>("templateMode")->click();
    EXPECT_EQ(find("templateMode")->toolTip(), "Enter assisted mode");
    EXPECT_EQ(hover("key"), nullptr);
    find<QToolButton>("templateMode")->click();
    EXPECT_EQ(find("templateMode")->toolTip(), "Enter plain mode");
    ASSERT_NE(hover("key"), nullptr);
    // What has become of the text under the button counts, and nothing covers what is typed.
    select("1.5");
    edit().insertPlainText("x");
    settle();
    EXPECT_FALSE(edit().findChild<QToolButton*>("addEntryButton")->isVisible());
    ASSERT_NE(hover("<entry>force"), nullptr);
    edit().setTextCursor(at("<entry>force</entry>", 20));
    type(&edit(), " ");
    settle();
    EXPECT_FALSE(edit().findChild<QToolButton*>("editEntryButton")->isVisible());
    // A button gives way to what it covers.
    page().setAlteredText();
    setText("7 8 and more\n");
    auto* button = hover("7");
    const QPoint covered = edit().cursorRect(at("8", 1)).center();
    ASSERT_TRUE(button && button->geometry().contains(edit().viewport()->mapTo(&edit(), covered)));
    move(covered);
    EXPECT_EQ(button->text(), "8");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(content(), "7 <entry>newEntry</entry> and more\n");
}

TEST_F(FGenIntCommandFileEditTest, aRemovedTagGivesWayToTheDefaultAndNoOtherValue) {
    open("s = <entry>grade</entry>, n = <entry>count</entry>\n");
    ASSERT_TRUE(
        run("beam.addEntry(\"grade\", \"A36\"); beam.addEntry(\"count\", 12)\n"
            "values.setEntryValue(\"grade\", \"ALU\"); values.setEntryValue(\"count\", \"few\")"));
    for (const char* way : {"Remove", "Delete (from all files)"}) {
        chooseForTag("<entry>grade", way);
        chooseForTag("<entry>count", way);
        EXPECT_EQ(content().toStdString(), "s = A36, n = 12\n") << way;
        undo();
        undo();
    }
}

TEST_F(FGenIntCommandFileEditTest, theWheelScrollsOverAButton) {
    open("a = 1\n" + QString("b = 2\n").repeated(500));
    auto* button = hover("a");
    ASSERT_NE(button, nullptr);
    const QPoint place = button->rect().center();
    QWheelEvent turn(place, button->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(button, &turn);
    EXPECT_GT(edit().verticalScrollBar()->value(), 0);
}

TEST_F(FGenIntCommandFileEditTest, aPressedButtonMakesNoEntryOfAnotherNumber) {
    const QString text = "a = 1, b = 2\n";
    open(text);
    auto* button = hover("a");
    const QPoint there = edit().viewport()->mapTo(&window(), edit().cursorRect(at("2", 1)).center());
    QTest::mousePress(window().windowHandle(), Qt::LeftButton, {}, button->mapTo(&window(), button->rect().center()));
    for (const QPoint& place : {there, there + QPoint(1, 0)}) {
        QTest::mouseMove(window().windowHandle(), place);
        settle();
        EXPECT_EQ(button->text(), "a = 1");
    }
    QTest::mouseRelease(window().windowHandle(), Qt::LeftButton, {}, there);
    settle();
    EXPECT_EQ(content(), text);
    EXPECT_EQ(hover("b")->text(), "b = 2") << "released, it follows the mouse again";
}

TEST_F(FGenIntCommandFileEditTest, tagsWithUnusualNamesLeaveTheRestOfTheLineAlone) {
    open("x <entry>a b</entry> scale = 2.5 <entry>FORCE</entry> end = 3 tail\n");
    EXPECT_EQ(hover("scale")->text(), "scale = 2.5");
    click("scale");
    EXPECT_EQ(content(), "x <entry>a b</entry> scale = <entry>scale</entry> <entry>FORCE</entry> end = 3 tail\n");
    chooseForTag("<entry>a b", "Replace/Geometry/span");
    EXPECT_EQ(content(),
              "x <entry>Geometry|span</entry> scale = <entry>scale</entry> <entry>FORCE</entry> end = 3 tail\n");
    // Case doesn't matter, as for the writer.
    setText("<entry>force</entry>", "other");
    chooseForTag("<entry>FORCE", "Rename");
    auto* field = find<QLineEdit>("entryName");
    field->clear();
    type(field, "while");
    press(field, Qt::Key_Return);
    EXPECT_NE(entry("force"), nullptr) << "a word of the language is no name";
    type(field, "2");
    press(field, Qt::Key_Return);
    EXPECT_NE(entry("while2"), nullptr);
    EXPECT_EQ(content("other"), "<entry>while2</entry>");
    undo();
    chooseForTag("<entry>FORCE", "Delete (from all files)");
    EXPECT_EQ(entry("force"), nullptr);
    EXPECT_EQ(content("other"), "10");
    EXPECT_EQ(content(), "x <entry>Geometry|span</entry> scale = <entry>scale</entry> 10 end = 3 tail\n");
}

TEST_F(FGenIntCommandFileEditTest, aTagIsRenamedRemovedReplacedOrDeletedWithItsEntry) {
    struct Case {
        QString choice, text, other, step;
        bool isForceThere;
    };
    const QString text = "a <entry>force</entry> b\n";
    const Case cases[] = {
        {"Remove", "a 10 b\n", "<entry>force</entry>", "remove commandfile entry", true},
        {"Delete (from all files)", "a 10 b\n", "10", "remove commandfile entry", false},
        {"Replace/Geometry/span", "a <entry>Geometry|span</entry> b\n", "<entry>force</entry>",
         "replace commandfile entry", true},
    };
    open(text);
    for (const Case& c : cases) {
        setText("<entry>force</entry>", "other");
        const QString before = savedModel();
        chooseForTag("<entry>force", c.choice);
        EXPECT_EQ(content(), c.text) << c.choice.toStdString();
        EXPECT_EQ(shown(), c.text);
        EXPECT_EQ(content("other"), c.other);
        EXPECT_EQ(entry("force") != nullptr, c.isForceThere) << c.choice.toStdString();
        EXPECT_EQ(lastStep(), c.step);
        undo();
        EXPECT_EQ(savedModel(), before) << c.choice.toStdString();
        EXPECT_EQ(shown(), text);
    }
    // The last reference takes the entry with it.
    setText("", "other");
    for (const QString& choice : {QStringLiteral("Remove"), QStringLiteral("Replace/Geometry/span")}) {
        const QString before = savedModel();
        chooseForTag("<entry>force", choice);
        EXPECT_EQ(entry("force"), nullptr) << choice.toStdString();
        undo();
        EXPECT_EQ(savedModel(), before);
    }
}

TEST_F(FGenIntCommandFileEditTest, anEntryIsRenamedAtItsTag) {
    open("a <entry>Geometry|span</entry> b\n");
    setText("<entry>Geometry|span</entry>", "other");
    const QString before = savedModel();
    chooseForTag("<entry>Geometry", "Rename");
    auto* field = find<QLineEdit>("entryName");
    ASSERT_TRUE(field->isVisible());
    EXPECT_EQ(field->pos(), edit().mapFromGlobal(QCursor::pos()));
    EXPECT_EQ(field->text(), "span");
    EXPECT_EQ(hover("<entry>Geometry"), nullptr);
    type(field, "new width|");
    EXPECT_EQ(field->text(), "newwidth") << "only names can be typed";
    press(field, Qt::Key_Return);
    settle();
    EXPECT_FALSE(field->isVisible());
    EXPECT_EQ(content(), "a <entry>Geometry|newwidth</entry> b\n");
    EXPECT_EQ(shown(), content());
    EXPECT_EQ(content("other"), "<entry>Geometry|newwidth</entry>");
    EXPECT_EQ(lastStep(), "rename commandfile entry");
    undo();
    EXPECT_EQ(savedModel(), before);
    EXPECT_EQ(shown(), content());
    chooseForTag("<entry>Geometry", "Rename");
    type(field, "no");
    press(field, Qt::Key_Escape);
    EXPECT_EQ(savedModel(), before);
    chooseForTag("<entry>Geometry", "Rename");
    EXPECT_TRUE(field->hasFocus());
    type(field, "left");
    find("templateName")->setFocus();
    EXPECT_NE(entry("Geometry|left"), nullptr);
    hover("<entry>Geometry");
    QCursor::setPos(edit().mapToGlobal(edit().rect().bottomRight()));
    edit().renameEntry();
    EXPECT_TRUE(edit().rect().contains(field->geometry()));
    type(field, "a_name_that_is_much_longer_than_the_one_before");
    EXPECT_TRUE(edit().rect().contains(field->geometry()));
    EXPECT_GT(field->width(), field->fontMetrics().horizontalAdvance(field->text()));
    press(field, Qt::Key_Escape);
    EXPECT_NE(entry("Geometry|left"), nullptr);
    chooseForTag("<entry>Geometry", "Rename");
    type(field, "right");
    emit window().documents().tabCloseRequested(0);
    EXPECT_NE(entry("Geometry|right"), nullptr) << "what is typed when the page is closed";
}

TEST_F(FGenIntCommandFileEditTest, aDroppedFileIsForTheWindowAndNoText) {
    open("a\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/tmp/out.txt")});
    const QPoint place(5, 5);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(edit().viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edit().viewport(), &dropped);
    settle();
    EXPECT_EQ(shown(), "a\n");
    EXPECT_TRUE(window().notices().text().startsWith("out.txt is neither a project")) << "what can be done with it";
}

TEST_F(FGenIntCommandFileEditTest, theKeyboardReachesWhatTheButtonsDo) {
    open("key = 1.5 and words\nsome <entry>force</entry>\n");
    edit().setFocus();
    edit().setTextCursor(at("key", 1));
    press(&edit(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(content(), "key = <entry>key</entry> and words\nsome <entry>force</entry>\n");
    edit().setTextCursor(at("force", 1));
    choose("Rename", [&] { press(&edit(), Qt::Key_Down, Qt::AltModifier); });
    auto* field = find<QLineEdit>("entryName");
    const QPoint atTag = edit().viewport()->mapTo(&edit(), edit().cursorRect(at("<entry>force", 0)).topLeft());
    EXPECT_LT((field->pos() - atTag).manhattanLength(), 5);
    type(field, "load");
    press(field, Qt::Key_Return);
    EXPECT_TRUE(content().contains("some <entry>load</entry>"));
    const QString before = content();
    edit().setTextCursor(at("words", 1));
    press(&edit(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(content(), before);
}

TEST_F(FGenIntCommandFileEditTest, theContextMenusOfTextsUndoStepsOfTheProject) {
    open("a\n");
    page().buffer().setDelay(1'000'000);
    type(&edit(), "x");
    chooseInText("&Undo text altered");
    EXPECT_EQ(shown(), "a\n");
    chooseInText("&Redo text altered");
    EXPECT_EQ(content(), "xa\n");
    auto* name = find<QLineEdit>("templateName");
    const auto chooseInName = [&](const QString& path) {
        choose(path, [&] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, name->mapToGlobal({5, 5}));
            QApplication::sendEvent(name, &event);
        });
    };
    name->setFocus();
    type(name, "x");
    chooseInName("&Undo");
    EXPECT_EQ(name->text(), "deck.inp") << "what isn't in the model yet";
    type(name, "x");
    press(name, Qt::Key_Return);
    chooseInName("&Undo set file name");
    EXPECT_EQ(file().getFileName(), "deck.inp");
}

TEST_F(FGenIntCommandFileEditTest, theContextMenuMakesAndInsertsEntries) {
    open("Max Iterations = 500\nname = abc\n7 rest\n");
    select("500");
    const QStringList texts = chooseInText("New Entry");
    EXPECT_EQ(texts.mid(0, 3), (QStringList{"New Entry", "Entries", ""}));
    EXPECT_EQ(texts.mid(texts.size() - 5),
              (QStringList{"", "Show line numbers", "Force Windows line endings", "", "Find"}));
    EXPECT_EQ(defaultOf(entry("Max_Iterations")), 500);
    EXPECT_EQ(content(), "Max Iterations = <entry>Max_Iterations</entry>\nname = abc\n7 rest\n");
    select("abc");
    chooseInText("New Entry");
    EXPECT_EQ(defaultOf(entry("name")), 0);
    select("rest");
    chooseInText("New Entry");
    EXPECT_EQ(content().section('\n', 2, 2), "7 <entry>newEntry</entry>");
    select("7");
    const QString before = savedModel();
    chooseInText("Entries/Geometry/span");
    EXPECT_EQ(content().section('\n', 2, 2), "<entry>Geometry|span</entry> <entry>newEntry</entry>");
    EXPECT_EQ(lastStep(), "insert commandfile entry");
    undo();
    EXPECT_EQ(savedModel(), before);
    chooseInText("Force Windows line endings");
    EXPECT_TRUE(file().getForceWindowsLineEndings());
    EXPECT_EQ(lastStep(), "set force Windows line endings");
    EXPECT_TRUE(find("lineNumbers")->isVisible());
    chooseInText("Show line numbers");
    EXPECT_FALSE(find("lineNumbers")->isVisible());
    EXPECT_EQ(edit().lineNumberAreaWidth(), 0);
    // Without a definition there is only the standard menu.
    ASSERT_TRUE(run("beam.setFiles([other])"));
    EXPECT_FALSE(chooseInText("").contains("New Entry"));
}

TEST_F(FGenIntCommandFileEditTest, exportedFilesAreOfferedInTheirGroup) {
    ASSERT_TRUE(run("beam.addEntry(\"Exports|mesh\", 1)"));
    open("7 x\n");
    select("7");
    chooseInText("Entries/Exports/other.inp");
    EXPECT_EQ(content(), "<entry>Exports|other.inp</entry> x\n");
    EXPECT_EQ(hover("<entry>Exports")->accessibleName(), "Change the tag of Exports|other.inp");
    chooseForTag("<entry>Exports", "Replace/Exports/deck.inp");
    EXPECT_EQ(content(), "<entry>Exports|deck.inp</entry> x\n");
}

TEST_F(FGenIntCommandFileEditTest, aClickOnATagShowsItsEntry) {
    open("a <entry>force</entry> b\n");
    find<QToolButton>("templateMode")->click();
    edit().setFocus();
    QTest::mouseClick(edit().viewport(), Qt::LeftButton, {}, edit().cursorRect(at("force", 2)).center());
    settle();
    const QModelIndex shownEntry = find<QTreeView>("entryTree")->currentIndex();
    EXPECT_EQ(shownEntry.sibling(shownEntry.row(), 0).data().toString(), "force");
    EXPECT_TRUE(edit().hasFocus());
}

TEST_F(FGenIntCommandFileEditTest, linesAreSelectedInTheGutter) {
    open("one\ntwo\nthree\nfour\n");
    QWidget* gutter = find("lineNumbers");
    const auto line = [&](int number) {
        return QPoint(3, edit().cursorRect(QTextCursor(edit().document()->findBlockByNumber(number))).center().y());
    };
    QTest::mousePress(gutter, Qt::LeftButton, {}, line(1));
    EXPECT_EQ(edit().textCursor().selectedText().toStdString(), QString("two\u2029").toStdString());
    QMouseEvent move(QEvent::MouseMove, line(2), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(gutter, &move);
    EXPECT_EQ(edit().textCursor().selectedText(), QString("two\u2029three\u2029"));
    QMouseEvent back(QEvent::MouseMove, line(0), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(gutter, &back);
    EXPECT_EQ(edit().textCursor().selectedText(), QString("one\u2029two\u2029"));
    QTest::mouseRelease(gutter, Qt::LeftButton, {}, line(0));
    QApplication::sendEvent(gutter, &move);
    EXPECT_EQ(edit().textCursor().selectedText(), QString("one\u2029two\u2029"));
}

TEST_F(FGenIntCommandFileEditTest, textIsFoundHighlightedAndReplaced) {
    open("one two\nTWO one\nend two\n");
    press(&edit(), Qt::Key_F, Qt::ControlModifier);
    auto* what = find<QLineEdit>("searchText");
    EXPECT_FALSE(find("searchReplacement")->isVisible());
    what->setText("two");
    const auto place = [&] { return edit().textCursor().selectionStart(); };
    press(what, Qt::Key_Return);
    EXPECT_EQ(place(), 4);
    press(&edit(), Qt::Key_F3);
    EXPECT_EQ(place(), 8);
    press(&edit(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(place(), 4);
    find<QCheckBox>("searchCase")->setChecked(true);
    press(&edit(), Qt::Key_F3);
    EXPECT_EQ(place(), 20);
    press(&edit(), Qt::Key_F3);
    EXPECT_EQ(place(), 4) << "from the start again";
    find<QPushButton>("searchHighlight")->click();
    const auto formats = [&] { return edit().document()->firstBlock().layout()->formats().size(); };
    EXPECT_EQ(formats(), 1);
    find<QPushButton>("searchClose")->click();
    EXPECT_EQ(formats(), 0);
    press(&edit(), Qt::Key_H, Qt::ControlModifier);
    find<QCheckBox>("searchPattern")->setChecked(true);
    what->setText("t[");
    find<QPushButton>("searchNext")->click();
    EXPECT_TRUE(find<QLabel>("searchMessage")->text().contains("isn't valid"));
    what->setText("t.o");
    find<QLineEdit>("searchReplacement")->setText("3");
    find<QPushButton>("searchNext")->click();
    find<QPushButton>("searchReplace")->click();
    EXPECT_EQ(shown(), "one two\nTWO one\nend 3\n");
    find<QCheckBox>("searchCase")->setChecked(false);
    find<QPushButton>("searchReplaceAll")->click();
    EXPECT_EQ(shown(), "one 3\n3 one\nend 3\n");
    what->setText("absent");
    find<QPushButton>("searchPrevious")->click();
    EXPECT_TRUE(find<QLabel>("searchMessage")->text().contains("isn't in the text"));
    find("searchDialog")->close();
}
