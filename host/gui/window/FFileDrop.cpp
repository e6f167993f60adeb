#include "host/gui/window/FFileDrop.h"

#include "host/design/FConnectorInterface.h"
#include "host/gui/base/FSetUpAssistant.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FProjectFiles.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace {

bool isProject(const QString& file) {
    return QFileInfo(file).suffix().compare(QLatin1String("mrx"), Qt::CaseInsensitive) == 0;
}

void tellWhere(const QString& name, FMainWindow& window) {
    if (!FConnectorInterface::getConnectors().isEmpty()) {
        window.notices().showNotice(
            QStringLiteral(
                "%1 isn't a project. Drop it on an area of a software connector: on \"Input Files\" what the "
                "program reads, on \"Result Values\" an output with its numbers.")
                .arg(name));
    } else if (FSetUpAssistant::isThere()) {
        window.notices().showNotice(
            QStringLiteral(
                "%1 isn't a project. Couple the program that it belongs to first: a set-up takes such files.")
                .arg(name),
            QStringLiteral("New set-up…"), [&window] { FSetUpAssistant::open(&window); });
    }
}

}  // namespace

QStringList FFileDrop::filesIn(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

void FFileDrop::take(const QStringList& files, FMainWindow& window) {
    const auto project = std::find_if(files.begin(), files.end(), &isProject);
    if (project != files.end()) {
        window.projectFiles().open(*project);
    } else if (!files.isEmpty()) {
        tellWhere(QFileInfo(files.first()).fileName(), window);
    }
}
