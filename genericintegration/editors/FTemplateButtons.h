#pragma once

#include "genericintegration/editors/FTemplateOffer.h"
#include "host/core/FQueuedCall.h"

#include <QObject>
#include <QPoint>

#include <functional>

class FGenIntCommandFileEdit;
class FGenIntCommandFileEditEntryButton;
class QRect;
class QToolButton;

/**
 * The buttons in the text of an input template: one appears over the number or tag under the mouse. What it stands for
 * is looked up in the text whenever it is needed, as the text may change under it.
 */
class FTemplateButtons : public QObject {
    Q_OBJECT

 public:
    /** @param mayShow  whether buttons are wanted at present */
    FTemplateButtons(FGenIntCommandFileEdit& edit, std::function<bool()> mayShow);

    /** The mouse is at a place of the viewport. */
    void followMouse(const QPoint& place);
    /** The mouse is elsewhere. */
    void forgetMouse();
    /** The text may have moved under the mouse. */
    void findMouse();
    /** Places the button for what is under the mouse, or hides both. */
    void update();
    void updateSoon() { mUpdate.request(); }
    void hide();

    /** What is used: what a button stood for last. Nothing if it isn't in the text any more. */
    std::optional<FTemplateOffer> current() const;
    /** The name in its tag; empty for a number. */
    const QString& currentName() const { return mCurrentName; }
    /** Whether it is the mouse that has chosen it. */
    bool isAtMouse() const { return mIsAtMouse; }
    /** Another way than the mouse has chosen what is used. */
    void setCurrent(const FTemplateOffer& offer);
    void forgetCurrent();
    /** The text will be replaced. */
    void forgetPlace() { mCurrent = QTextCursor(); }
    /** The room that something offered takes, in the text widget. */
    QRect rectOf(const FTemplateOffer& offer) const;

 signals:
    void addClicked();
    void editClicked();

 private:
    QToolButton* setUp(QToolButton* button, const QString& id, const QString& icon);
    std::optional<FTemplateOffer> underMouse() const;
    void show(const FTemplateOffer& offer);

    FGenIntCommandFileEdit& mEdit;
    std::function<bool()> mMayShow;
    QToolButton* mpAddEntryButton;
    FGenIntCommandFileEditEntryButton* mpEditEntryButton;
    std::optional<QPoint> mMouse;  //!< in the viewport; nothing while the mouse is elsewhere
    QTextCursor mCurrent;          //!< in what the button is for
    QString mCurrentName;
    bool mIsAtMouse = false;
    FQueuedCall mUpdate{[this] { update(); }};
};
