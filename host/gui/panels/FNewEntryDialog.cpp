#include "host/gui/panels/FNewEntryDialog.h"

#include "host/design/FEntryDef.h"
#include "host/gui/base/FFixedFont.h"
#include "host/gui/base/FStateLabel.h"
#include "host/gui/fields/FScriptCompleter.h"
#include "host/gui/panels/FEntryChange.h"
#include "host/gui/panels/FEntryTypes.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

FNewEntryDialog::FNewEntryDialog(FDefinition& definition, const QString& path, QWidget* parent)
    : QDialog(parent),
      mDefinition(&definition),
      mpPath(makeLine(QStringLiteral("newEntryPath"), QStringLiteral("Name"),
                      QStringLiteral("The name that tags of templates use, with its groups: group|name"))),
      mpType(new QComboBox(this)),
      mpDefault(makeLine(QStringLiteral("newEntryDefault"), QStringLiteral("Default"),
                         QStringLiteral("The value that designs have until they set another, as script text"))),
      mpLeast(makeCount(QStringLiteral("newEntryLeast"), QStringLiteral("At least"), 0)),
      mpMost(makeCount(QStringLiteral("newEntryMost"), QStringLiteral("At most"), 1)),
      mpDescription(makeLine(QStringLiteral("newEntryDescription"), QStringLiteral("Description"),
                             QStringLiteral("What the entry means, with its unit"))),
      mpFault(new FStateLabel(FStateColor::State::Bad, this)) {
    setObjectName(QStringLiteral("newEntry"));
    setWindowTitle(QStringLiteral("Add entry"));
    setAttribute(Qt::WA_DeleteOnClose);
    mpType->setObjectName(QStringLiteral("newEntryType"));
    mpType->setAccessibleName(QStringLiteral("Type"));
    for (const FEntryTypes::Type& type : FEntryTypes::choices()) {
        mpType->addItem(QString::fromLatin1(type.word), QString::fromLatin1(type.value));
    }
    mpPath->setText(path);
    mpPath->setSelection(path.lastIndexOf(QLatin1Char('|')) + 1, path.size());
    mpDefault->setFont(FFixedFont::get());
    new FScriptCompleter(mpDefault);
    proposeDefault();
    mpFault->setObjectName(QStringLiteral("newEntryFault"));
    mpFault->setWordWrap(true);
    mpFault->hide();
    auto* counts = new QHBoxLayout;
    counts->addWidget(mpLeast);
    counts->addWidget(mpMost);
    counts->addStretch(1);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Name"), mpPath);
    form->addRow(QStringLiteral("&Type"), mpType);
    form->addRow(QStringLiteral("&Default"), mpDefault);
    form->addRow(QStringLiteral("Occurrences"), counts);
    form->addRow(QStringLiteral("D&escription"), mpDescription);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(QStringLiteral("Add"), QDialogButtonBox::AcceptRole)->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(mpFault);
    column->addStretch(1);
    column->addWidget(buttons);
    connect(mpType, QOverload<int>::of(&QComboBox::activated), this, &FNewEntryDialog::proposeDefault);
    connect(mpMost, QOverload<int>::of(&QSpinBox::valueChanged), mpLeast, &QSpinBox::setMaximum);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    mpLeast->setMaximum(mpMost->value());
    constexpr int width = 60;  // characters
    resize(width * fontMetrics().averageCharWidth(), sizeHint().height());
    mpPath->setFocus();
}

QLineEdit* FNewEntryDialog::makeLine(const QString& id, const QString& label, const QString& tip) {
    auto* line = new QLineEdit(this);
    line->setObjectName(id);
    line->setAccessibleName(label);
    line->setToolTip(tip);
    return line;
}

QSpinBox* FNewEntryDialog::makeCount(const QString& id, const QString& label, int least) {
    auto* count = new QSpinBox(this);
    count->setObjectName(id);
    count->setAccessibleName(label);
    count->setToolTip(QStringLiteral("How often a configuration may have the entry"));
    count->setPrefix(label.toLower() + QLatin1Char(' '));
    count->setRange(least, FEntryDef::mostOccurrences);
    count->setValue(1);
    return count;
}

void FNewEntryDialog::proposeDefault() {
    mpDefault->setText(mpType->currentData().toString());
}

void FNewEntryDialog::accept() {
    if (!mDefinition) {
        reject();
        return;
    }
    const QString path = mpPath->text().trimmed();
    const QString fault = FEntryChange::addEntry(
        *mDefinition.ptr(),
        {path, mpDefault->text(), mpMost->value(), mpLeast->value(), mpDescription->text().trimmed()});
    if (!fault.isEmpty()) {
        mpFault->setText(QChar(0x26a0) + QLatin1Char(' ') + fault);
        mpFault->show();
        resize(width(), std::max(height(), layout()->heightForWidth(width())));
        return;
    }
    QDialog::accept();
    emit added(path);
}
