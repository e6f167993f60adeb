#include "host/run/FFileBytes.h"

#include "host/core/FFile.h"

#include <utility>

namespace {

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}

}  // namespace

FFileBytes::FFileBytes(const QByteArray& bytes) : mRead(bytes), mView(viewOf(mRead)) {}

FFileBytes::FFileBytes(std::unique_ptr<QFile> file) : mFile(std::move(file)) {
    if (map()) {
        return;
    }
    mRead = FFile::readAtMost(*mFile, mFile->size());
    mView = viewOf(mRead);
    mFile.reset();
}

bool FFileBytes::map() {
    const qint64 size = mFile->size();
    if (size < mappedSize) {
        return false;
    }
    uchar* const begin = mFile->map(0, size);
    if (begin == nullptr) {
        return false;
    }
    mGuard = std::make_unique<FMappingGuard>(begin, size);
    if (!mGuard->isActive()) {
        mFile->unmap(begin);
        return false;
    }
    mView = {reinterpret_cast<const char*>(begin), static_cast<size_t>(size)};
    return true;
}

bool FFileBytes::isWhole() const {
    return mFile == nullptr || (!mGuard->wasHit() && mFile->size() >= static_cast<qint64>(mView.size()));
}
