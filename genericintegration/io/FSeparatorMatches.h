#pragma once

#include "genericintegration/io/FSeparator.h"

#include <QByteArray>
#include <QRegExp>
#include <QString>

#include <vector>

/** Finds a separator in one line. */
class FSeparatorMatches {
 public:
    /** Separator and line must outlive this object. */
    FSeparatorMatches(const FSeparator& separator, const QString& line);

    /** Start of the first match at or after a place of the line; -1 if there is none. */
    int find(int start);
    int matchedLength() const { return mLength; }

    /** Grants the searches that follow their time. Called once for each text. */
    static void startText();

    /** Whether a search was given up because it may take too long. Nothing is found from then on. */
    bool isGivenUp() const { return mIsGivenUp; }

 private:
    int findLinear(int start);
    int findSlow(int start);
    size_t byteAt(int unit);
    int unitAt(size_t byte);

    const QString& mLine;
    const re2::RE2* mLinear;
    QRegExp mSlow;
    QByteArray mBytes;  //!< each UTF-16 unit as one character
    bool mIsAscii;
    int mUnit = 0;     //!< a place of the line, from which others are counted
    size_t mByte = 0;  //!< the same place in the bytes
    int mLength = -1;
    bool mIsGivenUp = false;
    bool mIsInvalid;
};
