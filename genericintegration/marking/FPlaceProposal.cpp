#include "genericintegration/marking/FPlaceProposal.h"

#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/marking/FColumnHeading.h"
#include "genericintegration/marking/FEntryNameProposal.h"
#include "genericintegration/marking/FLineNumbers.h"
#include "genericintegration/marking/FPointedNumber.h"
#include "genericintegration/marking/FResultSample.h"
#include "host/run/FUtf8.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int longestAnchor = 60;
constexpr int mostLinesAbove = 40;
/** The greatest line and column that the form of an editor offers. */
constexpr qint64 greatestLine = 9999;

bool isWordChar(QChar c) {
    return c.isLetter();
}

QString withoutUnderscores(QString name) {
    while (name.startsWith(u'_')) {
        name.remove(0, 1);
    }
    while (name.endsWith(u'_')) {
        name.chop(1);
    }
    return name;
}

/** A text of a line that can be an anchor, or nothing: it has a letter, no tab, and ends at a word. */
FTextRange anchorIn(const QString& line, int begin, int end) {
    const auto isUnfit = [](QChar c) { return c.isSpace() || c == u',' || c == u';' || c == u')' || c == u'|'; };
    while (begin < end && isUnfit(line[begin])) {
        ++begin;
    }
    const int tab = line.indexOf(u'\t', begin);
    end = tab >= 0 && tab < end ? tab : end;
    if (end - begin > longestAnchor) {
        const int blank = line.lastIndexOf(u' ', begin + longestAnchor);
        end = blank > begin ? blank : begin + longestAnchor;
    }
    while (end > begin && line[end - 1].isSpace()) {
        --end;
    }
    const QString text = line.mid(begin, end - begin);
    return std::any_of(text.begin(), text.end(), &isWordChar) ? FTextRange{begin, end - begin} : FTextRange{};
}

/** End of the text of a line before its first number; digits within a word don't count. */
int labelEnd(const QString& line) {
    QRegExp pattern = FNumberPattern::pattern();
    int place = pattern.indexIn(line);
    while (place > 0 && line[place - 1].isLetter()) {
        place = pattern.indexIn(line, place + std::max(pattern.matchedLength(), 1));
    }
    return place < 0 ? line.size() : place;
}

/** The last text with a word before a place of a line and between its numbers; the letter of an exponent is none. */
FTextRange lastWords(const QString& line, int end) {
    const auto hasWord = [](const QString& text) {
        const auto isPair = [](QChar a, QChar b) { return a.isLetter() && b.isLetter(); };
        return std::adjacent_find(text.begin(), text.end(), isPair) != text.end();
    };
    FTextRange words;
    FLineNumbers numbers(line);
    for (int begin = 0; begin < end;) {
        const FTextRange number = numbers.next();
        const int next = number.length > 0 ? std::min(number.begin, end) : end;
        words = hasWord(line.mid(begin, next - begin)) ? FTextRange{begin, next - begin} : words;
        begin = number.length > 0 ? number.end() : end;
    }
    return words;
}

/** Looks for a text from which the number can be counted. */
class FAnchorChoice {
 public:
    FAnchorChoice(const FResultSample& sample, const FSeparatorSettings& separators, const FPointedNumber& number)
        : mSample(sample), mSeparators(separators), mNumber(number), mHeading(sample, number) {}

    std::optional<FPlaceProposal> choose() {
        collect();
        std::vector<QString> texts;
        std::transform(mCandidates.begin(), mCandidates.end(), std::back_inserter(texts),
                       [](const Candidate& candidate) { return candidate.text; });
        const std::vector<FAnchorPlaces> places = FAnchorSearch(texts).findInTrimmed(mSample.text());
        std::vector<Rank> ranks;
        std::transform(
            mCandidates.begin(), mCandidates.end(), places.begin(), std::back_inserter(ranks),
            [](const Candidate& candidate, const FAnchorPlaces& found) { return rankOf(candidate.offset, found); });
        // In the number's line, one that is there once tells the place best; of a repeated one, most likely the last
        // is meant. Above it, the nearest one belongs to the number.
        for (const Rank rank : {Rank::Only, Rank::Last, Rank::First}) {
            for (std::size_t i = 0; i < mCandidates.size(); ++i) {
                const bool isWanted = mCandidates[i].line == mNumber.line() && ranks[i] == rank;
                if (auto proposal = isWanted ? counted(mCandidates[i], rank) : std::nullopt) {
                    return proposal;
                }
            }
        }
        for (std::size_t i = 0; i < mCandidates.size(); ++i) {
            const bool isWanted = mCandidates[i].line != mNumber.line() && ranks[i] != Rank::None;
            if (auto proposal = isWanted ? counted(mCandidates[i], ranks[i]) : std::nullopt) {
                return proposal;
            }
        }
        return withoutAnchor();
    }

    std::optional<FPlaceProposal> from(FTextRange anchor) {
        const qint64 offset = mSample.offsetAt(anchor.begin);
        const FTextIndex& index = mSample.text().index();
        const auto size = static_cast<std::size_t>(mSample.offsetAt(anchor.end()) - offset);
        const QString text = FUtf8::decode(mSample.text().text().substr(static_cast<std::size_t>(offset), size));
        const Candidate candidate{text, index.lineAt(offset),
                                  static_cast<int>(index.utf16At(offset) - index.utf16At(index.lineBegin(offset))),
                                  offset};
        const Rank rank = rankOf(offset, FAnchorSearch({text}).findInTrimmed(mSample.text()).front());
        return rank == Rank::None ? std::nullopt : counted(candidate, rank);
    }

