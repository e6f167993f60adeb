#include "host/gui/text/FOutputDocument.h"

#include "host/gui/base/FSeverityLook.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/text/FFindBar.h"
#include "host/gui/text/FOutputViewer.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QShortcut>

FOutputDocument::FOutputDocument(const QString& path)
    : mpViewer(new FOutputViewer(this)),
      mpFind(new FFindBar(*mpViewer, this)),
      mpStrip(new QFrame(this)),
      mpReason(new QLabel(mpStrip)),
      mpStatus(new QLabel(this)),
      mpLine(new QLineEdit(this)),
      mpTail(new QCheckBox(QStringLiteral("Follow the &end"), this)) {
    setObjectName(QStringLiteral("outputDocument"));
    auto* strip = new QHBoxLayout(mpStrip);
    auto* sign = new QLabel(mpStrip);
    const int size = fontMetrics().height();
    sign->setPixmap(FSeverityLook::warningIcon().pixmap(size, size));
    strip->addWidget(sign);
    mpStrip->setFrameShape(QFrame::StyledPanel);
    mpReason->setObjectName(QStringLiteral("placeReason"));
    mpReason->setWordWrap(true);
    mpReason->setTextInteractionFlags(Qt::TextSelectableByMouse);
    strip->addWidget(mpReason, 1);
    mpStrip->hide();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mpStrip);
    column->addWidget(mpViewer, 1);
    column->addWidget(mpFind);
    column->addLayout(makeStatusRow());
    addShortcuts();
    setFocusProxy(mpViewer);
    connect(mpViewer, &FOutputViewer::stateChanged, this, &FOutputDocument::updateStatus);
    connect(mpViewer, &FOutputViewer::tailingChanged, mpTail, &QCheckBox::setChecked);
    connect(mpTail, &QCheckBox::toggled, mpViewer, &FOutputViewer::setTailing);
    mFault = mpViewer->open(path);
    updateStatus();
}

QLayout* FOutputDocument::makeStatusRow() {
    auto* row = new QHBoxLayout;
    const int margin = fontMetrics().height() / 4;
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(2 * margin);
    mpStatus->setObjectName(QStringLiteral("outputStatus"));
    mpStatus->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(mpStatus, 1);
    auto* label = new QLabel(QStringLiteral("Go to &line"), this);
    label->setBuddy(mpLine);
    row->addWidget(label);
    mpLine->setObjectName(QStringLiteral("goToLine"));
    mpLine->setAccessibleName(QStringLiteral("Line to go to"));
    mpLine->setToolTip(QStringLiteral("Number of a line (Ctrl+L)"));
    mpLine->setValidator(new QIntValidator(1, std::numeric_limits<int>::max(), mpLine));
    constexpr int digits = 10;
    mpLine->setMaximumWidth(fontMetrics().horizontalAdvance(QString(digits + 2, QLatin1Char('0'))));
    connect(mpLine, &QLineEdit::returnPressed, this, &FOutputDocument::goToLine);
    row->addWidget(mpLine);
    mpTail->setObjectName(QStringLiteral("followEnd"));
    mpTail->setToolTip(QStringLiteral("Keep the end in view while the file grows"));
    mpTail->setAccessibleName(mpTail->toolTip());
    row->addWidget(mpTail);
    auto* find = new FToolButton(QStringLiteral("findInFile"), QStringLiteral("edit-find"),
                                 QStringLiteral("Find in this file (Ctrl+F)"), this);
    connect(find, &FToolButton::clicked, mpFind, &FFindBar::start);
    row->addWidget(find);
    return row;
}

void FOutputDocument::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto function) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, function);
    };
    add(QKeySequence::Find, [this] { mpFind->start(); });
    add(QKeySequence(Qt::Key_F3), [this] { mpFind->findNext(); });
    add(QKeySequence(QStringLiteral("Shift+F3")), [this] { mpFind->findPrevious(); });
    add(QKeySequence(QStringLiteral("Ctrl+L")), [this] {
        mpLine->setFocus();
        mpLine->selectAll();
    });
}

void FOutputDocument::goToLine() {
    mpViewer->showPlace(mpLine->text().toLongLong(), 0, 0, false);
    mpViewer->setFocus();
}

void FOutputDocument::showPlace(qint64 line, qint64 column, qint64 length, const QString& reason) {
    const QString sentence = reason.left(1).toUpper() + reason.mid(1);
    mpReason->setText(sentence);
    mpStrip->setVisible(!reason.isEmpty());
    mpViewer->showPlace(line, column, length, !reason.isEmpty());
}

void FOutputDocument::updateStatus() {
    if (!mFault.isEmpty()) {
        mpStatus->setText(QStringLiteral("Can't be read: %1").arg(mFault));
        return;
    }
    const FOutputText& text = mpViewer->text();
    const QLocale locale = QLocale::c();
    const QString size = locale.formattedDataSize(text.size(), 1, QLocale::DataSizeSIFormat);
    const qint64 top = mpViewer->getTopLine();
    const QString place = !text.isIndexed() ? QStringLiteral("counting lines …")
                                            : QStringLiteral("line %1 of %2").arg(top).arg(text.lineCount());
    mpStatus->setText(QStringLiteral("%1, %2").arg(place, size));
    mpStatus->setToolTip(text.getPath());
}
