#pragma once

#include <QRegExp>
#include <QString>

#include <memory>

namespace re2 {
class RE2;
}

/**
 * The compiled expression that separates the columns of a line. It matches as QRegExp does.
 *
 * Nearly all expressions are matched in time linear in the line. Those with a back reference or a look-ahead, and a
 * few unusual forms, are left to QRegExp, whose time can grow with the square of the line and more: their lines and
 * their total time are limited. An expression that repeats its parts too often is refused as invalid.
 */
class FSeparator {
 public:
    /** Longest line, in UTF-16 units, for an expression that isn't matched in linear time. */
    static constexpr int longestSlowLine = 10000;

    explicit FSeparator(const QString& expression);
    ~FSeparator();
    Q_DISABLE_COPY(FSeparator)

    /** The separator of an expression; the last few are kept, since compiling takes time. */
    static std::shared_ptr<const FSeparator> of(const QString& expression);

    /** Why the expression is invalid; empty if it is valid. An invalid one matches nothing. */
    const QString& error() const { return mError; }
    /** The matcher for all lines, or with `isAscii` for lines in ASCII; null if only QRegExp matches them. */
    const re2::RE2* linear(bool isAscii) const { return isAscii || !mNeedsAscii ? mLinear.get() : nullptr; }
    /** Whether white space separates columns. */
    bool splitsAtBlanks() const { return mSplitsAtBlanks; }
    const QRegExp& slow() const { return mSlow; }

 private:
    void compileLinear(const QString& translated);

    QString mError;
    QRegExp mSlow;
    std::unique_ptr<re2::RE2> mLinear;
    bool mNeedsAscii = false;
    bool mSplitsAtBlanks;
};
