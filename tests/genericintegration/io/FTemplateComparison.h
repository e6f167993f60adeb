#pragma once

#include "genericintegration/io/FTemplateSubstitution.h"
#include "tests/genericintegration/io/SlowTemplateModel.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <vector>

/** Compares the writer with the slow model. For tests and fuzz targets. */
namespace FTemplateComparison {

using Table = QMap<QString, SlowTemplateModel::Row>;

struct Report {
    FTagOutcome outcome;
    QString name;
    int row;
    qsizetype position;
    FTextPlace place;
};

struct Written {
    QString text;
    QByteArray bytes;
    std::vector<Report> reports;
};

Written write(const QString& text, const Table& table, bool force);

/** Describes the first difference between the output and the model's; empty if there is none. */
QString difference(const Written& written, const QString& text, const Table& table, bool force);
/** The same for the names in tags, and for renaming one. */
QString differenceOfNames(const QString& text, const QString& name);

}  // namespace FTemplateComparison
