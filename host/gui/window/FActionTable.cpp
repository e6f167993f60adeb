#include "host/gui/window/FActionTable.h"

#include "host/core/FHistory.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FSetUpAssistant.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/panels/FChainPanel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/panels/FTablePanel.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FPanelTable.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/lodm/FCustomComputation.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRunSettings.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeySequence>
#include <QMenu>

namespace {

// ---- why not ----

const char* needsProject(const FSituation& now) {
    return now.hasProject ? nullptr : "There is no project yet: make a set-up, or open a project";
}

const char* needsComputation(const FSituation& now) {
    return now.computation ? nullptr : "There is no computation yet: make a set-up";
}

const char* needsIdleComputation(const FSituation& now) {
    return now.isRunning ? "It is running: wait for its end, or stop it" : needsComputation(now);
}

const char* needsOutput(const FSituation& now) {
    return now.canReread                       ? nullptr
           : now.computation && !now.isRunning ? "No run has left output files"
                                               : needsIdleComputation(now);
}

const char* needsResults(const FSituation& now) {
    return now.hasResults ? nullptr : needsOutput(now);
}

const char* needsRun(const FSituation& now) {
    return now.isAnyRunning ? nullptr : "Nothing is running";
}

const char* needsDoneStep(const FSituation& now) {
    return now.undoLabel.isNull() ? "There is no step to undo" : nullptr;
}

const char* needsUndoneStep(const FSituation& now) {
    return now.redoLabel.isNull() ? "No step was undone" : nullptr;
}

const char* needsOneObject(const FSituation& now) {
    return now.selected == 1 ? nullptr : "Select one object first";
}

const char* needsObjects(const FSituation& now) {
    return now.selected > 0 ? nullptr : "Select objects first";
}

const char* needsAssistant(const FSituation& now) {
    Q_UNUSED(now)
    return FSetUpAssistant::isThere() ? nullptr : "The plug-in that couples programs isn't installed";
}

// ---- texts ----

QString runText(const FSituation& now) {
    return now.computation ? QStringLiteral("&Run %1").arg(now.computation->getName()) : QStringLiteral("&Run");
}

QString undoText(const FSituation& now) {
    return QStringLiteral("&Undo %1").arg(now.undoLabel).trimmed();
}

QString redoText(const FSituation& now) {
    return QStringLiteral("&Redo %1").arg(now.redoLabel).trimmed();
}

// ---- what they do ----

void undo(FMainWindow& window) {
    FUserStep::commitEdits();
    const QString label = window.situation().undoLabel;
    if (FHistory::instance()->undo()) {
        window.showStatus(QStringLiteral("Undone: %1").arg(label));
    }
}

void redo(FMainWindow& window) {
    FUserStep::commitEdits();
    const QString label = window.situation().redoLabel;
    if (FHistory::instance()->redo()) {
        window.showStatus(QStringLiteral("Redone: %1").arg(label));
    }
}

void run(FMainWindow& window) {
    FUserStep::commitEdits();
    if (FExternComputation* computation = window.runTarget().get()) {
        computation->guiRun();
    }
}

void stop(FMainWindow& window) {
    if (FExternComputation* computation = window.runTarget().getRunning()) {
        computation->cancel();
    }
}

void reread(FMainWindow& window) {
    FUserStep::commitEdits();
    FExternComputation* computation = window.runTarget().get();
    if (computation && computation->rereadResults()) {
        window.showResults(FExpr<FResultsGeneric>(computation->getCurrentResults()));
    }
}

void preview(FMainWindow& window) {
    FUserStep::commitEdits();
    const auto* computation = dynamic_cast<const FCustomComputation*>(window.runTarget().get());
    if (computation && computation->getConfiguration()) {
        computation->getConfiguration()->preview();
    }
}

FTablePanel* openResults(FMainWindow& window) {
    FExternComputation* computation = window.runTarget().get();
    return computation ? window.openResults(FTablePanel::presentOf(*computation)) : nullptr;
}

void showResults(FMainWindow& window) {
    openResults(window);
}

void rename(FMainWindow& window) {
    window.raisePanel(QStringLiteral("objects"));
    if (auto* tree = dynamic_cast<FObjectTreeWgt*>(window.panel(QStringLiteral("objects")))) {
        tree->renameSelected();
    }
}

void helpOnSelection(FMainWindow& window) {
    const QList<FExpr<FObject>>& objects = FSelectionSet::instance()->getObjects();
    window.showHelp(objects.isEmpty() ? QStringLiteral("global") : objects.first().getObject()->getClass());
}

// ---- submenus ----

void fillRecent(QMenu& menu, FMainWindow& window) {
    for (const QString& path : FGuiSettings::getRecentProjects()) {
        if (QFileInfo::exists(path)) {
            menu.addAction(QFileInfo(path).fileName(), [&window, path] { window.projectFiles().open(path); })
                ->setToolTip(path);
        }
    }
    if (menu.isEmpty()) {
        menu.addAction(QStringLiteral("None yet"))->setEnabled(false);
    }
}

void fillExamples(QMenu& menu, FMainWindow& window) {
    for (const QString& name : FProjectFiles::getExamples()) {
        menu.addAction(name, [&window, name] { window.projectFiles().openExample(name); });
    }
    if (menu.isEmpty()) {
        menu.addAction(QStringLiteral("None installed"))->setEnabled(false);
    }
}

void fillPanels(QMenu& menu, FMainWindow& window) {
    for (const FPanelRow& row : FPanelTable::rows()) {
        menu.addAction(window.dockOf(QString::fromLatin1(row.id))->toggleViewAction());
    }
}

void fillAppearances(QMenu& menu, FMainWindow& window) {
    using Appearance = FTheme::Appearance;
    const std::pair<Appearance, const char*> rows[] = {
        {Appearance::Desktop, "As the desktop"}, {Appearance::Light, "Light"}, {Appearance::Dark, "Dark"}};
    auto* group = new QActionGroup(&menu);
    for (const auto& row : rows) {
        QAction* action = menu.addAction(QString::fromLatin1(row.second));
        action->setCheckable(true);
        action->setChecked(FTheme::getChosen() == row.first);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &window,
                         [appearance = row.first] { FTheme::choose(appearance); });
    }
}

