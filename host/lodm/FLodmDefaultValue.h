#pragma once

#include "host/lodm/FLodmEntry.h"
#include "host/script/FScriptNames.h"

/** The default value of an entry in an exchange file. */
class FLodmDefaultValue {
 public:
    explicit FLodmDefaultValue(const FLodmEntry& entry) : mEntry(entry) {}

    /** The kind as which a value is written. */
    static FLodmEntry::Default kindOf(const FObject& value);
    /** The names in a script text, in order; empty if its syntax is wrong. */
    static QStringList namesIn(const QString& script);

    /** What is wrong with its text, or an empty text. */
    QString fault() const;
    /** Whether it contains names, possibly of objects that come later in the file. */
    bool hasNames() const;
    /** The first name that nothing has, or an empty text. */
    QString missingName(const FScriptNames& names) const;
    /**
     * The value; empty if the entry has no default, or if the default can't be evaluated, with the reason. Reads no
     * file and changes nothing.
     */
    FExprBase evaluate(const FScriptNames& names, QString& reason) const;

 private:
    FExprBase evaluateScript(const FScriptNames& names, QString& reason) const;

    const FLodmEntry& mEntry;
};
