#include "host/gui/panels/FHelpPanel.h"

#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FFixedFont.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdReference.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

FHelpPanel::FHelpPanel() : mpSearch(new QLineEdit(this)), mpTopics(new QListWidget), mpText(new QTextBrowser) {
    mpSearch->setObjectName(QStringLiteral("helpSearch"));
    mpSearch->setAccessibleName(QStringLiteral("Search the reference"));
    mpSearch->setPlaceholderText(QStringLiteral("Class or command"));
    mpSearch->setClearButtonEnabled(true);
    mpTopics->setObjectName(QStringLiteral("helpTopics"));
    mpTopics->setAccessibleName(QStringLiteral("Topics"));
    mpTopics->setUniformItemSizes(true);
    new FEmptyHint(mpTopics, QStringLiteral("No class and no command has such a name"));
    mpText->setObjectName(QStringLiteral("helpText"));
    mpText->setAccessibleName(QStringLiteral("Reference"));
    auto* split = new QSplitter(Qt::Vertical, this);
    split->addWidget(mpTopics);
    split->addWidget(mpText);
    split->setStretchFactor(1, 3);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mpSearch);
    column->addWidget(split, 1);
    connect(mpSearch, &QLineEdit::textChanged, this, &FHelpPanel::search);
    connect(mpTopics, &QListWidget::currentTextChanged, this, &FHelpPanel::showTopic);
}

void FHelpPanel::fillTopics() {
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        mNames.append(row->owner ? row->owner->getName() : QStringLiteral("global"));
        if (!row->presentation.hidden) {
            mNames.append(row->name);
        }
    }
    mNames.removeDuplicates();
    mNames.sort(Qt::CaseInsensitive);
}

void FHelpPanel::search(const QString& text) {
    if (mNames.isEmpty()) {
        fillTopics();
    }
    const QSignalBlocker blocker(mpTopics);
    mpTopics->clear();
    mpTopics->addItems(mNames.filter(text, Qt::CaseInsensitive));
}

// All topics, if none was searched for; not before, since the list takes a while.
void FHelpPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (mNames.isEmpty()) {
        search(mpSearch->text());
    }
}

void FHelpPanel::showTopic(const QString& topic) {
    if (mNames.isEmpty()) {
        search(QString());
    }
    const FCmdReference reference(topic);
    mpText->setFont(FFixedFont::get());
    mpText->setPlainText(topic.isEmpty()       ? QString()
                         : reference.isEmpty() ? reference.unknownName()
                                               : reference.toText());
    scrollToHeading(topic);
    const QList<QListWidgetItem*> found = mpTopics->findItems(topic, Qt::MatchExactly);
    if (!found.isEmpty()) {
        const QSignalBlocker blocker(mpTopics);
        mpTopics->setCurrentItem(found.first());
    }
}

// What a class inherits is above its own part.
void FHelpPanel::scrollToHeading(const QString& text) {
    for (QTextBlock line = mpText->document()->begin(); line.isValid(); line = line.next()) {
        if (line.text() == text) {
            // From below, so that the heading becomes the first line in view.
            mpText->moveCursor(QTextCursor::End);
            mpText->setTextCursor(QTextCursor(line));
            return;
        }
    }
}

void FHelpPanel::showText(const QString& markdown) {
    mpText->setFont(font());
    mpText->setMarkdown(markdown);
}
