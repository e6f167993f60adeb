#include "host/gui/window/FTextsDialog.h"

#include "host/gui/base/FFixedFont.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QVBoxLayout>

FTextsDialog::FTextsDialog(const QString& title, const QMap<QString, QString>& texts, QWidget* parent)
    : QDialog(parent), mTexts(texts), mpNames(new QListWidget), mpText(new QPlainTextEdit) {
    setObjectName(QStringLiteral("texts"));
    setWindowTitle(title);
    mpNames->setObjectName(QStringLiteral("textNames"));
    mpNames->setAccessibleName(QStringLiteral("Files"));
    mpNames->addItems(mTexts.keys());
    mpText->setObjectName(QStringLiteral("textContent"));
    mpText->setAccessibleName(QStringLiteral("Content"));
    mpText->setReadOnly(true);
    mpText->setTabChangesFocus(true);
    mpText->setLineWrapMode(QPlainTextEdit::NoWrap);
    mpText->setFont(FFixedFont::get());
    auto* split = new QSplitter(this);
    split->addWidget(mpNames);
    split->addWidget(mpText);
    split->setStretchFactor(1, 4);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(split, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mpNames, &QListWidget::currentTextChanged, this,
            [this](const QString& name) { mpText->setPlainText(mTexts.value(name)); });
    mpNames->setCurrentRow(0);
    constexpr int columns = 110;
    constexpr int lines = 36;
    resize(columns * fontMetrics().averageCharWidth(), lines * fontMetrics().height());
}
