#pragma once

#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FTemplateOwner.h"
#include "host/lodm/FDefinitionCustom.h"

class FConfigurationGenInt;
class FParser;

/**
 * The description of one integration of an external program: which entries there are, and the template files that use
 * them. What changes in one of the two is followed by the other, and by the configurations.
 *
 * Files that were destroyed stay in the lists as dead handles until the lists are read: each reading of a list drops
 * one of them. A reference to a list doesn't outlast the next reading.
 */
class FDefinitionGenInt : public FClass<FDefinitionGenInt, FDefinitionCustom>, public FTemplateOwner {
 public:
    static FClassData mClass;

    static FDefinitionGenInt* create(const FExpr<FScope>& scope, const QString& name, const FExpr<FParser>& parser);
    /** A new definition of the model with a copy of the entries, without files. */
    FObject* clone() const override;
    /** Takes over what definitions of all kinds have in common; no file. */
    virtual void init(const FDefinitionGenInt* other);

    /** Precision that the writer sets on its text stream. Only text passes through that, so no output depends on it. */
    int getOutputPrecision() const override { return mOutputPrecision; }
    void setOutputPrecision(int precision) { mOutputPrecision = precision; }

    // ---- files ----
    /** Appends a file, also one that is in the list already. An empty handle is ignored. */
    void addFile(const FExpr<FGenIntFile>& file);
    /** Takes a file out of the lists, wherever it stands; the object lives on. */
    void removeFile(const FExpr<FGenIntFile>& file);
    /** Asks the user, then removes the file and destroys it. */
    void deleteFile(FExpr<FGenIntFile> file);
    void setFiles(const QList<FExpr<FGenIntFile>>& files);
    /** The first file of exactly that file name; an empty handle for an empty one, or if there is none. */
    FExpr<FGenIntFile> getFile(const QString& fileName) const;
    /** All files, in the order of adding. */
    const QList<FExpr<FGenIntFile>>& getFiles() const override;
    /** The input templates for 0, the result templates for any other kind. */
    const QList<FExpr<FGenIntFile>>& getFiles(unsigned int kind) const;
    const QList<FExpr<FGenIntFile>>& getCommandFiles() const { return mCommandFiles; }
    const QList<FExpr<FGenIntFile>>& getResultsFiles() const { return mResultsFiles; }
    QStringList getReadFiles() const override;

    /** The file that the connector's editor shows at present, and the one before. */
    const FExpr<FGenIntFile>& getCurFile() const { return mCurFile; }
    void setCurFile(const FExpr<FGenIntFile>& file);
    const FExpr<FGenIntFile>& getLastFile() const { return mLastFile; }
    void setLastFile(const FExpr<FGenIntFile>& file);
    bool isCurCommandFile() const;

    // ---- entries ----
    void addEntry(const FExpr<FEntryBase>& entry) override;
    /** Also puts the default value in place of the entry's tags. Configurations don't follow yet. */
    bool removeEntry(const FExpr<FEntryBase>& entry) override;
    /** The same for an entry in a group; configurations follow then. */
    bool findAndRemoveEntry(const FExpr<FEntryBase>& entry) override;
    void reinitConfigurations(bool reset) override;
    /** A name in tags is another one now: the input templates and their editors follow. */
    void updateCommandFiles(const QString& oldName, const QString& newName) override;
    /** Whether an input template has a tag of the entry, in any case. */
    bool commandFileReferencesEntry(const FExpr<FEntryBase>& entry) const;
    /** Puts the entry's default value in place of its tags; without one they stay. */
    void removeEntryFromCommandFiles(const FExpr<FEntryBase>& entry);
    bool setEntryDefsFromDB(const QString& text) override;
    /** The entries of all configurations belong to the present entry definitions again. */
    void reassignEntryDefs();

    /**
     * Writes the exchange file: the entries, then the files, the further objects, and the source objects of geometry
     * exports of kind 1, as script text. See FDefinitionCustom::save.
     */
    bool save() const override;
    bool save(const QSet<FExpr<FManaged>>& objects, QFile& file) const override;

    /** Files go where their definition goes; those of a default definition stay out of the user's configuration. */
    void setInProject(bool inProject) override;
    void setInUserConfig(bool inUserConfig) override;

 protected:
    explicit FDefinitionGenInt(const QString& name = QString()) : FClass(name) {}

 private:
    friend class FClass<FDefinitionGenInt, FDefinitionCustom>;

    static std::vector<std::unique_ptr<FStateField>> fields();
    void filesChanged();
    void clearFileStorages() const;
    void putInPlaceOfTags(const QString& path, const FExpr<FEntryBase>& entry);
    QList<FConfigurationGenInt*> ownConfigurations() const;

    int mOutputPrecision = 6;
    mutable QList<FExpr<FGenIntFile>> mFiles;  // this definition depends on each of them
    FExpr<FGenIntFile> mCurFile;
    FExpr<FGenIntFile> mLastFile;
    mutable QList<FExpr<FGenIntFile>> mCommandFiles;
    mutable QList<FExpr<FGenIntFile>> mResultsFiles;
};
