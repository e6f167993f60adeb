#pragma once

#include "host/core/FExport.h"
#include "host/lodm/FConfigurationCustomBase.h"
#include "host/lodm/FDefinitionCustom.h"

#include <QMap>

class QFile;
class QTextDocument;

/** A configuration of a definition that a user has made. */
class MERIX_EXPORT FConfigurationCustom : public FClass<FConfigurationCustom, FConfigurationCustomBase> {
 public:
    static FClassData mClass;

    explicit FConfigurationCustom(const QString& name = QString(), const FExpr<FDefinitionCustom>& definition = {});

    /** What is left to do for a new object of the class. */
    virtual void init() {}
    /** Whether it belongs to an integration by templates. */
    virtual bool isGenInt() const { return false; }
    /** The texts of the input files as they would be written, by file name. Touches no file. */
    virtual QMap<QString, QString> getPreview();
    /** Gives a preview its colours. */
    virtual void setSyntaxHighlighter(QTextDocument* document) { Q_UNUSED(document) }
    /** Reads an exchange file, see FLodmDefinitionParser; null, with a message, if it can't be. */
    virtual FDefinitionCustom* parseFile(QFile* file, const FExpr<FDefinitionCustom>& definition) const;
    /**
     * Opens an exchange file and reads it with `parseFile`. Environment variables in the name are expanded, and
     * in a script it is relative to that if the file lies there; for an empty name the user is asked. The name is
     * remembered in the settings, where the next question starts.
     * @param definition  what to read into, or the prototype of the class of which a definition is to be made
     * @return null if the user cancelled, or if the file can't be read, with a message then
     */
    FDefinitionCustom* importLodmDefinition(const FExpr<FDefinitionCustom>& definition, const QString& fileName) const;

 protected:
    using FConfigurationCustomBase::init;
};
