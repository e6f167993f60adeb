#include "host/gui/window/FActionTable.h"

#include "host/core/FHistory.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FSetUpAssistant.h"
#include "host/gui/panels/FChainPanel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/panels/FTablePanel.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FNeeds.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FPanelTable.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/gui/window/FSubmenus.h"
#include "host/lodm/FCustomComputation.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRunSettings.h"

#include <QMenu>

namespace {

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
    window.panels().raise(QStringLiteral("objects"));
    window.panels().get<FObjectTreeWgt>().renameSelected();
}

void helpOnSelection(FMainWindow& window) {
    const QList<FExpr<FObject>>& objects = FSelectionSet::instance()->getObjects();
    window.showHelp(objects.isEmpty() ? QStringLiteral("global")
                                      : FClassLook::helpTopicOf(*objects.first().getObject()));
}

// ---- rows ----

std::vector<FActionRow> fileRows() {
    return {
        {.id = "newProject",
         .text = "&New project",
         .icon = "document-new",
         .shortcut = "Ctrl+N",
         .tip = "Start an empty project",
         .isInToolbar = true,
         .run = [](FMainWindow& window) { window.projectFiles().create(); }},
        {.id = "newSetUp",
         .text = "New s&et-up…",
         .icon = "connector",
         .shortcut = "Ctrl+Shift+N",
         .tip = "Couple a program: its sample files become templates",
         .whyNot = &FNeeds::assistant,
         .run = [](FMainWindow& window) { FSetUpAssistant::open(&window); }},
        {.id = "openProject",
         .text = "&Open…",
         .icon = "document-open",
         .shortcut = "Ctrl+O",
         .tip = "Open a project",
         .isInToolbar = true,
         .run = [](FMainWindow& window) { window.projectFiles().open(); }},
        {.id = "openRecent",
         .text = "Open &recent",
         .icon = "document-open-recent",
         .tip = "Open a project that was open before",
         .fill = &FSubmenus::recent},
        {.id = "openExample",
         .text = "Open an e&xample",
         .icon = "folder-templates",
         .tip = "Copy an example to a folder of yours, and open the copy",
         .fill = &FSubmenus::examples},
        {.id = "saveProject",
         .text = "&Save",
         .icon = "document-save",
         .shortcut = "Ctrl+S",
         .tip = "Save the project",
         .isInToolbar = true,
         .whyNot = &FNeeds::project,
         .run = [](FMainWindow& window) { window.projectFiles().save(); }},
        {.id = "saveProjectAs",
         .text = "Save &as…",
         .icon = "document-save-as",
         .shortcut = "Ctrl+Shift+S",
         .tip = "Save the project under another name",
         .whyNot = &FNeeds::project,
         .run = [](FMainWindow& window) { window.projectFiles().saveAs(); }},
        {.id = "executeScript",
         .group = 1,
         .text = "&Execute a script…",
         .icon = "system-run",
         .shortcut = "Ctrl+R",
         .tip = "Execute a script file; each of its statements is a step",
         .run = [](FMainWindow& window) { window.projectFiles().executeScript(); }},
        {.id = "importSetUps",
         .group = 1,
         .text = "&Import set-up…",
         .icon = "document-import",
         .shortcut = "Ctrl+I",
         .tip = "Add the set-ups of a file to the project, as a colleague has exported them",
         .run = [](FMainWindow& window) { window.projectFiles().importSetUps(); }},
        {.id = "quit",
         .group = 2,
         .text = "&Quit",
         .icon = "application-exit",
         .shortcut = "Ctrl+Q",
         .tip = "Close the program",
         .isForScripts = true,
         .run = [](FMainWindow& window) { window.close(); }},
    };
}

