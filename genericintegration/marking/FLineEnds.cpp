#include "genericintegration/marking/FLineEnds.h"

#include "genericintegration/marking/FDocumentLineEnd.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace FLineEnds {
namespace {

bool cutsPair(QStringView text, int place) {
    return place > 0 && place < text.size() && text[place - 1].isHighSurrogate() && text[place].isLowSurrogate();
}

/** A place in both texts. */
struct FPlaces {
    int text;
    int document;
};

FPlaces commonStart(QStringView text, QStringView document) {
    FPlaces at{0, 0};
    while (at.text < text.size() && at.document < document.size()) {
        if (text[at.text] == document[at.document] && !FDocumentLineEnd::isPart(text[at.text])) {
            ++at.text;
            ++at.document;
            continue;
        }
        const FPlaces length{FDocumentLineEnd::lengthAt(text, at.text),
                             FDocumentLineEnd::lengthAt(document, at.document)};
        if (length.text == 0 || length.document == 0) {
            break;
        }
        at.text += length.text;
        at.document += length.document;
    }
    if (cutsPair(text, at.text) || cutsPair(document, at.document)) {
        --at.text;
        --at.document;
    }
    return at;
}

FPlaces commonEnd(QStringView text, QStringView document, FPlaces start) {
    FPlaces at{static_cast<int>(text.size()), static_cast<int>(document.size())};
    while (at.text > start.text && at.document > start.document) {
        if (text[at.text - 1] == document[at.document - 1] && !FDocumentLineEnd::isPart(text[at.text - 1])) {
            --at.text;
            --at.document;
            continue;
        }
        const FPlaces length{FDocumentLineEnd::lengthBefore(text, at.text),
                             FDocumentLineEnd::lengthBefore(document, at.document)};
        if (length.text == 0 || length.document == 0) {
            break;
        }
        at.text -= length.text;
        at.document -= length.document;
    }
    if (cutsPair(text, at.text) || cutsPair(document, at.document)) {
        ++at.text;
        ++at.document;
    }
    return at;
}

std::vector<QStringView> endsOf(QStringView text) {
    std::vector<QStringView> ends;
    for (int place = 0; place < text.size();) {
        const int length = FDocumentLineEnd::lengthAt(text, place);
        if (length > 0) {
            ends.push_back(text.mid(place, length));
        }
        place += std::max(length, 1);
    }
    return ends;
}

QStringView prevailingEnd(QStringView text) {
    std::array<std::pair<QStringView, int>, 3> counts{{{u"\n", 0}, {u"\r\n", 0}, {u"\r", 0}}};
    for (int place = 0; place < text.size();) {
        const int length = FDocumentLineEnd::lengthAt(text, place);
        for (auto& [end, count] : counts) {
            count += length > 0 && text.mid(place, length) == end ? 1 : 0;
        }
        place += std::max(length, 1);
    }
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& left, const auto& right) { return left.second < right.second; });
    return most->first;
}

/** Positions count each line end as one: those of CR LF that are within a text. */
int joinedIn(QStringView text) {
    int joined = 0;
    for (qsizetype place = text.indexOf(u'\r'); place >= 0; place = text.indexOf(u'\r', place + 1)) {
        joined += FDocumentLineEnd::lengthAt(text, place) - 1;
    }
    return joined;
}

/** The change of all that is between what is common at the start and at the end. */
FTextReplacement wholeChange(QStringView document, QStringView text) {
    const FPlaces start = commonStart(text, document);
    const FPlaces end = commonEnd(text, document, start);
    const QStringView removed = document.mid(start.document, end.document - start.document);
    return {start.document - joinedIn(document.left(start.document)),
            static_cast<int>(removed.size()) - joinedIn(removed),
            text.mid(start.text, end.text - start.text).toString()};
}

/** Goes through the lines of a document and of a text that may have other line ends, as long as their number is equal.
 */
class FLineWalk {
 public:
    FLineWalk(QStringView document, QStringView text) : mDocument(document), mText(text) {}

    /** Goes to the next line that isn't the same in both; false if there is none. */
    bool skipSame() {
        if (mHasEnded) {
            return false;
        }
        int same = sameLength();
        if (mAt.document + same == mDocument.size() && mAt.text + same == mText.size()) {
            return false;
        }
        // Back to the start of the line. CR before LF in one of both is no line end of its own.
        const auto isLineStart = [this](int length) {
            const QChar before = mText[mAt.text + length - 1];
            return FDocumentLineEnd::isPart(before) &&
                   !(before == u'\r' && (isFeed(mText, mAt.text + length) || isFeed(mDocument, mAt.document + length)));
        };
        while (same > 0 && !isLineStart(same)) {
            --same;
        }
        advance({same, same});
        return true;
    }

