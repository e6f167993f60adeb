#include "host/core/FTextDecoder.h"

#include <QTextCodec>

namespace {

QTextCodec* codecFor(const QByteArray& bytes) {
    return QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
}

}  // namespace

QString FTextDecoder::decode(const QByteArray& bytes) {
    QTextCodec::ConverterState state;
    const QString text = codecFor(bytes)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.remainingChars == 0 ? text : text + QChar(QChar::ReplacementCharacter);
}

int FTextDecoder::firstInvalidLine(const QByteArray& bytes) {
    QTextCodec* codec = codecFor(bytes);
    QTextCodec::ConverterState whole;
    codec->toUnicode(bytes.constData(), bytes.size(), &whole);
    if (whole.invalidChars == 0) {
        return whole.remainingChars == 0 ? 0 : 1 + static_cast<int>(bytes.count('\n')) - bytes.endsWith('\n');
    }
    int line = 1;
    QTextCodec::ConverterState state;
    for (int from = 0; from < bytes.size(); ++line) {
        const int end = bytes.indexOf('\n', from);
        const int length = (end < 0 ? bytes.size() : end + 1) - from;
        codec->toUnicode(bytes.constData() + from, length, &state);
        if (state.invalidChars > 0) {
            return line;
        }
        from += length;
    }
    return line - 1;
}
