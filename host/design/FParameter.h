#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"
#include "host/core/FStateField.h"

/**
 * A named value of the model: what it is set to stays an expression and is followed. It brings itself up to date at
 * once, unless it is set to update on demand.
 */
class MERIX_EXPORT FParameter : public FClass<FParameter, FEntity> {
 public:
    static FClassData mClass;

    /** The value may be empty. */
    static FParameter* create(const FExpr<FScope>& scope, const QString& name, const FExprBase& value);

    /** The expression. */
    const FExprBase& getValue() const { return mValue; }
    /** Refused, with a message and false, if the parameter would depend on itself. */
    bool setValue(const FExprBase& value);

    bool holdsValue() const override { return true; }
    /** The value's object; null if there is none. */
    FObject* getValueObject() const override;
    bool doUpdate() const override;
    QStringList furtherSavedCommands() const override;

 protected:
    explicit FParameter(const QString& name = QString());
    std::vector<FExprBase> getOperands() const override { return {mValue}; }
    void letGo() override;

 private:
    friend class FClass<FParameter, FEntity>;

    static std::vector<std::unique_ptr<FStateField>> fields();

    FExprBase mValue;
    mutable FExprBase mResult;
};
