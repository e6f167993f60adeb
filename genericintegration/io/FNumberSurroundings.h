#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

#include <algorithm>
#include <string_view>

/** The characters around a number of a line: whether they are part of it, though it was read without them. */
class FNumberSurroundings {
 public:
    /** @param lineBegin  where the line begins in the text, or the part of it after an anchor */
    FNumberSurroundings(std::string_view text, FByteRange number, qint64 lineBegin)
        : mText(text), mNumber(number), mLineBegin(lineBegin), mDigits(number.of(text).substr(0, longest)) {}

    FFoundFlags flags() const;

    /** Its end with an exponent that isn't read, as in 1.0D+05; its own end if there is none. */
    qint64 exponentEnd() const;

    /** Whether nothing but blanks is near, as in most tables. */
    bool arePlain() const { return isPlainBefore() && isPlainAfter(mText, mNumber.end); }
    static bool isPlainAfter(std::string_view text, qint64 end);

    /** The characters between blanks that the number is part of, before it, after it, or both. */
    QString before() const;
    QString after() const;
    QString whole() const;
    /** The exponent that is separated by blanks, alone and after the number. */
    QString spacedExponent() const;
    QString withSpacedExponent() const;

 private:
    static constexpr qint64 longest = 64;  // programs print no longer numbers

    static char at(std::string_view text, qint64 offset) {
        return offset >= 0 && offset < static_cast<qint64>(text.size()) ? text[static_cast<size_t>(offset)] : ' ';
    }
    char at(qint64 offset) const { return at(mText, offset); }
    bool isWhole() const { return mDigits.find_first_of(".eE") == std::string_view::npos; }
    bool hasExponent() const { return mDigits.find_first_of("eE") != std::string_view::npos; }
    bool isPlainBefore() const;
    qint64 digitsEnd(qint64 offset) const;
    qint64 blanksEnd(qint64 offset) const;
    qint64 blanksBegin(qint64 offset) const;
    bool isExponentAt(qint64 offset) const;
    bool hasCutExponent() const;
    bool hasPointExponent() const;
    qint64 spacedExponentEnd() const;
    qint64 powerOfTenEnd() const;
    bool hasSpacedSign() const;
    bool hasForeignMinus() const;
    bool hasLetterBefore() const;
    bool hasLetterAfter() const;
    bool isCutAtEdge() const;
    bool hasCommaAfter() const;
    bool hasCommaBefore() const;
    bool isGroup(qint64 begin) const;
    bool hasThousands() const;
    bool isUnderCommas() const;
    QString decoded(qint64 begin, qint64 end) const;

    std::string_view mText;
    FByteRange mNumber;
    qint64 mLineBegin;
    std::string_view mDigits;
};
