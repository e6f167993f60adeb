#include "host/gui/panels/FRunPanel.h"

#include "host/core/FObjectManager.h"
#include "host/core/FString.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FListView.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/base/FWhyNot.h"
#include "host/gui/panels/FRunModel.h"
#include "host/gui/panels/FRunTail.h"
#include "host/gui/panels/FTablePanel.h"
#include "host/run/FCauseLines.h"
#include "host/run/FExternComputation.h"
#include "host/run/FResultsGeneric.h"
#include "host/script/FCmdManager.h"

#include <QDesktopServices>
#include <QDir>
#include <QHeaderView>
#include <QProgressBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QUrlQuery>
#include <QVBoxLayout>

namespace {

const char* const layoutName = "runs";

QString link(const QUrl& url, const QString& text) {
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(QString::fromLatin1(url.toEncoded()).toHtmlEscaped(), text.toHtmlEscaped());
}

QUrl fileLink(const QString& path, qint64 line) {
    QUrl url = QUrl::fromLocalFile(path);
    url.setFragment(QString::number(line));
    return url;
}

/** The templates that the input and the results of a computation are made of. */
QList<FManaged*> templatesOf(const FExternComputation& computation) {
    QList<FManaged*> templates;
    for (FObject* object : computation.getSuppliersCmdHelper({FManaged::null()})) {
        auto* managed = dynamic_cast<FManaged*>(object);
        const bool isFile =
            managed &&
            !FCmdManager::instance()->findMembers(managed->getClassData(), QStringLiteral("setContent")).empty();
        if (isFile) {
            templates.append(managed);
        }
    }
    return templates;
}

/** The file that a template becomes, which is what its tab is called. */
QString fileNameOf(const FManaged& file) {
    QString name;
    for (const FCmdRow* row :
         FCmdManager::instance()->findMembers(file.getClassData(), QStringLiteral("setFileName"))) {
        const FExprBase value = row->getter ? row->getter(&file) : FExprBase();
        const auto* text = dynamic_cast<const FString*>(value.getStored());
        name = text ? text->getValue() : name;
    }
    return name.isEmpty() ? file.getName() : name;
}

/** A line of the text about a failure, with a link if it is one of a file of the run. */
QString lineToHtml(const QString& text, const QString& folder) {
    const FCauseLines::Line line = FCauseLines::fromText(text);
    if (line.file.isEmpty() || folder.isEmpty()) {
        return text.toHtmlEscaped();
    }
    const QString place = QStringLiteral("%1:%2").arg(line.file, QString::number(line.number));
    return QStringLiteral("&nbsp;&nbsp;%1 <tt>%2</tt>")
        .arg(link(fileLink(folder + line.file, line.number), place), line.text.toHtmlEscaped());
}

}  // namespace

FRunPanel::FRunPanel(FNavigator& navigator)
    : mNavigator(navigator),
      mpModel(new FRunModel),
      mpView(new FListView(QStringLiteral("runList"), QStringLiteral("Runs"), mpModel, this)),
      mpSplitter(new QSplitter(this)) {
    mpModel->setParent(this);
    mpView->setSelectionMode(QAbstractItemView::SingleSelection);
    for (const int column :
         {FRunModel::runColumn, FRunModel::stateColumn, FRunModel::startColumn, FRunModel::tookColumn}) {
        mpView->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    new FEmptyHint(mpView, QStringLiteral("Runs appear here; F5 starts one"));
    mpSplitter->setObjectName(QStringLiteral("runSplitter"));
    mpSplitter->setChildrenCollapsible(false);
    mpSplitter->addWidget(mpView);
    mpSplitter->addWidget(makeDetails());
    // Shares, not pixels: the splitter scales them to its width.
    mpSplitter->setSizes({5800, 4200});
    mpSplitter->restoreState(FGuiSettings::getLayout(QString::fromLatin1(layoutName)));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpSplitter);
    setFocusProxy(mpView);

    connect(mpView->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &FRunPanel::showCurrent);
    connect(mpView, &QTreeView::activated, this, &FRunPanel::showResults);
    connect(mpModel, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
        if (!mpView->currentIndex().isValid()) {
            mpView->setCurrentIndex(mpModel->index(first, 0));
        }
        rowsChanged(first, last);
    });
    connect(mpModel, &FRunModel::runStarted, this,
            [this](int row) { mpView->setCurrentIndex(mpModel->index(row, 0)); });
    connect(mpModel, &QAbstractItemModel::modelReset, this, &FRunPanel::showCurrent);
    connect(mpModel, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) { rowsChanged(first.row(), last.row()); });
    if (mpModel->rowCount() > 0) {
        mpView->setCurrentIndex(mpModel->index(0, 0));
    }
    showCurrent();
}

FRunPanel::~FRunPanel() {
    FGuiSettings::setLayout(QString::fromLatin1(layoutName), mpSplitter->saveState());
}

