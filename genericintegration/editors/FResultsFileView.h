#pragma once

#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/gui/base/FProblemWatch.h"

#include <QWidget>

#include <memory>

class FAttributeEditor;
class FGenIntResultsFileEditor;
class FKeptSplitter;
class FResultsFileForm;
class FResultsPreview;
class FSamplePane;
class FSamplePreview;
class FTemplateReports;
class FValueSelector;
struct FSetUpProblem;

/**
 * What the page of a result template shows: its problems, a form, a preview of what the reader finds in the sample, and
 * the sample, in which the current value is marked. It changes nothing in the template.
 */
class FResultsFileView : public QWidget {
    Q_OBJECT

 public:
    using Value = FExpr<FGenIntResultsFileValue>;

    /**
     * @param file  may be empty, and may become another one; outlives the object
     * @param averageRows  the field for the number of rows of an average
     */
    FResultsFileView(FGenIntResultsFileEditor& page, const FExpr<FGenIntResultsFile>& file,
                     FAttributeEditor* averageRows);

    FResultsFileForm& form() { return *mpForm; }
    FValueSelector& selector();
    FSamplePane& sample() { return *mpSample; }
    FSamplePreview& preview() { return *mpPreview; }
    FResultsPreview& table();

    /** Shows name, sample and separators. */
    void showTemplate();
    /** @param values  of the template, in the order of the selector */
    void showValues(const std::vector<FExpr<FObject>>& values, const Value& current);
    /** Marks where a value is read, and says what is there; an empty handle removes the marks. */
    void mark(const Value& value);
    void showProblems();
    /** Lets go of all text. */
    void letGo();
    /** The division of the page is that of the next one. */
    void keepDivision() const;

 private:
    void chosen(const FSetUpProblem& problem);
    QStringList notices() const;
    void showPreviewed();
    void explainFrame();

    const FExpr<FGenIntResultsFile>& mFile;
    FResultsFileForm* mpForm;
    FSamplePane* mpSample;
    std::unique_ptr<FSamplePreview> mpPreview;
    FTemplateReports* mpReports;
    FKeptSplitter* mpDivision;
    std::shared_ptr<FProblemWatch> mpProblems;
};
