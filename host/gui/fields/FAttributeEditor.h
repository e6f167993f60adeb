#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FPendingEdit.h"
#include "host/script/FMemberCmd.h"

#include <QWidget>

class FStateLabel;
class QKeyEvent;

/**
 * The field for what an attribute command sets on its receiver, which may be a list of objects. Enter, or leaving the
 * field, commits what was entered, as one step; Escape brings back the present value. It follows the model, but never
 * replaces text that a user is typing. What the command refuses remains in the field, with the reason below it.
 */
class MERIX_EXPORT FAttributeEditor : public QWidget, public FPendingEdit {
    Q_OBJECT

 public:
    /**
     * The field for the kind of value that the command sets: check box, list of choices, lines, or a line of text.
     * @param command  has its receiver; the field keeps the command
     */
    static FAttributeEditor* create(const FAttribCmd* command);

    /** The attribute in the words of a user. */
    QString label() const;
    bool isReadOnly() const;
    /** Why what was entered is refused; empty if it isn't. */
    const QString& fault() const { return mFault; }

    /** Takes over the present value, unless something is being entered. */
    void refresh();
    /** Puts what was entered into the model; nothing happens if it was refused before. */
    void commitEdit() override;
    Refusal refusal() const override;
    QWidget* focusRefused() override;
    /** Drops what was entered. */
    void restore();
    /** While held, the field doesn't follow the model. */
    void hold(bool isHeld);

    bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
    /** A step was made. */
    void committed();

 protected:
    explicit FAttributeEditor(const FAttribCmd& command);

    /** Makes a widget the control of the field; called once by the constructor of each class. */
    void setControl(QWidget* control);
    /** To call when the user has entered something. */
    void noteEntered();
    /** To call when the user has chosen something that is to be committed at once. */
    void enter();
    /** Grey text beside the control; may be empty. */
    void showBeside(const QString& text);

    /** @param isCommon  false if the receivers have different values */
    virtual void showValue(const FExprBase& value, bool isCommon) = 0;
    /** The argument for the command; with a reason in `fault` if there is none. */
    virtual FExprBase enteredValue(QString& fault) const = 0;
    /** Whether the control shows something else than what `showValue` made it show. */
    virtual bool differsFromShown() const = 0;
    virtual bool isCommitKey(const QKeyEvent& key) const;

    const FAttribCmd& command() const { return static_cast<const FAttribCmd&>(*mCommand.getStored()); }

 private:
    void commit();
    QString execute(const FExprBase& argument);
    bool hasReceiver() const;
    bool valuesDiffer() const;
    void setFault(const QString& fault);

    FExprBase mCommand;  //!< never evaluated
    QWidget* mpControl = nullptr;
    FStateLabel* mpBeside;
    FStateLabel* mpFault;
    QString mFault;
    bool mIsEntered = false;
    bool mIsCommitting = false;
    bool mIsHeld = false;
    FQueuedCall mRefresh{[this] { refresh(); }};
};
