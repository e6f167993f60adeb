#pragma once

#include "host/lodm/FLodmEntry.h"
#include "host/script/FScriptNames.h"

/** The default value of an entry in an exchange file. */
class FLodmDefaultValue {
 public:
    explicit FLodmDefaultValue(const FLodmEntry& entry) : mEntry(entry) {}

    /** How a value is written. */
    static FLodmEntry::Default kindOf(const FObject& value);
    /** The names in a script text, in their order; none if it is wrong. */
    static QStringList namesIn(const QString& script);

    /** What is wrong with its text; empty if nothing is. */
    QString fault() const;
    /** Whether there are names in it, which may be those of objects that come later in the file. */
    bool hasNames() const;
    /** A name that stands for nothing; empty if there is none. */
    QString missingName(const FScriptNames& names) const;
    /** The value; empty if there is none, with the reason if one was wanted. Reads no file and changes nothing. */
    FExprBase evaluate(const FScriptNames& names, QString& reason) const;

 private:
    FExprBase evaluateScript(const FScriptNames& names, QString& reason) const;

    const FLodmEntry& mEntry;
};
