#pragma once

#include "host/core/FExport.h"

#include <QList>
#include <QStringList>

/** What counts as the success of a computation's run, apart from the end of its program and its result files. */
struct MERIX_EXPORT FSuccessRules {
    QList<int> exitCodes{0};           //!< the exit codes of a success
    QList<QStringList> requiredTexts;  //!< each a file in the folder of the run and a text that it must contain
    QList<QStringList> forbiddenTexts;
    QStringList optionalFiles;   //!< files in the folder of the run that may be missing
    QStringList requiredValues;  //!< names of values that mustn't be NaN; `allValues()` for all
    QString suspiciousNumbers = warns();
    QString missingAnchors = warns();

    /** What a rule does with a number: nothing, a warning, or the failure of the run. */
    static const QString& accepts();
    static const QString& warns();
    static const QString& fails();
    static const QString& allValues();

    /** Whether the numbers have to be read to know if the run succeeded. */
    bool needsNumbers() const;
    bool isOptional(const QString& file) const;
    QStringList withoutOptional(const QStringList& files) const;
    /** The files that texts are searched in. */
    QStringList textFiles() const;

    // ---- why a rule can't be set, for the user; empty if it can ----
    static QString faultOfExitCodes(const QList<int>& codes);
    static QString faultOfTexts(const QList<QStringList>& texts);
    static QString faultOfFiles(const QStringList& files);
    static QString faultOfTreatment(const QString& treatment);
};
