#pragma once

#include <QString>

class FPointedNumber;
class FResultSample;

/** The heading of the column of a table that a number of a sample is in. */
class FColumnHeading {
 public:
    /** Both outlive the object. */
    FColumnHeading(const FResultSample& sample, const FPointedNumber& number);

    /** Where a character separates columns, as in CSV files: what is on top of the number's one. May be empty. */
    QString onTop() const;
    /** In a line of the sample, the only part, between wide gaps, that is above the number. May be empty. */
    QString inLine(qint64 line) const;

 private:
    const FResultSample& mSample;
    const FPointedNumber& mNumber;
    QChar mDelimiter;  //!< null where there is none
};
