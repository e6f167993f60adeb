#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"
#include "host/core/FObjectList.h"

#include <memory>
#include <vector>

class QFile;

/**
 * Imports files of one kind into the model. Derived classes set caption and filter in their constructor, and override
 * `doImport`. An import can be used many times.
 */
class MERIX_EXPORT FImport : public FClass<FImport, FManaged> {
 public:
    static FClassData mClass;

    explicit FImport(const QString& name = QString()) : FClass(name) {}

    /**
     * Imports a file. See `lodmPath` for the name; if it is empty, the user is asked. If there is no such file, or it
     * can't be opened, nothing happens and no message is given.
     * @param flag  for `doImport`
     * @return a new list for the caller, empty unless a derived class fills it
     */
    virtual FExpr<FObjectList> read(const QString& fileName, bool flag);
    /** Imports a file that is open for reading. */
    void readOpen(QFile& file, bool flag);
    /** How much of the last file couldn't be imported, or is missing in it; all of it was reported. */
    int getFaultCount() const { return mFaultCount; }

    /** A new import, which the caller owns; called on the prototype. Null for a class that has no files. */
    virtual FImport* makeImport() const { return nullptr; }
    /** An import for a file with such a name, not in the model; null if no class reads such files. */
    static std::unique_ptr<FImport> forFile(const QString& fileName);
    /** What the imports read, as their dialogs offer it. */
    static QStringList getFilters();

    /**
     * The folder in which the user chose the last file of this import, or the folder of the samples. It is kept with
     * the object, but not saved.
     */
    QString getCurrentDir() const;
    void setCurrentDir(const QString& directory) { mCurrentDir = directory; }

 protected:
    /** Imports the open file. */
    virtual void doImport(QFile& file, bool flag);
    /** Called before each import. */
    virtual void reset() {}
    /** Finds the file of `read`, asks if there is no name, opens it, and remembers the folder that the user chose. */
    bool open(QFile& file, const QString& fileName);

    QString mCaption;  //!< of the dialog that asks for a file
    QString mFilter;   //!< of that dialog, such as "Text (*.txt *.log)"
    int mFaultCount = 0;

 private:
    /** One of each class that has files. */
    static std::vector<std::unique_ptr<FImport>> makeAll();

    QString mCurrentDir;
};
