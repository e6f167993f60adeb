#pragma once

#include "host/core/FExport.h"
#include "host/gui/text/FDocumentSearch.h"

#include <QDialog>
#include <QTimer>

#include <optional>

class QBoxLayout;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/**
 * Searches the text of an editor, and replaces what it finds. It stays open beside the window. A search takes place in
 * slices; Escape or a change of the text ends it.
 */
class MERIX_EXPORT FSearchDialog : public QDialog {
    Q_OBJECT

 public:
    explicit FSearchDialog(QPlainTextEdit& edit);

    /** Whether it shows what replaces. */
    void setReplacing(bool isReplacing);
    /** Shows the dialog, with the selected text if it is within a line. */
    void start();
    /** Looks for the same again. */
    void refind(bool backwards);

 signals:
    void highlightingRequested(const QRegExp& what);
    void resetHighlighting();

 protected:
    void hideEvent(QHideEvent* event) override;

 private:
    QLineEdit* addLine(QGridLayout* grid, const QString& id, const QString& label);
    QPushButton* addButton(QBoxLayout* row, const QString& id, const QString& text);
    QCheckBox* addOption(QBoxLayout* row, const QString& id, const QString& text);
    /** What to look for; nothing, with a message, if the pattern is invalid or there is none. */
    std::optional<QRegExp> wanted();
    void searchOn();
    void stop();
    void replace();
    void replaceAll();
    void highlight();
    void say(const QString& text, bool isBad);

    QPlainTextEdit& mEdit;
    QLineEdit* mpWhat;
    QLineEdit* mpReplacement;
    QLabel* mpReplacementLabel = nullptr;
    QCheckBox* mpCase;
    QCheckBox* mpPattern;
    QPushButton* mpReplace;
    QPushButton* mpReplaceAll;
    QLabel* mpMessage;
    std::optional<FDocumentSearch> mSearch;
    QTimer mTimer;
    bool mIsHighlighting = false;
};