std::vector<FActionRow> fileRows() {
    return {
        {"newProject", "&File", 0, "&New project", "document-new", "Ctrl+N", "Start an empty project", true, nullptr,
         [](FMainWindow& window) { window.projectFiles().create(); }},
        {"newSetUp", "&File", 0, "New s&et-up…", "connector", "Ctrl+Shift+N",
         "Couple a program: its sample files become templates", false, &needsAssistant,
         [](FMainWindow& window) { FSetUpAssistant::open(&window); }},
        {"openProject", "&File", 0, "&Open…", "document-open", "Ctrl+O", "Open a project", true, nullptr,
         [](FMainWindow& window) { window.projectFiles().open(); }},
        {"openRecent", "&File", 0, "Open &recent", "document-open-recent", "", "Open a project that was open before",
         false, nullptr, nullptr, &fillRecent},
        {"openExample", "&File", 0, "Open an e&xample", "folder-templates", "",
         "Copy an example to a folder of yours, and open the copy", false, nullptr, nullptr, &fillExamples},
        {"saveProject", "&File", 0, "&Save", "document-save", "Ctrl+S", "Save the project", true, &needsProject,
         [](FMainWindow& window) { window.projectFiles().save(); }},
        {"saveProjectAs", "&File", 0, "Save &as…", "document-save-as", "Ctrl+Shift+S",
         "Save the project under another name", false, &needsProject,
         [](FMainWindow& window) { window.projectFiles().saveAs(); }},
        {"executeScript", "&File", 1, "&Execute a script…", "system-run", "Ctrl+E",
         "Execute a script file; each of its statements is a step", false, nullptr,
         [](FMainWindow& window) { window.projectFiles().executeScript(); }},
        {"importSetUps", "&File", 1, "&Import set-up…", "document-import", "Ctrl+I",
         "Add the set-ups of a file to the project, as a colleague has exported them", false, nullptr,
         [](FMainWindow& window) { window.projectFiles().importSetUps(); }},
        {"quit", "&File", 2, "&Quit", "application-exit", "Ctrl+Q", "Close the program", false, nullptr,
         [](FMainWindow& window) { window.close(); }},
    };
}

