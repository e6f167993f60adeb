#include "host/gui/window/FFileImport.h"

#include "host/core/FChanges.h"
#include "host/core/FFile.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserInterface.h"
#include "host/design/FConnectorInterface.h"
#include "host/gui/base/FMessageCatcher.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/lodm/FImport.h"
#include "host/run/FExternComputation.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QString namesOf(const QList<FExpr<FExternComputation>>& computations) {
    constexpr int most = 6;
    QStringList names;
    for (const FExpr<FExternComputation>& computation : computations.mid(0, most)) {
        names.append(computation->getName());
    }
    const QString all = names.join(QStringLiteral(", "));
    const int others = static_cast<int>(computations.size()) - most;
    return others > 0 ? QStringLiteral("%1 and %2 more").arg(all, QString::number(others)) : all;
}

QString countOf(int number) {
    return number == 1 ? QStringLiteral("1 set-up") : QStringLiteral("%1 set-ups").arg(number);
}

}  // namespace

void FFileImport::ask(const QString& folder) {
    const QStringList filters = FImport::getFilters() + QStringList{QStringLiteral("All files (*)")};
    const QString path = FUserInterface::instance()->askOpenFile(QStringLiteral("Import set-ups"), folder,
                                                                 filters.join(QStringLiteral(";;")));
    if (!path.isEmpty()) {
        read(path);
    }
}

void FFileImport::read(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (const QString fault = FFile::openOrdinary(file); !fault.isEmpty()) {
        mWindow.notices().showNotice(
            {QStringLiteral("%1 can't be imported: %2. Choose a file that you can read.").arg(path, fault)});
        return;
    }
    const std::unique_ptr<FImport> import = FImport::forFile(path);
    if (!import) {
        mWindow.notices().showNotice({QStringLiteral("%1 can't be imported: only files of these kinds can: %2.")
                                          .arg(name, FImport::getFilters().join(QStringLiteral(", ")))});
        return;
    }
    const FMessageCatcher messages;
    const auto listening = connect(FChanges::instance(), &FChanges::objectEntered, this, [this](FManaged* object) {
        if (auto* computation = dynamic_cast<FExternComputation*>(object)) {
            mNew.append(FExpr<FExternComputation>(computation));
        }
    });
    import->readOpen(file, false);
    disconnect(listening);
    mNew.erase(std::remove_if(mNew.begin(), mNew.end(), [](const auto& computation) { return !computation; }),
               mNew.end());
    mFirstWarning = messages.text();
    mFaults = import->getFaultCount();
    showFirst();
    tell(name);
}

void FFileImport::tell(const QString& file) const {
    if (mFirstWarning.isEmpty() && !mNew.isEmpty()) {
        mWindow.showStatus(summary(file));
    } else if (mFirstWarning.isEmpty()) {
        mWindow.notices().showNotice({summary(file)});
    } else {
        mWindow.notices().showNotice({summary(file), {}, QStringLiteral("Show the messages"), [window = &mWindow] {
                                          window->panels().raise(QStringLiteral("log"));
                                      }});
    }
}

QString FFileImport::summary(const QString& file) const {
    if (mNew.isEmpty()) {
        return mFirstWarning.isEmpty()
                   ? QStringLiteral("%1 holds no set-up. \"Export\" in a connector writes files with set-ups.")
                         .arg(file)
                   : QStringLiteral("No set-up came from %1: %2.").arg(file, mFirstWarning);
    }
    const QString came =
        QStringLiteral("%1 imported from %2: %3.").arg(countOf(static_cast<int>(mNew.size())), file, namesOf(mNew));
    if (mFaults > 0) {
        return came + QStringLiteral(" The file isn't complete: %1. Undo takes all of it back.").arg(mFirstWarning);
    }
    return mFirstWarning.isEmpty() ? came : came + QStringLiteral(" Names that were taken got a number at their end.");
}

void FFileImport::showFirst() const {
    if (mNew.isEmpty()) {
        return;
    }
    const FExternComputation* first = mNew.first().ptr();
    FSelectionSet::instance()->set({FExpr<FObject>(first)});
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        if (connector->getComputation().ptr() == first) {
            mWindow.showPage(connector->asManaged());
            return;
        }
    }
}
