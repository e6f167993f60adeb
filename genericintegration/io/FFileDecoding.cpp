#include "genericintegration/io/FFileDecoding.h"

#include <QByteArray>
#include <QTextCodec>

#include <algorithm>

#include "genericintegration/io/FUtf8.h"

namespace FFileDecoding {
namespace {

// A text stream decodes in pieces of this size. What becomes of an invalid sequence depends on where a piece ends.
constexpr size_t PieceSize = 16384;

QTextCodec* codecOf(std::string_view file) {
    const QByteArray head = QByteArray::fromRawData(file.data(), static_cast<int>(std::min(file.size(), PieceSize)));
    return QTextCodec::codecForUtfText(head, QTextCodec::codecForName("UTF-8"));
}

QString decodePiece(const QTextCodec& codec, std::string_view piece, QTextCodec::ConverterState& state) {
    return codec.toUnicode(piece.data(), static_cast<int>(piece.size()), &state);
}

}  // namespace

int plainTextOffset(std::string_view file) {
    const QTextCodec* codec = codecOf(file);
    if (codec->name() != "UTF-8")
        return -1;
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    const bool marked = file.substr(0, mark.size()) == mark;
    // A character cut by the file's end gets lost, and, behind pieces of ASCII alone, a mark at a piece's begin.
    qint64 lost = marked ? -1 : 0;
    QTextCodec::ConverterState state;
    for (size_t offset = 0; offset < file.size(); offset += PieceSize) {
        const std::string_view piece = file.substr(offset, PieceSize);
        if (state.remainingChars == 0 && FUtf8::isAscii(piece))
            continue;
        lost += FUtf8::utf16Length(piece) - decodePiece(*codec, piece, state).size();
        if (state.invalidChars > 0)
            return -1;
    }
    if (lost != 0)
        return -1;
    return marked ? static_cast<int>(mark.size()) : 0;
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
