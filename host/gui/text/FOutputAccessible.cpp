#include "host/gui/text/FOutputAccessible.h"

#include "host/gui/text/FOutputViewer.h"

namespace {

QAccessibleInterface* make(const QString& className, QObject* object) {
    Q_UNUSED(className)
    auto* viewer = qobject_cast<FOutputViewer*>(object);
    return viewer ? new FOutputAccessible(viewer) : nullptr;
}

}  // namespace

FOutputAccessible::FOutputAccessible(FOutputViewer* viewer) : QAccessibleWidget(viewer, QAccessible::Document) {}

const FOutputViewer& FOutputAccessible::viewer() const {
    return *static_cast<const FOutputViewer*>(widget());
}

QString FOutputAccessible::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value) {
        return viewer().getVisibleText();
    }
    if (kind == QAccessible::Description) {
        const qint64 line = viewer().getTopLine();
        return line > 0 ? QStringLiteral("%1, from line %2 on").arg(viewer().text().getPath(), QString::number(line))
                        : viewer().text().getPath();
    }
    return QAccessibleWidget::text(kind);
}

void FOutputAccessible::install() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(&make);
        return true;
    }();
    Q_UNUSED(isInstalled)
}
