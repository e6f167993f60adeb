#include "genericintegration/connector/dialogs/FSoftConDialog.h"

#include "genericintegration/connector/layout/FItemCaption.h"

#include <QFileInfo>
#include <QItemSelection>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>

namespace {

/** With an empty field, the dialog also marks the folder itself. */
QStringList namesIn(const QItemSelection& selection, const QModelIndex& folder) {
    QStringList names;
    for (const QModelIndex& index : selection.indexes()) {
        if (index.column() == 0 && index.parent() == folder) {
            names.append(index.data().toString());
        }
    }
    return names;
}

}  // namespace

// The desktop's own dialog has neither the list nor the field.
FSoftConDialog::FSoftConDialog(QWidget* parent, const QString& caption, const QString& directory, const QString& filter)
    : QFileDialog(parent, caption, directory, filter) {
    setOption(QFileDialog::DontUseNativeDialog);
    setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);
    setFileMode(QFileDialog::ExistingFiles);
    if (const auto* list = findChild<QListView*>(QStringLiteral("listView"))) {
        connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FSoftConDialog::updateLineEdit);
    }
    if (lineEdit()) {
        connect(lineEdit(), &QLineEdit::textChanged, this, [this](const QString& text) {
            mShownText = lineEdit()->text();
            lineEditChanged(text);
        });
    }
    setLabelText(QFileDialog::Accept, QStringLiteral("Add"));
}

QLineEdit* FSoftConDialog::lineEdit() const {
    return findChild<QLineEdit*>();
}

bool FSoftConDialog::isAnySelectedThere() const {
    const QStringList files = selectedFiles();
    return std::any_of(files.begin(), files.end(), [](const QString& file) { return QFileInfo::exists(file); });
}

void FSoftConDialog::accept() {
    const QStringList files = selectedFiles();
    if (!files.isEmpty()) {
        emit filesSelected(files);
        QDialog::accept();
    }
}

void FSoftConDialog::updateLineEdit(const QItemSelection& selected, const QItemSelection& deselected) {
    // The base marks what is typed, before this class knows the new text: nothing replaces it then.
    if ((selected.isEmpty() && deselected.isEmpty()) || lineEdit()->text() != mShownText) {
        return;
    }
    const auto* list = findChild<QListView*>(QStringLiteral("listView"));
    const QModelIndex folder = list->rootIndex();
    const QStringList dropped = namesIn(deselected, folder);
    QStringList names;
    for (const QString& file : selectedFiles()) {
        const QString name = FItemCaption::lastPart(file);
        if (QDir(file) != directory() && !dropped.contains(name)) {
            names.append(name);
        }
    }
    names += namesIn(selected, folder);
    names.removeDuplicates();
    const QString quote = names.size() > 1 ? QStringLiteral("\"") : QString();
    const QSignalBlocker blocker(lineEdit());
    mShownText = names.isEmpty() ? QString() : quote + names.join(quote + QLatin1Char(' ') + quote) + quote;
    lineEdit()->setText(mShownText);
}

void FSoftConDialog::lineEditChanged(const QString& text) {
    Q_UNUSED(text)
}
