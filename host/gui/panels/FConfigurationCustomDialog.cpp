#include "host/gui/panels/FConfigurationCustomDialog.h"

#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

FConfigurationCustomDialog::FConfigurationCustomDialog(const QList<FDefinition*>& definitions,
                                                       const FDefinitionCustom* definition)
    : mpDefinition(definition), mpList(new QListWidget(this)) {
    setObjectName(QStringLiteral("newConfiguration"));
    setWindowTitle(QStringLiteral("New configuration"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* label = new QLabel(QStringLiteral("&Definition with the entries of the configuration"));
    label->setBuddy(mpList);
    label->setWordWrap(true);
    mpList->setObjectName(QStringLiteral("definitions"));
    mpList->setAccessibleName(QStringLiteral("Definitions"));
    new FEmptyHint(mpList, QStringLiteral("The project has no definition yet"));
    for (FDefinition* listed : definitions) {
        mListed.append(FExpr<FDefinition>(listed));
        mpList->addItem(new QListWidgetItem(FIcons::get(QStringLiteral("definition")), listed->getName()));
    }
    mpList->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto* make = buttons->addButton(QStringLiteral("&New"), QDialogButtonBox::ActionRole);
    make->setObjectName(QStringLiteral("newDefinition"));
    make->setToolTip(QStringLiteral("Makes a definition without entries"));
    auto* import = buttons->addButton(QStringLiteral("&Import…"), QDialogButtonBox::ActionRole);
    import->setObjectName(QStringLiteral("importDefinition"));
    import->setToolTip(QStringLiteral("Reads a definition from an exchange file"));
    auto* use = buttons->addButton(QStringLiteral("&Use"), QDialogButtonBox::AcceptRole);
    use->setObjectName(QStringLiteral("useDefinition"));
    use->setToolTip(QStringLiteral("Takes the selected definition"));
    use->setEnabled(!definitions.isEmpty());
    use->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(mpList, 1);
    column->addWidget(buttons);
    connect(make, &QPushButton::clicked, this, &FConfigurationCustomDialog::createNewDef);
    connect(import, &QPushButton::clicked, this, &FConfigurationCustomDialog::importLodmDef);
    connect(buttons, &QDialogButtonBox::accepted, this, &FConfigurationCustomDialog::chooseListed);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mpList, &QListWidget::itemActivated, this, &FConfigurationCustomDialog::chooseListed);
}

void FConfigurationCustomDialog::chooseListed() {
    mChosenDefinition = mListed.value(mpList->currentRow());
    accept();
}