std::vector<FActionRow> otherRows() {
    return {
        {"undo", "&Edit", 0, "&Undo", "edit-undo", "Ctrl+Z", "Undo the last step", true, &needsDoneStep, &undo, nullptr,
         &undoText},
        {"redo", "&Edit", 0, "&Redo", "edit-redo", "Ctrl+Shift+Z", "Redo the step that was undone last", true,
         &needsUndoneStep, &redo, nullptr, &redoText},
        {"rename", "&Edit", 1, "Re&name", "edit-rename", "F2", "Change the name of the selected object", false,
         &needsOneObject, &rename},
        {"delete", "&Edit", 1, "&Delete", "edit-delete", "Ctrl+Del", "Delete the selected objects", false,
         &needsObjects, [](FMainWindow&) { FObjectTreeWgt::destroySelected(); }},
        {"find", "&Edit", 2, "&Find…", "edit-find", "Ctrl+K", "Find an object, an entry or an action by its name",
         false, nullptr, [](FMainWindow& window) { window.focusFind(); }},

        {"panels", "&View", 0, "&Panels", "view-list-tree", "", "Show or hide panels", false, &needsProject, nullptr,
         &fillPanels},
        {"movePanel", "&View", 0, "&Move the panel", "transform-move", "", "Move the panel that has the focus", false,
         &needsProject, nullptr, [](QMenu& menu, FMainWindow& window) { window.panelDocks().fillMenu(menu); }},
        {"appearance", "&View", 1, "&Appearance", "preferences-desktop-theme", "", "Light or dark colours", false,
         nullptr, nullptr, &fillAppearances},
        {"resetLayout", "&View", 2, "&Reset the layout", "view-restore", "Ctrl+Shift+L",
         "Put all panels where they are in a new installation", false, &needsProject,
         [](FMainWindow& window) { window.resetLayout(); }},

        {"run", "&Run", 0, "&Run", "media-playback-start", "F5", "Write the input files and run the program", true,
         &needsIdleComputation, &run, nullptr, &runText},
        {"stop", "&Run", 0, "&Stop", "media-playback-stop", "Shift+F5", "End the program that is running", true,
         &needsRun, &stop},
        {"reread", "&Run", 0, "Re-read r&esults", "view-refresh", "Ctrl+F5",
         "Read the output files again, with the present marks", true, &needsOutput, &reread},
        {"preview", "&Run", 1, "&Preview input files", "document-preview", "Ctrl+P",
         "Show the input files as a run would write them", false, &needsComputation, &preview},
        {"suppliersFirst", "&Run", 2, "Run s&uppliers first", "insert-link", "Ctrl+Shift+F5",
         "Before a run, run the computations whose results it uses, as far as their set-up has changed", false, nullptr,
         [](FMainWindow&) { FRunSettings::setSuppliersFirst(!FRunSettings::areSuppliersFirst()); }, nullptr, nullptr,
         &FRunSettings::areSuppliersFirst},
        {"exportChain", "&Run", 2, "Export the pi&cture of the chain…", "document-export", "Ctrl+Shift+P",
         "Write the picture of the computations and their links to an SVG file", false, &needsComputation,
         [](FMainWindow& window) {
             if (auto* chain = dynamic_cast<FChainPanel*>(window.panel(QStringLiteral("chain")))) {
                 chain->exportPicture();
             }
         }},
        {"showResults", "Resul&ts", 0, "&Show results", "results", "Ctrl+T",
         "Show the numbers that were read from the output files", false, &needsResults, &showResults},
        {"compareResults", "Resul&ts", 0, "&Compare with the run before", "view-split-left-right", "Ctrl+Shift+T",
         "Show the numbers of the run before beside those of the last one", false, &needsResults,
         [](FMainWindow& window) {
             if (FTablePanel* panel = openResults(window)) {
                 panel->compare(true);
             }
         }},
        {"exportResults", "Resul&ts", 1, "&Export results as CSV…", "document-export", "Ctrl+Shift+E",
         "Write the numbers, with their places, to a file for spreadsheets", false, &needsResults,
         [](FMainWindow& window) {
             if (FTablePanel* panel = openResults(window)) {
                 panel->exportCsv();
             }
         }},

        {"help", "&Help", 0, "&Reference", "help-contents", "F1", "Show the reference of the selected object's class",
         false, nullptr, &helpOnSelection},
        {"manual", "&Help", 0, "&Manual", "help-contents", "Shift+F1",
         "How to use this window, from the first set-up to chains of programs", false, nullptr,
         [](FMainWindow& window) { window.showDocument(QStringLiteral("manual/README.md")); }},
        {"tutorial", "&Help", 0, "&Tutorial", "help-hint", "Ctrl+Shift+F1",
         "The first set-up, from a program and its files to numbers", false, nullptr,
         [](FMainWindow& window) { window.showDocument(QStringLiteral("manual/first-set-up.md")); }},
        {"shortcuts", "&Help", 0, "&Keyboard shortcuts", "input-keyboard", "Ctrl+Shift+K",
         "List all actions with their keys", false, nullptr,
         [](FMainWindow& window) { window.showDocument(QStringLiteral("reference/shortcuts.md")); }},
        {"about", "&Help", 1, "&About merix", "help-about", "Ctrl+F1", "Version and licence", false, nullptr,
         [](FMainWindow& window) { window.showAbout(); }},
    };
}

QString plain(const char* text) {
    return QString::fromUtf8(text).remove(QLatin1Char('&'));
}

}  // namespace

const std::vector<FActionRow>& FActionTable::rows() {
    static const std::vector<FActionRow> table = [] {
        std::vector<FActionRow> all = fileRows();
        const std::vector<FActionRow> others = otherRows();
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }();
    return table;
}

QString FActionTable::toMarkdown() {
    QString text = QStringLiteral("# Keyboard shortcuts\n\n| action | key | what it does |\n| --- | --- | --- |\n");
    const QString row = QStringLiteral("| %1: %2 | %3 | %4 |\n");
    for (const FActionRow& action : rows()) {
        if (!action.fill) {
            text += row.arg(plain(action.menu), plain(action.text), QString::fromLatin1(action.shortcut),
                            QString::fromUtf8(action.tip));
        }
    }
    for (const FPanelRow& panel : FPanelTable::rows()) {
        text += row.arg(QStringLiteral("View"), QString::fromLatin1(panel.title), QString::fromLatin1(panel.shortcut),
                        QStringLiteral("Show the panel"));
    }
    return text;
}
