#pragma once

#include "host/core/FExpr.h"
#include "host/core/FNumber.h"

class FGenIntResultsFile;

/** What the command that sets a number of rows needs of the editor it belongs to. */
class FAverageRowsEditor {
 public:
    virtual ~FAverageRowsEditor() = default;

    /** The template that is edited; may be empty. */
    virtual FExpr<FGenIntResultsFile> getResultsFile() const = 0;
    /** The value at work is to be averaged over that many rows; empty for none. */
    virtual void averageChanged(const FExpr<FUnsigned>& rows) = 0;
};