QWidget* FRunPanel::makeDetails() {
    auto* details = new QWidget(this);
    mpTabs = new QTabWidget(details);
    mpTabs->setObjectName(QStringLiteral("runDetails"));
    mpTabs->setAccessibleName(QStringLiteral("Details of the run"));
    mpTabs->setDocumentMode(true);
    // Beside the tabs, which a row of buttons above would leave no room for in a small window.
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(0);
    mpStop = FToolButton::addTo(*buttons, QStringLiteral("stopRun"), QStringLiteral("media-playback-stop"),
                                QStringLiteral("Stop this run"));
    mpAgain = FToolButton::addTo(*buttons, QStringLiteral("runAgain"), QStringLiteral("media-playback-start"),
                                 QStringLiteral("Run this computation again"));
    mpFolder = FToolButton::addTo(*buttons, QStringLiteral("openRunFolder"), QStringLiteral("document-open-folder"),
                                  QStringLiteral("Open the folder with the files of this run"));
    mpResults = FToolButton::addTo(*buttons, QStringLiteral("showRunResults"), QStringLiteral("results"),
                                   QStringLiteral("Show the results of this run"));
    buttons->addStretch(1);
    auto* row = new QHBoxLayout(details);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(mpTabs, 1);
    row->addLayout(buttons);
    mpText = new QTextBrowser(mpTabs);
    mpText->setObjectName(QStringLiteral("runText"));
    mpText->setAccessibleName(QStringLiteral("What happened"));
    mpText->setOpenLinks(false);
    connect(mpText, &QTextBrowser::anchorClicked, this, &FRunPanel::follow);
    mpOutput = new FRunTail(QStringLiteral("runOutput"), QStringLiteral("Output of the program"), mpTabs);
    mpErrors = new FRunTail(QStringLiteral("runErrors"), QStringLiteral("Error output of the program"), mpTabs);
    mpTabs->addTab(mpText, QStringLiteral("Details"));
    mpTabs->addTab(mpOutput, QStringLiteral("Output"));
    mpTabs->addTab(mpErrors, QStringLiteral("Errors"));
    connect(mpStop, &QToolButton::clicked, this, [this] { mpModel->stop(current()); });
    connect(mpAgain, &QToolButton::clicked, this, &FRunPanel::runAgain);
    connect(mpFolder, &QToolButton::clicked, this, &FRunPanel::openFolder);
    connect(mpResults, &QToolButton::clicked, this, &FRunPanel::showResults);
    return details;
}

int FRunPanel::current() const {
    return mpView->currentIndex().row();
}

void FRunPanel::rowsChanged(int first, int last) {
    for (int row = first; row <= last; ++row) {
        showBar(row);
    }
    if (first <= current() && current() <= last) {
        const int row = current();
        const bool isLive = !mpModel->record(row).isOver();
        const QString details = detailsOf(row);
        if (mpText->property("details").toString() != details) {
            mpText->setProperty("details", details);
            mpText->setHtml(details);
        }
        mpOutput->setLive(isLive);
        mpErrors->setLive(isLive);
    }
    updateButtons();
}

/** Shows how far a running program is towards its time limit, or only that it runs. */
void FRunPanel::showBar(int row) {
    const QModelIndex index = mpModel->index(row, FRunModel::saidColumn);
    auto* bar = qobject_cast<QProgressBar*>(mpView->indexWidget(index));
    if (mpModel->record(row).isOver() || mpModel->record(row).isSkipped()) {
        if (bar) {
            mpView->setIndexWidget(index, nullptr);
        }
        return;
    }
    const auto limit = static_cast<int>(mpModel->timeLimitOf(row));
    if (!bar) {
        bar = new QProgressBar;
        bar->setObjectName(QStringLiteral("runProgress"));
        bar->setAccessibleName(QStringLiteral("Time of the run"));
        bar->setRange(0, limit);
        bar->setFormat(QStringLiteral("%v of at most %m s"));
        bar->setToolTip(limit > 0 ? QStringLiteral("The time limit ends the run at the right edge")
                                  : QStringLiteral("The run has no time limit"));
        mpView->setIndexWidget(index, bar);
    }
    bar->setValue(std::clamp(static_cast<int>(mpModel->secondsOf(row)), 0, std::max(limit, 0)));
}

void FRunPanel::showCurrent() {
    const int row = current();
    const QString folder = row < 0 ? QString() : mpModel->folderOf(row);
    mpOutput->setFile(folder.isEmpty() ? QString() : folder + FProgramSettings::outputFile());
    mpErrors->setFile(folder.isEmpty() ? QString() : folder + FProgramSettings::errorFile());
    mpText->setProperty("details", QVariant());
    if (row < 0) {
        mpText->clear();
        updateButtons();
        return;
    }
    rowsChanged(row, row);
}

