#pragma once

#include <QRegExp>
#include <QString>

/** Walks over the separators of a line, or over its numbers. */
class FSeparatorWalk {
 public:
    /** Separator and text must outlive this object. */
    FSeparatorWalk(const QRegExp& separator, const QString& text, int start = 0)
        : mSeparator(separator), mText(text), mStart(start) {}

    /** Passes as many separators. False when there are fewer. */
    bool pass(int count);

    /** Where the last passed separator ended. */
    int start() const { return mStart; }

    /** Where the next separator begins, or -1. */
    int next() const { return mSeparator.indexIn(mText, mStart); }

 private:
    const QRegExp& mSeparator;
    const QString& mText;
    int mStart;
};
