#include "genericintegration/connector/dialogs/FSoftConInputDialog.h"

#include "host/core/FIni.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

FSoftConInputDialog::FSoftConInputDialog(QWidget* parent, const QString& caption, const QString& directory,
                                         const QString& filter, bool convertDefault)
    : FSoftConResultFilesDialog(parent, caption, directory, filter), mConvertCheck(new QCheckBox(this)) {
    mConvertCheck->setObjectName(QStringLiteral("convertToTemplate"));
    mConvertCheck->setChecked(
        FIni().value(QStringLiteral("SoftwareConnector/convertToTemplate"), convertDefault).toBool());
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        constexpr int row = 4;
        auto* label = new QLabel(QStringLiteral("Convert to Template"), this);
        const QString tip =
            QStringLiteral("If checked all added files will be converted to input templates immediately.");
        label->setToolTip(tip);
        label->setBuddy(mConvertCheck);
        mConvertCheck->setToolTip(tip);
        mConvertCheck->setAccessibleName(label->text());
        grid->addWidget(label, row, 0);
        grid->addWidget(mConvertCheck, row, 1);
    }
}

void FSoftConInputDialog::accept() {
    if (!isAnySelectedThere()) {
        mNonExistingAccepted = true;
    }
    FSoftConResultFilesDialog::accept();
}

bool FSoftConInputDialog::isConverting() const {
    return mConvertCheck->isChecked();
}
