#include "genericintegration/marking/FLineEnds.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "genericintegration/marking/FDocumentLineEnd.h"

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

std::vector<QStringView> linesOf(QStringView text) {
    std::vector<QStringView> lines;
    const QChar* start = text.begin();
    for (const QStringView end : endsOf(text)) {
        lines.emplace_back(start, end.begin());
        start = end.end();
    }
    lines.emplace_back(start, text.end());
    return lines;
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

    QString followedBy(QStringView behind) {
        append(behind.left(1));
        mText.chop(static_cast<int>(behind.left(1).size()));
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
    const FPlaces start = commonStart(text, document);
    const FPlaces end = commonEnd(text, document, start);
    const QStringView old = QStringView(document).mid(start.document, end.document - start.document);
    const QStringView fresh = QStringView(text).mid(start.text, end.text - start.text);
    if (old.isEmpty() && fresh.isEmpty()) {
        return {};
    }
    const std::vector<QStringView> oldLines = linesOf(old);
    const std::vector<QStringView> lines = linesOf(fresh);
    if (lines.size() != oldLines.size()) {
        return {{start.document, static_cast<int>(old.size()), fresh.toString()}};
    }
    std::vector<FTextReplacement> changes;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] != oldLines[i]) {
            const FPlaces first = commonStart(lines[i], oldLines[i]);
            const FPlaces last = commonEnd(lines[i], oldLines[i], first);
            const auto line = static_cast<int>(oldLines[i].begin() - QStringView(document).begin());
            changes.push_back({line + first.document, last.document - first.document,
                               lines[i].mid(first.text, last.text - first.text).toString()});
        }
    }
    return changes;
}

}  // namespace FLineEnds
