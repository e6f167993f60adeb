#pragma once

#include "host/core/FExport.h"
#include "host/design/FDefinitionBase.h"

#include <QStringList>

class FConfiguration;
class FEntryDef;

/** Which entries there are. Configurations hold their values; several of them can share one definition. */
class MERIX_EXPORT FDefinition : public FClass<FDefinition, FDefinitionBase> {
 public:
    static FClassData mClass;

    explicit FDefinition(const QString& name = QString()) : FClass(name) {}

    /** Adds an entry definition; the configurations get it. */
    void addEntry(const FExpr<FEntryBase>& entry) override;
    /** Has all configurations of this definition follow its entries, see FConfiguration::reinit. */
    virtual void reinitConfigurations(bool reset);
    /**
     * Has the configurations get an entry that was just added, at any level. Takes no time for the other entries where
     * configurations were up to date.
     * @param before  the version of the definition before the addition
     */
    void followAddition(const FExpr<FEntryBase>& entry, quint64 before);
    /**
     * Replaces all entry definitions. Entries of configurations belong to the new one of the same name, so that they
     * keep their values.
     */
    void replaceEntries(const QList<FExpr<FEntryBase>>& entries);
    /**
     * Rebuilds the entry definitions from the text that saved definitions hold for them: the lines of
     * `furtherSavedCommands`. Entries of configurations that have no definition any more stay until the configuration
     * next follows. False, with the errors reported and the entries as they were, if it can't be read.
     */
    virtual bool setEntryDefsFromDB(const QString& text);
    /** A name in tags has changed: texts that name it follow. */
    virtual void updateCommandFiles(const QString& oldName, const QString& newName);
    /** The files in the folder of a run, relative to it, that results are read from. */
    virtual QStringList getReadFiles() const { return {}; }

    /** The configurations of the model that have this definition. */
    QList<FConfiguration*> getConfigurations() const;
    /** An entry has a new name. */
    void entryRenamed(const FEntryDef* entry, const QStringList& oldLeafPaths);

    QStringList furtherSavedCommands() const override;

 protected:
    /** Those of its configurations that follow it at once. */
    virtual QList<FConfiguration*> getFollowers() const { return getConfigurations(); }
    /** Configurations have followed. */
    virtual void tellFollowed() {}

 private:
    void setEntriesAndReassign(const QList<FExpr<FEntryBase>>& entries);
};
