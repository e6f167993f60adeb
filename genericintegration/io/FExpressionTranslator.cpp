#include "genericintegration/io/FExpressionTranslator.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

constexpr int longestExpression = 2000;
constexpr double largestSize = 5000;
constexpr int mostRepeated = 100;
constexpr int deepest = 50;

QString hex(int unit) {
    return QStringLiteral("\\x{%1}").arg(unit, 0, 16);
}

/** The units of a class as ranges of a character set. */
QString rangesOf(const std::function<bool(QChar)>& isIn) {
    constexpr int end = 0x10000;
    QString ranges;
    for (int unit = 0; unit < end; ++unit) {
        const int first = unit;
        while (unit < end && isIn(QChar(unit))) {
            ++unit;
        }
        if (unit > first) {
            ranges += hex(first) + QLatin1Char('-') + hex(unit - 1);
        }
    }
    return ranges;
}

bool isSpace(QChar c) {
    return c.category() == QChar::Separator_Space || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph || (c >= QChar(0x9) && c <= QChar(0xD)) || c == QChar(0x85);
}

bool isDigit(QChar c) {
    return c.category() == QChar::Number_DecimalDigit;
}

bool isWord(QChar c) {
    return c.isLetterOrNumber() || c.isMark() || c == QLatin1Char('_');
}

/** The ranges of `\d`, `\s` and `\w`, or of their complements; empty for another letter. */
QString classRanges(QChar letter) {
    const auto complement = [](bool (*isIn)(QChar)) { return rangesOf([isIn](QChar c) { return !isIn(c); }); };
    static const QString digits = rangesOf(&isDigit);
    static const QString others = complement(&isDigit);
    static const QString spaces = rangesOf(&isSpace);
    static const QString noSpaces = complement(&isSpace);
    static const QString words = rangesOf(&isWord);
    static const QString noWords = complement(&isWord);
    switch (letter.unicode()) {
        case 'd':
            return digits;
        case 'D':
            return others;
        case 's':
            return spaces;
        case 'S':
            return noSpaces;
        case 'w':
            return words;
        case 'W':
            return noWords;
        default:
            return {};
    }
}

/** The character of an escape that stands for one; null if it doesn't. */
QChar escaped(QChar letter) {
    switch (letter.unicode()) {
        case 'a':
            return QChar(0x7);
        case 'f':
            return QChar(0xC);
        case 'n':
            return QChar(0xA);
        case 'r':
            return QChar(0xD);
        case 't':
            return QChar(0x9);
        case 'v':
            return QChar(0xB);
        default:
            break;
    }
    const bool isSymbol = letter.unicode() < 0x80 && letter.unicode() > 0x20 && !letter.isLetterOrNumber();
    return isSymbol ? letter : QChar();
}

}  // namespace

FExpressionTranslator::FExpressionTranslator(const QString& expression) : mIn(expression) {
    measure();
    mIsTranslated = !mIsTooLarge && alternatives(0) && isAtEnd();
}

namespace {

/** The largest count of a brace at a place, or 1. */
double mostOf(const QString& expression, int brace) {
    double count = 0;
    double most = 1;
    for (int i = brace + 1; i < expression.size() && (expression[i].isDigit() || expression[i] == QLatin1Char(','));
         ++i) {
        count = expression[i].isDigit() ? std::min(count * 10 + expression[i].digitValue(), 1e9) : 0;
        most = std::max(most, count);
    }
    return most;
}

}  // namespace

// Counts the characters, each as often as the counts around it repeat it. Brackets in sets only make it a bit wrong.
void FExpressionTranslator::measure() {
    std::vector<double> outer;
    double size = 0;
    double last = 0;  // of the part that a count repeats
    for (int i = 0; i < mIn.size(); ++i) {
        const QChar c = mIn[i];
        if (c == QLatin1Char('(')) {
            outer.push_back(size);
            size = 0;
        } else if (c == QLatin1Char(')') && !outer.empty()) {
            last = size;
            size += outer.back();
            outer.pop_back();
        } else if (c == QLatin1Char('{')) {
            const double repeated = last * mostOf(mIn, i);
            size += repeated - last;
            last = repeated;
        } else {
            last = 1;
            size += 1;
        }
    }
    mIsTooLarge = mIn.size() > longestExpression || size > largestSize || outer.size() > static_cast<size_t>(deepest);
}

bool FExpressionTranslator::take(char c) {
    const bool is = !isAtEnd() && mIn.at(mAt) == QLatin1Char(c);
    mAt += is ? 1 : 0;
    return is;
}

void FExpressionTranslator::literal(QChar c, QString& out) const {
    out += hex(c.unicode());
}

bool FExpressionTranslator::alternatives(int depth) {
    if (depth > deepest || !sequence(depth)) {
        return false;
    }
    while (take('|')) {
        mOut += QLatin1Char('|');
        if (!sequence(depth)) {
            return false;
        }
    }
    return true;
}

