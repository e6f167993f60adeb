#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmd.h"

#include <optional>

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
    QString writtenReceiver() const;

 private:
    FExprBase act(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;
    /** The way through a list and the lists in it. */
    struct Traversal {
        const FClassData* own;                  //!< decided by the first element that knows the command; null before
        std::vector<FExprBase> followedBefore;  //!< what the result of the last execution was read from
        bool isRefused = false;                 //!< the command can't be executed; that was reported
    };

    FExprBase actOnList(const FObjectList& list, const FClassData* own) const;
    /** The results of all elements, or that of a single one; none if a single element doesn't know the command. */
    std::optional<FExprBase> actOnElements(const FObjectList& list, Traversal& traversal) const;
    std::optional<FExprBase> actOnElement(FObject& element, Traversal& traversal) const;
    std::vector<const FCmdRow*> rowsFor(const FObject& object, const FClassData* own) const;
    void warnNoReceiver() const;
    void warnWrongReceiver(const FObject& receiver) const;
    QString missingResult() const;
    bool readsFromParts(const FObject& receiver) const;
    void followKnownParts(FObject* receiver) const;
    /** What a kept expression reads its result from, besides its receiver and its arguments. */
    std::vector<FExprBase> sourcesOf(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;
    /** The expression becomes out of date with these, and no others; false, with a warning, if that is a cycle. */
    bool followOnly(const std::vector<FExprBase>& sources) const;
    bool followAlso(const std::vector<FExprBase>& sources, const std::vector<FExprBase>& noLonger) const;

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
    /** The class of what the command sets; null if it isn't known. */
    virtual const FClassData* getValueClass() const;

 protected:
    void acted(FObject* receiver) const override {
        Q_UNUSED(receiver)
        mCurrentValue = FExprBase();
    }
    QString refusalText() const override;

 private:
    FExprBase valueOf(const FObject* receiver) const;

    mutable FExprBase mCurrentValue;
};
