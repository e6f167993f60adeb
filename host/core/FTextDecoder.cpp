#include "host/core/FTextDecoder.h"

#include <QTextCodec>
#include <QTextStream>

QString FTextDecoder::decode(const QByteArray& bytes) {
    QTextStream stream(bytes);
    stream.setCodec("UTF-8");
    return stream.readAll();
}

int FTextDecoder::firstInvalidLine(const QByteArray& bytes) {
    QTextCodec* codec = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
    QTextCodec::ConverterState whole;
    codec->toUnicode(bytes.constData(), bytes.size(), &whole);
    if (whole.invalidChars == 0) {
        return 0;
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
