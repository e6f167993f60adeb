#pragma once

#include "host/core/FScope.h"
#include "host/script/FCmd.h"

/** A command that makes a named object. It does so once: as long as it holds its object it makes no other. */
class FCreateCmd : public FClass<FCreateCmd, FCmd> {
 public:
    static FClassData mClass;

    FCreateCmd() = default;
    explicit FCreateCmd(const FCmdRow& row) : FClass(row) {}

    const FClassData& getClassData() const override { return classOfRow(mClass); }
    FObject* clone() const override;

    /** The name that the object is made under. */
    void setTargetName(const QString& name) { mTargetName = name; }

 protected:
    FExprBase execute() const override;
    bool keepsResult() const override { return mResult.isValid(); }
    /** Called before the object is made. */
    virtual void prepare() const {}

    QString mTargetName;
    mutable FExpr<FScope> mScope;  // null: the project itself
};

/** A creator of an entity, which is in a scope. */
class FCreateEntityCmd : public FClass<FCreateEntityCmd, FCreateCmd> {
 public:
    static FClassData mClass;

    FCreateEntityCmd() = default;
    explicit FCreateEntityCmd(const FCmdRow& row) : FClass(row) {}

    const FClassData& getClassData() const override { return classOfRow(mClass); }
    FObject* clone() const override;

 protected:
    void prepare() const override { createScopeAndName(); }
    /** Finds the scope for the object. */
    void createScopeAndName() const;
};
