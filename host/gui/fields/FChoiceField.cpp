#include "host/gui/fields/FChoiceField.h"

#include "host/gui/base/FComboBox.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFocusEvent>
#include <QSignalBlocker>

FChoiceField::FChoiceField(const FAttribCmd& command) : FAttributeEditor(command), mpBox(new FComboBox(this)) {
    setControl(mpBox);
    mpBox->view()->setAccessibleName(label());
    mpBox->setEnabled(!isReadOnly());
    constexpr int leastWidth = 8;
    mpBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mpBox->setMinimumContentsLength(leastWidth);
    connect(mpBox, QOverload<int>::of(&QComboBox::activated), this, &FChoiceField::enter);
}

QString FChoiceField::chosen() const {
    return mpBox->currentText();
}

// Only the present choice is in the box until the user turns to it: there may be very many.
void FChoiceField::showChoice(const QString& text, bool isCommon) {
    mShown = text;
    mIsCommon = isCommon;
    if (mpBox->view()->isVisible()) {
        return;  // the user is choosing
    }
    if (mpBox->hasFocus()) {
        fill();
        return;
    }
    const QSignalBlocker blocker(mpBox);
    mpBox->clear();
    if (isCommon) {
        mpBox->addItem(text);
    }
    showBeside(isCommon ? QString() : QStringLiteral("several"));
}

void FChoiceField::fill() {
    const QSignalBlocker blocker(mpBox);
    QStringList all = choices();
    if (mIsCommon && !all.contains(mShown)) {
        all.append(mShown);
    }
    mpBox->clear();
    mpBox->addItems(all);
    mpBox->setCurrentIndex(mIsCommon ? all.indexOf(mShown) : -1);
    showBeside(mIsCommon ? QString() : QStringLiteral("several"));
}

bool FChoiceField::differsFromShown() const {
    return !mIsCommon || chosen() != mShown;
}

bool FChoiceField::isCommitKey(const QKeyEvent& key) const {
    Q_UNUSED(key)
    return false;
}

bool FChoiceField::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mpBox && event->type() == QEvent::FocusIn &&
        static_cast<const QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        fill();
    }
    return FAttributeEditor::eventFilter(watched, event);
}