std::vector<FActionRow> editRows() {
    return {
        {.id = "undo",
         .text = "&Undo",
         .icon = "edit-undo",
         .shortcut = "Ctrl+Z",
         .tip = "Undo the last step",
         .isInToolbar = true,
         .whyNot = &FNeeds::doneStep,
         .run = &undo,
         .textNow = &undoText},
        {.id = "redo",
         .text = "&Redo",
         .icon = "edit-redo",
         .shortcut = "Ctrl+Shift+Z",
         .tip = "Redo the step that was undone last",
         .isInToolbar = true,
         .whyNot = &FNeeds::undoneStep,
         .run = &redo,
         .textNow = &redoText},
        {.id = "rename",
         .group = 1,
         .text = "Re&name",
         .icon = "edit-rename",
         .shortcut = "F2",
         .tip = "Change the name of the selected object",
         .whyNot = &FNeeds::oneObject,
         .run = &rename},
        {.id = "delete",
         .group = 1,
         .text = "&Delete",
         .icon = "edit-delete",
         .shortcut = "Ctrl+Del",
         .tip = "Delete the selected objects, or the item of the connector that has the focus",
         .whyNot = &FNeeds::objects,
         .run = [](FMainWindow& window) { window.deleteSelected(); }},
        {.id = "find",
         .group = 2,
         .text = "&Find…",
         .icon = "edit-find",
         .shortcut = "Ctrl+K",
         .tip = "Find an object, an entry or an action by its name",
         .run = [](FMainWindow& window) { window.focusFind(); }},
    };
}

std::vector<FActionRow> viewRows() {
    return {
        {.id = "panels",
         .text = "&Panels",
         .icon = "view-list-tree",
         .tip = "Show or hide panels",
         .whyNot = &FNeeds::project,
         .fill = &FSubmenus::panels},
        {.id = "movePanel",
         .text = "&Move the panel",
         .icon = "transform-move",
         .tip = "Move the panel that has the focus",
         .whyNot = &FNeeds::project,
         .fill = [](QMenu& menu, FMainWindow& window) { window.panels().fillMenu(menu); }},
        {.id = "appearance",
         .group = 1,
         .text = "&Appearance",
         .icon = "preferences-desktop-theme",
         .tip = "Light or dark colours",
         .fill = &FSubmenus::appearances},
        {.id = "resetLayout",
         .group = 2,
         .text = "&Reset the layout",
         .icon = "view-restore",
         .shortcut = "Ctrl+Shift+L",
         .tip = "Put all panels where they are in a new installation",
         .whyNot = &FNeeds::project,
         .run = [](FMainWindow& window) { window.panels().reset(); }},
    };
}

std::vector<FActionRow> runRows() {
    return {
        {.id = "run",
         .text = "&Run",
         .icon = "media-playback-start",
         .shortcut = "F5",
         .tip = "Write the input files and run the program",
         .isInToolbar = true,
         .whyNot = &FNeeds::idleComputation,
         .run = &run,
         .textNow = &runText},
        {.id = "stop",
         .text = "&Stop",
         .icon = "media-playback-stop",
         .shortcut = "Shift+F5",
         .tip = "End the program that is running, and the script in progress",
         .isInToolbar = true,
         .isForScripts = true,
         .whyNot = &FNeeds::run,
         .run = [](FMainWindow& window) { window.stop(); }},
        {.id = "reread",
         .text = "Re-read r&esults",
         .icon = "view-refresh",
         .shortcut = "Ctrl+F5",
         .tip = "Read the output files again, with the present marks",
         .isInToolbar = true,
         .whyNot = &FNeeds::output,
         .run = &reread},
        {.id = "preview",
         .group = 1,
         .text = "&Preview input files",
         .icon = "document-preview",
         .shortcut = "Ctrl+P",
         .tip = "Show the input files as a run would write them",
         .whyNot = &FNeeds::computation,
         .run = &preview},
        {.id = "suppliersFirst",
         .group = 2,
         .text = "Run s&uppliers first",
         .icon = "insert-link",
         .shortcut = "Ctrl+Shift+F5",
         .tip = "Before a run, run the computations whose results it uses, as far as their set-up has changed",
         .run = [](FMainWindow&) { FRunSettings::setSuppliersFirst(!FRunSettings::areSuppliersFirst()); },
         .isOn = &FRunSettings::areSuppliersFirst},
        {.id = "exportChain",
         .group = 2,
         .text = "Export the pi&cture of the chain…",
         .icon = "document-export",
         .shortcut = "Ctrl+Shift+P",
         .tip = "Write the picture of the computations and their links to an SVG file",
         .whyNot = &FNeeds::computation,
         .run = [](FMainWindow& window) { window.panels().get<FChainPanel>().exportPicture(); }},
    };
}

