#pragma once

#include "host/core/FExport.h"
#include "host/gui/text/FTextSearch.h"

#include <QFrame>
#include <QTimer>

#include <optional>

class FOutputViewer;
class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QToolButton;

/** Searches the text of a viewer in slices, so that the window stays alive. Escape stops a search, or closes the bar.
 */
class MERIX_EXPORT FFindBar : public QFrame {
    Q_OBJECT

 public:
    FFindBar(FOutputViewer& viewer, QWidget* parent);

    /** Shows the bar, with the selected text if it is short. */
    void start();
    void findNext() { search(false); }
    void findPrevious() { search(true); }
    bool isSearching() const { return mSearch.has_value(); }
    void stop();

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void search(bool backwards);
    void searchOn();
    void show(const QString& message, bool isBad);
    void showProgress(bool isSearching);
    void close();

    FOutputViewer& mViewer;
    QLineEdit* mpWhat;
    QCheckBox* mpCase;
    QProgressBar* mpProgress;
    QToolButton* mpStop = nullptr;
    QLabel* mpMessage;
    std::optional<FTextSearch> mSearch;
    QTimer mTimer;
};
