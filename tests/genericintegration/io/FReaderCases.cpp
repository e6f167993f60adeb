#include "FReaderCases.h"

#include <QTextCodec>

namespace {

const QStringList words = {"force",
                           "FORCE",
                           "Force:",
                           "total residual norm",
                           "Total Residual",
                           "iteration 10",
                           "k",
                           "K",
                           "\u212A",
                           "s",
                           "\u017F",
                           "stress",
                           "\u00C4rger",
                           "\u00E4",
                           "\u00DF",
                           "\u1E9E",
                           "\u03A3",
                           "\u03C3",
                           "\u03C2",
                           "\U00010400",
                           "\U00010428",
                           "------",
                           "----",
                           "ax",
                           "\u0130",
                           "\u00B5\u03BC",
                           "kk\u212Aks"};
const QStringList numbers = {"1",   "-2.5", "+.5e3", "1.0D+05", "1.2-105", "7.", "..3", "3,14",    "1e400", "\u0663",
                             "nan", "-inf", "****",  "1\u0660", "0x1F",    "e5", "--1", "2E-3E+4", "1.2.3"};
const QStringList blanks = {" ",  " ",      " ",      "  ",     "\t",     "\u00A0", "\u2003",    ",",
                            ";",  "\n",     "\n",     "\n",     "\n\n",   "\r\n",   "\r\n",      "\r",
                            "\v", "\u0085", "\u2028", "\uFEFF", "\r\r\n", "\n \n",  "          "};

const QStringList alphabets = {
    "aAb ", "ab \n", "kK\u212Aab ", "\u00E4\u00C4ab", "abcdefghijklmnopqrstuvwxyz\u017F ", "        x"};

}  // namespace

QString FReaderCases::letters() {
    const QString alphabet = pick(alphabets);
    QString text;
    while (text.size() < 6000) {
        text += alphabet.at(below(alphabet.size()));
    }
    return text;
}

QString FReaderCases::text(bool unpaired) {
    if (below(15) == 0) {
        return letters();
    }
    QString text = below(6) == 0 ? "\n" : "";
    const int parts = below(12) == 0 ? 700 : below(40);
    for (int i = 0; i < parts; ++i) {
        text += below(2) == 0 ? pick(words) : pick(numbers);
        if (below(4) != 0) {
            text += pick(blanks);
        }
        if (below(40) == 0) {
            text += QChar(QChar::Null);
        }
        if (unpaired && below(10) == 0) {
            text += QChar(below(2) == 0 ? 0xD801 : 0xDC00);
        }
    }
    return text;
}

QByteArray FReaderCases::file(const QString& text) {
    static const QList<QByteArray> codecs = {"UTF-16", "UTF-16BE", "UTF-32", "UTF-32BE"};
    if (below(8) == 0) {
        QTextCodec* codec = QTextCodec::codecForName(codecs.at(below(codecs.size())));
        QByteArray bytes = codec->fromUnicode(QString(QChar(QChar::ByteOrderMark)) + text);
        bytes.chop(below(2));
        return bytes;
    }
    QByteArray bytes = (below(4) == 0 ? "\xEF\xBB\xBF" : "") + text.toUtf8();
    for (int damages = below(3) == 0 ? below(6) : 0; damages > 0; --damages) {
        bytes.insert(below(bytes.size() + 1), char(128 + below(128)));
    }
    if (below(8) == 0) {
        bytes.chop(below(3));
    }
    // Invalid sequences across the pieces in which a text stream decodes.
    if (below(30) == 0) {
        bytes.prepend(QByteArray("x\n").repeated(8192 - below(3) * below(bytes.size() / 2 + 1)));
    }
    return bytes;
}

FSeparatorSettings FReaderCases::separators() {
    static const QStringList expressions = {"", ",", "[,;]", "x*", "\\b", "[", "(r)|c", "\\s*,\\s*", "\\d", "k"};
    return {below(3) == 0, below(2) == 0, pick(expressions)};
}

QString FReaderCases::anchor(const QString& text) {
    if (below(3) == 0) {
        return pick(words);
    }
    static const int lengths[] = {4, 4, 4, 9, 20, 70};
    const int longest = lengths[below(6)];  // the search takes longer steps for longer ones
    QString part = text.mid(below(text.size() + 1), 1 + below(longest));
    if (below(2) == 0) {
        part = below(2) == 0 ? part.toLower() : part.toUpper();
    }
    return part.isValidUtf16() ? part : QString();
}

std::vector<FValueDescription> FReaderCases::values(const QString& text) {
    static const int columns[] = {0, 0, 0, 1, 1, 2, 3, 4, -1, 1000};
    std::vector<FValueDescription> values(static_cast<size_t>(1 + below(below(20) == 0 ? 150 : 20)));
    for (FValueDescription& value : values) {
        value.name = QString(QChar('a' + below(3)));
        value.line = below(11) - 5;
        value.column = columns[below(10)];
        value.anchor = {below(4) == 0 ? QString() : anchor(text),
                        below(2) == 0 ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
        value.average = below(5) == 0;
        value.averageRows = static_cast<quint32>(below(3) == 0 ? below(50) : below(5));
    }
    return values;
}
