#include "host/gui/text/FSearchDialog.h"

#include "host/core/FHold.h"
#include "host/gui/base/FStateColor.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int mostCharacters = 1000;

bool isExactly(const QRegExp& what, const QString& text) {
    QRegExp whole(what);
    return !text.isEmpty() && whole.exactMatch(text);
}

}  // namespace

FSearchDialog::FSearchDialog(QPlainTextEdit& edit) : QDialog(&edit), mEdit(edit) {
    setObjectName(QStringLiteral("searchDialog"));
    setWindowTitle(QStringLiteral("Find in the text"));
    auto* column = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    column->addLayout(grid);
    mpWhat = addLine(grid, QStringLiteral("searchText"), QStringLiteral("&Find"));
    mpReplacement = addLine(grid, QStringLiteral("searchReplacement"), QStringLiteral("Replace &with"));
    mpReplacementLabel = qobject_cast<QLabel*>(grid->itemAtPosition(1, 0)->widget());
    auto* options = new QHBoxLayout;
    column->addLayout(options);
    mpCase = addOption(options, QStringLiteral("searchCase"), QStringLiteral("Match &case"));
    mpPattern = addOption(options, QStringLiteral("searchPattern"), QStringLiteral("Regular e&xpression"));
    options->addStretch(1);
    mpMessage = new QLabel(this);
    mpMessage->setObjectName(QStringLiteral("searchMessage"));
    mpMessage->setWordWrap(true);
    column->addWidget(mpMessage);
    auto* buttons = new QHBoxLayout;
    column->addLayout(buttons);
    QPushButton* next = addButton(buttons, QStringLiteral("searchNext"), QStringLiteral("Find &next"));
    QPushButton* previous = addButton(buttons, QStringLiteral("searchPrevious"), QStringLiteral("Find &previous"));
    QPushButton* all = addButton(buttons, QStringLiteral("searchHighlight"), QStringLiteral("&Highlight all"));
    mpReplace = addButton(buttons, QStringLiteral("searchReplace"), QStringLiteral("&Replace"));
    mpReplaceAll = addButton(buttons, QStringLiteral("searchReplaceAll"), QStringLiteral("Replace &all"));
    QPushButton* close = addButton(buttons, QStringLiteral("searchClose"), QStringLiteral("Close"));
    next->setDefault(true);
    setReplacing(false);

    connect(next, &QPushButton::clicked, this, [this] { refind(false); });
    connect(previous, &QPushButton::clicked, this, [this] { refind(true); });
    connect(all, &QPushButton::clicked, this, &FSearchDialog::highlight);
    connect(mpReplace, &QPushButton::clicked, this, &FSearchDialog::replace);
    connect(mpReplaceAll, &QPushButton::clicked, this, &FSearchDialog::replaceAll);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(mpWhat, &QLineEdit::textEdited, this, &FSearchDialog::stop);
    connect(&mEdit, &QPlainTextEdit::textChanged, this, &FSearchDialog::stop);
    mTimer.setInterval(0);
    connect(&mTimer, &QTimer::timeout, this, &FSearchDialog::searchOn);
}

QLineEdit* FSearchDialog::addLine(QGridLayout* grid, const QString& id, const QString& label) {
    auto* line = new QLineEdit(this);
    line->setObjectName(id);
    line->setAccessibleName(QString(label).remove(QLatin1Char('&')));
    line->setMaxLength(mostCharacters);
    auto* text = new QLabel(label, this);
    text->setBuddy(line);
    const int row = grid->count() / 2;
    grid->addWidget(text, row, 0);
    grid->addWidget(line, row, 1);
    return line;
}

