#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmdRow.h"
#include "host/script/FPlace.h"

/**
 * A command with its receiver and arguments: one node of an expression. It is a graph node like any other object, so
 * that what is computed from others follows them.
 *
 * A global command is a plain FCmd. What a command is called, takes and does comes from its row.
 */
class MERIX_EXPORT FCmd : public FClass<FCmd, FObject> {
 public:
    static FClassData mClass;

    FCmd() = default;
    explicit FCmd(const FCmdRow& row);

    const FClassData& getClassData() const override { return classOfRow(mClass); }
    FObject* clone() const override;

    const QString& getName() const { return mName; }
    void setName(const QString& name) { mName = name; }
    const FCmdRow* getRow() const { return mpRow; }

    void setArguments(std::vector<FExprBase> arguments) {
        mArguments = std::move(arguments);
        setOutOfDate(true);
    }
    const std::vector<FExprBase>& getArguments() const { return mArguments; }
    /** The place of the command in a text, for messages. */
    void setPlace(const QString& file, const FPlace& place);
    /**
     * Says that the expression is kept by an object and not just executed once: the command then depends on its
     * arguments, and objects on the command.
     */
    virtual void setKept();
    bool isKept() const { return mKept; }
    /** Whether objects made by an earlier execution go when the command is executed again. */
    void setUseParentReg(bool use) { mUseParentReg = use; }
    bool getUseParentReg() const { return mUseParentReg; }

    /** Whether it has warned that it, or a call that it depends on, couldn't be executed. */
    bool hasWarned() const { return mHasWarned; }

    /** The result, brought up to date. */
    FExprBase getValue() const;

    bool isCmd() const override { return true; }
    FObject* evaluate() const override { return getValue().getObject(); }
    const FObject* getEvaluatedType() const override;
    QString toString() const override { return toExpressionString(); }
    QString toExpressionString() const override;
    bool doUpdate() const override;

    /**
     * Warns as the command that is being executed, with its place; as `source` when there is none.
     * @param consequence  what follows from it; that of a command which gives NULL if it is empty
     */
    static void warnNow(const QString& source, const QString& message, const QString& consequence = QString());

    /** Adds the texts of the command and of its arguments under its documentation keys, once. */
    void initCmdDocu() const;
    /** The class name under which the text of an argument is kept, counted from 0. */
    QString argumentDocuName(int argument) const;
    QString getTsRoot() const { return mpRow ? mpRow->docuRoot() : QString(); }
    void initTypeDocu() const override { setTypeDocuInitialized(); }

 protected:
    /** The class data of the row's command class; those of the C++ class for the prototype of the family. */
    const FClassData& classOfRow(const FClassData& family) const;
    bool updatesSuppliersItself() const override;
    bool isSafeAlone(bool mayReadFiles) const override;
    std::vector<FExprBase> getOperands() const override { return mArguments; }
    /** Executes the command. An empty handle is the null result. */
    virtual FExprBase execute() const;
    /** True if the result of an earlier execution stays. */
    virtual bool keepsResult() const { return false; }

    /** Reads the arguments as the row wants them; false, with the reason, if one doesn't fit. */
    bool convertArguments(const FCmdRow& row, FCmdRow::Values& values, QString& reason) const;
    /** The first of the rows that the arguments fit; null, with one warning, if there is none. */
    const FCmdRow* chooseRow(const std::vector<const FCmdRow*>& rows, FCmdRow::Values& values) const;
    FExprBase callRow(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;
    /** What follows if the arguments don't fit; empty if the result is NULL and nothing else. */
    virtual QString refusalText() const { return {}; }
    void warn(const QString& message, const QString& consequence = QString()) const;
    /** The command gives no result since an earlier call, which has warned, gave none. */
    void warnedBefore() const { mHasWarned = true; }
    QString argumentText() const;
    static QString operandText(const FExprBase& operand);

    mutable FExprBase mResult;

 private:
    FExprBase callWatched(const FCmdRow& row, FObject* receiver, const FCmdRow::Values& values) const;

    const FCmdRow* mpRow = nullptr;
    QString mName;
    std::vector<FExprBase> mArguments;
    QString mFile;
    FPlace mPlace;
    bool mKept = false;
    bool mUseParentReg = false;
    mutable bool mHasWarned = false;
};
