#include "host/core/FViewCtrl.h"

#include "host/core/FIO.h"

#include <QFileInfo>

namespace {

template <class Ask>
QString inModalDialog(Ask ask) {
    FViewCtrl::prepareModalDialog(nullptr);
    const QString answer = ask();
    FViewCtrl::finalizeModalDialog();
    return answer;
}

}  // namespace

FViewCtrl* FViewCtrl::instance() {
    static auto* control = new FViewCtrl;  // never destroyed: windows may be connected to the end
    return control;
}

bool FViewCtrl::hasSmallScreen() {
    constexpr int smallHeight = 800;
    const int height = FUserInterface::instance()->getScreenHeight();
    return height > 0 && height < smallHeight;
}

void FViewCtrl::prepareModalDialog(void* parent) {
    Q_UNUSED(parent)
    FUserInterface::instance()->setModalDialog(true);
}

void FViewCtrl::finalizeModalDialog() {
    FUserInterface::instance()->setModalDialog(false);
}

QString FViewCtrl::getOpenFileName(const QString& caption, QString& directory, const QString& filter) {
    const QString file = inModalDialog([&] { return FIO::openFileName(nullptr, caption, directory, filter); });
    if (!file.isEmpty()) {
        directory = QFileInfo(file).path();
    }
    return file;
}

QString FViewCtrl::getSaveFileName(const QString& caption, const QString& startPath, const QString& filter) {
    return inModalDialog([&] { return FUserInterface::instance()->askSaveFile(caption, startPath, filter); });
}
