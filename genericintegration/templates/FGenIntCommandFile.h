#pragma once

#include "genericintegration/templates/FGenIntFile.h"

#include <QStringList>

/** An input template: a sample input file in which tags stand for what changes from design to design. */
class FGenIntCommandFile : public FClass<FGenIntCommandFile, FGenIntFile> {
 public:
    static FClassData mClass;

    static FGenIntCommandFile* create(const QString& name);
    /** A new template without a name, text and file name. */
    FObject* clone() const override;

    /** Gives each tag whose whole name is `oldName`, in any case, the new name. */
    virtual void updateFile(const QString& oldName, const QString& newName);
    /** The names in the tags, in the order of first appearance. Tags in capitals aren't seen here. */
    virtual QStringList getEntryNames() const;

 protected:
    explicit FGenIntCommandFile(const QString& name = QString()) : FClass(name) {}

 private:
    friend class FClass<FGenIntCommandFile, FGenIntFile>;
};
