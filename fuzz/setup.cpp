// Any bytes as a file of set-ups: they are imported in one step, which can be undone and redone to the letter, and
// which runs nothing and reads no other file.
#include "fuzz/support/FFuzzCheck.h"
#include "fuzz/support/FFuzzModel.h"
#include "genericintegration/setup/FImportSoftwareConnector.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/script/FProjectText.h"

#include <cstddef>
#include <cstdint>

namespace {

QString modelText() {
    return QString::fromUtf8(FProjectText::write());
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    FFuzzModel::prepare();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FFuzzModel::clear();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString before = modelText();
    const std::unique_ptr<FImport> made = FImport::forFile(QStringLiteral("setup.lodm"));
    auto* import = static_cast<FImportSoftwareConnector*>(made.get());
    const int errors = FFuzzModel::guarded([&] { import->importBytes(bytes, QStringLiteral("setup")); }, false);
    FFuzzCheck::holds(import->getFaultCount() > 0 || errors == 0, "each error is counted");
    FFuzzCheck::holds(!FMerixCtrl::instance()->isLoadingProject(), "the loading has ended");
    FHistory* history = FHistory::instance();
    FFuzzCheck::holds(history->getLabels().size() <= 1, "an import is one step");
    const QString imported = modelText();
    const bool isUndone = history->undo();
    FFuzzCheck::holds(isUndone || imported == before, "what was imported can be undone");
    if (isUndone) {
        FFuzzCheck::same(before, modelText(), "undo leaves nothing");
        FFuzzCheck::holds(FObjectManager::instance()->getNames().isEmpty(), "undo leaves no object");
        FFuzzCheck::holds(history->redo(), "what was undone can be redone");
        FFuzzCheck::same(imported, modelText(), "redo brings the same");
    }
    return 0;
}
