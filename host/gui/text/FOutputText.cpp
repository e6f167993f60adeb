#include "host/gui/text/FOutputText.h"

#include "host/core/FFile.h"
#include "host/run/FFileDecoding.h"
#include "host/run/FUtf8.h"

#include <QFileInfo>
#include <QTextCodec>

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr qint64 sliceSize = 8 << 20;
/** How far a line end is looked for where there is no index yet. */
constexpr qint64 reach = 1 << 20;

quint64 idOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

}  // namespace

QString FOutputText::open(const QString& path) {
    mPath = path;
    mIndex = FTextIndex();
    return load();
}

QString FOutputText::load() {
    auto file = std::make_unique<QFile>(mPath);
    if (const QString fault = FFile::openOrdinary(*file); !fault.isEmpty()) {
        return fault;
    }
    mFileId = idOf(mPath);
    mChanged = QFileInfo(*file).lastModified();
    mFile.emplace(std::move(file));
    const std::string_view bytes = mFile->view();
    mFileSize = static_cast<qint64>(bytes.size());
    const int offset = FFileDecoding::utf8Offset(bytes);
    mDecoded = offset < 0 ? FFileDecoding::decode(bytes) : std::vector<char>();
    mText = offset < 0 ? std::string_view(mDecoded.data(), mDecoded.size()) : bytes.substr(static_cast<size_t>(offset));
    // The old bytes are gone, and the index must not refer to them.
    mIndex.extend(mText, 0);
    return {};
}

FOutputText::Change FOutputText::refresh() {
    const QFileInfo info(mPath);
    const quint64 id = idOf(mPath);
    if (id == 0 || (id == mFileId && info.size() == mFileSize && info.lastModified() == mChanged)) {
        return Change::None;
    }
    const bool isGrown = id == mFileId && info.size() > mFileSize && mFileSize > 0 && mDecoded.empty();
    if (!isGrown) {
        mIndex = FTextIndex();
    }
    return !load().isEmpty() ? Change::None : isGrown ? Change::Grown : Change::Replaced;
}

bool FOutputText::indexSlice() {
    return mIndex.extend(mText, sliceSize);
}

qint64 FOutputText::lineBegin(qint64 offset) const {
    if (offset <= 0) {
        return 0;
    }
    if (offset <= mIndex.size()) {
        return mIndex.lineBegin(offset);
    }
    const qint64 begin = std::max<qint64>(offset - reach, 0);
    const void* const found = ::memrchr(mText.data() + begin, '\n', static_cast<size_t>(offset - begin));
    return found ? static_cast<const char*>(found) - mText.data() + 1 : begin;
}

qint64 FOutputText::findLineFeed(qint64 offset) const {
    const qint64 indexed = offset <= mIndex.size() ? mIndex.lineFeed(offset) : -1;
    if (indexed >= 0 || isIndexed()) {
        return indexed >= 0 ? indexed : size();
    }
    const qint64 begin = std::max(offset, mIndex.size());
    const qint64 end = std::min(begin + reach, size());
    const size_t found = mText.substr(0, static_cast<size_t>(end)).find('\n', static_cast<size_t>(begin));
    return found == std::string_view::npos ? end : static_cast<qint64>(found);
}

qint64 FOutputText::lineEnd(qint64 offset) const {
    const qint64 end = findLineFeed(offset);
    const bool hasReturn = end > offset && mText[static_cast<size_t>(end - 1)] == '\r';
    return hasReturn ? end - 1 : end;
}

qint64 FOutputText::nextLine(qint64 offset) const {
    const qint64 end = findLineFeed(offset);
    return end < size() && mText[static_cast<size_t>(end)] == '\n' ? end + 1 : -1;
}

qint64 FOutputText::previousLine(qint64 offset) const {
    const qint64 begin = lineBegin(offset);
    return begin > 0 ? lineBegin(begin - 1) : -1;
}

qint64 FOutputText::moveLines(qint64 offset, qint64 lines) const {
    const qint64 line = lineAt(offset);
    if (isIndexed() && line >= 0) {
        return lineStart(std::clamp<qint64>(line + lines, 0, lineCount() - 1));
    }
    for (; lines != 0; lines += lines > 0 ? -1 : 1) {
        const qint64 next = lines > 0 ? nextLine(offset) : previousLine(offset);
        if (next < 0) {
            break;
        }
        offset = next;
    }
    return offset;
}

qint64 FOutputText::offsetOf(qint64 lineBegin, qint64 column) const {
    const qint64 end = lineEnd(lineBegin);
    if (end <= mIndex.size()) {
        return std::min(mIndex.offsetOfUtf16(mIndex.utf16At(lineBegin) + column), end);
    }
    qint64 offset = lineBegin;
    for (qint64 units = 0; units < column && offset < end;) {
        units += QChar::requiresSurrogates(FUtf8::next(mText, offset)) ? 2 : 1;
    }
    return std::min(offset, end);
}

qint64 FOutputText::columnOf(qint64 offset) const {
    const qint64 begin = lineBegin(offset);
    return offset <= mIndex.size()
               ? mIndex.utf16At(offset) - mIndex.utf16At(begin)
               : FUtf8::utf16Length(mText.substr(static_cast<size_t>(begin), static_cast<size_t>(offset - begin)));
}

QString FOutputText::decode(qint64 begin, qint64 end) const {
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    static const QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    return codec->toUnicode(mText.data() + begin, static_cast<int>(end - begin), &state);
}