 private:
    struct Candidate {
        QString text;
        qint64 line;
        int start;      //!< in the line, in UTF-16 units
        qint64 offset;  //!< in the text
    };
    enum class Rank { Only, Last, First, None };

    static Rank rankOf(qint64 offset, const FAnchorPlaces& places) {
        const bool isFirst = places.first.begin == offset;
        const bool isLast = places.last.begin == offset;
        return isFirst && isLast ? Rank::Only : isLast ? Rank::Last : isFirst ? Rank::First : Rank::None;
    }

    void collect() {
        const QString& line = mNumber.lineText();
        const QString nearest = mNumber.textBefore();
        add(line, mNumber.line(), mNumber.start() - nearest.size(), mNumber.start());
        add(line, mNumber.line(), 0, std::min(labelEnd(line), mNumber.start()));
        const FTextRange words = lastWords(line, mNumber.start());
        if (words.begin > 0 && words.end() < mNumber.start()) {
            add(line, mNumber.line(), words.begin, words.end());
        }
        for (qint64 above = mNumber.line() - 1; above >= std::max<qint64>(mNumber.line() - mostLinesAbove, 0);
             --above) {
            const QString text = mSample.lineRead(above);
            add(text, above, 0, labelEnd(text));
        }
    }

    void add(const QString& line, qint64 number, int begin, int end) {
        const FTextRange range = anchorIn(line, begin, end);
        if (range.length > 0) {
            const FTextIndex& index = mSample.text().index();
            const qint64 unit = index.utf16At(index.lineStart(number)) + range.begin;
            mCandidates.push_back(
                {line.mid(range.begin, range.length), number, range.begin, index.offsetOfUtf16(unit)});
        }
    }

    std::optional<FPlaceProposal> counted(const Candidate& anchor, Rank rank) {
        FValueDescription value;
        value.line = static_cast<int>(mNumber.line() - anchor.line);
        value.column = mNumber.columnFrom(value.line == 0 ? anchor.start + anchor.text.size() : 0);
        value.anchor = {anchor.text, rank == Rank::Last ? FAnchorOccurrence::Last : FAnchorOccurrence::First};
        value.name = nameFromColumn();
        if (value.name.isEmpty() && anchor.line != mNumber.line()) {
            value.name = nameFrom(mHeading.inLine(anchor.line));
        }
        value.name = value.name.isEmpty() ? nameFrom(anchor.text) : value.name;
        return verified(value);
    }

    std::optional<FPlaceProposal> withoutAnchor() {
        const FResultText& text = mSample.text();
        const qint64 behindLast = text.index().lineAt(text.trimmedSize()) + 1;
        const bool isFar = mNumber.line() > greatestLine && behindLast - mNumber.line() <= greatestLine;
        FValueDescription value;
        value.column = mNumber.columnFrom(0);
        value.name = nameFromColumn();
        for (const bool fromEnd : {isFar, false}) {
            value.line = static_cast<int>(fromEnd ? mNumber.line() - behindLast : mNumber.line());
            if (auto proposal = verified(value)) {
                return proposal;
            }
        }
        return {};
    }

    /** From what is on top of its column, else before the number; may be empty. */
    QString nameFromColumn() const {
        const QString onTop = nameFrom(mHeading.onTop());
        return onTop.isEmpty() ? nameFrom(mNumber.textBefore()) : onTop;
    }

    static QString nameFrom(const QString& text) {
        return withoutUnderscores(FEntryNameProposal(text.trimmed(), QString()).name);
    }

    std::optional<FPlaceProposal> verified(const FValueDescription& value) const {
        if (value.column < 0) {
            return {};
        }
        const FFoundValue found = mSample.read(value, mSeparators);
        const int length = found.textIn(mSample.text()).size();
        const bool isIt =
            found.line == mNumber.line() + 1 && found.column == mNumber.start() + 1 && length == mNumber.length();
        if (!isIt) {
            return {};
        }
        return FPlaceProposal{value, mSample.rangeOf(found.line, found.column, length)};
    }

    const FResultSample& mSample;
    const FSeparatorSettings& mSeparators;
    const FPointedNumber& mNumber;
    FColumnHeading mHeading;
    std::vector<Candidate> mCandidates;
};

}  // namespace

std::optional<FPlaceProposal> FPlaceProposal::at(const FResultSample& sample, const FSeparatorSettings& separators,
                                                 int position) {
    const std::optional<FPointedNumber> number = FPointedNumber::at(sample, separators, position);
    return number ? FAnchorChoice(sample, separators, number->base()).choose() : std::nullopt;
}

std::optional<FPlaceProposal> FPlaceProposal::from(const FResultSample& sample, const FSeparatorSettings& separators,
                                                   int number, FTextRange anchor) {
    const std::optional<FPointedNumber> pointed = FPointedNumber::at(sample, separators, number);
    return pointed ? FAnchorChoice(sample, separators, *pointed).from(anchor) : std::nullopt;
}
