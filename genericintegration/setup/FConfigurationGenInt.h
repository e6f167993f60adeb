#pragma once

#include "host/lodm/FConfigurationCustom.h"

class FDefinitionGenInt;

/** The current values of the entries of one integration. */
class FConfigurationGenInt : public FClass<FConfigurationGenInt, FConfigurationCustom> {
 public:
    static FClassData mClass;

    /** The definition may be null. @param initialize  whether the entries are made immediately */
    static FConfigurationGenInt* create(const FExpr<FScope>& scope, const QString& name, bool initialize,
                                        const FDefinitionGenInt* definition);
    /** A copy with values of its own; the caller brings it into the model. */
    FObject* clone() const override;

    void init() override {}
    virtual void init(const FConfigurationGenInt* other);
    bool isGenInt() const override { return true; }
    QMap<QString, QString> getPreview() override;
    void setSyntaxHighlighter(QTextDocument* document) override { Q_UNUSED(document) }
    FDefinitionCustom* parseFile(QFile* file, const FExpr<FDefinitionCustom>& definition) const override;
    /** Makes a definition from an exchange file; see FConfigurationCustom::importLodmDefinition. */
    virtual FDefinitionGenInt* importGenIntDefinition(const QString& fileName) const;

    /**
     * Call it after the entry definitions were rebuilt. An entry whose definition is gone takes the first one of the
     * same name; without one it keeps the old definition.
     */
    void reassignEntryDefs();

 protected:
    explicit FConfigurationGenInt(const QString& name = QString(), const FDefinitionGenInt* definition = nullptr);

 private:
    friend class FClass<FConfigurationGenInt, FConfigurationCustom>;
};
