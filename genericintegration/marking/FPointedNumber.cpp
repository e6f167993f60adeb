#include "genericintegration/marking/FPointedNumber.h"

#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FSeparatorWalk.h"
#include "genericintegration/io/FSuspicion.h"
#include "genericintegration/marking/FLineNumbers.h"
#include "genericintegration/marking/FResultSample.h"
#include "host/run/FUtf8.h"

#include <algorithm>
#include <utility>

namespace {

/** Columns of a line that are looked at. */
constexpr int mostColumns = 10000;
/** Characters after a number that can be its exponent. */
constexpr int longestExponent = 64;

int skipBlanks(const QString& text, int start) {
    while (start < text.size() && text[start].isSpace()) {
        ++start;
    }
    return start;
}

/** Whether digits follow a letter, as in "U2". Those of an exponent that isn't read, as in "1.5D+03", are no word. */
bool isInWord(const QByteArray& line, int digits) {
    const auto isLetter = [&line](int place) { return place >= 0 && QChar(QLatin1Char(line[place])).isLetter(); };
    const auto isOfNumber = [&line](int place) {
        return place >= 0 && (QChar(QLatin1Char(line[place])).isDigit() || line[place] == '.');
    };
    return isLetter(digits - 1) && !isOfNumber(digits - 2);
}

}  // namespace

FPointedNumber::FPointedNumber(QString line, qint64 number, std::shared_ptr<const FSeparator> separator)
    : mText(std::move(line)), mLine(number), mSeparator(std::move(separator)) {}

std::optional<FPointedNumber> FPointedNumber::at(const FResultSample& sample, const FSeparatorSettings& separators,
                                                 int position) {
    const FResultText& text = sample.text();
    const qint64 offset = sample.offsetAt(position);
    const qint64 number = text.index().lineAt(offset);
    const qint64 begin = text.index().lineBegin(offset);
    const qint64 feed = text.index().lineFeed(offset);
    // The reader doesn't see the white space at the end of the text.
    const qint64 end = std::max(begin, std::min(feed < 0 ? text.size() : feed, text.trimmedSize()));
    const auto size = static_cast<std::size_t>(end - begin);
    QString line = FUtf8::decode(text.text().substr(static_cast<std::size_t>(begin), size));
    line.chop(line.endsWith(u'\r') ? 1 : 0);
    FSeparatorMatches::startText();
    FPointedNumber pointed(line, number, separators.findNumbers ? nullptr : FSeparator::of(separators.expression()));
    const int unit = static_cast<int>(text.index().utf16At(offset) - text.index().utf16At(begin));
    int column = 0;
    // A click on the right half of the last digit puts the cursor after the number.
    for (const int place : {unit, unit - 1}) {
        if (place >= 0 && pointed.find(place, skipBlanks(line, 0), column, pointed.mStart, pointed.mLength)) {
            return pointed;
        }
    }
    return {};
}

bool FPointedNumber::find(int unit, int start, int& column, int& begin, int& length) const {
    return mSeparator ? findColumn(unit, start, column, begin, length) : findNumber(unit, start, column, begin, length);
}

bool FPointedNumber::findNumber(int unit, int start, int& column, int& begin, int& length) const {
    FLineNumbers numbers(mText, start);
    for (column = 0; column < mostColumns; ++column) {
        const FTextRange number = numbers.next();
        if (number.length == 0 || number.begin > unit) {
            return false;
        }
        if (unit < number.end()) {
            begin = number.begin;
            length = number.length;
            bool isNumber = false;
            mText.midRef(begin, length).toDouble(&isNumber);
            return isNumber;
        }
    }
    return false;
}

bool FPointedNumber::findColumn(int unit, int start, int& column, int& begin, int& length) const {
    const QString rest = mText.mid(start);
    FSeparatorWalk walk(*mSeparator, rest);
    for (column = 0; column < mostColumns; ++column) {
        const int match = walk.next();
        begin = start + walk.start();
        length = start + (match < 0 ? rest.size() : match) - begin;
        if (begin > unit) {
            return false;
        }
        if (unit < begin + length) {
            bool isNumber = false;
            mText.midRef(begin, length).toDouble(&isNumber);
            return isNumber;
        }
        if (match < 0 || !walk.pass(1)) {
            return false;
        }
    }
    return false;
}

FPointedNumber FPointedNumber::base() const {
    FPointedNumber base = *this;
    FLineNumbers numbers(mText, skipBlanks(mText, 0));
    for (int column = 0; !mSeparator && column < mostColumns; ++column) {
        const FTextRange number = numbers.next();
        if (number.length == 0 || number.begin >= mStart) {
            break;
        }
        if (mStart - number.end() < longestExponent && mStart < endWithExponent(number)) {
            base.mStart = number.begin;
            base.mLength = number.length;
            break;
        }
    }
    return base;
}

int FPointedNumber::endWithExponent(FTextRange number) const {
    const QByteArray text = mText.mid(number.begin, number.length + longestExponent).toUtf8();
    const int size = mText.midRef(number.begin, number.length).toUtf8().size();
    const qint64 end = FSuspicion::exponentEnd({text.constData(), static_cast<std::size_t>(text.size())}, {0, size});
    return number.begin + QString::fromUtf8(text.left(static_cast<int>(end))).size();
}

QString FPointedNumber::textBefore() const {
    const QByteArray before = mText.left(mStart).toUtf8();
    const std::string_view text(before.constData(), static_cast<std::size_t>(before.size()));
    qint64 begin = 0;
    for (FByteRange number = FNumberPattern::next(text, 0); number.begin >= 0;
         number = FNumberPattern::next(text, number.end)) {
        begin = isInWord(before, static_cast<int>(number.begin)) ? begin : number.end;
    }
    return FUtf8::decode(text.substr(static_cast<std::size_t>(begin)));
}

int FPointedNumber::columnFrom(int start) const {
    int column = 0;
    int begin = 0;
    int length = 0;
    const bool isFound = start <= mStart && find(mStart, skipBlanks(mText, start), column, begin, length);
    return isFound && begin == mStart && length == mLength ? column : -1;
}
