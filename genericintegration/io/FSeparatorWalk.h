#pragma once

#include <QRegExp>
#include <QString>

/** Passes over the separators of a line. */
class FSeparatorWalk {
 public:
    /** Separator and text must outlive this object. */
    FSeparatorWalk(const QRegExp& separator, const QString& text, int start = 0)
        : mSeparator(separator), mText(text), mStart(start) {}

    /** Passes a number of separators. False if there are fewer. */
    bool pass(int count);

    /** End of the last separator that was passed. */
    int start() const { return mStart; }

    /** Start of the next separator, or -1. */
    int next() const { return mSeparator.indexIn(mText, mStart); }

 private:
    const QRegExp& mSeparator;
    const QString& mText;
    int mStart;
};
