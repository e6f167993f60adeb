#include "genericintegration/io/FFileDecoding.h"

#include <QByteArray>
#include <QTextCodec>

#include <simdjson.h>

#include <algorithm>

#include "genericintegration/io/FUtf8.h"

namespace FFileDecoding {
namespace {

// A text stream decodes in pieces of this size. What becomes of an invalid sequence depends on where a piece ends.
constexpr size_t PieceSize = 16384;

constexpr std::string_view Mark = "\xEF\xBB\xBF";

QTextCodec* codecOf(std::string_view file) {
    const QByteArray head = QByteArray::fromRawData(file.data(), static_cast<int>(std::min(file.size(), PieceSize)));
    return QTextCodec::codecForUtfText(head, QTextCodec::codecForName("UTF-8"));
}

QString decodePiece(const QTextCodec& codec, std::string_view piece, QTextCodec::ConverterState& state) {
    return codec.toUnicode(piece.data(), static_cast<int>(piece.size()), &state);
}

// A text stream loses a mark that ends in a later piece as its first character, too, if all before it is ASCII.
bool hasLaterMark(std::string_view file) {
    constexpr size_t reach = Mark.size() - 1;
    for (size_t offset = PieceSize; offset < file.size(); offset += PieceSize) {
        if (file.substr(offset - reach, reach + Mark.size()).find(Mark) != std::string_view::npos) {
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
    return file.substr(0, Mark.size()) == Mark ? static_cast<int>(Mark.size()) : 0;
}

std::vector<char> decode(std::string_view file) {
    const QTextCodec* codec = codecOf(file);
    QTextCodec::ConverterState state;
    std::vector<char> text;
    text.reserve(file.size());
    QString pending;
    for (size_t offset = 0; offset < file.size(); offset += PieceSize) {
        QString piece = pending + decodePiece(*codec, file.substr(offset, PieceSize), state);
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