QPushButton* FSearchDialog::addButton(QBoxLayout* row, const QString& id, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(id);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

QCheckBox* FSearchDialog::addOption(QBoxLayout* row, const QString& id, const QString& text) {
    auto* box = new QCheckBox(text, this);
    box->setObjectName(id);
    row->addWidget(box);
    connect(box, &QCheckBox::toggled, this, &FSearchDialog::stop);
    return box;
}

void FSearchDialog::setReplacing(bool isReplacing) {
    for (QWidget* widget : {static_cast<QWidget*>(mpReplacement), static_cast<QWidget*>(mpReplacementLabel),
                            static_cast<QWidget*>(mpReplace), static_cast<QWidget*>(mpReplaceAll)}) {
        widget->setVisible(isReplacing);
    }
}

void FSearchDialog::start() {
    const QString selected = mEdit.textCursor().selectedText();
    if (!selected.isEmpty() && selected.size() <= mostCharacters && !selected.contains(QChar::ParagraphSeparator)) {
        mpWhat->setText(selected);
    }
    show();
    raise();
    activateWindow();
    mpWhat->setFocus();
    mpWhat->selectAll();
}

std::optional<QRegExp> FSearchDialog::wanted() {
    const QRegExp what(mpWhat->text(), mpCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive,
                       mpPattern->isChecked() ? QRegExp::RegExp : QRegExp::FixedString);
    if (what.isEmpty()) {
        return std::nullopt;
    }
    if (!what.isValid()) {
        say(QStringLiteral("The regular expression isn't valid: %1").arg(what.errorString()), true);
        return std::nullopt;
    }
    return what;
}

void FSearchDialog::refind(bool backwards) {
    stop();
    if (const std::optional<QRegExp> what = wanted()) {
        mSearch.emplace(*what, mEdit.textCursor(), backwards);
        mTimer.start();
        searchOn();
    }
}

void FSearchDialog::searchOn() {
    switch (mSearch ? mSearch->searchSlice() : FDocumentSearch::State::NotFound) {
        case FDocumentSearch::State::Searching:
            say(QStringLiteral("Searching…"), false);
            return;
        case FDocumentSearch::State::Found:
            mEdit.setTextCursor(mSearch->found());
            mEdit.ensureCursorVisible();
            say(mSearch->isWrapped() ? QStringLiteral("Found from the other end of the text") : QString(), false);
            break;
        case FDocumentSearch::State::NotFound:
            say(QStringLiteral("\"%1\" isn't in the text").arg(mpWhat->text()), true);
            break;
    }
    mTimer.stop();
    mSearch.reset();
}

void FSearchDialog::stop() {
    mTimer.stop();
    mSearch.reset();
    say(QString(), false);
}

void FSearchDialog::replace() {
    const std::optional<QRegExp> what = wanted();
    QTextCursor selected = mEdit.textCursor();
    if (what && !mEdit.isReadOnly() && isExactly(*what, selected.selectedText())) {
        selected.insertText(mpReplacement->text());
    }
    refind(false);
}

void FSearchDialog::replaceAll() {
    const std::optional<QRegExp> what = wanted();
    if (!what || mEdit.isReadOnly()) {
        return;
    }
    const FWaitCursor busy;
    int count = 0;
    QTextCursor cursor(mEdit.document());
    cursor.beginEditBlock();
    for (QTextBlock block = mEdit.document()->firstBlock(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        int shift = 0;
        for (int place = what->indexIn(text); place >= 0; place = what->indexIn(text, place)) {
            const int length = what->matchedLength();
            if (length > 0) {
                cursor.setPosition(block.position() + place + shift);
                cursor.setPosition(block.position() + place + shift + length, QTextCursor::KeepAnchor);
                cursor.insertText(mpReplacement->text());
                shift += mpReplacement->text().size() - length;
                ++count;
            }
            place += std::max(length, 1);
        }
    }
    cursor.endEditBlock();
    say(QStringLiteral("%1 places replaced").arg(count), count == 0);
}

void FSearchDialog::highlight() {
    if (const std::optional<QRegExp> what = wanted()) {
        mIsHighlighting = true;
        emit highlightingRequested(*what);
    }
}

void FSearchDialog::say(const QString& text, bool isBad) {
    QPalette colors = palette();
    if (isBad) {
        colors.setColor(QPalette::WindowText, FStateColor::of(FStateColor::State::Bad));
    }
    mpMessage->setPalette(colors);
    mpMessage->setText(text);
}

void FSearchDialog::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    stop();
    if (mIsHighlighting) {
        mIsHighlighting = false;
        emit resetHighlighting();
    }
}
