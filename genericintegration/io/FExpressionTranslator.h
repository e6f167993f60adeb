#pragma once

#include <QString>

/**
 * Translates a regular expression of QRegExp into one of RE2 that has the same leftmost-longest matches in a text of
 * single UTF-16 units, each encoded as one character. Translates only what surely means the same in both.
 */
class FExpressionTranslator {
 public:
    explicit FExpressionTranslator(const QString& expression);

    bool isTranslated() const { return mIsTranslated; }
    const QString& translated() const { return mOut; }
    /** Whether it means the same only for texts in ASCII, because of word boundaries. */
    bool needsAscii() const { return mNeedsAscii; }
    /** Whether compiling it would take too much time or memory, whoever does it. */
    bool isTooLarge() const { return mIsTooLarge; }

 private:
    // Each reads a part of the expression and appends its translation; false if there is none.
    bool alternatives(int depth);
    bool sequence(int depth);
    bool atom(int depth);
    bool quantifier(bool isRepeatable);
    bool counts();
    bool escape();
    bool characterSet();
    bool setElement(QString& set);

    bool isAtEnd() const { return mAt >= mIn.size(); }
    QChar peek() const { return isAtEnd() ? QChar() : mIn.at(mAt); }
    bool take(char c);
    void literal(QChar c, QString& out) const;
    void measure();

    QString mIn;
    QString mOut;
    int mAt = 0;
    bool mIsTranslated = false;
    bool mNeedsAscii = false;
    bool mIsTooLarge = false;
};
