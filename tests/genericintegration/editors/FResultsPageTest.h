#pragma once

#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "tests/support/window/FWindowTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include <functional>

class QContextMenuEvent;

/** Tests of the page of a result template in the window: a template "out" with three values, used by a computation. */
class FResultsPageTest : public FWindowTest {
 public:
    FResultsPageTest();

    FGenIntResultsFile& file() { return *object<FGenIntResultsFile>("out"); }
    FGenIntResultsFileEditor& page() { return *find<FGenIntResultsFileEditor>("resultTemplatePage"); }
    FGenIntResultsFileEdit& edit() { return *find<FGenIntResultsFileEdit>("sampleText"); }
    QComboBox& combo(const char* id) { return *find<QComboBox>(id); }
    QLineEdit& line(const char* id) { return *find<QLineEdit>(id); }
    QComboBox& selector() { return combo("valueSelector"); }
    FResultsPreview& preview() { return *find<FResultsPreview>("resultsPreview"); }
    /** Name of the current value. */
    QString current() { return file().getCurValue() ? file().getCurValue()->mName : QString(); }
    /** The steps of the history. */
    static QStringList labels();
    static std::string text(const QString& shown) { return shown.toStdString(); }
    static std::string text(const QStringList& shown) { return shown.join('|').toStdString(); }

    // ---- gestures ----
    void clickOn(const char* id);
    void enterText(const char* id, const QString& entered);
    /** Enters the number of rows of an average. */
    void enterRows(const QString& entered);
    void choose(const char* id, Qt::Key key);
    void clickRow(int row);
    /** The row of a value in the preview. */
    int rowOf(const QString& value);
    /** A point on a character of the sample. */
    QPoint pointOf(const QString& part, int character = 0);
    void doubleClickOn(const QString& part, int character = 0);
    /** Opens the menu at a part of the sample and chooses an action; false if that isn't possible. */
    bool choose(const QString& id, const QString& part);
    bool chooseFrom(QContextMenuEvent& event, const QString& id);
    /** Selects a part of the sample. */
    void mark(const QString& part);

    // ---- what is shown ----
    /** The characters of the sample: l, c and a for those that are marked as line, column and anchor. */
    QString marked();
    /** Everything that is shown is what the template holds. */
    void agree(const std::string& about = "");
    /** A gesture is one step of that label, which undo takes back and redo repeats. */
    void step(const QString& label, const std::function<void()>& gesture);

 private:
    const FGenIntResultsFileValue* shownValue();
    void fieldsAgree();
    void previewAgrees();
    void valueAgrees(const FGenIntResultsFileValue* value);
};
