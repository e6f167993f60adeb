#pragma once

#include "host/core/FStateField.h"

#include <QHash>
#include <QObject>
#include <QString>

class FManaged;

/** What a listener of FChanges knows of the model: the names of all objects, and the states of those with a history. */
class FModelMirror : public QObject {
 public:
    FModelMirror();

    /** The objects of which the mirror knows something else than what is so; empty if there are none. */
    QString differences() const;

 private:
    struct Known {
        QString name;
        FState state;
        FOwnedState entries;
    };
    static Known present(const FManaged& object);
    void enter(FManaged* object);
    void leave(FManaged* object);
    void rename(FManaged* object, const QString& oldName);
    void refresh(FManaged* object);

    QHash<FManaged*, Known> mKnown;
    QString mFaults;  // of the reports themselves
};
