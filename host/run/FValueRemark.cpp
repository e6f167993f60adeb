#include "host/run/FValueRemark.h"

#include <cmath>

namespace FValueRemark {
namespace {

using F = FNumberFlag;

QString lineOf(const FNumberOrigin& origin) {
    return origin.line > 0 ? QStringLiteral("line %1").arg(origin.line) : QStringLiteral("a line beyond the end");
}

// Each flag has words of its own for a number and for NaN.
QString anchor(const FNumberOrigin& origin, double number) {
    const QString missing = QStringLiteral("the anchor \"%1\" isn't in the file").arg(origin.anchor);
    return std::isnan(number)
               ? missing
               : QStringLiteral("was read from %1, counted from the %2 of the file, since ")
                         .arg(lineOf(origin), origin.markLine < 0 ? QStringLiteral("bottom") : QStringLiteral("top")) +
                     missing;
}

QString line(const FNumberOrigin& origin, double number) {
    const bool isUpward = origin.markLine < 0;
    if (isUpward && origin.anchorLine == 1) {
        return QStringLiteral("%1, counted from the bottom of the file, since no line is above the anchor")
            .arg(std::isnan(number) ? QStringLiteral("its line was sought")
                                    : QStringLiteral("was read from ") + lineOf(origin));
    }
    return std::isnan(number) ? QStringLiteral("its line is beyond the end of the text")
                              : QStringLiteral("is from the second line, since there are fewer lines to count up");
}

QString column(const FNumberOrigin& origin, double) {
    if (origin.rows) {
        return QStringLiteral("none of the last %1 lines has such a column").arg(origin.rows->wanted);
    }
    const QString gap = origin.oddity.isEmpty() ? QString() : QStringLiteral(" (it contains %1)").arg(origin.oddity);
    return QStringLiteral("%1 ends before the column%2").arg(lineOf(origin), gap);
}

QString notANumber(const FNumberOrigin& origin, double) {
    return origin.text.isEmpty() ? QStringLiteral("the column is empty")
                                 : QStringLiteral("the text \"%1\" isn't a number").arg(origin.text);
}

QString rows(const FNumberOrigin& origin, double) {
    return QStringLiteral("is the mean of %1 rows instead of %2")
        .arg(origin.rows ? origin.rows->count : 0)
        .arg(origin.rows ? origin.rows->wanted : 0);
}

/** Words for a flag. %1 is the text beside the number. */
struct FWords {
    FNumberFlag flag;
    QString (*make)(const FNumberOrigin&, double);  //!< null: `words`
    const char* words;
    const char* remedy;
};

// The cause of a NaN comes first, then what is most likely wrong.
constexpr FWords allWords[] = {
    {F::FileNotRead, nullptr, "nothing was read from its file", "See whether the program wrote the file"},
    {F::SeparatorInvalid, nullptr, "the separator isn't a valid regular expression: %1",
     "It separates nothing. Correct it"},
    {F::ZeroBytes, nullptr, "the file contains zero bytes, as UTF-16 without a byte order mark does",
     "Have the program write UTF-8, or a byte order mark"},
    {F::OnlyCarriageReturns, nullptr, "the lines of the file end with CR alone, so that it counts as one line",
     "Have the program end its lines with LF or CR LF"},
    {F::SeparatorTooSlow, nullptr, "the separator needs too much time for this line, which counts as one column",
     "Use a simpler separator"},
    {F::AnchorMissing, &anchor, "", "Look at the file, and correct the anchor"},
    {F::NoRows, nullptr, "a mean over 0 rows was requested", "Set the number of rows"},
    {F::LineBeyondEnd, &line, "", "Look at the file, and correct the line of the mark"},
    {F::ColumnMissing, &column, "", "Look at the line, and correct the column of the mark or the separator"},
    {F::CutExponent, nullptr, "is followed by %1",
     "Only an exponent with E is read. Change the program's format, or "
     "multiply by the power of ten"},
    {F::PointExponent, nullptr, "is followed by %1",
     "An exponent after a bare point isn't read. Change the program's "
     "format, or multiply by the power of ten"},
    {F::SpacedExponent, nullptr, "is followed by an exponent (%1)",
     "Such an exponent isn't read. Change the program's format, or multiply by the power of ten"},
    {F::SpacedSign, nullptr, "has a minus sign before it that isn't read",
     "It is separated by blanks, or isn't the sign of ASCII. Change the program's format, or the sign of the value"},
    {F::DecimalComma, nullptr, "is next to a comma (%1)",
     "A comma isn't a decimal point. If it separates columns, set it as the separator"},
    {F::ThousandsSeparator, nullptr, "is the start of %1, which seems to have thousands separators",
     "Numbers are read without them. Change the program's format. If commas separate columns, set the comma as the "
     "separator"},
    {F::CutAtEdge, nullptr, "touches other digits (%1)",
     "It may be cut, or two columns may have run together. Look at the line"},
    {F::Shifted, nullptr, "comes after %1 in its line, which may shift the columns", "Look at the line"},
    {F::Stars, nullptr, "is in place of asterisks, a number too wide to print (%1)",
     "Change the program's format. Look at the line"},
    {F::NanOrInf, nullptr, "is from a line with NaN or Inf (%1)", "The program had no number there"},
    {F::LetterBefore, nullptr, "follows letters (%1)", "It may be part of a word. Look at the line"},
    {F::LetterAfter, nullptr, "is followed by %1", "If this is a unit, check that it is the one you expect"},
    {F::NotANumber, &notANumber, "", "Look at the line, and correct the mark"},
    {F::FewerRows, &rows, "", "Look at the end of the file, or reduce the number of rows"},
};

const FWords& wordsOf(FNumberFlags flags) {
    for (const FWords& words : allWords) {
        if (flags.testFlag(words.flag)) {
            return words;
        }
    }
    static constexpr FWords none{F::NotANumber, nullptr, "", ""};
    return none;
}

}  // namespace

QString text(const FNumberOrigin& origin, double number) {
    constexpr FNumberFlags reasons = F::NotANumber | F::ColumnMissing | F::LineBeyondEnd;
    const bool hasReason = std::isnan(number) && (origin.flags & reasons);
    const FWords& words = wordsOf(hasReason ? origin.flags & ~suspiciousFlags : origin.flags);
    if (words.make) {
        return words.make(origin, number);
    }
    const bool isOfRow = origin.rows && suspiciousFlags.testFlag(words.flag);
    const QString plain =
        (isOfRow ? QStringLiteral("is a mean, one of whose numbers ") : QString()) + QString::fromLatin1(words.words);
    return plain.contains(QLatin1String("%1")) ? plain.arg(origin.oddity) : plain;
}

QString remedy(FNumberFlags flags) {
    return QString::fromLatin1(wordsOf(flags).remedy);
}

}  // namespace FValueRemark
