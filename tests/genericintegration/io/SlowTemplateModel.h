#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/** A second, slow implementation of template writing, step by step. The fast writer must agree with it. */
struct SlowTemplateModel {
    struct Row {
        QString text;
        bool holdsObject = true;
    };

    QMap<QString, Row> table;
    QStringList unknownNames;
    bool unterminated = false;

    QString write(const QString& original, bool force) {
        QString text = original;
        if (force) {
            text.replace("\n", "\r\n", Qt::CaseSensitive);
        }
        QString output;
        int position = 0;
        int tag = text.indexOf("<entry>", position, Qt::CaseInsensitive);
        while (tag != -1) {
            output += text.mid(position, tag - position);
            const int end = text.indexOf("</entry>", tag + 7, Qt::CaseInsensitive);
            if (end == -1) {
                unterminated = true;
                return output;
            }
            output += textFor(text.mid(tag + 7, end - tag - 7));
            position = end + 8;
            tag = text.indexOf("<entry>", position, Qt::CaseInsensitive);
        }
        return output + text.mid(position);
    }

    static QString nameOfKey(const QString& key) {
        QStringList levels;
        for (const QString& level : key.split('|', Qt::SkipEmptyParts)) {
            const int bracket = level.lastIndexOf('[');
            levels.append(bracket == -1 ? level : level.mid(0, bracket));
        }
        return levels.join('|');
    }

    static QStringList names(const QString& text, Qt::CaseSensitivity sensitivity) {
        QStringList found;
        int tag = text.indexOf("<entry>", 0, sensitivity);
        while (tag != -1) {
            const int end = text.indexOf("</entry>", tag + 7, sensitivity);
            if (end == -1) {
                return found;
            }
            found.append(text.mid(tag + 7, end - tag - 7));
            tag = text.indexOf("<entry>", end + 8, sensitivity);
        }
        return found;
    }

 private:
    QString textFor(const QString& name) {
        for (auto row = table.cbegin(); row != table.cend(); ++row) {
            if (QString::compare(nameOfKey(row.key()), name, Qt::CaseInsensitive) == 0 && row->holdsObject) {
                return row->text;
            }
        }
        unknownNames.append(name);
        return QString();
    }
};
