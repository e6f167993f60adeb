#include "host/gui/fields/FAttributeEditor.h"

#include "host/core/FChanges.h"
#include "host/core/FManaged.h"
#include "host/gui/base/FCommandCall.h"
#include "host/gui/base/FMessageCatcher.h"
#include "host/gui/base/FStateLabel.h"
#include "host/gui/fields/FBoolField.h"
#include "host/gui/fields/FEnumField.h"
#include "host/gui/fields/FLinesField.h"
#include "host/gui/fields/FObjectField.h"
#include "host/gui/fields/FScriptField.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/fields/FTextField.h"
#include "host/script/FAttributeQuery.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>

namespace {

constexpr int widthBeside = 14;  // characters

bool isListOfTexts(const FAttribCmd& command) {
    const FCmdRow* row = command.getRow();
    return row && row->arguments.front().type.script == FCmdTypeOf<QStringList>::type().script;
}

}  // namespace

FAttributeEditor* FAttributeEditor::create(const FAttribCmd* command) {
    const FClassData* cls = command->getValueClass();
    const FObject* type = cls ? cls->mpNull : nullptr;
    const FCmdRow* row = command->getRow();
    if (!type || (row && FAttributeQuery::keepsExpression(*row))) {
        return new FScriptField(*command);
    }
    if (type->isTypeOf(FBool::null())) {
        return new FBoolField(*command);
    }
    if (const auto* choices = dynamic_cast<const FEnumBase*>(type)) {
        return new FEnumField(*command, choices->getStringValues());
    }
    if (type->isTypeOf(FManaged::null())) {
        return new FObjectField(*command, type);
    }
    if (type->isTypeOf(FString::null())) {
        return new FTextField(*command);
    }
    if (isListOfTexts(*command)) {
        return new FLinesField(*command);
    }
    return new FScriptField(*command);
}

FAttributeEditor::FAttributeEditor(const FAttribCmd& command)
    : mCommand(&command),
      mpBeside(new FStateLabel(FStateColor::State::Secondary, this)),
      mpFault(new FStateLabel(FStateColor::State::Bad, this)) {
    mpBeside->setObjectName(QStringLiteral("valueBeside"));
    mpBeside->setTextFormat(Qt::PlainText);
    mpBeside->hide();
    mpFault->setObjectName(QStringLiteral("fieldFault"));
    mpFault->setTextFormat(Qt::PlainText);
    mpFault->setWordWrap(true);
    mpFault->hide();
    const FChanges* changes = FChanges::instance();
    const auto refreshSoon = [this] { mRefresh.request(); };
    connect(changes, &FChanges::objectChanged, this, refreshSoon);
    connect(changes, &FChanges::objectRenamed, this, refreshSoon);
    connect(changes, &FChanges::stepDone, this, refreshSoon);
    connect(changes, &FChanges::stepUndone, this, refreshSoon);
    connect(changes, &FChanges::stepRedone, this, refreshSoon);
    connect(changes, &FChanges::stepTakenBack, this, refreshSoon);
}

void FAttributeEditor::setControl(QWidget* control) {
    mpControl = control;
    control->setObjectName(command().getName());
    control->setAccessibleName(label());
    control->installEventFilter(this);
    // Without a policy of its own, setTabOrder would ignore it.
    setFocusPolicy(control->focusPolicy());
    setFocusProxy(control);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(control, 1);
    line->addWidget(mpBeside);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(1);
    column->addLayout(line);
    column->addWidget(mpFault);
}

QString FAttributeEditor::label() const {
    const FCmdRow* row = command().getRow();
    return row ? FCommandCall::labelOf(*row) : command().getName();
}

bool FAttributeEditor::isReadOnly() const {
    const FCmdRow* row = command().getRow();
    return row && row->presentation.readOnly;
}

// ---- showing ----

// Commands without a row act on what they know themselves.
bool FAttributeEditor::hasReceiver() const {
    FObject* receiver = command().getReceiver().getObject();
    const FObjectList* list = receiver ? receiver->castToObjectList() : nullptr;
    if (!list) {
        return receiver || !command().getRow();
    }
    const auto& objects = list->getObjects();
    return std::any_of(objects.begin(), objects.end(), [](const FExprBase& object) { return object.isValid(); });
}

