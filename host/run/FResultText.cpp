#include "host/run/FResultText.h"

#include "host/run/FFileDecoding.h"
#include "host/run/FUtf8.h"

#include <utility>

FResultText FResultText::fromFile(FFileBytes bytes) {
    const std::string_view file = bytes.view();
    FTextIndex index(file);
    if (index.isAscii()) {
        return FResultText(std::move(bytes), file, std::move(index));
    }
    const int offset = FFileDecoding::plainTextOffset(file);
    if (offset < 0) {
        return FResultText(std::move(bytes), FFileDecoding::decode(file));
    }
    const std::string_view text = file.substr(static_cast<size_t>(offset));
    return FResultText(std::move(bytes), text, offset == 0 ? std::move(index) : FTextIndex(text));
}

FResultText FResultText::fromString(const QString& text) {
    std::vector<char> encoded;
    encoded.reserve(static_cast<size_t>(text.size()));
    FUtf8::append(encoded, text);
    return FResultText(QByteArray(), std::move(encoded));
}

FResultText::FResultText(FFileBytes file, std::string_view text, FTextIndex index)
    : mFile(std::move(file)), mText(text), mTrimmedSize(FUtf8::trimmedSize(mText)), mIndex(std::move(index)) {}

FResultText::FResultText(FFileBytes file, std::vector<char> decoded)
    : mFile(std::move(file)),
      mDecoded(std::move(decoded)),
      mText(mDecoded.data(), mDecoded.size()),
      mTrimmedSize(FUtf8::trimmedSize(mText)),
      mIndex(mText) {}
