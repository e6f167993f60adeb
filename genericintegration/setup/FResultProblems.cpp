#include "genericintegration/setup/FResultProblems.h"

#include "genericintegration/io/FAnchorSearch.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/lodm/FLodmConfigurationParser.h"
#include "host/run/FResultFiles.h"
#include "host/run/FResultText.h"

#include <QHash>

void FResultProblems::find(const QList<FExpr<FGenIntFile>>& resultTemplates, FProblemList& problems) {
    QHash<QString, QString> readers;
    int number = 0;
    for (const FExpr<FGenIntResultsFile>& handle : FGenIntResultsFile::among(resultTemplates)) {
        const FGenIntResultsFile* file = handle.ptr();
        findName(*file, problems);
        findSeparators(*file, problems);
        findValues(*file, problems);
        findAnchors(*file, problems);
        const QString name = file->getFileName().toCaseFolded();
        if (!name.isEmpty() && readers.contains(name)) {
            problems.warning(file->getName(),
                             QStringLiteral("it reads %1, as \"%2\" does, and getTable gives the table of \"%2\" for "
                                            "both")
                                 .arg(file->getFileName(), readers.value(name)),
                             QStringLiteral("Its table is getTableAt(%1)").arg(number));
        } else {
            readers.insert(name, file->getName());
        }
        ++number;
    }
}

void FResultProblems::findName(const FGenIntFile& file, FProblemList& problems) {
    if (const QString fault = FResultFiles::faultOfTemplate(file.getFileName()); !fault.isEmpty()) {
        problems
            .error(file.getName(), QStringLiteral("the result template ") + fault,
                   QStringLiteral("Name the file that the program writes, below the folder of the run, with "
                                  "setFileName"))
            .isReportedByRun = true;
    }
}

void FResultProblems::findSeparators(const FGenIntResultsFile& file, FProblemList& problems) {
    const bool hasExpression = !file.getRegExprSeparator().isEmpty();
    if (file.getNumberSeparator() && (hasExpression || file.getSpacesAndTabsSeparator())) {
        problems.warning(file.getName(),
                         QStringLiteral("the separator %1 has no effect, because numbers are searched for")
                             .arg(hasExpression ? QLatin1Char('"') + file.getRegExprSeparator() + QLatin1Char('"')
                                                : QStringLiteral("of spaces and tabs")),
                         QStringLiteral("To separate columns by it, choose Custom in place of Find numbers: "
                                        "setNumberSeparator(false)"));
    }
    if (!file.getNumberSeparator() && !hasExpression && !file.getSpacesAndTabsSeparator()) {
        problems.error(file.getName(),
                       QStringLiteral("neither numbers are searched for nor is there a separator, so no column is "
                                      "found"),
                       QStringLiteral("Choose Find numbers, Spaces & Tabs or a Regular Expression: "
                                      "setNumberSeparator(true), setSpacesAndTabsSeparator(true) or "
                                      "setRegExprSeparator"));
    }
}

void FResultProblems::findValues(const FGenIntResultsFile& file, FProblemList& problems) {
    QHash<QString, int> numbers;
    const QString remedy = QStringLiteral("Values count from 0; correct it in the list of setValues");
    int number = 0;
    for (const FGenIntResultsFileValue* value : FTemplateValues::among(file.getValues()->getObjects())) {
        const QString which = QStringLiteral("value %1, \"%2\", ").arg(QString::number(number), value->mName);
        if (numbers.contains(value->mName)) {
            problems
                .warning(file.getName(),
                         QStringLiteral("values %1 and %2 have the name \"%3\"; by name, only the first can be read")
                             .arg(QString::number(numbers.value(value->mName)), QString::number(number), value->mName),
                         QStringLiteral("Give each value a name of its own in the list of setValues"))
                .part = value->mName;
        } else {
            numbers.insert(value->mName, number);
        }
        if (const QString fault = value->placeFault(); !fault.isEmpty()) {
            problems.error(file.getName(), which + fault, remedy).part = value->mName;
        } else if (value->mColumn < 0) {
            problems
                .error(file.getName(), which + QStringLiteral("has the column %1").arg(value->mColumn),
                       QStringLiteral("Columns count from 0; correct it in the list of setValues"))
                .part = value->mName;
        }
        findRows(file, *value, which, problems);
        findImportType(file, *value, which, problems);
        ++number;
    }
}

// A value without its anchor is read from another line. Without a sample, only a run shows whether it is there.
void FResultProblems::findAnchors(const FGenIntResultsFile& file, FProblemList& problems) {
    const FResultText sample = FResultText::fromString(file.getPlainContent());
    if (sample.isEmpty()) {
        return;
    }
    const FTemplateValues::Values values = FTemplateValues::among(file.getValues()->getObjects());
    std::vector<QString> anchors;
    for (const FGenIntResultsFileValue* value : values) {
        anchors.push_back(value->mCalcAverage ? QString() : value->mAnchor);
    }
    const std::vector<FAnchorPlaces> places = FAnchorSearch(anchors).findInTrimmed(sample);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!anchors[i].isEmpty() && places[i].first.begin < 0) {
            problems
                .warning(file.getName(),
                         QStringLiteral("value %1, \"%2\", has the anchor \"%3\", which isn't in the template's sample")
                             .arg(QString::number(i), values[i]->mName, anchors[i]),
                         QStringLiteral("Correct the anchor, or the sample"))
                .part = values[i]->mName;
        }
    }
}

void FResultProblems::findRows(const FGenIntResultsFile& file, const FGenIntResultsFileValue& value,
                               const QString& which, FProblemList& problems) {
    // A number of rows that reads files is known only in a run.
    const bool isKnown = value.mNumAverageRows.isEmpty() || value.mNumAverageRows.canSafelyBeUpdated(false);
    if (value.mCalcAverage && isKnown && FTemplateValues::describe(value).averageRows == 0) {
        problems
            .error(file.getName(), which + QStringLiteral("is an average over no rows, and gives no number"),
                   QStringLiteral("Give it a whole number of rows from 1, or switch its average off"))
            .part = value.mName;
    }
}

void FResultProblems::findImportType(const FGenIntResultsFile& file, const FGenIntResultsFileValue& value,
                                     const QString& which, FProblemList& problems) {
    if (FTemplateValues::isFileName(value) && !FLodmConfigurationParser::knowsType(value.mImportType)) {
        problems
            .warning(file.getName(),
                     which + QStringLiteral("has the import type \"%1\", which isn't known, so that its file isn't "
                                            "imported")
                                 .arg(value.mImportType),
                     FLodmConfigurationParser::knownTypes())
            .part = value.mName;
    }
}
