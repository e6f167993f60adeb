// Any bytes as the exchange file of a definition: what was read of them is written, read without an error, and written
// as the same text. Nothing is run, and no other file is read.
#include "fuzz/support/FFuzzCheck.h"
#include "fuzz/support/FFuzzModel.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntDefinitionParser.h"
#include "genericintegration/setup/FGenIntObjectArea.h"
#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"

#include <QBuffer>

#include <cstddef>
#include <cstdint>

namespace {

/** Empty if the bytes were refused, which must leave the model as it was. */
FExpr<FDefinitionGenInt> read(QByteArray bytes, bool tells) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    FGenIntDefinitionParser parser{FExpr<FDefinitionCustom>(FDefinitionGenInt::null())};
    bool isRead = false;
    const int errors = FFuzzModel::guarded([&] { isRead = parser.read(&buffer); }, tells);
    FFuzzCheck::holds(isRead || errors > 0, "who can't read a file tells why");
    FFuzzCheck::holds(isRead || FHistory::instance()->getLabels().isEmpty(), "what is refused changes nothing");
    FFuzzCheck::holds(!tells || errors == 0, "what was written is read without errors");
    return FExpr<FDefinitionGenInt>(isRead ? FExprBase(parser.getDefinition()) : FExprBase());
}

/** With all that came along, since defaults of entries may name it. */
QByteArray write(const FDefinitionGenInt& definition) {
    QSet<FExpr<FManaged>> objects;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        objects.insert(FExpr<FManaged>(object));
    }
    objects.remove(FExpr<FManaged>(&definition));
    for (const FExpr<FGenIntFile>& file : definition.getFiles()) {
        objects.remove(FExpr<FManaged>(file));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    FFuzzCheck::holds(FLodmDefinitionParser().write(&buffer, &definition), "a definition can be written");
    QSet<FExpr<FManaged>> inFile;
    FFuzzCheck::holds(FGenIntObjectArea::write(&buffer, definition, objects, inFile), "its objects can be written");
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    FFuzzModel::prepare();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FFuzzModel::clear();
    const auto first = read(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)), false);
    if (!first) {
        return 0;
    }
    // Where no template is the current one, a reader takes the first.
    if (!first->getCurFile() && !first->getFiles().isEmpty()) {
        first->setCurFile(first->getFiles().first());
    }
    const QByteArray written = write(*first.ptr());
    FFuzzModel::clear();
    const auto second = read(written, true);
    FFuzzCheck::same(QString::fromUtf8(written), QString::fromUtf8(write(*second.ptr())),
                     "what was written and read is written as the same text");
    return 0;
}
