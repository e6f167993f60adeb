#pragma once

#include "host/gui/base/FGroupBox.h"

class FElidedLabel;
class FResultsPreview;
struct FFoundValue;

/** What is found in the sample of a result template: a row for each value, and the place of the current one. */
class FPreviewGroup : public FGroupBox {
    Q_OBJECT

 public:
    FPreviewGroup();

    FResultsPreview& table() { return *mpTable; }
    /**
     * Says where the current value is found in the sample, and what is suspicious about it.
     * @param text  what is there
     * @param isFramed  whether the place is framed, since another one is marked
     */
    void showPlace(const FFoundValue& found, const QString& text, bool isFileName, bool isFramed);
    void showNoPlace();

 private:
    FResultsPreview* mpTable;
    FElidedLabel* mpPlace;
};