std::vector<FActionRow> resultRows() {
    return {
        {.id = "showResults",
         .text = "&Show results",
         .icon = "results",
         .shortcut = "Ctrl+T",
         .tip = "Show the numbers that were read from the output files",
         .whyNot = &FNeeds::results,
         .run = &showResults},
        {.id = "compareResults",
         .text = "&Compare with the run before",
         .icon = "view-split-left-right",
         .shortcut = "Ctrl+Shift+T",
         .tip = "Show the numbers of the run before beside those of the last one",
         .whyNot = &FNeeds::results,
         .run =
             [](FMainWindow& window) {
                 if (FTablePanel* panel = openResults(window)) {
                     panel->compare(true);
                 }
             }},
        {.id = "exportResults",
         .group = 1,
         .text = "&Export results as CSV…",
         .icon = "document-export",
         .shortcut = "Ctrl+Shift+E",
         .tip = "Write the numbers, with their places, to a file for spreadsheets",
         .whyNot = &FNeeds::results,
         .run =
             [](FMainWindow& window) {
                 if (FTablePanel* panel = openResults(window)) {
                     panel->exportCsv();
                 }
             }},
    };
}

std::vector<FActionRow> helpRows() {
    return {
        {.id = "help",
         .text = "&Reference",
         .icon = "help-contents",
         .shortcut = "F1",
         .tip = "Show the reference of the selected object's class",
         .run = &helpOnSelection},
        {.id = "manual",
         .text = "&Manual",
         .icon = "help-contents",
         .shortcut = "Shift+F1",
         .tip = "How to use this window, from the first set-up to chains of programs",
         .run = [](FMainWindow& window) { window.showDocument(QStringLiteral("manual/README.md")); }},
        {.id = "tutorial",
         .text = "&Tutorial",
         .icon = "help-hint",
         .shortcut = "Ctrl+Shift+F1",
         .tip = "The first set-up, from a program and its files to numbers",
         .run = [](FMainWindow& window) { window.showDocument(QStringLiteral("manual/first-set-up.md")); }},
        {.id = "shortcuts",
         .text = "&Keyboard shortcuts",
         .icon = "input-keyboard",
         .shortcut = "Ctrl+Shift+K",
         .tip = "List all actions with their keys",
         .run = [](FMainWindow& window) { window.showDocument(QStringLiteral("reference/shortcuts.md")); }},
        {.id = "about",
         .group = 1,
         .text = "&About merix",
         .icon = "help-about",
         .shortcut = "Ctrl+F1",
         .tip = "Version and licence",
         .run = [](FMainWindow& window) { window.showAbout(); }},
    };
}

QString plain(const char* text) {
    return QString::fromUtf8(text).remove(QLatin1Char('&'));
}

}  // namespace

const std::vector<FActionRow>& FActionTable::rows() {
    static const std::vector<FActionRow> table = [] {
        std::vector<FActionRow> all;
        const auto add = [&all](const char* menu, const std::vector<FActionRow>& rows) {
            for (FActionRow row : rows) {
                row.menu = menu;
                all.push_back(row);
            }
        };
        add("&File", fileRows());
        add("&Edit", editRows());
        add("&View", viewRows());
        add("&Run", runRows());
        add("Resul&ts", resultRows());
        add("&Help", helpRows());
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
