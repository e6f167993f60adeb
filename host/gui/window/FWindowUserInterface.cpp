#include "host/gui/window/FWindowUserInterface.h"

#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FPendingEdit.h"
#include "host/gui/panels/FObjectEditorPanel.h"
#include "host/gui/panels/FObjectTreeModel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FTextsDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>

namespace {

int show(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text, const QStringList& buttons,
         int defaultButton) {
    QMessageBox box(icon, title, text, QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("question"));
    QList<QAbstractButton*> added;
    for (const QString& button : buttons) {
        const bool isLast = added.size() == buttons.size() - 1;
        added.append(box.addButton(button, isLast ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
    }
    if (auto* button = qobject_cast<QPushButton*>(added.value(defaultButton))) {
        box.setDefaultButton(button);
    }
    box.exec();
    return added.indexOf(box.clickedButton());
}

/** The first suffix of a filter such as "Text (*.a *.b)", without its dot. */
QString suffixIn(const QString& filter) {
    static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w+)"));
    return pattern.match(filter).captured(1);
}

}  // namespace

QWidget* FWindowUserInterface::parent() const {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : &mWindow;
}

int FWindowUserInterface::ask(const QString& title, const QString& text, const QStringList& buttons,
                              int defaultButton) {
    return show(QMessageBox::Question, parent(), title, text, buttons, defaultButton);
}

int FWindowUserInterface::warn(const QString& title, const QString& text, const QStringList& buttons,
                               int defaultButton) {
    if (buttons.size() < 2) {
        mWindow.notices().showNotice({text});
        return 0;
    }
    return show(QMessageBox::Warning, parent(), title, text, buttons, defaultButton);
}

void FWindowUserInterface::tell(const QString& title, const QString& text) {
    const bool isOwn = title == FMerixCtrl::getApplicationTitle() || title.isEmpty();
    mWindow.notices().showNotice({isOwn ? text : QStringLiteral("%1: %2").arg(title, text)});
}

QString FWindowUserInterface::askOpenFile(const QString& caption, const QString& startPath, const QString& filter) {
    return QFileDialog::getOpenFileName(parent(), caption, startPath, filter);
}

QStringList FWindowUserInterface::askOpenFiles(const QString& caption, const QString& startPath) {
    return QFileDialog::getOpenFileNames(parent(), caption, startPath);
}

QString FWindowUserInterface::askSaveFile(const QString& caption, const QString& startPath, const QString& filter) {
    const QFileInfo start(startPath);
    QFileDialog dialog(parent(), caption, start.isDir() ? startPath : start.path(), filter);
    dialog.setObjectName(QStringLiteral("saveFile"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffixIn(filter));
    dialog.selectFile(start.isDir() ? QString() : start.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString FWindowUserInterface::askFolder(const QString& caption, const QString& startPath) {
    return QFileDialog::getExistingDirectory(parent(), caption, startPath);
}

void FWindowUserInterface::commitEdits() {
    FPendingEdit::commitAll();
}

// The numbers on the screen would not be those of the run.
bool FWindowUserInterface::mayRun() {
    FPendingEdit* refusing = FPendingEdit::findRefusing();
    if (!refusing) {
        return true;
    }
    const FPendingEdit::Refusal refusal = refusing->refusal();
    mWindow.reveal(refusing->focusRefused());
    mWindow.notices().showNotice(
        {QStringLiteral("Not run: what is entered for %1 is refused (%2), and the run would use %3. Correct it, or "
                        "press Escape in the field.")
             .arg(refusal.name, refusal.fault, refusal.used.isEmpty() ? QStringLiteral("no value") : refusal.used),
         [] { return FPendingEdit::findRefusing() != nullptr; }});
    return false;
}

void FWindowUserInterface::showTexts(const QString& title, const QMap<QString, QString>& texts) {
    auto* dialog = new FTextsDialog(title, texts, &mWindow);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

QObject* FWindowUserInterface::getObjectEditor(const FExprBase& object) {
    FSelectionSet::instance()->set({FExpr<FObject>(object)});
    return &mWindow.panels().get<FObjectEditorPanel>();
}

void FWindowUserInterface::showPage(FManaged* object) {
    mWindow.showPage(object);
}

void FWindowUserInterface::highlight(const QList<FExprBase>& objects) {
    QList<FExpr<FObject>> selected;
    for (const FExprBase& object : objects) {
        selected.append(FExpr<FObject>(object));
    }
    FSelectionSet::instance()->set(selected);
}

int FWindowUserInterface::getScreenHeight() const {
    const QScreen* screen = QApplication::primaryScreen();
    return screen ? screen->availableGeometry().height() : 0;
}

void FWindowUserInterface::setClipboardText(const QString& text) {
    QApplication::clipboard()->setText(text);
}

void FWindowUserInterface::reinitializeEditor(bool all) {
    Q_UNUSED(all)
    mWindow.panels().get<FObjectEditorPanel>().rebuild();
}

void FWindowUserInterface::hold(What what, bool isHeld) {
    switch (what) {
        case What::Cursor:
            isHeld ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
            break;
        case What::ObjectTree:
            mWindow.panels().get<FObjectTreeWgt>().model().hold(isHeld);
            break;
        case What::Editors:
            mWindow.panels().get<FObjectEditorPanel>().hold(isHeld);
            break;
    }
}
