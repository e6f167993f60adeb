#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmdRow.h"

/** The reference of the commands, generated from their tables and documentation texts. */
class MERIX_EXPORT FCmdReference {
 public:
    /**
     * @param name  only the commands on objects of this class, "global" for functions, or else the commands of this
     *              name in any case; empty for all commands
     */
    explicit FCmdReference(const QString& name = QString());

    /** True if nothing has that name, or if it is that of a class with neither commands nor a description. */
    bool isEmpty() const { return mRows.empty() && mDescribed.empty(); }
    /** The error message for an unknown name, with the nearest known one. */
    QString unknownName() const;
    /**
     * A line for each command: its signature and the first sentence of its description; then one for each class that
     * has none of its own.
     */
    QString toShortText() const;
    /**
     * For reading: signature, description, arguments, result and example of each command; first the descriptions of
     * classes without commands of their own.
     */
    QString toText() const;
    /** An array with an object for each command: the same, its flags, and all settings of its presentation. */
    QString toJson() const;

 private:
    void collect(const FObject* prototype);
    void collectDescribed(const QStringList& classes);

    QString mName;
    std::vector<const FCmdRow*> mRows;
    /** Prototypes of the classes without commands of their own that have a text. */
    std::vector<const FObject*> mDescribed;
};