bool FAttributeEditor::valuesDiffer() const {
    FObject* receiver = command().getReceiver().getObject();
    const FObjectList* list = receiver ? receiver->castToObjectList() : nullptr;
    const FCmdRow* row = command().getRow();
    if (!list || !row || list->count() < 2) {
        return false;
    }
    const auto& objects = list->getObjects();
    return std::any_of(objects.begin(), objects.end(), [row](const FExprBase& handle) {
        const FObject* object = handle.getStored();
        return object && object->isTypeOf(row->owner->mpNull) && !row->getter(object).isEmpty();
    });
}

void FAttributeEditor::refresh() {
    if (mIsEntered || mIsHeld || !hasReceiver()) {
        return;
    }
    FExprBase value;
    command().getAttrValue(value);
    showValue(value, !value.isEmpty() || !valuesDiffer());
}

void FAttributeEditor::hold(bool isHeld) {
    mIsHeld = isHeld;
    if (!isHeld) {
        mRefresh.request();
    }
}

void FAttributeEditor::showBeside(const QString& text) {
    const int width = widthBeside * fontMetrics().averageCharWidth();
    const QString shown = fontMetrics().elidedText(text, Qt::ElideRight, width);
    mpBeside->setText(shown);
    mpBeside->setToolTip(shown == text ? QString() : text);
    mpBeside->setVisible(!text.isEmpty());
}

void FAttributeEditor::setFault(const QString& fault) {
    mFault = fault;
    mpFault->setText(QChar(0x26a0) + QLatin1Char(' ') + fault);
    mpFault->setVisible(!fault.isEmpty());
    mpControl->setAccessibleDescription(fault);
}

// ---- entering ----

void FAttributeEditor::noteEntered() {
    mIsEntered = true;
    setFault(QString());
}

void FAttributeEditor::enter() {
    noteEntered();
    commit();
}

void FAttributeEditor::restore() {
    mIsEntered = false;
    setFault(QString());
    refresh();
}

void FAttributeEditor::commitEdit() {
    if (mFault.isEmpty()) {
        commit();
    }
}

FPendingEdit::Refusal FAttributeEditor::refusal() const {
    if (mFault.isEmpty()) {
        return {};
    }
    FExprBase value;
    command().getAttrValue(value);
    return {label(), mFault, FScriptText::of(value)};
}

QWidget* FAttributeEditor::focusRefused() {
    mpControl->setFocus();
    return mpControl;
}

void FAttributeEditor::commit() {
    if (!mIsEntered || mIsCommitting || !hasReceiver()) {
        return;
    }
    if (!differsFromShown()) {
        restore();
        return;
    }
    QString fault;
    const FExprBase argument = enteredValue(fault);
    if (!fault.isEmpty()) {
        setFault(fault);
        return;
    }
    const QPointer<FAttributeEditor> self(this);
    fault = execute(argument);
    if (!self) {
        return;  // the command has had the editor rebuilt
    }
    if (fault.isEmpty()) {
        restore();
        emit committed();
    } else {
        setFault(fault);
    }
}

/** Gives the reason if the command left everything as it was. */
QString FAttributeEditor::execute(const FExprBase& argument) {
    const FExprBase keep = mCommand;
    const FAttribCmd& setter = command();
    FExprBase before;
    setter.getAttrValue(before);
    const QPointer<FAttributeEditor> self(this);
    const FMessageCatcher messages;
    mIsCommitting = true;
    FCommandCall::execute(setter, {argument}, label());
    if (self) {
        mIsCommitting = false;
    }
    FExprBase after;
    setter.getAttrValue(after);
    return before.toHistoryString() == after.toHistoryString() ? messages.text() : QString();
}

bool FAttributeEditor::isCommitKey(const QKeyEvent& key) const {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool FAttributeEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched != mpControl) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            commitEdit();
        }
    } else if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (key.key() == Qt::Key_Escape && mIsEntered) {
            restore();
            return true;
        }
        if (isCommitKey(key)) {
            commit();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
