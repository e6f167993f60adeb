#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmd.h"

/**
 * A command on a receiver. On a list it acts on each element of its class, also in lists within the list, and gives the
 * list of the results as a selection set; a list of one element behaves like the element.
 *
 * The command's class is that of its row. Where the receiver's class shows only at execution, the receiver decides; of
 * a list, the first element that knows the command.
 */
class MERIX_EXPORT FMemberCmd : public FClass<FMemberCmd, FCmd> {
 public:
    static FClassData mClass;

    FMemberCmd() = default;
    explicit FMemberCmd(const FCmdRow& row) : FClass(row) {}

    const FClassData& getClassData() const override { return classOfRow(mClass); }
    FObject* clone() const override;

    void setReceiver(const FExprBase& receiver) {
        mReceiver = receiver;
        setOutOfDate(true);
    }
    const FExprBase& getReceiver() const { return mReceiver; }
    /** The name of the script variable that the receiver was written as, for messages. */
    void setReceiverName(const QString& name) { mReceiverName = name; }
    /** Says that the class of the receiver wasn't known when the command was bound. */
    void setOpen() { mIsOpen = true; }
    void setKept() override;

    QString toExpressionString() const override;

 protected:
    std::vector<FExprBase> getOperands() const override;
    FExprBase execute() const override;
    /** Called with each object that the command has changed. */
    virtual void acted(FObject* receiver) const { Q_UNUSED(receiver) }

 private:
    FExprBase act(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;
    FExprBase actOnList(const FObjectList& list, const FClassData*& own) const;
    FExprBase actOnElement(FObject& element, const FClassData*& own, bool& isKnown) const;
    std::vector<const FCmdRow*> rowsFor(const FObject& object, const FClassData* own) const;
    void warnNoReceiver() const;
    void warnWrongReceiver(const FObject& receiver) const;
    QString writtenReceiver() const;
    QString missingResult() const;
    bool readsFromParts(const FObject& receiver) const;
    void followKnownParts(FObject* receiver) const;
    bool follow(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;

    FExprBase mReceiver;
    QString mReceiverName;
    bool mIsOpen = false;
    // What the result was read from, when it was linked: parts of the receiver, or what the receiver's expression gave.
    mutable std::vector<FExprBase> mFollowed;
};

/** A command that sets an attribute, and gives its current value. */
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
