#pragma once

#include "genericintegration/editors/FResultsMarker.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/marking/FResultSample.h"

#include <QFrame>

#include <memory>

class FGenIntResultsFileEdit;
class FGenIntResultsFileEditor;

/** The sample of a result template as its page shows it, with marks where a value is read. */
class FSamplePane : public QFrame {
    Q_OBJECT

 public:
    explicit FSamplePane(FGenIntResultsFileEditor& page);

    FGenIntResultsFileEdit& edit() { return *mpEdit; }
    /** Shows a text; what is in view stays in view. False, and nothing happens, if it is shown already. */
    bool setText(const QString& text);
    /** Shows no text any more. */
    void letGo();
    const QString& text() const { return mText; }
    /** The text as the reader sees it. */
    const FResultSample& sample();

    /** Marks where a value is read, and returns what the reader finds there. */
    FFoundValue mark(const FValueDescription& value, const FSeparatorSettings& separators);
    void unmark() { mMarker.clear(); }
    /** What marks are painted with. */
    FResultsMarker& marker() { return mMarker; }

 private:
    FGenIntResultsFileEdit* mpEdit;
    FResultsMarker mMarker;
    QString mText;
    std::unique_ptr<FResultSample> mpSample;  //!< of the shown text; null until it is needed
};
