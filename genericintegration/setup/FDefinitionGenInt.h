#pragma once

#include "genericintegration/setup/FTemplateFiles.h"
#include "genericintegration/templates/FTemplateOwner.h"
#include "host/lodm/FDefinitionCustom.h"

class FConfigurationGenInt;
class FParser;

/**
 * The description of one integration of an external program: its entries, and the template files that use them. A
 * change of one also changes the other and the configurations.
 *
 * Destroyed files remain in the lists as dead handles; each call of `getFiles` removes one of them from each list. A
 * reference to a list is valid until the next call.
 */
class FDefinitionGenInt : public FClass<FDefinitionGenInt, FDefinitionCustom>, public FTemplateOwner {
 public:
    static FClassData mClass;
    /** System flag of the classes that belong to definitions. */
    static constexpr unsigned int shownInDefinitions = 1;

    static FDefinitionGenInt* create(const FExpr<FScope>& scope, const QString& name, const FExpr<FParser>& parser);
    /** A new definition of the model with a copy of the entries, without files. */
    FObject* clone() const override;
    /** Copies what all kinds of definitions have in common, but no files. */
    virtual void init(const FDefinitionGenInt* other);

    /** No output depends on it, since the writer writes only text. */
    int getOutputPrecision() const override { return mOutputPrecision; }
    void setOutputPrecision(int precision) {
        recordChange();
        mOutputPrecision = precision;
    }

    // ---- files ----
    /** The files. */
    QList<FManaged*> getParts() const override;
    /** Appends a file, even if it is in the list already. Ignores an empty handle. */
    void addFile(const FExpr<FGenIntFile>& file);
    /** Removes all occurrences of a file from the lists. The object remains in the model. */
    void removeFile(const FExpr<FGenIntFile>& file);
    /** Asks the user, then removes the file and destroys it. */
    void deleteFile(FExpr<FGenIntFile> file);
    void setFiles(const QList<FExpr<FGenIntFile>>& files);
    /** The first file with exactly that file name; an empty handle for an empty name, or if there is none. */
    FExpr<FGenIntFile> getFile(const QString& fileName) const;
    /** All files, in the order of adding. */
    const QList<FExpr<FGenIntFile>>& getFiles() const override;
    /** The input templates for 0, the result templates for any other kind. */
    const QList<FExpr<FGenIntFile>>& getFiles(unsigned int kind) const;
    const QList<FExpr<FGenIntFile>>& getCommandFiles() const { return mTemplates.mCommandFiles; }
    const QList<FExpr<FGenIntFile>>& getResultsFiles() const { return mTemplates.mResultsFiles; }
    QStringList getReadFiles() const override;

    /** The file that the connector's editor shows, and the one before it. */
    const FExpr<FGenIntFile>& getCurFile() const { return mCurFile; }
    void setCurFile(const FExpr<FGenIntFile>& file);
    const FExpr<FGenIntFile>& getLastFile() const { return mLastFile; }
    void setLastFile(const FExpr<FGenIntFile>& file);
    bool isCurCommandFile() const;

    // ---- entries ----
    void addEntry(const FExpr<FEntryBase>& entry) override;
    /** Also replaces the entry's tags by its default value. Doesn't update configurations. */
    bool removeEntry(const FExpr<FEntryBase>& entry) override;
    /** The same for an entry in a group; this also updates configurations. */
    bool findAndRemoveEntry(const FExpr<FEntryBase>& entry) override;
    /** Renames tags in the input templates and has their editors show it. */
    void updateCommandFiles(const QString& oldName, const QString& newName) override;
    /** Whether an input template has a tag of the entry, in any case. */
    bool commandFileReferencesEntry(const FExpr<FEntryBase>& entry) const;
    /** Replaces the tags of the entry, or of all in a group, by their default values; without one they stay. */
    void removeEntryFromCommandFiles(const FExpr<FEntryBase>& entry);
    bool setEntryDefsFromDB(const QString& text) override;
    /** Assigns the entries of all configurations to the present entry definitions. */
    void reassignEntryDefs();

    /**
     * Writes the exchange file: the entries, then the files, the further objects, and the source objects of geometry
     * exports of kind 1, as script text. See FDefinitionCustom::save.
     */
    bool save() const override;
    bool save(const QSet<FExpr<FManaged>>& objects, QFile& file) const override;
    /**
     * Appends the same to an open file. `inFile` are the objects there, and then also those written now:
     * nothing is missing that is among them, and they aren't written once more as sources of geometry exports.
     */
    bool append(const QSet<FExpr<FManaged>>& objects, QFile& file, QSet<FExpr<FManaged>>& inFile) const;

    /** Also applies to the files, except that setInUserConfig leaves the files of a default definition unchanged. */
    void setInProject(bool inProject) override;
    void setInUserConfig(bool inUserConfig) override;

 protected:
    explicit FDefinitionGenInt(const QString& name = QString()) : FClass(name) {}
    QList<FConfiguration*> getFollowers() const override;
    void tellFollowed() override;

 private:
    friend class FClass<FDefinitionGenInt, FDefinitionCustom>;

    static std::vector<std::unique_ptr<FStateField>> fields();
    void filesChanged();
    void replaceTags(const QString& path, const FExpr<FEntryBase>& entry);
    QList<FConfigurationGenInt*> ownConfigurations() const;

    int mOutputPrecision = 6;
    mutable FTemplateFiles mTemplates{*this};  //!< reading drops destroyed files
    FExpr<FGenIntFile> mCurFile;
    FExpr<FGenIntFile> mLastFile;
};
