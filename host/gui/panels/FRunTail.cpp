#include "host/gui/panels/FRunTail.h"

#include "host/gui/base/FFixedFont.h"

#include <QScrollBar>

namespace {

constexpr int interval = 300;  // milliseconds

}  // namespace

FRunTail::FRunTail(const QString& id, const QString& name, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(id);
    setAccessibleName(name);
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setMaximumBlockCount(most);
    setTabChangesFocus(true);
    setFont(FFixedFont::get());
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mTimer.setInterval(interval);
    connect(&mTimer, &QTimer::timeout, this, &FRunTail::readOn);
}

void FRunTail::setFile(const QString& path) {
    clear();
    mFollower.reset();
    if (!path.isEmpty()) {
        mFollower.emplace(path);
    }
    readOn();
}

void FRunTail::setLive(bool isLive) {
    if (mIsLive != isLive) {
        mIsLive = isLive;
        readOn();
    }
    updateTimer();
}

// A hidden tail reads nothing; it catches up when it is shown.
void FRunTail::updateTimer() {
    if (mIsLive && isVisible()) {
        mTimer.start();
    } else {
        mTimer.stop();
    }
}

void FRunTail::showEvent(QShowEvent* event) {
    QPlainTextEdit::showEvent(event);
    readOn();
    updateTimer();
}

void FRunTail::hideEvent(QHideEvent* event) {
    QPlainTextEdit::hideEvent(event);
    updateTimer();
}

void FRunTail::readOn() {
    if (!mFollower || !isVisible()) {
        return;
    }
    const QString text = mFollower->takeText();
    if (mFollower->hasRestarted()) {
        clear();
    }
    if (text.isEmpty()) {
        return;
    }
    const bool isAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    const int before = verticalScrollBar()->value();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    if (mFollower->getLeftOut() > 0) {
        end.insertText(
            QStringLiteral("\n… %1 kB left out; the file has them all\n").arg(mFollower->getLeftOut() / 1000));
    }
    end.insertText(text);
    verticalScrollBar()->setValue(isAtEnd ? verticalScrollBar()->maximum() : before);
}
