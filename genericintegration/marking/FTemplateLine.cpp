#include "genericintegration/marking/FTemplateLine.h"

#include "genericintegration/marking/FFoldedNames.h"
#include "genericintegration/marking/FLineCharacters.h"
#include "genericintegration/templates/FTemplateTags.h"

#include <algorithm>
#include <limits>

using namespace FLineCharacters;
using Kind = FTemplateSpan::Kind;

FTemplateLine::FTemplateLine(const QString& text, const FFoldedNames& names, Mode mode, const QRegExp& search)
    : mText(text) {
    if (text.size() > longest) {
        return;
    }
    findMarkers();
    colourMarkers();
    colourNames(names);
    if (mode == Mode::Assisted) {
        findNumbers();
        findElement();
    }
    colourMatches(search);
}

template <class IsKind>
int FTemplateLine::find(int start, IsKind isKind, bool wanted) const {
    const auto found = std::find_if(mText.cbegin() + start, mText.cend(), [&](QChar c) { return isKind(c) == wanted; });
    return static_cast<int>(found - mText.cbegin());
}

void FTemplateLine::findMarkers() {
    for (int start = mText.indexOf(u'<'); start >= 0; start = mText.indexOf(u'<', start + 1)) {
        for (const QStringView marker : {FTemplateTags::openingMarker, FTemplateTags::closingMarker}) {
            if (QStringView(mText).mid(start).startsWith(marker)) {
                mMarkers.push_back({start, start + static_cast<int>(marker.size()), marker.at(1) == u'/'});
            }
        }
    }
}

void FTemplateLine::colourMarkers() {
    for (std::size_t i = 0; i < mMarkers.size(); ++i) {
        const Marker& marker = mMarkers[i];
        const bool isInPlace = marker.isClosing == mIsOpen;
        colour(isInPlace ? Kind::Tag : Kind::TagError, marker.start, marker.end);
        if (isInPlace && marker.isClosing) {
            appendTag(marker);
        } else if (isInPlace) {
            mRegions.regionStarts.append(marker.start);
        }
        mIsOpen = isInPlace ? !marker.isClosing : mIsOpen;
        const bool isLast = i + 1 == mMarkers.size();
        if (mIsOpen && (isLast || !mMarkers[i + 1].isClosing)) {
            colour(Kind::ErrorText, marker.end, isLast ? mText.size() : mMarkers[i + 1].start);
        }
    }
}

void FTemplateLine::appendTag(const Marker& closing) {
    const int start = mRegions.regionStarts.last();
    mRegions.regionEnds.append(closing.end);
    mRegions.texts.append(mText.mid(start, closing.end - start));
    mRegions.values.append(std::numeric_limits<double>::quiet_NaN());
    mRegions.possibleValues.append(false);
}

// Unlike the markers above, these needn't be in place: the innermost ones count.
void FTemplateLine::colourNames(const FFoldedNames& names) {
    for (std::size_t i = 0; i + 1 < mMarkers.size(); ++i) {
        const Marker& opening = mMarkers[i];
        const Marker& closing = mMarkers[i + 1];
        const bool isTag = !opening.isClosing && closing.isClosing;
        if (!isTag || find(opening.end, isNamePart, false) != closing.start) {
            continue;
        }
        const QString name = mText.mid(opening.end, closing.start - opening.end);
        mTags.push_back({opening.start, closing.end});
        mRegions.valueStarts.append(opening.end);
        mRegions.names.append(name);
        colour(names.contains(name) ? Kind::Known : Kind::Unknown, opening.end, closing.start);
    }
}

