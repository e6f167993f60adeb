#include "host/gui/window/FPanelTable.h"

#include "host/gui/panels/FChainPanel.h"
#include "host/gui/panels/FConsole.h"
#include "host/gui/panels/FHelpPanel.h"
#include "host/gui/panels/FLogPanel.h"
#include "host/gui/panels/FObjectEditorPanel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/panels/FProblemsPanel.h"
#include "host/gui/panels/FRunPanel.h"
#include "host/gui/panels/FUndoPanel.h"
#include "host/gui/window/FMainWindow.h"

namespace {

QWidget* makeConsole(FMainWindow& window) {
    auto* console = new FConsole([&window](const std::function<void()>& function) { window.executeLocked(function); });
    QObject::connect(console, &FConsole::helpRequested, &window, &FMainWindow::showHelp);
    return console;
}

}  // namespace

const std::vector<FPanelRow>& FPanelTable::rows() {
    static const std::vector<FPanelRow> table{
        {"objects", "Objects", "view-list-tree", Qt::LeftDockWidgetArea, "Ctrl+1", "objectTree",
         [](FMainWindow& window) -> QWidget* { return new FObjectTreeWgt(window); }},
        {"runs", "Runs", "media-playback-start", Qt::BottomDockWidgetArea, "Ctrl+3", "runList",
         [](FMainWindow& window) -> QWidget* { return new FRunPanel(window); }},
        {"problems", "Problems", "dialog-warning", Qt::BottomDockWidgetArea, "Ctrl+4", "problemList",
         [](FMainWindow& window) -> QWidget* { return new FProblemsPanel(window); }},
        {"log", "Log", "view-list-text", Qt::BottomDockWidgetArea, "Ctrl+5", "logList",
         [](FMainWindow& window) -> QWidget* { return new FLogPanel(window); }},
        {"chain", "Chain", "insert-link", Qt::BottomDockWidgetArea, "Ctrl+9", "chainPicture",
         [](FMainWindow& window) -> QWidget* { return new FChainPanel(window); }},
        {"console", "Console", "utilities-terminal", Qt::BottomDockWidgetArea, "Ctrl+6", "consoleLine", &makeConsole},
        {"history", "History", "view-history", Qt::BottomDockWidgetArea, "Ctrl+7", "undoList",
         [](FMainWindow&) -> QWidget* { return new FUndoPanel; }},
        {"editor", "Editor", "document-properties", Qt::RightDockWidgetArea, "Ctrl+2", "objectName",
         [](FMainWindow& window) -> QWidget* { return new FObjectEditorPanel(window); }},
        {"help", "Help", "help-contents", Qt::RightDockWidgetArea, "Ctrl+8", "helpSearch",
         [](FMainWindow&) -> QWidget* { return new FHelpPanel; }},
    };
    return table;
}
