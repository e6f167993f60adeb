#include "host/gui/panels/FChainPanel.h"

#include "host/core/FChanges.h"
#include "host/core/FSavedFile.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "host/design/FConnectorInterface.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/panels/FChainBox.h"
#include "host/gui/panels/FChainScene.h"
#include "host/gui/panels/FChainView.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"

#include <QDir>
#include <QMenu>
#include <QVBoxLayout>

namespace {

/** The computation that an object is or shows; null if there is none. */
const FManaged* computationOf(FObject* object) {
    const auto* connector = dynamic_cast<const FConnectorInterface*>(object);
    return connector ? connector->getComputation().ptr() : dynamic_cast<const FExternComputation*>(object);
}

}  // namespace

FChainPanel::FChainPanel(FNavigator& navigator)
    : mNavigator(navigator), mpScene(new FChainScene(this)), mpView(new FChainView(mpScene, this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);
    setFocusProxy(mpView);
    connect(mpView, &FChainView::opened, this, &FChainPanel::open);
    connect(mpView, &FChainView::currentChanged, this, &FChainPanel::takeSelection);
    connect(mpView, &FChainView::menuRequested, this, &FChainPanel::openMenu);
    connect(FSelectionSet::instance(), &FSelectionSet::changed, this, &FChainPanel::showSelection);
    listen();
}

// The boxes go after this object, which makes the view choose another one.
FChainPanel::~FChainPanel() {
    mpView->disconnect(this);
}

void FChainPanel::listen() {
    const FChanges* changes = FChanges::instance();
    const auto followSoon = [this] { mFollow.request(); };
    connect(changes, &FChanges::objectLeft, this, [this](FManaged* object) {
        mpScene->forget(object);
        mFollow.request();
    });
    // Links follow from many kinds of objects; runs change without a step.
    connect(changes, &FChanges::objectChanged, mpScene, &FChainScene::followRun);
    connect(changes, &FChanges::stepDone, this, followSoon);
    connect(changes, &FChanges::stepUndone, this, followSoon);
    connect(changes, &FChanges::stepRedone, this, followSoon);
    connect(changes, &FChanges::stepTakenBack, this, followSoon);
    connect(changes, &FChanges::loadingEnded, this, followSoon);
    connect(changes, &FChanges::projectOpened, this, followSoon);
    connect(changes, &FChanges::projectClosed, this, followSoon);
}

void FChainPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    follow();
}

void FChainPanel::follow() {
    if (isVisible()) {
        mpScene->follow();
        showSelection();
    }
}

void FChainPanel::takeSelection() {
    const FChainBox* box = mpView->current();
    if (mIsSelecting || !box) {
        return;
    }
    mIsSelecting = true;
    FSelectionSet::instance()->set({FExpr<FObject>(box->computation())});
    mIsSelecting = false;
}

void FChainPanel::showSelection() {
    if (mIsSelecting) {
        return;
    }
    mIsSelecting = true;
    FChainBox* selected = nullptr;
    for (const FExpr<FObject>& object : FSelectionSet::instance()->getObjects()) {
        FChainBox* box = object ? mpScene->boxOf(computationOf(object.getObject())) : nullptr;
        selected = selected ? selected : box;
    }
    mpView->setCurrent(selected);
    mIsSelecting = false;
}

void FChainPanel::open(const FExpr<FExternComputation>& computation) {
    FExternComputation* opened = computation.ptr();
    if (opened && !opened->doubleClickedInTree()) {
        mNavigator.showObject(opened);
    }
}

void FChainPanel::openMenu(const QPoint& globalPosition) {
    const FChainBox* box = mpView->current();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("chainMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (box) {
        const FExpr<FExternComputation> computation = box->computation();
        menu->addAction(FIcons::get(QStringLiteral("document-edit")), QStringLiteral("&Open"), this,
                        [this, computation] { open(computation); });
        menu->addAction(FIcons::get(QStringLiteral("media-playback-start")), QStringLiteral("&Run"), this,
                        [computation] {
                            FUserStep::commitEdits();
                            if (FExternComputation* run = computation.ptr()) {
                                run->guiRun();
                            }
                        })
            ->setEnabled(computation->canRun());
        menu->addSeparator();
    }
    menu->addAction(FIcons::get(QStringLiteral("document-export")), QStringLiteral("&Export picture…"), this,
                    &FChainPanel::exportPicture);
    menu->popup(globalPosition);
}

void FChainPanel::exportPicture() {
    const QString start = FPathManager::getProjectDir() + QStringLiteral("/chain.svg");
    QString path = FUserInterface::instance()->askSaveFile(QStringLiteral("Export the picture of the chain"), start,
                                                           QStringLiteral("Vector pictures (*.svg)"));
    if (path.isEmpty()) {
        return;
    }
    mpScene->follow();
    const QString fault = FSavedFile::write(path, mpScene->toSvg());
    if (fault.isEmpty()) {
        mNavigator.showStatus(QStringLiteral("Exported %1").arg(QDir::toNativeSeparators(path)));
    } else {
        FUserInterface::instance()->tell(QString(), QStringLiteral("Can't write %1: %2").arg(path, fault));
    }
}
