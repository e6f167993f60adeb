#include "genericintegration/io/FResultText.h"

#include <utility>

#include "genericintegration/io/FFileDecoding.h"
#include "genericintegration/io/FUtf8.h"

namespace {

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}

}  // namespace

FResultText FResultText::fromFile(const QByteArray& bytes) {
    const std::string_view file = viewOf(bytes);
    FTextIndex index(file);
    if (index.isAscii())
        return FResultText(bytes, file, std::move(index));
    const int offset = FFileDecoding::plainTextOffset(file);
    if (offset < 0)
        return FResultText(FFileDecoding::decode(file));
    const std::string_view text = file.substr(static_cast<size_t>(offset));
    return FResultText(bytes, text, offset == 0 ? std::move(index) : FTextIndex(text));
}

FResultText FResultText::fromString(const QString& text) {
    std::vector<char> encoded;
    encoded.reserve(static_cast<size_t>(text.size()));
    FUtf8::append(encoded, text);
    return FResultText(std::move(encoded));
}

FResultText::FResultText(const QByteArray& file, std::string_view text, FTextIndex index)
    : mFile(file), mText(text), mTrimmedSize(FUtf8::trimmedSize(mText)), mIndex(std::move(index)) {}

FResultText::FResultText(std::vector<char> decoded)
    : mDecoded(std::move(decoded)),
      mText(mDecoded.data(), mDecoded.size()),
      mTrimmedSize(FUtf8::trimmedSize(mText)),
      mIndex(mText) {}
