#include "host/gui/window/FDocumentTabs.h"

#include "host/gui/base/FLabelText.h"
#include "host/gui/base/FObjectPage.h"
#include "host/gui/base/FPendingEdit.h"
#include "host/gui/base/FStateColor.h"

#include <QPainter>
#include <QPointer>
#include <QTabBar>
#include <QVariant>

namespace {

const char* const keyProperty = "documentKey";

}  // namespace

FDocumentTabs::FDocumentTabs(QWidget* parent) : QTabWidget(parent) {
    setObjectName(QStringLiteral("documents"));
    setAccessibleName(QStringLiteral("Documents"));
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    tabBar()->setElideMode(Qt::ElideMiddle);
    tabBar()->setExpanding(false);
    connect(this, &QTabWidget::tabCloseRequested, this, &FDocumentTabs::closeByUser);
}

QWidget* FDocumentTabs::find(const QString& key) const {
    for (int tab = 0; tab < count(); ++tab) {
        if (widget(tab)->property(keyProperty).toString() == key) {
            return widget(tab);
        }
    }
    return nullptr;
}

QWidget* FDocumentTabs::open(const QString& key, const QString& title, const QIcon& icon,
                             const std::function<QWidget*()>& make) {
    QWidget* document = find(key);
    if (!document) {
        document = make();
        document->setProperty(keyProperty, key);
        addTab(document, icon, QString());
        setTitle(key, title);
    }
    setCurrentWidget(document);
    return document;
}

void FDocumentTabs::setTitle(const QString& key, const QString& title) {
    if (QWidget* document = find(key)) {
        setTabText(indexOf(document), FLabelText::literal(title));
        setTabToolTip(indexOf(document), title);
    }
}

void FDocumentTabs::close(const QString& key) {
    if (QWidget* document = find(key)) {
        closeTab(indexOf(document));
    }
}

void FDocumentTabs::closeAll() {
    while (count() > 0) {
        closeTab(0);
    }
}

void FDocumentTabs::paintEvent(QPaintEvent* event) {
    QTabWidget::paintEvent(event);
    if (count() == 0) {
        QPainter painter(this);
        painter.setPen(FStateColor::of(FStateColor::State::Secondary));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         QStringLiteral("Double-click an object, or a place in a list, to open it here"));
    }
}

void FDocumentTabs::closeByUser(int index) {
    const QPointer<QWidget> document = widget(index);
    FPendingEdit::commitAll();
    if (document) {
        closeTab(indexOf(document));
    }
}

void FDocumentTabs::closeTab(int index) {
    QWidget* document = widget(index);
    removeTab(index);
    if (auto* page = dynamic_cast<FObjectPage*>(document)) {
        page->letGo();
    }
    document->deleteLater();
}
