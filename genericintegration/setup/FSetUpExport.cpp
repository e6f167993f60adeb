#include "genericintegration/setup/FSetUpExport.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FFile.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSavedFile.h"
#include "host/core/FSavingFile.h"
#include "host/design/FConnectorInterface.h"
#include "host/run/FComputationChain.h"

#include <QFile>

#include <algorithm>

namespace {

/** The objects in the part of a computation, apart from the definition and its files. */
QSet<FExpr<FManaged>> objectsOf(const FGenIntComputation& computation) {
    QSet<FExpr<FManaged>> objects{FExpr<FManaged>(&computation), FExpr<FManaged>(computation.getConfiguration())};
    const QList<FConnectorInterface*> connectors = FConnectorInterface::getConnectors();
    const auto own = std::find_if(connectors.begin(), connectors.end(), [&computation](const auto* connector) {
        return connector->getComputation().ptr() == &computation;
    });
    if (own != connectors.end()) {
        objects.insert(FExpr<FManaged>((*own)->asManaged()));
    }
    return objects;
}

}  // namespace

FSetUpExport::FSetUpExport(const FGenIntComputation& computation, Extent extent)
    : mIsPossible(computation.definition() != nullptr) {
    if (extent == Extent::Single) {
        mComputations.push_back(&computation);
        return;
    }
    for (const FExternComputation* member : FComputationChain::of(computation)) {
        const auto* ofIntegration = dynamic_cast<const FGenIntComputation*>(member);
        if (ofIntegration && ofIntegration->definition()) {
            mComputations.push_back(ofIntegration);
        }
    }
}

QString FSetUpExport::save(const QString& path) const {
    if (FMerixCtrl::instance()->isReadOnly()) {
        return {};
    }
    QFile file;
    if (!FSavingFile::open(file, FFile::realPath(path))) {
        return file.errorString();
    }
    const bool isWritten = write(file);
    return FSavedFile::take(file, path, isWritten);
}

bool FSetUpExport::write(QFile& file) const {
    QSet<FExpr<FManaged>> inFile;
    return mIsPossible && std::all_of(mComputations.begin(), mComputations.end(), [&](const auto* computation) {
               return computation->definition()->append(objectsOf(*computation), file, inFile);
           });
}
