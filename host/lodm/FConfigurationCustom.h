#pragma once

#include "host/core/FExport.h"
#include "host/lodm/FConfigurationCustomBase.h"
#include "host/lodm/FDefinitionCustom.h"

#include <QMap>

class QFile;
class QObject;
class QTextDocument;

/** A configuration of a definition that a user made. */
class MERIX_EXPORT FConfigurationCustom : public FClass<FConfigurationCustom, FConfigurationCustomBase> {
 public:
    static FClassData mClass;

    explicit FConfigurationCustom(const QString& name = QString(), const FExpr<FDefinitionCustom>& definition = {});

    /** Called by creators for a new object of the class. */
    virtual void init() {}
    /** Whether it belongs to an integration by templates. */
    virtual bool isGenInt() const { return false; }
    /** The texts of the input files as they would be written, by file name. Touches no file. */
    virtual QMap<QString, QString> getPreview();
    /** Shows the preview to the user; without windows, logs the name and length of each text. */
    void preview();
    /** Sets the colors of a preview. */
    virtual void setSyntaxHighlighter(QTextDocument* document) { Q_UNUSED(document) }
    /** Reads an exchange file, see FLodmDefinitionParser. Null, with a message, if that fails. */
    virtual FDefinitionCustom* parseFile(QFile* file, const FExpr<FDefinitionCustom>& definition) const;
    /**
     * Opens an exchange file and reads it with `parseFile`. See `lodmPath` for the name; if it is empty, the user is
     * asked. The settings remember the name for the start of the next dialog.
     * @param definition  the definition to read into, or the prototype of the class of which to create one
     * @return null if the user cancelled, or, with a message, if the file can't be read
     */
    FDefinitionCustom* importLodmDefinition(const FExpr<FDefinitionCustom>& definition, const QString& fileName) const;

    /**
     * Makes this configuration the set-up of a definition: takes the definition and creates all entries, each with its
     * default value. Values set before are discarded. An empty definition leaves no entries. Returns this
     * configuration.
     *
     * Not for prototypes. The caller opens the undo step.
     */
    FConfigurationCustom* createSetUp(const FExpr<FDefinitionCustom>& definition);
    /** The widget in which the user edits the configuration; null without windows. The caller doesn't own it. */
    QObject* getObjectEditor() const;

 protected:
    using FConfigurationCustomBase::init;
};
