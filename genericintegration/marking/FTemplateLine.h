#pragma once

#include "genericintegration/marking/FTemplateRegions.h"
#include "genericintegration/marking/FTemplateSpan.h"

#include <QRegExp>
#include <QString>

#include <optional>
#include <vector>

class FFoldedNames;

/**
 * Analyses one line of an input template: which parts to colour, and what the line offers. Equal arguments give equal
 * results; no state passes from one line to the next. Apart from the search, the time is linear in the line.
 *
 * A number is found after separators, with the word before them as its key, and as the content of an XML element, with
 * the element's name or an attribute as its key. Such a number can be found in both ways.
 */
class FTemplateLine {
 public:
    enum class Mode {
        Assisted,
        Plain,  //!< finds no numbers; what the line offers is then incomplete and not to be shown
    };

    /** Longest line that is analysed, in UTF-16 units; a longer one has no spans and offers nothing. */
    static constexpr int longest = 20000;

    /** @param search  what the user looks for; empty for nothing */
    FTemplateLine(const QString& text, const FFoldedNames& names, Mode mode, const QRegExp& search = QRegExp());

    /** In the order of painting: a later span covers an earlier one. None is empty. */
    const std::vector<FTemplateSpan>& spans() const { return mSpans; }
    const FTemplateRegions& regions() const { return mRegions; }

 private:
    /** "<entry>" or "</entry>". */
    struct Marker {
        int start;
        int end;
        bool isClosing;
    };
    /** A whole tag whose name has only usual characters. */
    struct Tag {
        int start;
        int end;
    };

    void findMarkers();
    void colourMarkers();
    void appendTag(const Marker& closing);
    void colourNames(const FFoldedNames& names);
    void findNumbers();
    int findLeadingNumber();
    void findElement();
    QString keyOfElement(const QString& tagName, int contentStart) const;
    void colourMatches(const QRegExp& search);

    void colour(FTemplateSpan::Kind kind, int start, int end);
    void appendNumber(int start, int valueStart, int end, const QString& name, double value);
    std::optional<double> numberIn(int start, int end) const;
    /** The first place from a start whose character is of a kind, or isn't if that is wanted; else the line's end. */
    template <class Kind>
    int find(int start, Kind isKind, bool wanted) const;

    QString mText;
    std::vector<FTemplateSpan> mSpans;
    FTemplateRegions mRegions;
    std::vector<Marker> mMarkers;
    std::vector<Tag> mTags;
    bool mIsOpen = false;  //!< whether a tag isn't closed at the end
};
