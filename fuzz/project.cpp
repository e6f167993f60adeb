// Any bytes as a project: what could be read of them is saved, read without an error, and saved as the same text.
// Nothing is run, and no file is read.
#include "fuzz/support/FFuzzCheck.h"
#include "fuzz/support/FFuzzModel.h"
#include "host/script/FProjectText.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    FFuzzModel::prepare();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FFuzzModel::clear();
    FFuzzModel::restore(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    const QByteArray saved = FProjectText::write();
    FFuzzModel::clear();
    if (FFuzzModel::restore(saved, true) != 0) {
        FFuzzCheck::fail(QStringLiteral("what was saved is read without errors:\n") + QString::fromUtf8(saved));
    }
    FFuzzCheck::same(QString::fromUtf8(saved), QString::fromUtf8(FProjectText::write()),
                     "what was saved and read is saved as the same text");
    return 0;
}
