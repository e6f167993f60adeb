#pragma once

#include "host/core/FExpr.h"
#include "host/core/FNumber.h"

class FGenIntResultsFile;

/** What FAttribCmdSetAverageRows needs from its editor. */
class FAverageRowsEditor {
 public:
    virtual ~FAverageRowsEditor() = default;

    /** The template that is edited; may be empty. */
    virtual FExpr<FGenIntResultsFile> getResultsFile() const = 0;
    /** Averages the current value over that many rows; an empty handle for no average. */
    virtual void averageChanged(const FExpr<FUnsigned>& rows) = 0;
};
