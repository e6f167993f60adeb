#pragma once

#include "genericintegration/marking/FLongLines.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FExpr.h"
#include "host/gui/base/FPendingEdit.h"

#include <QObject>
#include <QTimer>

class QPlainTextEdit;
class QTextCursor;

/**
 * Keeps the text of a template and that of a widget in step. What is typed gets into the template after a moment
 * without typing, or as soon as somebody reads the model; what changes in the template gets into the widget at once,
 * without moving the cursor or the scroll bars, once the widget has been shown. Line ends and characters that a
 * document doesn't hold stay as they are in the template. Several widgets can show the same template. A text with lines
 * that are too long for a widget is shown with these in pieces, and can't be edited; if such a line was typed, as soon
 * as it is in the template.
 */
class FEditBuffer : public QObject, public FPendingEdit {
    Q_OBJECT

 public:
    explicit FEditBuffer(QPlainTextEdit& edit);

    const FExpr<FGenIntFile>& getFile() const { return mFile; }
    /** An empty handle drops the text. */
    void setFile(const FExpr<FGenIntFile>& file);

    /** Forgets the template, and what isn't written yet. The text of the widget stays. */
    void letGo();

    /** Puts the text into the widget, if it isn't there yet. */
    void fill();
    /** Takes over into the widget what the template has become. Text that isn't written yet stays. */
    void refresh();
    /** The user has changed the text: it will be written when there was no further change for a while. */
    void touch();
    /** Whether the widget shows lines in pieces. */
    bool isCut() const { return mLongLines.areThere(); }
    /** The lines that are shown in pieces. */
    const FLongLines& longLines() const { return mLongLines; }
    bool isPending() const { return mIsPending; }
    /** Writes the text into the template, if it differs; within a step of the caller. */
    void write();
    /** Replaces what a cursor selects, as the user does who pastes a text. */
    void insert(QTextCursor cursor, const QString& text);
    /** Replaces what a cursor selects, within a step of the caller, and writes the text. */
    void replace(QTextCursor cursor, const QString& text);
    void commitEdit() override;

    /** Time without a change after which the text is written, in milliseconds. */
    void setDelay(int delay) { mTimer.setInterval(delay); }
    /** True while the widget's text is changed by this object. */
    bool isReplacing() const { return mIsReplacing; }

 signals:
    /** The whole text will be replaced by one of that length. */
    void aboutToFill(int length);
    /** The text of the widget is that of the template again, after a change of the template. */
    void refreshed();
    /** The template has got the text of the widget; the step is still open. */
    void written();

 private:
    QString content() const;
    void forgetTyped();
    /** The text that the widget has, with any line ends. */
    QString shown() const;
    /** Has the widget show the base in place of the text that it has. */
    void show(const QString& before);
    /** Positions of a document of the base: its end, and one to which the cursor moves. */
    int endPosition() const;
    void setPosition(int position);
    /**
     * Writes a text into the template, if it differs from the base.
     * @param lines  with any line ends
     * @param shown  what the widget has
     */
    void write(const QString& lines, const QString& shown);

    QPlainTextEdit& mEdit;
    FExpr<FGenIntFile> mFile;
    QString mBase;  //!< the template's text that the widget last had; shares its data with the template
    FLongLines mLongLines;
    bool mIsFilled = false;
    bool mIsPending = false;
    bool mDiffers = false;  //!< the widget's text may be another one than the base
    bool mIsReplacing = false;
    QTimer mTimer;
};
