#pragma once

#include "host/core/FExport.h"
#include "host/core/FLogMsg.h"
#include "host/gui/base/FStateColor.h"
#include "host/script/FCmdInput.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QLineEdit;
class QPlainTextEdit;
class QTextCharFormat;

/**
 * Executes statements of the script language. Variables last from line to line; each statement is a step. Up and Down
 * bring back earlier lines. What scripts print, and the messages of a line, appear here.
 */
class MERIX_EXPORT FConsole : public QWidget {
    Q_OBJECT

 public:
    /** Executes a function while the window takes no input but Stop. */
    using Runner = std::function<void(const std::function<void()>& function)>;

    explicit FConsole(Runner runner);
    ~FConsole() override;

    /** Executes a line as if it had been typed. */
    void execute(const QString& line);
    QString text() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
    void changeEvent(QEvent* event) override;

 signals:
    /** The user asks for the reference of the word at the cursor. */
    void helpRequested(const QString& word);
    /** A script has printed something. */
    void printed();

 private:
    void enter();
    void recall(int step);
    void append(const QString& text, const QTextCharFormat& format);
    void appendLine(const QString& text, FStateColor::State state);
    /** Gives earlier lines the colours of the present palette. */
    void updateColors();
    void addMessage(const FLogMsg& message);
    /** Points to the column of a message's place in the line above. */
    void markPlace(const QString& place);
    QString wordAtCursor() const;

    Runner mRunner;
    FCmdInput mInput;
    QPlainTextEdit* mpOutput;
    QLineEdit* mpLine;
    QStringList mHistory;
    int mRecalled = 0;  //!< place in the history; its size for a new line
    QString mNewLine;   //!< what was typed before an earlier line was brought back
    bool mIsExecuting = false;
};
