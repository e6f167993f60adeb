#pragma once

#include "host/lodm/FConfigurationCustomBase.h"
#include "host/lodm/FDefinitionCustom.h"

#include <QMap>

class QTextDocument;

/** A configuration of a definition that a user has made. */
class FConfigurationCustom : public FClass<FConfigurationCustom, FConfigurationCustomBase> {
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

 protected:
    using FConfigurationCustomBase::init;
};
