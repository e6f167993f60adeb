#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmdRow.h"

/** The reference of the commands, generated from their tables and documentation texts. */
class MERIX_EXPORT FCmdReference {
 public:
    /** @param className  only the commands on objects of this class; "global" for functions; empty for all commands */
    explicit FCmdReference(const QString& className = QString());

    /** True if the class is unknown, or has neither commands nor a description. */
    bool isEmpty() const { return mRows.empty() && !mpDescribed; }
    /** The error message for an unknown class, with the nearest known name. */
    QString unknownClass() const;
    /**
     * For reading: signature, description, arguments, result and example of each command; first the description of a
     * class without commands of its own.
     */
    QString toText() const;
    /** An array with an object for each command: the same, its flags, and all settings of its presentation. */
    QString toJson() const;

 private:
    QString mClassName;
    std::vector<const FCmdRow*> mRows;
    const FObject* mpDescribed = nullptr;  //!< prototype of a class without commands of its own that has a text
};
