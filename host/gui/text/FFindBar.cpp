#include "host/gui/text/FFindBar.h"

#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/text/FOutputViewer.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QToolButton>

namespace {

/** Bytes of a selection that is taken as what to look for. */
constexpr qint64 longestSelection = 200;
constexpr int mostCharacters = 1000;

}  // namespace

FFindBar::FFindBar(FOutputViewer& viewer, QWidget* parent)
    : QFrame(parent),
      mViewer(viewer),
      mpWhat(new QLineEdit(this)),
      mpCase(new QCheckBox(QStringLiteral("Match &case"), this)),
      mpProgress(new QProgressBar(this)),
      mpMessage(new QLabel(this)) {
    setObjectName(QStringLiteral("findBar"));
    auto* row = new QHBoxLayout(this);
    const int margin = fontMetrics().height() / 4;
    row->setContentsMargins(margin, margin, margin, margin);
    auto* label = new QLabel(QStringLiteral("Fi&nd"), this);
    label->setBuddy(mpWhat);
    row->addWidget(label);
    mpWhat->setObjectName(QStringLiteral("findText"));
    mpWhat->setAccessibleName(QStringLiteral("Text to find"));
    mpWhat->setMaxLength(mostCharacters);
    mpWhat->setClearButtonEnabled(true);
    row->addWidget(mpWhat, 1);
    QToolButton* previous = FToolButton::addTo(*row, QStringLiteral("findPrevious"), QStringLiteral("go-up"),
                                               QStringLiteral("Find the previous place (Shift+F3)"));
    QToolButton* next = FToolButton::addTo(*row, QStringLiteral("findNext"), QStringLiteral("go-down"),
                                           QStringLiteral("Find the next place (F3)"));
    mpCase->setObjectName(QStringLiteral("findCase"));
    mpCase->setAccessibleName(QStringLiteral("Match case"));
    row->addWidget(mpCase);
    mpProgress->setObjectName(QStringLiteral("findProgress"));
    mpProgress->setAccessibleName(QStringLiteral("Progress of the search"));
    row->addWidget(mpProgress, 1);
    mpStop = FToolButton::addTo(*row, QStringLiteral("findStop"), QStringLiteral("process-stop"),
                                QStringLiteral("Stop the search (Escape)"));
    mpMessage->setObjectName(QStringLiteral("findMessage"));
    row->addWidget(mpMessage, 1);
    QToolButton* closeButton = FToolButton::addTo(*row, QStringLiteral("findClose"), QStringLiteral("window-close"),
                                                  QStringLiteral("Close the search (Escape)"));

    connect(mpWhat, &QLineEdit::returnPressed, this, &FFindBar::findNext);
    connect(mpWhat, &QLineEdit::textEdited, this, &FFindBar::stop);
    connect(previous, &QToolButton::clicked, this, &FFindBar::findPrevious);
    connect(next, &QToolButton::clicked, this, &FFindBar::findNext);
    connect(mpStop, &QToolButton::clicked, this, &FFindBar::stop);
    connect(closeButton, &QToolButton::clicked, this, &FFindBar::close);
    mTimer.setInterval(0);
    connect(&mTimer, &QTimer::timeout, this, &FFindBar::searchOn);
    showProgress(false);
    hide();
}

void FFindBar::start() {
    const auto [begin, end] = mViewer.getSelection();
    const QString selected = end - begin <= longestSelection ? mViewer.getSelectedText() : QString();
    if (!selected.isEmpty() && !selected.contains(QLatin1Char('\n'))) {
        mpWhat->setText(selected);
    }
    QFrame::show();
    mpWhat->setFocus();
    mpWhat->selectAll();
}

void FFindBar::close() {
    stop();
    hide();
    mViewer.setFocus();
}

void FFindBar::stop() {
    mTimer.stop();
    if (mSearch) {
        show(QStringLiteral("Stopped after %1 %").arg(mSearch->getPercent()), false);
    } else {
        show(QString(), false);
    }
    mSearch.reset();
    showProgress(false);
}

void FFindBar::search(bool backwards) {
    if (mpWhat->text().isEmpty()) {
        start();
        return;
    }
    const auto [begin, end] = mViewer.getSelection();
    show(QString(), false);
    mSearch.emplace(mpWhat->text(), mpCase->isChecked(), backwards ? begin : end, backwards);
    mTimer.start();
    searchOn();
}

void FFindBar::searchOn() {
    const FTextSearch::State state = mSearch->searchSlice(mViewer.text().text());
    if (state == FTextSearch::State::Searching) {
        mpProgress->setValue(mSearch->getPercent());
        showProgress(true);
        return;
    }
    mTimer.stop();
    showProgress(false);
    const FTextSearch search = *mSearch;
    mSearch.reset();
    if (state == FTextSearch::State::NotFound) {
        show(QStringLiteral("Not found"), true);
        return;
    }
    mViewer.select(search.getBegin(), search.getEnd());
    show(search.isWrapped() ? QStringLiteral("Continued from the other end") : QString(), false);
}

void FFindBar::show(const QString& message, bool isBad) {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText,
                    FStateColor::of(isBad ? FStateColor::State::Bad : FStateColor::State::Secondary));
    mpMessage->setPalette(colors);
    mpMessage->setText(message);
}

void FFindBar::showProgress(bool isSearching) {
    mpProgress->setVisible(isSearching);
    mpStop->setVisible(isSearching);
    mpMessage->setVisible(!isSearching);
}

void FFindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QFrame::keyPressEvent(event);
    } else if (isSearching()) {
        stop();
    } else {
        close();
    }
}
