#include "genericintegration/io/FTemplateKeys.h"

#include <QStringList>

namespace {

const QChar separator = u'|';
const QChar indexStart = u'[';

// Thousands of keys are cut for each export, so this makes no list of levels.
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

ushort folded(QChar unit) {
    return unit.unicode() < 128 ? ushort(unit.unicode() | (unit >= u'A' && unit <= u'Z' ? 0x20 : 0))
                                : unit.toCaseFolded().unicode();
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

// Surrogates are left out: they fold in pairs only, and what the hash can't tell apart the comparison does.
std::size_t FTemplateKeys::Hash::operator()(QStringView text) const {
    std::size_t hash = 0;
    for (const QChar unit : text) {
        hash = unit.isSurrogate() ? hash : hash * 31 + folded(unit);
    }
    return hash;
}

bool FTemplateKeys::Equal::operator()(QStringView left, QStringView right) const noexcept {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}
