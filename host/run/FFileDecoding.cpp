#include "host/run/FFileDecoding.h"

#include "host/run/FUtf8.h"

#include <simdjson.h>

#include <QByteArray>
#include <QTextCodec>

#include <algorithm>

namespace FFileDecoding {
namespace {

// A text stream decodes in pieces of this size, and the result for an invalid sequence depends on where a piece ends.
constexpr size_t pieceSize = 16384;

constexpr std::string_view mark = "\xEF\xBB\xBF";

QTextCodec* codecOf(std::string_view file) {
    const QByteArray head = QByteArray::fromRawData(file.data(), static_cast<int>(std::min(file.size(), pieceSize)));
    return QTextCodec::codecForUtfText(head, QTextCodec::codecForName("UTF-8"));
}

QString decodePiece(const QTextCodec& codec, std::string_view piece, QTextCodec::ConverterState& state) {
    return codec.toUnicode(piece.data(), static_cast<int>(piece.size()), &state);
}

// A text stream also drops a mark that is the first character to end in a later piece, if all before it is ASCII.
bool hasLaterMark(std::string_view file) {
    constexpr size_t reach = mark.size() - 1;
    for (size_t offset = pieceSize; offset < file.size(); offset += pieceSize) {
        if (file.substr(offset - reach, reach + mark.size()).find(mark) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace

int plainTextOffset(std::string_view file) {
    // Marks of other encodings aren't valid UTF-8.
    if (!simdjson::validate_utf8(file.data(), file.size()) || hasLaterMark(file)) {
        return -1;
    }
    return file.substr(0, mark.size()) == mark ? static_cast<int>(mark.size()) : 0;
}

int utf8Offset(std::string_view file) {
    static const QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
    return codecOf(file) != utf8 ? -1 : file.substr(0, mark.size()) == mark ? static_cast<int>(mark.size()) : 0;
}

std::vector<char> decode(std::string_view file) {
    const QTextCodec* codec = codecOf(file);
    QTextCodec::ConverterState state;
    std::vector<char> text;
    text.reserve(file.size());
    QString pending;
    for (size_t offset = 0; offset < file.size(); offset += pieceSize) {
        QString piece = pending + decodePiece(*codec, file.substr(offset, pieceSize), state);
        pending.clear();
        if (!piece.isEmpty() && piece.at(piece.size() - 1).isHighSurrogate()) {
            pending = piece.right(1);
            piece.chop(1);
        }
        FUtf8::append(text, piece);
    }
    FUtf8::append(text, pending);
    return text;
}

}  // namespace FFileDecoding
