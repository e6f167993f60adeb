#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmdRow.h"

/** The reference of the commands, made from their tables and documentation texts. */
class MERIX_EXPORT FCmdReference {
 public:
    /** @param className  only the commands that objects of this class have; "global" for functions; empty for all */
    explicit FCmdReference(const QString& className = QString());

    bool isEmpty() const { return mRows.empty(); }
    /** What to say when the class isn't known, with the nearest known one. */
    QString unknownClass() const;
    QString toText() const;
    QString toJson() const;

 private:
    QString mClassName;
    std::vector<const FCmdRow*> mRows;
};
