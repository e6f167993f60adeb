#include "genericintegration/editors/FTemplateButtons.h"

#include "genericintegration/editors/FGenIntCommandFileEdit.h"
#include "genericintegration/editors/FGenIntCommandFileEditEntryButton.h"
#include "host/gui/base/FIcons.h"

#include <QGuiApplication>
#include <QToolButton>

namespace {

/** What a button is wider than its icon and its text. */
constexpr int buttonPadding = 11;

}  // namespace

FTemplateButtons::FTemplateButtons(FGenIntCommandFileEdit& edit, std::function<bool()> mayShow)
    : QObject(&edit),
      mEdit(edit),
      mMayShow(std::move(mayShow)),
      mpAddEntryButton(setUp(new QToolButton(&edit), QStringLiteral("addEntryButton"), QStringLiteral("list-add"))),
      mpEditEntryButton(new FGenIntCommandFileEditEntryButton(&edit)) {
    setUp(mpEditEntryButton, QStringLiteral("editEntryButton"), QStringLiteral("document-edit"));
    connect(mpAddEntryButton, &QToolButton::clicked, this, &FTemplateButtons::addClicked);
    connect(mpEditEntryButton, &QToolButton::clicked, this, &FTemplateButtons::editClicked);
}

QToolButton* FTemplateButtons::setUp(QToolButton* button, const QString& id, const QString& icon) {
    button->setObjectName(id);
    button->setAccessibleName(QStringLiteral("Make an entry of this number"));
    button->setIcon(FIcons::get(icon));
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // It covers what it stands for.
    button->setAutoFillBackground(true);
    button->setBackgroundRole(QPalette::Base);
    button->setFocusPolicy(Qt::NoFocus);
    button->hide();
    return button;
}

void FTemplateButtons::followMouse(const QPoint& place) {
    mMouse = place;
    update();
}

void FTemplateButtons::forgetMouse() {
    mMouse.reset();
    update();
}

void FTemplateButtons::findMouse() {
    if (mMouse) {
        mMouse = mEdit.viewport()->mapFromGlobal(QCursor::pos());
    }
    updateSoon();
}

void FTemplateButtons::update() {
    // A pressed button belongs to its number until the mouse is released, and a selection needs none.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    const std::optional<FTemplateOffer> offer = mMouse && mMayShow() ? underMouse() : std::nullopt;
    if (offer) {
        show(*offer);
    } else {
        hide();
    }
}

// A button is wider than what it is for. What it covers comes first; else it stays while the mouse is on it.
std::optional<FTemplateOffer> FTemplateButtons::underMouse() const {
    std::optional<FTemplateOffer> offer;
    if (mEdit.viewport()->rect().contains(*mMouse)) {
        offer = FTemplateOffer::at(mEdit.cursorForPosition(*mMouse), mEdit.highlighter());
    }
    const QPoint inEdit = mEdit.viewport()->mapTo(&mEdit, *mMouse);
    const auto isOn = [&](const QWidget& button) { return button.isVisible() && button.geometry().contains(inEdit); };
    return !offer && (isOn(*mpAddEntryButton) || isOn(*mpEditEntryButton)) ? current() : offer;
}

void FTemplateButtons::show(const FTemplateOffer& offer) {
    setCurrent(offer);
    mIsAtMouse = true;
    QToolButton* shown = offer.isNumber ? mpAddEntryButton : mpEditEntryButton;
    QToolButton* hidden = offer.isNumber ? mpEditEntryButton : mpAddEntryButton;
    const QRect rect = rectOf(offer);
    for (QToolButton* button : {shown, hidden}) {
        button->setFont(mEdit.font());
    }
    shown->setGeometry(rect);
    shown->setFixedWidth(mpEditEntryButton->iconSize().width() + rect.width() + buttonPadding);
    // The frame and the scroll bars stay in front. What a mask has beyond its widget would not be painted any more.
    shown->setMask(mEdit.viewport()->geometry().translated(-rect.topLeft()) & shown->rect());
    mpAddEntryButton->setText(offer.isNumber ? offer.text : QString());
    mpEditEntryButton->setEntryName(offer.isNumber ? QString() : offer.name);
    hidden->hide();
    shown->show();
    shown->raise();
}

void FTemplateButtons::hide() {
    mpAddEntryButton->hide();
    mpEditEntryButton->hide();
}

std::optional<FTemplateOffer> FTemplateButtons::current() const {
    std::optional<FTemplateOffer> offer =
        mCurrent.isNull() ? std::nullopt : FTemplateOffer::at(mCurrent, mEdit.highlighter());
    const bool isSame = offer && (offer->isNumber ? QString() : offer->name) == mCurrentName;
    return isSame ? offer : std::nullopt;
}

void FTemplateButtons::setCurrent(const FTemplateOffer& offer) {
    mIsAtMouse = false;
    // Its start may be the end of another one.
    mCurrent = offer.start();
    mCurrent.movePosition(QTextCursor::NextCharacter);
    mCurrentName = offer.isNumber ? QString() : offer.name;
}

void FTemplateButtons::forgetCurrent() {
    forgetPlace();
    mCurrentName.clear();
}

QRect FTemplateButtons::rectOf(const FTemplateOffer& offer) const {
    const QRect first = mEdit.cursorRect(offer.start());
    const QRect last = mEdit.cursorRect(offer.end());
    return QRect(QPoint(first.left(), first.top() + 1), QPoint(last.right(), last.bottom() + 1))
        .translated(mEdit.lineNumberAreaWidth(), 0);
}
