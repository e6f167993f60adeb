#include "genericintegration/marking/FLineNumbers.h"

#include "genericintegration/io/FNumberPattern.h"

FLineNumbers::FLineNumbers(const QString& line, int start) : mBytes(line.midRef(start).toUtf8()), mUnit(start) {}

FTextRange FLineNumbers::next() {
    const std::string_view text(mBytes.constData(), static_cast<std::size_t>(mBytes.size()));
    const FByteRange number = FNumberPattern::next(text, mEnd);
    if (number.begin < 0) {
        mEnd = mBytes.size();
        return {};
    }
    mEnd = number.end;
    const int begin = unitAt(number.begin);
    return {begin, unitAt(number.end) - begin};
}

// Each byte but the further ones of a character stands for a unit, and the first of four for two.
int FLineNumbers::unitAt(qint64 byte) {
    for (; mByte < byte; ++mByte) {
        const auto value = static_cast<unsigned char>(mBytes[static_cast<int>(mByte)]);
        mUnit += value >= 0xF0 ? 2 : (value & 0xC0) == 0x80 ? 0 : 1;
    }
    return mUnit;
}
