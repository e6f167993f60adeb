#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QList>
#include <QObject>
#include <QString>

class FExternComputation;
class FMainWindow;

/**
 * Imports files into the project, each as one step, and reports what came in. What is missing in a file is in the log,
 * with its line; what could be read stays.
 */
class MERIX_EXPORT FFileImport : public QObject {
 public:
    explicit FFileImport(FMainWindow& window) : mWindow(window) {}

    /** Imports a file that the user chooses. */
    void ask(const QString& folder);
    void read(const QString& path);

 private:
    void tell(const QString& file) const;
    /** What came in, in words. */
    QString summary(const QString& file) const;
    /** Shows the first of the new set-ups. */
    void showFirst() const;

    FMainWindow& mWindow;
    QList<FExpr<FExternComputation>> mNew;
    QString mFirstWarning;
    int mFaults = 0;
};
