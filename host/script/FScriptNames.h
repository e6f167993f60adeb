#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/**
 * What names stand for in one script: its variables, and objects. An object that the script declared under a name that
 * was taken has another name in the model; within the script the declared name means the new object.
 */
class MERIX_EXPORT FScriptNames {
 public:
    /** A variable's value, or an object; an empty handle if the name is unknown. */
    FExprBase find(const QString& name) const;
    bool isObject(const QString& name) const;
    /** Whether the script declared an object of that name which isn't there any more. */
    bool isGone(const QString& name) const;
    void setVariable(const QString& name, const FExprBase& value) { mVariables.insert(name, value); }
    void setDeclared(const QString& name, const FExprBase& object) { mDeclared.insert(name, object); }
    /**
     * The script declares an object of that name, perhaps further on: until it does, the name stands for nothing, also
     * if the model has such an object, or an earlier text declared one, and it is never a word of an enumeration.
     */
    void announce(const QString& name);
    bool isAnnounced(const QString& name) const { return mAnnounced.contains(name); }
    /**
     * ` (did you mean "name"?)`, or nothing if no known name is near. Only for the first unknown names,
     * since each takes a look at all: a damaged text may hold thousands.
     */
    QString suggestion(const QString& name) const;

 private:
    QStringList getNames() const;

    QHash<QString, FExprBase> mVariables;
    QHash<QString, FExprBase> mDeclared;
    QSet<QString> mAnnounced;
    mutable int mSuggestions = 0;
};
