#include "genericintegration/io/FTemplateKeys.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

const QChar separator = u'|';
const QChar indexStart = u'[';

// Exports cut thousands of keys, so this avoids a list of levels.
QString cut(const QString& key) {
    QString result;
    result.reserve(key.size());
    bool isFirst = true;
    for (int start = 0, end = 0; start < key.size(); start = end + 1) {
        end = key.indexOf(separator, start);
        end = end < 0 ? key.size() : end;
        if (end == start) {
            continue;
        }
        if (!isFirst) {
            result.append(separator);
        }
        isFirst = false;
        const QStringRef level = key.midRef(start, end - start);
        result.append(level.left(level.lastIndexOf(indexStart)));
    }
    return result;
}

using FWord = quint64;
constexpr qsizetype unitsOfWord = 4;
constexpr FWord notAscii = 0xFF80'FF80'FF80'FF80, lowerCaseBits = 0x0020'0020'0020'0020;

// All surrogates count as equal, since they fold only in pairs; the comparison distinguishes them.
ushort hashedUnit(QChar unit) {
    return ushort(unit.isSurrogate() ? 0 : unit.toCaseFolded().unicode() | 0x20);
}

FWord hashedWord(QStringView units) {
    std::array<ushort, unitsOfWord> hashed{};
    std::transform(units.begin(), units.end(), hashed.begin(), hashedUnit);
    FWord word;
    std::memcpy(&word, hashed.data(), sizeof word);
    return word;
}

}  // namespace

void FTemplateKeys::append(const QString& key, bool holdsObject) {
    if (holdsObject) {
        mRows.try_emplace(cut(key), mCount);
    }
    ++mCount;
}

int FTemplateKeys::find(QStringView name) const {
    const auto row = mRows.find(name);
    return row == mRows.end() ? notFound : row->second;
}

// Hashes four units at a time, since each tag is looked up.
std::size_t FTemplateKeys::Hash::operator()(QStringView text) const {
    FWord hash = 0;
    const auto mix = [&hash](FWord word) {
        hash = (hash ^ word) * 0x9E37'79B9'7F4A'7C15;
        hash ^= hash >> 32U;
    };
    for (; text.size() >= unitsOfWord; text = text.mid(unitsOfWord)) {
        FWord word;
        std::memcpy(&word, text.data(), sizeof word);
        mix((word & notAscii) == 0 ? word | lowerCaseBits : hashedWord(text.left(unitsOfWord)));
    }
    mix(hashedWord(text));
    return hash;
}

bool FTemplateKeys::Equal::operator()(QStringView left, QStringView right) const noexcept {
    // Most tags are spelled like their key, and this comparison is much faster.
    return left == right || left.compare(right, Qt::CaseInsensitive) == 0;
}
