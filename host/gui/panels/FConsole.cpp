#include "host/gui/panels/FConsole.h"

#include "host/core/FChanges.h"
#include "host/core/FNull.h"
#include "host/core/FStandardOutput.h"
#include "host/gui/base/FFixedFont.h"
#include "host/gui/fields/FScriptCompleter.h"
#include "host/script/FCmdType.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextStream>
#include <QVBoxLayout>

namespace {

constexpr int mostLines = 5000;
constexpr int mostRecalled = 500;
const char* const sourceName = "console";
constexpr int stateProperty = QTextFormat::UserProperty;  // of what text stands for, whose colour follows the palette

bool isWordCharacter(QChar character) {
    return character.isLetterOrNumber() || character == QLatin1Char('_');
}

}  // namespace

FConsole::FConsole(Runner runner)
    : mRunner(std::move(runner)), mpOutput(new QPlainTextEdit(this)), mpLine(new QLineEdit(this)) {
    const QFont fixed = FFixedFont::get();
    mpOutput->setObjectName(QStringLiteral("consoleOutput"));
    mpOutput->setAccessibleName(QStringLiteral("Output of the console"));
    mpOutput->setReadOnly(true);
    mpOutput->setUndoRedoEnabled(false);
    mpOutput->setMaximumBlockCount(mostLines);
    mpOutput->setFont(fixed);
    mpOutput->setTabChangesFocus(true);
    mpOutput->setPlaceholderText(QStringLiteral("What scripts print appears here"));
    mpLine->setObjectName(QStringLiteral("consoleLine"));
    mpLine->setAccessibleName(QStringLiteral("Statement to execute"));
    mpLine->setFont(fixed);
    mpLine->setPlaceholderText(QStringLiteral("Statement, such as solver.run(); Ctrl+Space completes names"));
    mpLine->installEventFilter(this);
    new FScriptCompleter(mpLine, [this] { return &mInput.getNames(); });

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mpOutput, 1);
    column->addWidget(mpLine);
    connect(mpLine, &QLineEdit::returnPressed, this, &FConsole::enter);
    connect(FChanges::instance(), &FChanges::messageLogged, this, &FConsole::addMessage);
    FStandardOutput::setCopy([this](const QString& text) {
        append(text, QTextCharFormat());
        emit printed();
    });
}

FConsole::~FConsole() {
    FStandardOutput::setCopy({});
}

QString FConsole::text() const {
    return mpOutput->toPlainText();
}

void FConsole::enter() {
    const QString line = mpLine->text();
    if (line.trimmed().isEmpty() || mIsExecuting) {
        return;
    }
    mpLine->clear();
    mHistory.removeAll(line);
    mHistory.append(line);
    if (mHistory.size() > mostRecalled) {
        mHistory.removeFirst();
    }
    mRecalled = mHistory.size();
    execute(line);
}

void FConsole::execute(const QString& line) {
    appendLine(QStringLiteral("> ") + line, FStateColor::State::Secondary);
    mIsExecuting = true;
    mRunner([this, line] {
        QString text = line;
        QTextStream stream(&text);
        mInput.readInputString(stream, QString::fromLatin1(sourceName));
        if (mInput.exec() && !mInput.getLastValue().isEmpty()) {
            const FObject* value = valueObject(mInput.getLastValue());
            append(value ? value->toExpressionString() + QLatin1Char('\n') : QStringLiteral("NULL\n"),
                   QTextCharFormat());
        }
    });
    mIsExecuting = false;
}

void FConsole::append(const QString& text, const QTextCharFormat& format) {
    QTextCursor cursor(mpOutput->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text, format);
    mpOutput->moveCursor(QTextCursor::End);
}

void FConsole::appendLine(const QString& text, FStateColor::State state) {
    QTextCharFormat format;
    format.setProperty(stateProperty, static_cast<int>(state));
    format.setForeground(FStateColor::of(state));
    append(text + QLatin1Char('\n'), format);
}

void FConsole::updateColors() {
    QTextCursor cursor(mpOutput->document());
    for (QTextBlock block = mpOutput->document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.textFormats()) {
            if (range.format.hasProperty(stateProperty)) {
                QTextCharFormat format = range.format;
                format.setForeground(
                    FStateColor::of(static_cast<FStateColor::State>(format.intProperty(stateProperty))));
                cursor.setPosition(block.position() + range.start);
                cursor.setPosition(cursor.position() + range.length, QTextCursor::KeepAnchor);
                cursor.setCharFormat(format);
            }
        }
    }
}

void FConsole::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        updateColors();
    }
    QWidget::changeEvent(event);
}

void FConsole::addMessage(const FLogMsg& message) {
    if (mIsExecuting) {
        markPlace(message.place.isEmpty() ? message.source : message.place);
        appendLine(message.toLine(), message.kind == FLogMsg::Kind::Error     ? FStateColor::State::Bad
                                     : message.kind == FLogMsg::Kind::Warning ? FStateColor::State::Warning
                                                                              : FStateColor::State::Secondary);
    }
}

// The line itself is two characters further to the right.
void FConsole::markPlace(const QString& place) {
    const QString first = QString::fromLatin1(sourceName) + QStringLiteral(":1:");
    const int column = place.startsWith(first) ? place.mid(first.size()).toInt() : 0;
    if (column > 0) {
        appendLine(QString(column + 1, QLatin1Char(' ')) + QLatin1Char('^'), FStateColor::State::Bad);
    }
}

void FConsole::recall(int step) {
    const int wanted = mRecalled + step;
    if (wanted < 0 || wanted > mHistory.size()) {
        return;
    }
    if (mRecalled == mHistory.size()) {
        mNewLine = mpLine->text();
    }
    mRecalled = wanted;
    mpLine->setText(wanted == mHistory.size() ? mNewLine : mHistory.at(wanted));
}

QString FConsole::wordAtCursor() const {
    const QString line = mpLine->text();
    int begin = mpLine->cursorPosition();
    int end = begin;
    while (begin > 0 && isWordCharacter(line.at(begin - 1))) {
        --begin;
    }
    while (end < line.size() && isWordCharacter(line.at(end))) {
        ++end;
    }
    return line.mid(begin, end - begin);
}

bool FConsole::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mpLine && event->type() == QEvent::KeyPress) {
        switch (static_cast<const QKeyEvent*>(event)->key()) {
            case Qt::Key_Up:
                recall(-1);
                return true;
            case Qt::Key_Down:
                recall(1);
                return true;
            case Qt::Key_F1:
                if (const QString word = wordAtCursor(); !word.isEmpty()) {
                    emit helpRequested(word);
                    return true;
                }
                break;
            default:
                break;
        }
    }
    return QWidget::eventFilter(watched, event);
}
