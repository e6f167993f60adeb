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

    /** The exchange file, kept as long as the program runs; a project doesn't hold it. Empty if there is none yet. */
    const QString& getSaveFileName() const { return mSaveFileName; }
    void setSaveFileName(const QString& fileName) { mSaveFileName = fileName; }

    /** Writes the exchange file. False, with a message, if there is none, or if it can't be written. */
    virtual bool save() const;
    /**
     * The same, with further objects for which the class has a place. A file that is open is written to as it is, and
     * stays open.
     */
    virtual bool save(const QSet<FExpr<FManaged>>& objects, QFile& file) const;

    /**
     * Opens a file beside the definition's own, with ".part" behind its name. False if it can't, or the definition has
     * no file; what to say of it is the caller's.
     */
    bool openSaveFile(QFile& file) const;
    /**
     * Closes it and puts it in the place of the definition's file, in one step.
     * @param isWritten  whether all was written to it
     * False, with a message, if it wasn't or doesn't reach the disk; the definition's file stays as it was then.
     */
    bool closeSaveFile(QFile& file, bool isWritten) const;

 protected:
    using FDefinitionCustomBase::init;

 private:
    QString mSaveFileName;
};
