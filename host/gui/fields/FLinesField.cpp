#include "host/gui/fields/FLinesField.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostLines = 6;

/** The texts of a list that a value gives. */
QStringList textsOf(const FExprBase& value) {
    std::any texts;
    return FCmdTypeOf<QStringList>::type().convert(value, texts) ? std::any_cast<QStringList>(texts) : QStringList();
}

}  // namespace

FLinesField::FLinesField(const FAttribCmd& command) : FAttributeEditor(command), mpEdit(new QPlainTextEdit(this)) {
    setControl(mpEdit);
    mpEdit->setTabChangesFocus(true);
    mpEdit->setLineWrapMode(QPlainTextEdit::NoWrap);
    mpEdit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpEdit->setToolTip(QStringLiteral("One text in each line. Ctrl+Enter takes over the list."));
    connect(mpEdit, &QPlainTextEdit::textChanged, this, [this] {
        fitHeight();
        // The signal is also emitted for a new font.
        if (differsFromShown()) {
            noteEntered();
        }
    });
    fitHeight();
}

void FLinesField::showValue(const FExprBase& value, bool isCommon) {
    const QStringList texts = isCommon ? textsOf(value) : QStringList();
    mShown = texts.join(QLatin1Char('\n'));
    // A text of several lines couldn't be told from several texts.
    const bool isEditable = mShown.count(QLatin1Char('\n')) == std::max(texts.size() - 1, 0);
    mpEdit->setReadOnly(isReadOnly() || !isEditable);
    mpEdit->setPlaceholderText(isCommon ? QString() : QStringLiteral("several"));
    if (mpEdit->toPlainText() != mShown) {
        const QSignalBlocker blocker(mpEdit);
        mpEdit->setPlainText(mShown);
    }
    fitHeight();
}

FExprBase FLinesField::enteredValue(QString& fault) const {
    Q_UNUSED(fault)
    QStringList lines = mpEdit->toPlainText().split(QLatin1Char('\n'));
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return FCmdTypeOf<QStringList>::handle(lines);
}

bool FLinesField::differsFromShown() const {
    return mpEdit->toPlainText() != mShown;
}

bool FLinesField::isCommitKey(const QKeyEvent& key) const {
    return FAttributeEditor::isCommitKey(key) && (key.modifiers() & Qt::ControlModifier);
}

void FLinesField::fitHeight() {
    const int lines = std::clamp(mpEdit->blockCount(), 1, mostLines);
    const double spacing = QFontMetricsF(mpEdit->font()).lineSpacing();
    const double margins = 2 * (mpEdit->frameWidth() + mpEdit->document()->documentMargin());
    // A line counts as visible only if a pixel is left below it.
    mpEdit->setFixedHeight(static_cast<int>(std::ceil(lines * spacing + margins)) + 1);
}

void FLinesField::changeEvent(QEvent* event) {
    FAttributeEditor::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitHeight();
    }
}
