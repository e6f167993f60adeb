#include "genericintegration/editors/FResultsFileView.h"

#include "genericintegration/editors/FFileNameGroup.h"
#include "genericintegration/editors/FKeptSplitter.h"
#include "genericintegration/editors/FPreviewGroup.h"
#include "genericintegration/editors/FResultsFileForm.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/editors/FSamplePane.h"
#include "genericintegration/editors/FSamplePreview.h"
#include "genericintegration/editors/FSeparatorGroup.h"
#include "genericintegration/editors/FTemplateReports.h"
#include "genericintegration/editors/FValueGroup.h"
#include "genericintegration/editors/FValueSelector.h"
#include "genericintegration/io/FTemplateValues.h"

#include <QVBoxLayout>

namespace {

const char* const divisionKey = "GenericIntegration/splitter/main";
const char* const usualDivision = "AAAA/wAAAAAAAAACAAABbQAABNAAAAAABgEAAAAB";

}  // namespace

FResultsFileView::FResultsFileView(FGenIntResultsFileEditor& page, const FExpr<FGenIntResultsFile>& file,
                                   FAttributeEditor* averageRows)
    : mFile(file),
      mpForm(new FResultsFileForm(averageRows)),
      mpSample(new FSamplePane(page)),
      mpPreview(std::make_unique<FSamplePreview>(file, mpForm->preview().table())),
      mpReports(new FTemplateReports(this)),
      mpDivision(new FKeptSplitter(divisionKey, usualDivision, this)),
      mpProblems(FProblemWatch::get()) {
    mpDivision->addWidget(mpForm);
    mpDivision->addWidget(mpSample);
    mpDivision->restore();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mpReports);
    column->addWidget(mpDivision, 1);
    connect(mpPreview.get(), &FSamplePreview::refreshed, this, &FResultsFileView::showPreviewed);
    connect(mpReports, &FTemplateReports::chosen, this, &FResultsFileView::chosen);
    connect(mpProblems.get(), &FProblemWatch::checked, this, &FResultsFileView::showProblems);
}

FValueSelector& FResultsFileView::selector() {
    return mpForm->selector();
}

FResultsPreview& FResultsFileView::table() {
    return mpForm->preview().table();
}

void FResultsFileView::letGo() {
    mpPreview->letGo();
    mpSample->letGo();
}

void FResultsFileView::keepDivision() const {
    mpDivision->keep();
}

// ---- the template ----

void FResultsFileView::showTemplate() {
    mpForm->fileName().show(mFile->getFileName());
    if (mpSample->setText(mFile->getPlainContent())) {
        mFile->setContentAltered(false);
    }
    mpForm->separators().show(FTemplateValues::separatorsOf(*mFile.ptr()));
}

void FResultsFileView::showValues(const std::vector<FExpr<FObject>>& values, const Value& current) {
    selector().show(values, mFile->getValues()->getObjects(), current);
}

void FResultsFileView::mark(const Value& value) {
    if (!value) {
        mpSample->unmark();
        mpForm->preview().showNoPlace();
        return;
    }
    const FFoundValue found =
        mpSample->mark(FTemplateValues::describe(*value.ptr()), mpForm->separators().separators());
    mpForm->preview().showPlace(found, found.textIn(mpSample->sample().text()),
                                FTemplateValues::isFileName(*value.ptr()), mpSample->isReadElsewhere());
    explainFrame();
}

void FResultsFileView::showPreviewed() {
    table().select(selector().name());
    explainFrame();
}

// Says that the reader takes another place than the marked one.
void FResultsFileView::explainFrame() {
    const QString elsewhere = QStringLiteral("It is read at the frame in the sample, not at the marked column. ");
    const QString cause =
        mpSample->isAverage()
            ? QStringLiteral(
                  "An average has no anchor: its columns count from the start of each line, and lines "
                  "without a number don't count")
            : QStringLiteral("Choose an anchor that occurs once in its line");
    table().setNote(selector().name(), mpSample->isReadElsewhere() ? elsewhere + cause : QString());
}

// ---- problems ----

void FResultsFileView::showProblems() {
    mpReports->show(mFile ? mpProblems->problemsOf(mFile->getName()) : FSetUpCheck::Problems(), notices());
}

QStringList FResultsFileView::notices() const {
    const int line = mpSample->firstLongLine();
    return line == 0 ? QStringList()
                     : QStringList(QStringLiteral("Line %1 has more than %L2 characters: it is shown in pieces.")
                                       .arg(line)
                                       .arg(FLongLines::longest));
}

void FResultsFileView::chosen(const FSetUpProblem& problem) {
    if (!problem.part.isEmpty() && selector().choose(problem.part)) {
        selector().focusName();
    } else if (isEnabled()) {
        mpForm->separators().focus();
    }
    mpForm->showFocused();
}
