#include "tests/support/window/FVisualCheck.h"

#include "host/gui/base/FStateColor.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QSplitter>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>

#include <cmath>

namespace {

bool isInScrollArea(const QWidget& widget) {
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(parent)) {
            return true;
        }
    }
    return false;
}

bool isPartOfControl(const QWidget& widget) {
    return qobject_cast<const QComboBox*>(widget.parentWidget()) ||
           qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) ||
           qobject_cast<const QLineEdit*>(widget.parentWidget()) ||
           qobject_cast<const QTabBar*>(widget.parentWidget()) || widget.objectName().startsWith(QLatin1String("qt_"));
}

bool isControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QTextEdit*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget);
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

}  // namespace

void FVisualCheck::report(const QWidget& widget, const QString& fault) {
    QString path;
    for (const QWidget* at = &widget; at && at != &mWindow; at = at->parentWidget()) {
        const QString name =
            at->objectName().isEmpty() ? QString::fromLatin1(at->metaObject()->className()) : at->objectName();
        path = path.isEmpty() ? name : name + QLatin1Char('/') + path;
    }
    mFaults.append(path + QLatin1String(": ") + fault);
}

QList<QWidget*> FVisualCheck::shown() const {
    QList<QWidget*> widgets;
    for (QWidget* widget : mWindow.findChildren<QWidget*>()) {
        // Tabs hide the docks behind them by moving them away.
        const QRect place(widget->mapTo(&mWindow, QPoint()), widget->size());
        const bool isHere = widget->window() == &mWindow && widget->isVisible() && mWindow.rect().intersects(place);
        if (isHere && !isPartOfControl(*widget)) {
            widgets.append(widget);
        }
    }
    return widgets;
}

QStringList FVisualCheck::faults() {
    mFaults.clear();
    for (QWidget* widget : shown()) {
        checkSize(*widget);
        checkName(*widget);
        checkContrast(*widget);
        checkOutline(*widget);
    }
    checkTabs();
    return mFaults;
}

void FVisualCheck::checkSize(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool isElided = widget.property("elides").toBool();
    if (isInScrollArea(widget) || isElided || qobject_cast<const QHeaderView*>(&widget)) {
        return;
    }
    if (label && label->wordWrap()) {
        if (label->height() < label->heightForWidth(label->width())) {
            report(widget, QStringLiteral("%1 lines high, needs %2")
                               .arg(label->height())
                               .arg(label->heightForWidth(label->width())));
        }
        return;
    }
    const bool isText = (label && !label->text().isEmpty()) || button;
    const QSize needed = isText ? widget.sizeHint() : widget.minimumSizeHint();
    if (widget.width() < needed.width() || widget.height() < needed.height()) {
        report(widget, QStringLiteral("%1x%2, needs %3x%4")
                           .arg(widget.width())
                           .arg(widget.height())
                           .arg(needed.width())
                           .arg(needed.height()));
    }
    const QRect place(widget.mapTo(&mWindow, QPoint()), widget.size());
    if (isControl(widget) && !mWindow.rect().contains(place)) {
        report(widget, QStringLiteral("lies partly outside of the window"));
    }
}

void FVisualCheck::checkName(QWidget& widget) {
    if (!isControl(widget) || qobject_cast<QHeaderView*>(&widget)) {
        return;
    }
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget);
    if (!accessible || accessible->text(QAccessible::Name).isEmpty()) {
        report(widget, QStringLiteral("has no accessible name"));
    }
}

void FVisualCheck::checkContrast(const QWidget& widget) {
    const bool hasText = isControl(widget) || qobject_cast<const QLabel*>(&widget);
    if (!hasText || !widget.isEnabled()) {
        return;
    }
    constexpr double least = 4.5;
    const QPalette& palette = widget.palette();
    const bool isField = qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractScrollArea*>(&widget);
    const QColor text = palette.color(isField ? QPalette::Text : widget.foregroundRole());
    const QColor ground = palette.color(isField ? QPalette::Base : QPalette::Window);
    if (contrast(text, ground) < least) {
        report(widget, QStringLiteral("text %1 on %2").arg(text.name(), ground.name()));
    }
}

void FVisualCheck::checkOutline(QWidget& widget) {
    const bool isRadio = qobject_cast<QRadioButton*>(&widget);
    if (!widget.isEnabled() || !FStateColor::isDark() || (!isRadio && !qobject_cast<QCheckBox*>(&widget))) {
        return;
    }
    QStyleOptionButton option;
    option.initFrom(&widget);
    const QRect place = widget.style()->subElementRect(
        isRadio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, &widget);
    const QImage picture = widget.grab(place).toImage();
    const QColor ground = widget.palette().color(QPalette::Window);
    constexpr int widest = 4;  // pixels
    double best = 0;
    for (int x = 0; x < std::min(widest, picture.width()); ++x) {
        best = std::max(best, contrast(picture.pixelColor(x, picture.height() / 2), ground));
    }
    constexpr double least = 3;
    if (best < least) {
        report(widget, QStringLiteral("its outline has a contrast of %1").arg(best));
    }
}

void FVisualCheck::checkTabs() {
    QSet<QWidget*> wanted;
    for (QWidget* widget : shown()) {
        const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled() &&
                              !widget->focusProxy() && !widget->visibleRegion().isEmpty();
        if (takesTab) {
            wanted.insert(widget);
        }
    }
    if (wanted.isEmpty()) {
        return;
    }
    QSet<QWidget*> reached;
    QWidget* first = mWindow.nextInFocusChain();
    while (!wanted.contains(first) && first != &mWindow) {
        first = first->nextInFocusChain();
    }
    first->setFocus(Qt::TabFocusReason);
    QWidget* before = nullptr;
    // What is scrolled out of sight is reached, too.
    const int most = mWindow.findChildren<QWidget*>().size();
    for (int step = 0; step < most; ++step) {
        QWidget* now = QApplication::focusWidget();
        // In a text, Tab goes from link to link first.
        if (!now || (now != before && reached.contains(now))) {
            break;
        }
        reached.insert(now);
        const bool isSibling = before && before->parentWidget() == now->parentWidget();
        if (isSibling && now != first && now->geometry().bottom() < before->geometry().top()) {
            report(*now,
                   QStringLiteral("Tab comes here from ") + before->objectName() + QStringLiteral(", which is below"));
        }
        before = now;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(now, &press);
    }
    for (const QWidget* widget : wanted - reached) {
        report(*widget, QStringLiteral("isn't reached by Tab"));
    }
}
