#pragma once

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"

#include <QByteArray>
#include <QRegExp>
#include <QString>

#include <vector>

/** A second, slow implementation of the reader: step by step, on a decoded text, separately for each value. */
namespace FLiteralReader {

struct Found {
    double number;
    QString text;
};

QString decode(QByteArray file);
int findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor, const QString& text,
              int column, bool findNumbers);
Found find(const QString& content, const FValueDescription& value, const FSeparatorSettings& separators);
std::vector<int> order(const QString& content, const std::vector<FValueDescription>& values);

}  // namespace FLiteralReader
