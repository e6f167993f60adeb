#include "FLiteralReader.h"

#include "genericintegration/io/FAnchor.h"

#include <QBuffer>
#include <QMap>
#include <QTextStream>

#include <algorithm>
#include <limits>

namespace FLiteralReader {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QString trimmed(QString content) {
    return content.remove(QRegExp("\\s*$"));
}

QString textOf(QString line, const FValueDescription& value, const FSeparatorSettings& separators) {
    line.remove(QRegExp("^\\s*"));
    QRegExp separator(separators.expression());
    int start = 0;
    int length = 0;
    findValue(start, length, separator, value.line, "", line, value.column, separators.findNumbers);
    return start >= 0 ? line.mid(start, length) : QString();
}

QString lineOf(const QString& content, const FValueDescription& value) {
    QString text = trimmed(content);
    const int position = getAnchorPosition(value.anchor, text);
    if (position >= 0 && value.line < 0) {
        text = content.left(content.lastIndexOf('\n', position));
    } else if (position >= 0) {
        text = content.mid(position + value.anchor.text.length());
    }

    QTextStream stream(&text);
    QString line = stream.readLine();
    if (value.line >= 0) {
        for (int i = 0; i < value.line; ++i) {
            line = stream.readLine();
        }
        return line;
    }
    QMap<qint64, QString> lines;
    while (!stream.atEnd()) {
        lines.insert(lines.size(), stream.readLine());
    }
    qint64 k = lines.size() + qint64(value.line);
    if (k < 0 || k > lines.size()) {
        k = 0;
    }
    return lines.value(k);
}

Found average(const QString& content, const FValueDescription& value, const FSeparatorSettings& separators) {
    const QString all = trimmed(content);
    int position = all.size() - 1;
    for (quint32 i = 0; i < value.averageRows; ++i) {
        position = all.lastIndexOf('\n', position);
        if (position < 0) {
            position = -1;
            break;
        }
        position -= 1;
    }
    QString text = all.mid(position + 1);
    QTextStream stream(&text);
    Found found = {0, ""};
    quint32 count = 0;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.isEmpty()) {
            continue;
        }
        found.text = textOf(line, value, separators);
        bool isNumber = false;
        const double number = found.text.toDouble(&isNumber);
        if (!isNumber) {
            continue;
        }
        found.number += number;
        if (++count == value.averageRows) {
            break;
        }
    }
    found.number = count > 0 ? found.number / count : notANumber;
    return found;
}

}  // namespace

QString decode(QByteArray file) {
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    QTextStream stream(&buffer);
    stream.setCodec("UTF-8");
    return stream.readAll();
}

int findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor, const QString& text,
              int column, bool findNumbers) {
    start = 0;
    length = 0;
    if (findNumbers) {
        separator.setPattern("[-+]?(\\.\\d+|\\d+(\\.\\d+)?)([Ee][-+]?\\d+)?");
    }
    if (line == 0 && !anchor.isEmpty()) {
        start = text.indexOf(anchor, 0, Qt::CaseInsensitive) + anchor.length();
    }
    for (int i = 0; i < column; ++i) {
        const int match = separator.indexIn(text, start);
        if (match < 0) {
            start = -1;
            return -1;
        }
        start = match + separator.matchedLength();
    }
    int match = separator.indexIn(text, start);
    if (findNumbers) {
        if (match < 0) {
            return match;
        }
        start = match;
        length = separator.matchedLength();
    } else {
        if (match < 0) {
            match = text.length();
        }
        length = match - start;
    }
    return length;
}

Found find(const QString& content, const FValueDescription& value, const FSeparatorSettings& separators) {
    if (value.average) {
        return average(content, value, separators);
    }
    Found found = {notANumber, textOf(lineOf(content, value), value, separators)};
    bool isNumber = false;
    const double number = found.text.toDouble(&isNumber);
    if (isNumber) {
        found.number = number;
    }
    return found;
}

std::vector<int> order(const QString& content, const std::vector<FValueDescription>& values) {
    std::vector<int> result;
    QMap<int, std::vector<int>> groups;
    for (int i = 0; i < static_cast<int>(values.size()); ++i) {
        groups[content.isEmpty() ? 0 : std::max(0, getAnchorPosition(values[i].anchor, content))].push_back(i);
    }
    for (std::vector<int> group : groups) {
        const auto before = [&values](int left, int right) {
            const FValueDescription& a = values[left];
            const FValueDescription& b = values[right];
            if (a.line != b.line) {
                return a.line < b.line;
            }
            return a.column != b.column ? a.column < b.column : a.name < b.name;
        };
        if (!content.isEmpty()) {
            std::stable_sort(group.begin(), group.end(), before);
        }
        result.insert(result.end(), group.begin(), group.end());
    }
    return result;
}

}  // namespace FLiteralReader
