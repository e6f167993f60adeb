#pragma once

#include "host/core/FExport.h"
#include "host/lodm/FDefinitionCustomBase.h"

#include <QSet>

class QFile;

/** A definition that can be exchanged as a file. */
class MERIX_EXPORT FDefinitionCustom : public FClass<FDefinitionCustom, FDefinitionCustomBase> {
 public:
    static FClassData mClass;

    explicit FDefinitionCustom(const QString& name = QString()) : FClass(name) {}

    /** The exchange file, or an empty name if there is none. Kept until the program ends; a project doesn't save it. */
    const QString& getSaveFileName() const { return mSaveFileName; }
    void setSaveFileName(const QString& fileName) { mSaveFileName = fileName; }

    /**
     * Writes the exchange file. Returns false if that fails. If the definition has no exchange file, or it can't be
     * opened, the caller reports it; any other failure is reported here.
     */
    virtual bool save() const;
    /**
     * The same, with further objects, if the class saves any. A file that is open is written from its present position,
     * and stays open.
     */
    virtual bool save(const QSet<FExpr<FManaged>>& objects, QFile& file) const;

    /**
     * Opens a new file beside the exchange file (see FSavingFile). `closeSaveFile` then puts it in place. If the
     * definition has no exchange file and there are windows, the user chooses one, which the definition then has.
     * Returns false, without a message, if it has none, or if the new file can't be opened.
     */
    bool openSaveFile(QFile& file) const;
    /**
     * Replaces the exchange file by what was written to a file that `openSaveFile` opened, in one step, and removes
     * that file.
     * @param isWritten  whether everything was written to it
     * @return false, with a message, if something is missing or the disk is full; the exchange file is unchanged then
     */
    bool closeSaveFile(QFile& file, bool isWritten) const;

 protected:
    using FDefinitionCustomBase::init;

 private:
    mutable QString mSaveFileName;  //!< also set by the user while the definition is saved
};
