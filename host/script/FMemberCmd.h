#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmd.h"

/**
 * A command on a receiver. On a list it is carried out for each element of its class, and gives the list of the
 * results as a selection set; a list of one element behaves like the element.
 */
class MERIX_EXPORT FMemberCmd : public FClass<FMemberCmd, FCmd> {
 public:
    static FClassData mClass;

    FMemberCmd() = default;
    explicit FMemberCmd(const FCmdRow& row) : FClass(row) {}

    const FClassData& getClassData() const override { return classOfRow(mClass); }
    FObject* clone() const override;

    void setReceiver(const FExprBase& receiver) { mReceiver = receiver; }
    const FExprBase& getReceiver() const { return mReceiver; }
    void setKept() override;

    QString toExpressionString() const override;

 protected:
    std::vector<FExprBase> getOperands() const override;
    FExprBase execute() const override;
    /** Called with each object that the command has changed. */
    virtual void acted(FObject* receiver) const { Q_UNUSED(receiver) }

 private:
    FExprBase act(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;
    FExprBase actOnList(FObjectList& list) const;
    bool readsFromParts(const FObject& receiver) const;
    void followKnownParts(FObject* receiver) const;
    bool follow(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;

    FExprBase mReceiver;
    // What the result was read from, when it was linked: parts of the receiver, or what the receiver's expression gave.
    mutable std::vector<FExprBase> mFollowed;
};

/** A command that sets an attribute, and tells its current value. */
class MERIX_EXPORT FAttribCmd : public FClass<FAttribCmd, FMemberCmd> {
 public:
    static FClassData mClass;

    FAttribCmd() = default;
    explicit FAttribCmd(const FCmdRow& row) : FClass(row) {}

    const FClassData& getClassData() const override { return classOfRow(mClass); }
    FObject* clone() const override;

    /**
     * The attribute's present value on the receiver. On a selection set the common value; an empty handle if there is
     * none, or if an element is of another class.
     */
    virtual void getAttrValue(FExprBase& value) const;

 protected:
    void acted(FObject* receiver) const override {
        Q_UNUSED(receiver)
        mCurrentValue = FExprBase();
    }

 private:
    FExprBase valueOf(const FObject* receiver) const;

    mutable FExprBase mCurrentValue;
};
