#pragma once

#include "host/core/FExport.h"

#include <QRegExp>
#include <QTextBlock>
#include <QTextCursor>

/**
 * Looks for an expression in a document, slice by slice: from a place to the end, then from the other end to that
 * place. What is found is within a block. A change of the document makes the search invalid.
 */
class MERIX_EXPORT FDocumentSearch {
 public:
    enum class State { Searching, Found, NotFound };

    /** @param from  a search forwards starts after what it selects, one backwards before it */
    FDocumentSearch(const QRegExp& what, const QTextCursor& from, bool backwards);

    /** Searches for a few milliseconds. */
    State searchSlice();
    /** Selects what was found. */
    QTextCursor found() const { return mFound; }
    bool isWrapped() const { return mIsWrapped; }

 private:
    bool searchBlock();
    /** Goes to the next block; false at the end of the search. */
    bool goOn();

    QRegExp mWhat;
    bool mIsBackwards;
    QTextBlock mBlock;
    int mColumn;  //!< where to start in the block, or where to end backwards; -1 for all of it
    int mFirst;   //!< number of the block in which the search began
    bool mIsWrapped = false;
    QTextCursor mFound;
};
