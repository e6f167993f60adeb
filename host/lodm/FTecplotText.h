#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** A zone of a file in Tecplot's ASCII form: its points as rows, with a column for each variable. */
struct FTecplotZone {
    QString title;  //!< empty if it has none
    QVector<QVector<double>> rows;
};

/**
 * What such a file contains: a title, the names of the variables, and zones whose numbers are listed point by point or
 * variable by variable. Zones of finite elements give their nodes; the elements are passed over. Takes linear time.
 */
struct MERIX_EXPORT FTecplotText {
    /** Most numbers of a file, repetitions included. */
    static constexpr int mostNumbers = 10'000'000;

    QString title{};
    QStringList variables{};
    QVector<FTecplotZone> zones{};
    QString fault{};    //!< why the file is invalid or not supported; empty if it is read
    int faultLine = 0;  //!< from 1

    static FTecplotText read(const QString& text);
};