void FRunPanel::updateButtons() {
    const int row = current();
    const bool isThere = row >= 0;
    const FExternComputation* computation = isThere ? mpModel->computation(row) : nullptr;
    const bool isOver = isThere && mpModel->record(row).isOver();
    const QString noRun = isThere ? QString() : QStringLiteral("No run is selected");
    const QString gone = QStringLiteral("The computation is no longer there");
    FWhyNot::apply(*mpStop, !isThere                   ? noRun
                            : isOver                   ? QStringLiteral("The run is over")
                            : mpModel->isStopping(row) ? QStringLiteral("It is being stopped")
                            : !computation             ? gone
                            : !mpModel->canStop(row)   ? QStringLiteral("It hasn't started yet")
                                                       : QString());
    FWhyNot::apply(*mpAgain, !isThere                 ? noRun
                             : !computation           ? gone
                             : !computation->canRun() ? QStringLiteral("The computation is running")
                                                      : QString());
    FWhyNot::apply(*mpFolder, !isThere                           ? noRun
                              : mpModel->folderOf(row).isEmpty() ? QStringLiteral("Later runs have replaced the files")
                                                                 : QString());
    FWhyNot::apply(*mpResults, !isThere ? noRun : !computation ? gone : whyNoResults(row));
}

QString FRunPanel::whyNoResults(int row) const {
    const FExternComputation& computation = *mpModel->computation(row);
    const FRunRecord& run = mpModel->record(row);
    if (!run.isOver()) {
        return QStringLiteral("The run isn't over");
    }
    if (run.isSkipped() && run.state != FRunRecord::State::UpToDate) {
        return QStringLiteral("Its program wasn't started");
    }
    const bool hasPresent = computation.getCurrentResults() || computation.canRereadResults();
    const bool hasOwn = mpModel->isLast(row) ? hasPresent : hasPresent && !mpModel->tablesOf(row).isEmpty();
    return hasOwn ? QString() : QStringLiteral("No numbers of this run are kept");
}

QString FRunPanel::detailsOf(int row) const {
    const FRunRecord& run = mpModel->record(row);
    const QString folder = mpModel->folderOf(row);
    QStringList lines;
    const QString text = run.failureText();
    if (text.isEmpty()) {
        const QString said = mpModel->index(row, FRunModel::saidColumn).data().toString();
        const QString state = mpModel->index(row, FRunModel::stateColumn).data().toString();
        lines.append((said.isEmpty() ? state.left(1).toUpper() + state.mid(1) : said).toHtmlEscaped());
    } else {
        // The folder gets a line of its own below.
        const QStringList parts = text.split(QLatin1Char('\n'));
        for (const QString& part : parts.mid(0, parts.size() - (run.isSkipped() ? 0 : 1))) {
            lines.append(lineToHtml(part, folder));
        }
    }
    if (!run.isSkipped()) {
        lines.append(folder.isEmpty() ? QStringLiteral("Later runs have replaced the files of this one.")
                                      : QStringLiteral("Folder: ") +
                                            link(QUrl::fromLocalFile(folder), QDir::toNativeSeparators(folder)));
    }
    if (!folder.isEmpty() && run.start.isValid()) {
        lines.append(
            QStringLiteral("Output: %1, %2")
                .arg(link(fileLink(folder + FProgramSettings::outputFile(), 0), FProgramSettings::outputFile()),
                     link(fileLink(folder + FProgramSettings::errorFile(), 0), FProgramSettings::errorFile())));
    }
    if (const FExternComputation* computation = mpModel->computation(row)) {
        QStringList names;
        for (const FManaged* object : templatesOf(*computation)) {
            QUrl url;
            url.setScheme(QStringLiteral("template"));
            url.setPath(object->getName());
            names.append(link(url, fileNameOf(*object)));
        }
        if (!names.isEmpty()) {
            lines.append(QStringLiteral("Templates: %1").arg(names.join(QStringLiteral(", "))));
        }
    }
    return lines.join(QStringLiteral("<br>"));
}

void FRunPanel::follow(const QUrl& link) {
    if (link.scheme() == QLatin1String("template")) {
        if (FManaged* object = FObjectManager::instance()->find(link.path())) {
            mNavigator.showTemplate(object, 0, 0);
        }
    } else if (link.hasFragment()) {
        FNavigator::Place place;
        place.file = link.toLocalFile();
        place.line = link.fragment().toLongLong();
        mNavigator.showFile(place);
    } else {
        openFolder();
    }
}

void FRunPanel::runAgain() {
    FUserStep::commitEdits();
    if (FExternComputation* computation = current() < 0 ? nullptr : mpModel->computation(current())) {
        computation->guiRun();
    }
}

void FRunPanel::openFolder() {
    const QString folder = mpModel->folderOf(current());
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder))) {
        mNavigator.showStatus(QStringLiteral("No program opens the folder %1").arg(folder));
    }
}

void FRunPanel::showResults() {
    const int row = current();
    FExternComputation* computation = row >= 0 && mpResults->isEnabled() ? mpModel->computation(row) : nullptr;
    if (!computation) {
        return;
    }
    const FExpr<FResultsGeneric> present = FTablePanel::presentOf(*computation);
    if (mpModel->isLast(row)) {
        mNavigator.showResults(present);
    } else {
        mNavigator.showResultsOfRun(present, row);
    }
}
