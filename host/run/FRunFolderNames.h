#pragma once

#include <QHash>
#include <QString>

class FManaged;

/**
 * The names of the folders of designs and computations. After an object is renamed, its folder keeps the old name until
 * the project is saved: the project on the disk and the folders beside it always have the same names. If another object
 * takes the old name, the folder is renamed at once.
 */
class FRunFolderNames {
 public:
    QString of(const FManaged& object) const;

    /** An object has entered the model or has a new name. @param root  of the results; empty if there is none */
    void nameTaken(const FManaged& object, const QString& root);
    void renamed(const FManaged& object, const QString& oldName, const QString& root);
    /** Renames the folders below a root of results. Reports those that can't be renamed, and keeps their names. */
    void apply(const QString& root);
    /** Another project is open. */
    void forget() { mNames.clear(); }

 private:
    static bool hasFolder(const FManaged& object);

    QHash<int, QString> mNames;  //!< of folders whose objects have other names now, by the number of the object
};
