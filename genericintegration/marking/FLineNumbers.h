#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/marking/FTextRange.h"

#include <QByteArray>
#include <QString>

/** Goes through the numbers of a line, as the reader finds them. Lines may be long: each step is linear. */
class FLineNumbers {
 public:
    /** @param start  where the search begins, in UTF-16 units */
    explicit FLineNumbers(const QString& line, int start = 0);

    /** The next number, in UTF-16 units of the line; one of length 0 if there is none. */
    FTextRange next();

 private:
    int unitAt(qint64 byte);

    QByteArray mBytes;
    qint64 mByte = 0;  //!< of which the unit is known
    int mUnit;
    qint64 mEnd = 0;  //!< of the last number
};
