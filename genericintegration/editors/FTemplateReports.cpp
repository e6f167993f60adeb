#include "genericintegration/editors/FTemplateReports.h"

#include "host/gui/base/FStateColor.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int mostShown = 20;

/** Line and column of a place such as name:line:column. */
std::pair<int, int> placeOf(const FSetUpProblem& problem) {
    const QStringList parts = problem.place.split(QLatin1Char(':'));
    const int count = parts.size();
    return count < 3 ? std::pair(0, 0) : std::pair(parts[count - 2].toInt(), parts[count - 1].toInt());
}

QString sentence(QString text) {
    const bool isComplete = text.endsWith(QLatin1Char('?')) || text.endsWith(QLatin1Char('.'));
    return text + (text.isEmpty() || isComplete ? QString() : QStringLiteral("."));
}

}  // namespace

FTemplateReports::FTemplateReports(QWidget* parent)
    : QFrame(parent), mpText(new QLabel), mpArea(new QScrollArea(this)) {
    setObjectName(QStringLiteral("templateReports"));
    setAutoFillBackground(true);
    auto* row = new QHBoxLayout(this);
    const int margin = fontMetrics().height() / 3;
    row->setContentsMargins(2 * margin, margin, 2 * margin, margin);
    mpText->setObjectName(QStringLiteral("templateReportText"));
    mpText->setAccessibleName(QStringLiteral("Problems of this template"));
    mpText->setWordWrap(true);
    mpText->setTextInteractionFlags(Qt::TextBrowserInteraction);
    mpText->setTextFormat(Qt::RichText);
    mpArea->setFrameStyle(0);
    mpArea->setProperty("elides", true);  // it scrolls
    mpArea->setFocusPolicy(Qt::NoFocus);
    mpArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpArea->setWidgetResizable(true);
    mpArea->setWidget(mpText);
    row->addWidget(mpArea);
    connect(mpText, &QLabel::linkActivated, this, &FTemplateReports::follow);
    hide();
}

void FTemplateReports::show(const FSetUpCheck::Problems& problems, const QStringList& notices) {
    mProblems = problems;
    std::stable_sort(mProblems.begin(), mProblems.end(),
                     [](const FSetUpProblem& a, const FSetUpProblem& b) { return a.severity > b.severity; });
    mNotices = notices;
    fill();
    setVisible(!mProblems.isEmpty() || !mNotices.isEmpty());
}

void FTemplateReports::fill() {
    const bool isBad = !mProblems.isEmpty() && mProblems.first().severity == FSetUpProblem::Severity::Error;
    QPalette colors = parentWidget()->palette();
    colors.setColor(QPalette::Window,
                    FStateColor::backgroundOf(isBad ? FStateColor::State::Bad : FStateColor::State::Warning));
    setPalette(colors);
    QStringList lines;
    for (int i = 0; i < mProblems.size() && i < mostShown; ++i) {
        lines.append(textOf(mProblems[i], i));
    }
    if (mProblems.size() > mostShown) {
        lines.append(QStringLiteral("%1 more in the list of problems").arg(mProblems.size() - mostShown));
    }
    for (const QString& notice : mNotices) {
        lines.append(notice.toHtmlEscaped());
    }
    mpText->setText(lines.join(QStringLiteral("<br>")));
    fit();
}

void FTemplateReports::fit() {
    constexpr int mostLines = 4;
    constexpr int mostOfPage = 4;
    const int line = mpText->fontMetrics().lineSpacing();
    const int most = qBound(line, parentWidget()->height() / mostOfPage, mostLines * line);
    // The area gets its size later than this widget.
    const int needed = mpText->heightForWidth(contentsRect().marginsRemoved(layout()->contentsMargins()).width());
    mpArea->setFixedHeight(qBound(0, needed, most));
}

void FTemplateReports::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    fit();
}

QString FTemplateReports::textOf(const FSetUpProblem& problem, int number) const {
    const int line = placeOf(problem).first;
    const QString text = QStringLiteral("⚠ %1%2 %3")
                             .arg(line > 0 ? QStringLiteral("line %1: ").arg(line) : QString(), sentence(problem.text),
                                  sentence(problem.remedy))
                             .trimmed()
                             .toHtmlEscaped();
    const QString place = QStringLiteral("<a href=\"go:%1\" style=\"color:%2;text-decoration:none\">%3</a>")
                              .arg(number)
                              .arg(palette().color(QPalette::WindowText).name(), text);
    return problem.wrong.isEmpty()
               ? place
               : place +
                     QStringLiteral(" <a href=\"use:%1\" style=\"color:%2\">Use it</a>")
                         .arg(number)
                         .arg(palette().color(FStateColor::isDark() ? QPalette::WindowText : QPalette::Link).name());
}

void FTemplateReports::follow(const QString& link) {
    const int number = link.section(QLatin1Char(':'), 1).toInt();
    if (number >= mProblems.size()) {
        return;
    }
    const FSetUpProblem problem = mProblems[number];
    if (link.startsWith(QLatin1String("use:"))) {
        emit correctionWanted(problem.wrong, problem.right);
    } else {
        const auto [line, column] = placeOf(problem);
        emit placeWanted(line, column);
        emit chosen(problem);
    }
}

void FTemplateReports::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::FontChange) {
        fill();
    }
}
