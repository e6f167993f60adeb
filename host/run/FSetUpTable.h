#pragma once

#include <QString>
#include <QStringList>

/** A table that a run reads its results into. */
struct FSetUpTable {
    QString name;
    QStringList rows;
};