void FTemplateLine::findNumbers() {
    int keyStart = findLeadingNumber();
    auto tag = mTags.cbegin();
    for (int separator = find(keyStart, isSeparator, true); separator < mText.size();
         separator = find(keyStart, isSeparator, true)) {
        for (; tag != mTags.cend() && tag->end <= separator; ++tag) {
            keyStart = std::max(keyStart, tag->end);
        }
        const int start = find(separator, isSeparator, false);
        const int end = find(start, isNumberPart, false);
        if (const std::optional<double> number = numberIn(start, end)) {
            const QString key = mText.mid(keyStart, separator - keyStart);
            appendNumber(key.isEmpty() ? start : keyStart, start, end, key, *number);
            keyStart = end;
        } else {
            keyStart = start;
        }
    }
}

// Returns its end, or 0.
int FTemplateLine::findLeadingNumber() {
    const int end = find(0, isNumberPart, false);
    const std::optional<double> number = numberIn(0, end);
    if (!number) {
        return 0;
    }
    appendNumber(0, 0, end, QString(), *number);
    return end;
}

// The content begins after the first ">" of the line, so that only its first element can contain just a number.
void FTemplateLine::findElement() {
    const int start = mText.indexOf(u'<');
    const int close = mText.indexOf(u'>');
    const bool startsWithTag = !mTags.empty() && mTags.front().start == 0;
    if (start < 0 || close < start || startsWithTag) {
        return;
    }
    const int nameEnd = find(
        start + 1, [](QChar c) { return c == u' ' || c == u'>'; }, true);
    const QString tagName = mText.mid(start + 1, nameEnd - start - 1);
    if (tagName.isEmpty() || tagName.startsWith(u'/')) {
        return;
    }
    const int end = mText.indexOf(QStringLiteral("</") + tagName, close + 1);
    if (const std::optional<double> number = numberIn(close + 1, end)) {
        appendNumber(close + 1, close + 1, end, keyOfElement(tagName, close + 1), *number);
    }
}

// The attribute is looked for from the second character of the line; an earlier one than the element's own wins.
QString FTemplateLine::keyOfElement(const QString& tagName, int contentStart) const {
    const int start = mIsOpen ? 0 : 1;
    const QString searched = mText.mid(start, contentStart - start + 1);
    int place = -1;
    for (const QLatin1String attribute : {QLatin1String("name="), QLatin1String("title="), QLatin1String("id=")}) {
        if (place < 0) {
            place = searched.indexOf(attribute);
        }
    }
    if (place < 0) {
        return tagName;
    }
    const int valueStart = searched.indexOf(u'=', place) + 1;
    const int quote = searched.indexOf(u'"', valueStart);
    int end = quote < 0 ? valueStart : searched.indexOf(u'"', quote + 1);
    if (end < 0) {
        return tagName;
    }
    // The ">" of the element follows.
    while (quote < 0 && searched[end] != u' ' && searched[end] != u'/' && searched[end] != u'>') {
        ++end;
    }
    QStringView key = QStringView(searched).mid(valueStart, end - valueStart);
    while (key.startsWith(u'"')) {
        key = key.mid(1);
    }
    while (key.endsWith(u'"')) {
        key.chop(1);
    }
    return key.toString();
}

void FTemplateLine::colourMatches(const QRegExp& search) {
    if (search.isEmpty()) {
        return;
    }
    int start = 0;
    while (start <= mText.size() && (start = search.indexIn(mText, start)) >= 0) {
        const int length = search.matchedLength();
        colour(Kind::Match, start, start + length);
        start += std::max(length, 1);
    }
}

void FTemplateLine::colour(Kind kind, int start, int end) {
    if (end > start) {
        mSpans.push_back({kind, start, end - start});
    }
}

void FTemplateLine::appendNumber(int start, int valueStart, int end, const QString& name, double value) {
    mRegions.appendNumber(start, end, valueStart, name, value, mText.mid(start, end - start));
    colour(Kind::Possible, start, end);
}

std::optional<double> FTemplateLine::numberIn(int start, int end) const {
    if (end <= start) {
        return {};
    }
    bool isNumber = false;
    const double number = mText.midRef(start, end - start).toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}