// An empty sequence is left to QRegExp.
bool FExpressionTranslator::sequence(int depth) {
    const int begin = mAt;
    while (!isAtEnd() && peek() != QLatin1Char('|') && peek() != QLatin1Char(')')) {
        if (!atom(depth)) {
            return false;
        }
    }
    return mAt > begin;
}

bool FExpressionTranslator::atom(int depth) {
    if (take('(')) {
        if (peek() == QLatin1Char('?') && !(take('?') && take(':'))) {
            return false;
        }
        mOut += QStringLiteral("(?:");
        if (!alternatives(depth + 1) || !take(')')) {
            return false;
        }
        mOut += QLatin1Char(')');
        return quantifier(true);
    }
    if (take('[')) {
        return characterSet() && quantifier(true);
    }
    if (take('\\')) {
        return escape();
    }
    if (take('.')) {
        mOut += QStringLiteral("[\\x{0}-\\x{ffff}]");
        return quantifier(true);
    }
    const QChar c = peek();
    if (QStringLiteral("*+?{}]^$").contains(c) || c.isSurrogate() || c.isNull()) {
        return false;
    }
    ++mAt;
    literal(c, mOut);
    return quantifier(true);
}

bool FExpressionTranslator::escape() {
    const QChar letter = peek();
    ++mAt;
    if (letter == QLatin1Char('b') || letter == QLatin1Char('B')) {
        mNeedsAscii = true;
        mOut += QLatin1Char('\\') + QString(letter);
        return quantifier(false);
    }
    if (const QString ranges = classRanges(letter); !ranges.isEmpty()) {
        mOut += QLatin1Char('[') + ranges + QLatin1Char(']');
        return quantifier(true);
    }
    const QChar c = escaped(letter);
    if (c.isNull()) {
        return false;
    }
    literal(c, mOut);
    return quantifier(true);
}

// QRegExp reads several of them in a row in its own way.
bool FExpressionTranslator::quantifier(bool isRepeatable) {
    const QString signs = QStringLiteral("*+?{");
    if (isAtEnd() || !signs.contains(peek())) {
        return true;
    }
    if (!isRepeatable) {
        return false;
    }
    if (take('{')) {
        if (!counts()) {
            return false;
        }
    } else {
        mOut += peek();
        ++mAt;
    }
    return isAtEnd() || !signs.contains(peek());
}

bool FExpressionTranslator::counts() {
    int most = 0;
    QString text;
    while (!isAtEnd() && (peek().isDigit() || peek() == QLatin1Char(','))) {
        text += peek();
        ++mAt;
    }
    const QStringList numbers = text.split(QLatin1Char(','));
    bool isNumber = numbers.size() <= 2 && take('}');
    for (int i = 0; i < numbers.size() && isNumber; ++i) {
        const int least = most;
        most = numbers[i].isEmpty() && i == 1 ? std::max(least, 1) : numbers[i].toInt(&isNumber);
        isNumber = isNumber && most >= least && most <= mostRepeated && (i == 0 || most > 0);
    }
    mOut += QLatin1Char('{') + text + QLatin1Char('}');
    return isNumber && !(numbers.size() == 1 && most == 0);
}

bool FExpressionTranslator::characterSet() {
    QString set = take('^') ? QStringLiteral("[^\\x{10000}-\\x{10ffff}") : QStringLiteral("[");
    const int begin = mAt;
    while (!isAtEnd() && (peek() != QLatin1Char(']') || mAt == begin)) {
        if (!setElement(set)) {
            return false;
        }
    }
    mOut += set + QLatin1Char(']');
    return take(']');
}

bool FExpressionTranslator::setElement(QString& set) {
    const QChar c = peek();
    ++mAt;
    if (c == QLatin1Char('\\')) {
        const QChar letter = peek();
        ++mAt;
        const QString ranges = classRanges(letter);
        const QChar single = escaped(letter);
        if ((ranges.isEmpty() && single.isNull()) || peek() == QLatin1Char('-')) {
            return false;
        }
        set += ranges.isEmpty() ? hex(single.unicode()) : ranges;
        return true;
    }
    // A minus that isn't between two letters or digits is left to QRegExp.
    if (c == QLatin1Char(']') || c == QLatin1Char('[') || c == QLatin1Char('^') || c == QLatin1Char('-') ||
        c.isSurrogate()) {
        return false;
    }
    literal(c, set);
    if (peek() != QLatin1Char('-')) {
        return true;
    }
    ++mAt;
    const QChar last = peek();
    ++mAt;
    if (!c.isLetterOrNumber() || !last.isLetterOrNumber() || c > last || last.isSurrogate() || last.isNull()) {
        return false;
    }
    set += QLatin1Char('-');
    literal(last, set);
    return true;
}
