#include "host/run/FFileTail.h"

#include "host/core/FFile.h"

#include <QFile>
#include <QStringList>

#include <algorithm>

namespace {

constexpr qint64 mostBytes = 4096;

void replaceControls(QString& text) {
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control && character != '\t' && character != '\n') {
            character = QChar::ReplacementCharacter;
        }
    }
}

// Progress bars write a carriage return alone: each of their states is a line.
QStringList splitLines(QString text) {
    text.replace('\r', '\n');
    replaceControls(text);
    QStringList lines = text.split('\n');
    const auto isBlank = [](const QString& line) { return line.trimmed().isEmpty(); };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isBlank), lines.end());
    return lines;
}

}  // namespace

QString fileTail(const QString& file, int lines) {
    QFile source(file);
    if (!FFile::openOrdinary(source).isEmpty()) {
        return QString();
    }
    const qint64 start = std::max<qint64>(source.size() - mostBytes, 0);
    source.seek(start);
    const QByteArray bytes = source.read(mostBytes);
    // With the size, since the text would otherwise end at a null byte.
    QStringList all = splitLines(QString::fromUtf8(bytes.constData(), bytes.size()));
    if (start > 0 && all.size() > 1) {
        all.removeFirst();  // probably incomplete
    }
    return all.mid(std::max(0, static_cast<int>(all.size()) - lines)).join('\n');
}
