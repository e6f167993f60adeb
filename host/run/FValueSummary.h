#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/run/FTableData.h"

#include <QList>

/** How many values results have, and how many of them a user should look at. */
struct MERIX_EXPORT FValueSummary {
    /** @param accepted  flags that don't make a number suspicious */
    explicit FValueSummary(const QList<FExpr<FTableData>>& tables, FNumberFlags accepted = {});

    /** In one line: "5 values, 1 suspicious: speed is followed by D-01 (out.txt:12)". */
    QString toText() const;

    int count = 0;
    int suspicious = 0;
    int missing = 0;  //!< NaN
    QString first;    //!< what is wrong with the first of these: name, reason, place
};
