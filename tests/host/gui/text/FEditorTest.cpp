#include "host/gui/text/FEditor.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>

using FEditorTest = FWindowTest;

// Against the widget of the toolkit, as long as no line becomes shorter.
TEST_F(FEditorTest, laysOutLinesAsTheToolkitDoes) {
    FEditor editor(3, false, nullptr);
    QPlainTextEdit usual;
    usual.setLineWrapMode(QPlainTextEdit::NoWrap);
    usual.setFont(editor.font());
    const QString separator(QChar::LineSeparator);
    for (QPlainTextEdit* edit : {static_cast<QPlainTextEdit*>(&editor), &usual}) {
        edit->resize(300, 200);
        edit->setPlainText(QString("line\n").repeated(200) + "two" + separator + "parts\n" + QString(120, 'w'));
        edit->show();
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, "more");
        QTest::keyClick(edit, Qt::Key_Return);
        edit->textCursor().insertText("a" + separator + "b");
        settle();
    }
    const auto expectSame = [&](const char* when) {
        EXPECT_EQ(editor.horizontalScrollBar()->maximum(), usual.horizontalScrollBar()->maximum()) << when;
        EXPECT_EQ(editor.verticalScrollBar()->maximum(), usual.verticalScrollBar()->maximum()) << when;
        EXPECT_EQ(editor.verticalScrollBar()->value(), usual.verticalScrollBar()->value()) << when;
        EXPECT_EQ(editor.cursorRect(), usual.cursorRect()) << when;
        EXPECT_EQ(editor.document()->lineCount(), usual.document()->lineCount()) << when;
    };
    expectSame("typed");
    for (QPlainTextEdit* edit : {static_cast<QPlainTextEdit*>(&editor), &usual}) {
        edit->setPlainText("short");
        settle();
    }
    expectSame("replaced");
}

TEST_F(FEditorTest, aCopyIsPlainTextWithItsCharacters) {
    const QString text = QString::fromUtf8("one\ntwo\u00a0x\u2028three\n");
    FEditor editor(3, true, nullptr);
    editor.setPlainText(text);
    editor.selectAll();
    editor.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), text);
    EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(FEditorTest, theWidthStaysWhenTheWidestLineBecomesShorter) {
    FEditor editor(3, true, nullptr);
    editor.resize(300, 200);
    editor.setPlainText("a\n" + QString(200, 'w') + "\nb");
    editor.show();
    settle();
    const auto width = [&editor] { return editor.document()->documentLayout()->documentSize().width(); };
    const qreal before = width();
    editor.goTo(2, 100);
    QTest::keyClick(&editor, Qt::Key_Return);
    QTest::keyClick(&editor, Qt::Key_Backspace);
    settle();
    EXPECT_EQ(width(), before);
    editor.goTo(3, 0);
    QTest::keyClicks(&editor, QString(300, 'w'));
    settle();
    EXPECT_GT(width(), before);
    EXPECT_EQ(editor.horizontalScrollBar()->maximum(), int(width()) - editor.viewport()->width());
}
