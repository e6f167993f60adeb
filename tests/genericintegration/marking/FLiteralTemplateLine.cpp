#include "FLiteralTemplateLine.h"

#include <cmath>
#include <limits>

using Kind = FTemplateSpan::Kind;

FLiteralTemplateLine::FLiteralTemplateLine(const QString& line, const QStringList& names, FTemplateLine::Mode mode,
                                           const QRegExp& search)
    : text(line) {
    if (line.size() > FTemplateLine::longest) {
        return;
    }
    passTags();
    passNames(names);
    if (mode == FTemplateLine::Mode::Assisted) {
        passNumbers();
        passElements();
    }
    passSearch(search);
}

void FLiteralTemplateLine::passTags() {
    const QRegExp marker("<\\/?entry>");
    int pos = marker.indexIn(text);
    while (pos >= 0) {
        const int len = marker.matchedLength();
        const bool closing = marker.cap().contains("/");
        Kind kind = Kind::TagError;
        if (!closing && closed) {
            kind = Kind::Tag;
            closed = false;
            regions.regionStarts.append(pos);
        } else if (closing && !closed) {
            kind = Kind::Tag;
            closed = true;
            regions.regionEnds.append(pos + len);
            regions.texts.append(text.mid(regions.regionStarts.last(), pos + len - regions.regionStarts.last()));
            regions.values.append(std::numeric_limits<double>::quiet_NaN());
            regions.possibleValues.append(false);
        }
        paint(kind, pos, len);
        const int next = marker.indexIn(text, pos + len);
        const bool endsOpen = next < 0 && regions.regionStarts.size() != regions.regionEnds.size();
        const bool opensAgain = next >= 0 && !closed && !marker.cap().contains("/");
        if (endsOpen || opensAgain) {
            paint(Kind::ErrorText, pos + len, (next < 0 ? text.size() : next) - pos - len);
        }
        pos = next;
    }
}

void FLiteralTemplateLine::passNames(const QStringList& names) {
    int pos = tag.indexIn(text);
    while (pos >= 0) {
        const int start = pos + 7;
        const int length = tag.matchedLength() - 15;
        const QString name = text.mid(start, length);
        regions.valueStarts.append(start);
        regions.names.append(name);
        paint(names.contains(name, Qt::CaseInsensitive) ? Kind::Known : Kind::Unknown, start, length);
        pos = tag.indexIn(text, start + length);
    }
}

void FLiteralTemplateLine::passNumbers() {
    const QRegExp separator("[\\s\\:\\=\\#\\,\\;\\[\\]\\(\\)\\{\\}\\\"]+");
    const QRegExp noNumber("[^\\-\\+\\d\\.eE]");
    const auto endFrom = [&](int start) {
        const int found = noNumber.indexIn(text, start);
        return found < 0 ? text.size() : found;
    };
    int pos = 0;
    int e = endFrom(0);
    bool ok = false;
    double number = text.left(e).toDouble(&ok);
    if (ok) {
        regions.appendNumber(0, e, 0, "", number, text.left(e));
        paint(Kind::Possible, 0, e);
        pos = e;
    }
    int sep = separator.indexIn(text, pos);
    while (sep >= 0) {
        const int vs = sep + separator.matchedLength();
        for (int at = tag.indexIn(text, pos); at >= 0 && at + tag.matchedLength() <= sep; at = tag.indexIn(text, pos)) {
            pos = at + tag.matchedLength();
        }
        e = endFrom(vs);
        number = text.mid(vs, e - vs).toDouble(&ok);
        if (ok) {
            const QString key = text.mid(pos, sep - pos);
            const int start = key.isEmpty() ? vs : pos;
            regions.appendNumber(start, e, vs, key, number, text.mid(start, e - start));
            paint(Kind::Possible, start, e - start);
            pos = e;
        } else {
            pos = vs;
        }
        sep = separator.indexIn(text, pos);
    }
}

void FLiteralTemplateLine::passElements() {
    const QRegExp open("\\<");
    const QRegExp close("\\>");
    QString tagName;
    QString key;
    int p = 0;
    for (;;) {
        if (!tagName.isEmpty()) {
            const int c = text.indexOf("</" + tagName, p);
            if (c >= 0) {
                const int g = close.indexIn(text) + 1;
                const QString content = g < c ? text.mid(g, c - g) : QString();
                p = c;
                bool ok = false;
                const double number = content.toDouble(&ok);
                if (ok) {
                    regions.appendNumber(g, c, g, key, number, content);
                    paint(Kind::Possible, g, c - g);
                }
            }
            ++p;
            tagName.clear();
            continue;
        }
        const int lt = p > text.size() ? -1 : open.indexIn(text, p);
        if (lt < 0) {
            return;
        }
        if (tag.indexIn(text, lt) == 0) {
            p += tag.matchedLength() + 1;
            continue;
        }
        const int ne = QRegExp("[ \\>]").indexIn(text, lt + 1);
        const int gt = ne < 0 ? -1 : close.indexIn(text, ne);
        if (gt < 0) {
            return;
        }
        tagName = text.mid(lt + 1, ne - lt - 1);
        p = gt + 1;
        if (tagName.startsWith("/")) {
            tagName.clear();
            continue;
        }
        key = attributeKey(tagName, p);
    }
}

QString FLiteralTemplateLine::attributeKey(const QString& tagName, int position) const {
    const QString searched = closed ? text.mid(1, position) : text.left(position + 1);
    for (const char* const attribute : {"name=", "title=", "id="}) {
        const int place = searched.indexOf(attribute);
        if (place < 0) {
            continue;
        }
        const int s = searched.indexOf("=", place) + 1;
        const int q = searched.indexOf("\"", s);
        const int end = q >= 0 ? searched.indexOf("\"", q + 1) : QRegExp("[ \\/\\>]").indexIn(searched, s);
        if (end < 0) {
            return tagName;
        }
        return searched.mid(s, end - s).remove(QRegExp("^\"+")).remove(QRegExp("\"+$"));
    }
    return tagName;
}

void FLiteralTemplateLine::passSearch(const QRegExp& search) {
    int start = search.isEmpty() ? -1 : search.indexIn(text);
    while (start >= 0) {
        const int length = search.matchedLength();
        paint(Kind::Match, start, length);
        const int after = start + qMax(length, 1);
        start = after > text.size() ? -1 : search.indexIn(text, after);
    }
}

void FLiteralTemplateLine::paint(Kind kind, int start, int length) {
    if (length > 0) {
        spans.push_back({kind, start, length});
    }
}

QString FLiteralTemplateLine::difference(const FTemplateLine& other) const {
    const FTemplateRegions& its = other.regions();
    if (other.spans() != spans) {
        return "the spans differ";
    }
    if (its.regionStarts != regions.regionStarts || its.regionEnds != regions.regionEnds ||
        its.valueStarts != regions.valueStarts) {
        return "the places differ";
    }
    if (its.names != regions.names || its.texts != regions.texts || its.possibleValues != regions.possibleValues) {
        return "the names differ: " + its.names.join('|') + " instead of " + regions.names.join('|');
    }
    const auto same = [](double left, double right) {
        return left == right || (std::isnan(left) && std::isnan(right));
    };
    return std::equal(its.values.begin(), its.values.end(), regions.values.begin(), regions.values.end(), same)
               ? QString()
               : "the values differ";
}
