#include "genericintegration/connector/dialogs/FDropList.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace {

QStringList filesOf(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (QFileInfo(url.toLocalFile()).isFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

}  // namespace

FDropList::FDropList(QWidget* parent) : QListWidget(parent) {
    setAcceptDrops(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void FDropList::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void FDropList::dragMoveEvent(QDragMoveEvent* event) {
    if (filesOf(*event->mimeData()).isEmpty()) {
        event->ignore();
    } else {
        event->acceptProposedAction();
    }
}

void FDropList::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    emit dropped(filesOf(*event->mimeData()));
}
