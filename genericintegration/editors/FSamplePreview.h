#pragma once

#include "genericintegration/templates/FGenIntResultsFile.h"

#include <QObject>
#include <QTimer>

class FResultsPreview;

/** Fills the preview of a result template with what the reader finds in the sample. */
class FSamplePreview : public QObject {
    Q_OBJECT

 public:
    /** Both outlive the object; the template may be empty, and may become another one. */
    FSamplePreview(const FExpr<FGenIntResultsFile>& file, FResultsPreview& table);

    /** Reads the sample now. */
    void refresh();
    /** Reads it a moment after the last call, so that a spin box can be turned meanwhile. */
    void refreshSoon();
    /** Says that there is no value. */
    void setBlank();
    /** Doesn't read any more what should be read soon, and forgets what was read. */
    void letGo();

 signals:
    void refreshed();

 private:
    const FExpr<FGenIntResultsFile>& mFile;
    FResultsPreview& mTable;
    QTimer mTimer;
};