    /** Passes a line with its end; gives the change of what is in it. */
    std::optional<FTextReplacement> passLine() {
        const QStringView old = lineAt(mDocument, mAt.document);
        const QStringView line = lineAt(mText, mAt.text);
        std::optional<FTextReplacement> change;
        if (line != old) {
            const FPlaces first = commonStart(line, old);
            const FPlaces last = commonEnd(line, old, first);
            change = {mAt.document - mJoined + first.document, last.document - first.document,
                      line.mid(first.text, last.text - first.text).toString()};
        }
        advance({static_cast<int>(line.size()), static_cast<int>(old.size())});
        const FPlaces end{mAt.text < mText.size() ? FDocumentLineEnd::lengthAt(mText, mAt.text) : 0,
                          mAt.document < mDocument.size() ? FDocumentLineEnd::lengthAt(mDocument, mAt.document) : 0};
        mHasOtherLines = (end.text == 0) != (end.document == 0);
        mHasEnded = end.text == 0;
        advance(end);
        return change;
    }

    /** Whether one of both has ended before the other. */
    bool hasOtherLines() const { return mHasOtherLines; }

 private:
    static bool isFeed(QStringView text, int place) { return place < text.size() && text[place] == u'\n'; }

    static QStringView lineAt(QStringView text, int start) {
        const QChar* end = std::find_if(text.begin() + start, text.end(), &FDocumentLineEnd::isPart);
        return {text.begin() + start, end};
    }

    int sameLength() const {
        const QStringView document = mDocument.mid(mAt.document);
        const QStringView text = mText.mid(mAt.text);
        const auto most = static_cast<int>(std::min(document.size(), text.size()));
        int same = 0;
        // Equal memory is passed much faster than equal characters.
        constexpr int chunk = 512;
        while (same + chunk <= most &&
               std::memcmp(document.data() + same, text.data() + same, chunk * sizeof(QChar)) == 0) {
            same += chunk;
        }
        while (same < most && document[same] == text[same]) {
            ++same;
        }
        return same;
    }

    void advance(FPlaces by) {
        mJoined += joinedIn(mDocument.mid(mAt.document, by.document));
        mAt.text += by.text;
        mAt.document += by.document;
    }

    QStringView mDocument;
    QStringView mText;
    FPlaces mAt{0, 0};
    int mJoined = 0;  //!< of the document, before the place
    bool mHasEnded = false;
    bool mHasOtherLines = false;
};

/** Puts together what is inserted after a part of the text that stays. */
class FInsertion {
 public:
    explicit FInsertion(QStringView before) : mLast(before.isEmpty() ? QChar() : before.last()) {}

    void append(QStringView piece) {
        // CR before LF would be one line end.
        if (mLast == u'\r' && piece.startsWith(u'\n')) {
            mText.append(u'\n');
        }
        mText.append(piece);
        mLast = piece.isEmpty() ? mLast : piece.last();
    }

    QString followedBy(QStringView after) {
        append(after.left(1));
        mText.chop(static_cast<int>(after.left(1).size()));
        return mText;
    }

 private:
    QString mText;
    QChar mLast;
};

}  // namespace

FTextReplacement change(const QString& text, const QString& document) {
    const QStringView old(text);
    const QStringView lines(document);
    const FPlaces start = commonStart(old, lines);
    const FPlaces end = commonEnd(old, lines, start);
    const QStringView edited = lines.mid(start.document, end.document - start.document);
    const std::vector<QStringView> editedEnds = endsOf(edited);
    std::vector<QStringView> ends = endsOf(old.mid(start.text, end.text - start.text));
    if (ends.size() != editedEnds.size()) {
        ends.assign(editedEnds.size(), prevailingEnd(old));
    }
    FInsertion insertion(old.left(start.text));
    const QChar* from = edited.begin();
    for (std::size_t i = 0; i < ends.size(); ++i) {
        insertion.append({from, editedEnds[i].begin()});
        insertion.append(ends[i]);
        from = editedEnds[i].end();
    }
    insertion.append({from, edited.end()});
    return {start.text, end.text - start.text, insertion.followedBy(old.mid(end.text))};
}

std::vector<FTextReplacement> changesOfDocument(const QString& document, const QString& text) {
    FLineWalk walk(document, text);
    std::vector<FTextReplacement> changes;
    while (walk.skipSame()) {
        if (auto change = walk.passLine()) {
            changes.push_back(*change);
        }
        if (walk.hasOtherLines() || changes.size() > mostChanges) {
            return {wholeChange(document, text)};
        }
    }
    return changes;
}

}  // namespace FLineEnds
