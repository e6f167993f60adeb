#include "genericintegration/editors/FEditBuffer.h"

#include "genericintegration/editors/FShownText.h"
#include "genericintegration/marking/FLineEnds.h"
#include "host/core/FChanges.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserStep.h"

#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace {

constexpr int usualDelay = 1000;  // milliseconds

FTextReplacement difference(const QString& from, const QString& to) {
    const int least = std::min(from.size(), to.size());
    const int start =
        static_cast<int>(std::mismatch(from.begin(), from.begin() + least, to.begin()).first - from.begin());
    int end = 0;
    while (end < least - start && from[from.size() - 1 - end] == to[to.size() - 1 - end]) {
        ++end;
    }
    return {start, from.size() - start - end, to.mid(start, to.size() - start - end)};
}

/** A typed change of a text that has become another one meanwhile. Where both changed the same, the typed one counts.
 */
FTextReplacement moved(const FTextReplacement& typed, const FTextReplacement& other, int size) {
    if (typed.position + typed.removed <= other.position) {
        return typed;
    }
    const int growth = other.inserted.size() - other.removed;
    if (other.position + other.removed <= typed.position) {
        return {typed.position + growth, typed.removed, typed.inserted};
    }
    const int begin = std::min(typed.position, other.position);
    const int end = std::max(typed.position + typed.removed, other.position + other.removed) + growth;
    return {begin, std::min(end, size) - begin, typed.inserted};
}

}  // namespace

FEditBuffer::FEditBuffer(QPlainTextEdit& edit) : mEdit(edit) {
    mTimer.setSingleShot(true);
    mTimer.setInterval(usualDelay);
    connect(&mTimer, &QTimer::timeout, this, &FEditBuffer::commitEdit);
    const auto follow = [this](const FManaged* object) {
        if (mFile.getStored() == object) {
            refresh();
        }
    };
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectChanged, this, follow);
    connect(changes, &FChanges::objectEntered, this, follow);
    connect(changes, &FChanges::objectLeft, this, [this](const FManaged* object) {
        if (mFile.getStored() == object) {
            forgetTyped();
            refresh();
        }
    });
}

void FEditBuffer::forgetTyped() {
    mIsPending = false;
    mTimer.stop();
}

void FEditBuffer::letGo() {
    forgetTyped();
    mFile = FExpr<FGenIntFile>();
}

QString FEditBuffer::content() const {
    return mFile ? mFile->getPlainContent() : QString();
}

void FEditBuffer::setFile(const FExpr<FGenIntFile>& file) {
    commitEdit();
    mFile = file;
    refresh();
}

void FEditBuffer::fill() {
    if (!mIsFilled) {
        mIsFilled = true;
        refresh();
    }
}

void FEditBuffer::refresh() {
    const QString text = content();
    // The data is the same after a change that was written here.
    if (!mIsFilled || mIsPending || (text.constData() == mBase.constData() && text.size() == mBase.size())) {
        return;
    }
    const QString before = shown();
    const bool wasCut = isCut();
    const int position = mLongLines.positionOf(mEdit.textCursor().position());
    const int behind = endPosition() - position;
    const QString base = std::exchange(mBase, text);
    show(before);
    if (wasCut != isCut()) {
        const std::vector<FTextReplacement> changes = FLineEnds::changesOfDocument(base, text);
        const bool isBefore = changes.empty() || position <= changes.front().position;
        setPosition(isBefore ? position : endPosition() - behind);
    }
}

void FEditBuffer::show(const QString& before) {
    const QScopedValueRollback<bool> guard(mIsReplacing, true);
    mLongLines = FLongLines(mBase);
    mEdit.setReadOnly(isCut());
    FShownText::change(mEdit, before, isCut() ? mLongLines.cut(mBase) : mBase,
                       [this](int length) { emit aboutToFill(length); });
    mDiffers = false;
    emit refreshed();
}

int FEditBuffer::endPosition() const {
    return mLongLines.positionOf(mEdit.document()->characterCount() - 1);
}

void FEditBuffer::setPosition(int position) {
    QTextCursor cursor(mEdit.document());
    cursor.setPosition(mLongLines.shownAt(std::clamp(position, 0, endPosition())));
    mEdit.setTextCursor(cursor);
}

QString FEditBuffer::shown() const {
    return mDiffers ? mEdit.document()->toRawText() : isCut() ? mLongLines.cut(mBase) : mBase;
}

void FEditBuffer::touch() {
    mDiffers = true;
    const bool isByUser =
        !mIsReplacing && !FMerixCtrl::instance()->isBusy() && !FMerixCtrl::instance()->isLoadingProject() && mFile;
    if (isByUser) {
        mIsPending = true;
        mTimer.start();
    }
}

void FEditBuffer::write() {
    forgetTyped();
    if (mFile && mIsFilled && !isCut()) {
        const QString lines = mEdit.document()->toRawText();
        write(lines, lines);
    }
}

void FEditBuffer::write(const QString& lines, const QString& shown) {
    const QString text = content();
    const FTextReplacement typed = FLineEnds::change(mBase, lines);
    const bool isElsewhere = text.constData() != mBase.constData() && text != mBase;
    if (!typed.isEmpty()) {
        const FTextReplacement change = isElsewhere ? moved(typed, difference(mBase, text), text.size()) : typed;
        mFile->setPlainContent(change.appliedTo(text));
        mBase = isElsewhere ? typed.appliedTo(mBase) : content();
        emit written();
    }
    mDiffers = false;
    if (isElsewhere) {
        refresh();
    } else if (FLongLines::first(mBase, FLongLines::longest) > 0) {
        const int position = mEdit.textCursor().position();
        show(shown);
        setPosition(position);
    }
}

// A long line gets into the widget by way of the template, and so in pieces only.
void FEditBuffer::insert(QTextCursor cursor, const QString& text) {
    if (!mFile || FLongLines::first(text, FLongLines::longest) == 0) {
        cursor.insertText(text);
        return;
    }
    FUserStep step(QStringLiteral("text altered"));
    const QString before = mEdit.document()->toRawText();
    const int behind = before.size() - cursor.selectionEnd();
    QString lines = before;
    lines.replace(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(), text);
    write(lines, before);
    setPosition(endPosition() - behind);
}

void FEditBuffer::replace(QTextCursor cursor, const QString& text) {
    if (!isCut()) {
        const QScopedValueRollback<bool> guard(mIsReplacing, true);
        cursor.insertText(text);
    }
    write();
}

void FEditBuffer::commitEdit() {
    if (mIsPending) {
        FUserStep step(QStringLiteral("text altered"));
        write();
    }
}
