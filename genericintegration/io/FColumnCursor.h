#pragma once

#include <QRegExp>
#include <QString>

#include <optional>
#include <string_view>

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FColumn.h"
#include "genericintegration/io/FSeparatorWalk.h"

/**
 * Finds the columns of one line as findValue does, and goes over none of them twice. While numbers are found, nothing
 * else is decoded. White space at the line's begin is passed over.
 */
class FColumnCursor {
 public:
    /**
     * A null separator: numbers are found. Text and separator must outlive this object. What FSuspicion would find
     * between numbers is looked for only if there may be something.
     */
    FColumnCursor(std::string_view text, FByteRange line, const QRegExp* separator, bool mayBeSuspicious = true);
    Q_DISABLE_COPY_MOVE(FColumnCursor)

    /** One of the columns. Those asked for mustn't descend; one below 0 is 0. */
    FColumn seek(int column);

 private:
    FColumn seekNumber(int column);
    FColumn seekSeparated(int column);
    void passNumber();

    std::string_view mText;
    FByteRange mLine;
    FByteRange mNumber;  //!< the last one passed
    QString mDecoded;
    std::optional<FSeparatorWalk> mWalk;
    int mPassed = 0;  //!< numbers or separators
    bool mEnded = false;
    bool mMayBeSuspicious;
    FFoundFlags mFlags{};
};
