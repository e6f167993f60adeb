#pragma once

#include <QByteArray>
#include <QRegExp>
#include <QString>

#include <vector>

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"

/** The rules of the reader told step by step, as slowly as they are told, on a decoded text and for each value anew. */
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
