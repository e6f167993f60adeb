#pragma once

#include "genericintegration/marking/FTemplateRegions.h"

#include <QTextBlockUserData>
#include <QTextCursor>

/** What a line of an input template offers, kept with its block. A later pass over the block replaces it. */
class FGenIntCommandFileEntryData : public QTextBlockUserData {
 public:
    explicit FGenIntCommandFileEntryData(FTemplateRegions offered) : regions(std::move(offered)) {}

    int entryIndexAt(int position) const { return regions.indexAt(position); }

    FTemplateRegions regions;
    QTextCursor cursor;  //!< selects what an operation replaces; null until the mouse was there
};
