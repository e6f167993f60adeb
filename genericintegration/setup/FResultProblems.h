#pragma once

#include "genericintegration/setup/FProblemList.h"
#include "host/core/FExpr.h"

#include <QList>

class FGenIntFile;
class FGenIntResultsFile;
class FGenIntResultsFileValue;

/** Finds the problems of the result templates of a definition. */
class FResultProblems {
 public:
    static void find(const QList<FExpr<FGenIntFile>>& resultTemplates, FProblemList& problems);

 private:
    static void findName(const FGenIntFile& file, FProblemList& problems);
    static void findSeparators(const FGenIntResultsFile& file, FProblemList& problems);
    static void findValues(const FGenIntResultsFile& file, FProblemList& problems);
    static void findAnchors(const FGenIntResultsFile& file, FProblemList& problems);
    static void findRows(const FGenIntResultsFile& file, const FGenIntResultsFileValue& value, const QString& which,
                         FProblemList& problems);
    static void findImportType(const FGenIntResultsFile& file, const FGenIntResultsFileValue& value,
                               const QString& which, FProblemList& problems);
};
