#include "host/gui/window/FFileDrop.h"

#include "host/design/FConnectorInterface.h"
#include "host/gui/base/FSetUpAssistant.h"
#include "host/gui/window/FFileImport.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/lodm/FImport.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace {

bool isProject(const QString& file) {
    return QFileInfo(file).suffix().compare(QLatin1String("mrx"), Qt::CaseInsensitive) == 0;
}

void tellWhere(const QString& name, FMainWindow& window) {
    const QString what = QStringLiteral("%1 is neither a project nor an export of set-ups. ").arg(name);
    if (!FConnectorInterface::getConnectors().isEmpty()) {
        window.notices().showNotice(
            {what + QStringLiteral("Drop it on an area of a software connector: on \"Input Files\" what the program "
                                   "reads, on \"Result Values\" an output with its numbers.")});
    } else if (FSetUpAssistant::isThere()) {
        window.notices().showNotice(
            {what + QStringLiteral("Couple the program that it belongs to first: a set-up takes such files."),
             [] { return FConnectorInterface::getConnectors().isEmpty(); }, QStringLiteral("New set-up…"),
             [&window] { FSetUpAssistant::open(&window); }});
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
        return;
    }
    for (const QString& file : files) {
        if (FImport::forFile(file)) {
            FFileImport(window).read(file);
        } else {
            tellWhere(QFileInfo(file).fileName(), window);
        }
    }
}
