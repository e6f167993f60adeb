#pragma once

#include "genericintegration/editors/FResultsMarker.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/marking/FLongLines.h"
#include "genericintegration/marking/FResultSample.h"

#include <QFrame>

#include <memory>
#include <optional>

class FGenIntResultsFileEdit;
class FGenIntResultsFileEditor;

/**
 * The sample of a result template as its page shows it, with marks where a value is read. Lines that are too long for
 * the widget are shown in pieces: positions here are those of the sample, and of the widget where that is said.
 */
class FSamplePane : public QFrame {
    Q_OBJECT

 public:
    explicit FSamplePane(FGenIntResultsFileEditor& page);
    ~FSamplePane() override;

    FGenIntResultsFileEdit& edit() { return *mpEdit; }
    /** Shows a text; what is in view stays in view. False, and nothing happens, if it is shown already. */
    bool setText(const QString& text);
    /** Shows no text any more. */
    void letGo();
    const QString& text() const { return mText; }
    /** The text as the reader sees it. */
    const FResultSample& sample();

    /** What is selected. */
    FTextRange selection() const;
    /** The position of a position of the widget. */
    int positionOf(int shown) const { return mLongLines.positionOf(shown); }
    /** The first line that is shown in pieces, from 1; 0 if none is. */
    int firstLongLine() const { return mLongLines.areThere() ? FLongLines::first(mText, FLongLines::longest) : 0; }
    /** Shows a place, counted from 1. */
    void goTo(int line, int column);

    /** Marks where a value is read, and returns what the reader finds there. */
    FFoundValue mark(const FValueDescription& value, const FSeparatorSettings& separators);
    void unmark();
    /** Whether the reader takes the marked value from another place than the marked column, which has a frame then. */
    bool isReadElsewhere() const { return mMarked && !mMarked->marks.readerPlaces.empty(); }
    bool isAverage() const { return mMarked && mMarked->value.average; }
    /** What marks are painted with. */
    FResultsMarker& marker() { return mMarker; }

 private:
    /** A value that is marked. */
    struct Marked {
        FValueDescription value;
        FSeparatorSettings separators;
        FResultMarks marks;
    };

    /** Marks the rows of an average that have come into view. */
    void followView();
    FLineRange linesInView();
    FTextRange shown(FTextRange range) const;
    /** The marks in the widget; of the places of the reader in an average, those in view. */
    FResultMarks shownMarks(FLineRange view);

    FGenIntResultsFileEdit* mpEdit;
    FResultsMarker mMarker;
    std::optional<Marked> mMarked;
    QString mText;
    FLongLines mLongLines;
    std::unique_ptr<FResultSample> mpSample;  //!< of the shown text; null until it is needed
};
