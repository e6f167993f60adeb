#include "host/gui/text/FDocumentSearch.h"

#include <QElapsedTimer>
#include <QTextDocument>

namespace {

constexpr int sliceTime = 20;  // milliseconds

}  // namespace

FDocumentSearch::FDocumentSearch(const QRegExp& what, const QTextCursor& from, bool backwards)
    : mWhat(what),
      mIsBackwards(backwards),
      mBlock(from.document()->findBlock(backwards ? from.selectionStart() : from.selectionEnd())),
      mColumn((backwards ? from.selectionStart() : from.selectionEnd()) - mBlock.position()),
      mFirst(mBlock.blockNumber()) {}

FDocumentSearch::State FDocumentSearch::searchSlice() {
    QElapsedTimer time;
    time.start();
    do {
        if (searchBlock()) {
            return State::Found;
        }
        if (!goOn()) {
            return State::NotFound;
        }
    } while (time.elapsed() < sliceTime);
    return State::Searching;
}

// Of what is empty nothing can be shown.
bool FDocumentSearch::searchBlock() {
    const QString text = mBlock.text();
    int place = -1;
    if (!mIsBackwards) {
        for (place = mWhat.indexIn(text, std::max(mColumn, 0)); place >= 0 && mWhat.matchedLength() == 0;) {
            place = place < text.size() ? mWhat.indexIn(text, place + 1) : -1;
        }
    } else if (mColumn != 0) {
        for (place = mWhat.lastIndexIn(text, mColumn < 0 ? -1 : mColumn - 1);
             place >= 0 && (mWhat.matchedLength() == 0 || (mColumn >= 0 && place + mWhat.matchedLength() > mColumn));) {
            place = place > 0 ? mWhat.lastIndexIn(text, place - 1) : -1;
        }
    }
    if (place < 0) {
        return false;
    }
    mFound = QTextCursor(mBlock);
    mFound.setPosition(mBlock.position() + place);
    mFound.setPosition(mBlock.position() + place + mWhat.matchedLength(), QTextCursor::KeepAnchor);
    return true;
}

bool FDocumentSearch::goOn() {
    if (mIsWrapped && mBlock.blockNumber() == mFirst) {
        return false;
    }
    const QTextDocument* document = mBlock.document();
    QTextBlock next = mIsBackwards ? mBlock.previous() : mBlock.next();
    if (!next.isValid()) {
        mIsWrapped = true;
        next = mIsBackwards ? document->lastBlock() : document->firstBlock();
    }
    mBlock = next;
    mColumn = -1;
    return true;
}
