#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <string>
#include <string_view>

/**
 * Looks for a text in a large one, slice by slice, from a place to the end and then from the other end to that place.
 * Without regard to case, only the letters of ASCII match in both cases.
 */
class MERIX_EXPORT FTextSearch {
 public:
    enum class State { Searching, Found, NotFound };

    /**
     * @param from      offset where to start; a text found forwards starts there or later, one found backwards ends
     *                  there or before
     */
    FTextSearch(const QString& what, bool matchesCase, qint64 from, bool backwards);

    /** Searches a slice of the text, which is the same in each call, but may have grown. */
    State searchSlice(std::string_view text);

    /** What was found. */
    qint64 getBegin() const { return mFound; }
    qint64 getEnd() const { return mFound + static_cast<qint64>(mWhat.size()); }
    /** Whether the search has gone on from the other end. */
    bool isWrapped() const { return mIsWrapped; }
    /** How much of the text was searched, from 0 to 100. */
    int getPercent() const { return mPercent; }

 private:
    qint64 findIn(std::string_view slice) const;

    std::string mWhat;
    bool mMatchesCase;
    bool mIsBackwards;
    qint64 mFrom;
    qint64 mAt;  //!< where the next slice starts, or ends for a search backwards
    qint64 mSearched = 0;
    qint64 mFound = -1;
    int mPercent = 0;
    bool mIsWrapped = false;
};
