#pragma once

#include "host/core/FExport.h"

#include <QIcon>
#include <QString>

class FObject;

/** How windows show the objects of a class. */
class MERIX_EXPORT FClassLook {
 public:
    /** The icon of the object's class, or of the nearest base that has one. */
    static QIcon iconOf(const FObject* object);
    /** The group of the object in a tree; empty for objects that need none. */
    static QString groupOf(const FObject* object);
    /** The name of the object's class as users read it, such as "parameter". */
    static QString wordFor(const FObject* object);
    /** What to show the look of: for an entry its value if that is an object with a word, else the object itself. */
    static const FObject* describedBy(const FObject* object);
    /** The class whose reference tells most about an object. */
    static QString helpTopicOf(const FObject& object);

    /**
     * Sets the look of a class and of those derived from it. A library calls it when it is loaded.
     * @param icon   as FIcons knows it
     * @param group  title of the group in a tree of objects; empty for none
     * @param word   the class in the words of a user
     */
    static void set(const QString& className, const QString& icon, const QString& group, const QString& word);
};
