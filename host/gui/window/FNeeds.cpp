#include "host/gui/window/FNeeds.h"

#include "host/gui/base/FSetUpAssistant.h"

const char* FNeeds::project(const FSituation& now) {
    return now.hasProject ? nullptr : "There is no project yet: make a set-up, or open a project";
}

const char* FNeeds::computation(const FSituation& now) {
    return now.computation ? nullptr : "There is no computation yet: make a set-up";
}

const char* FNeeds::idleComputation(const FSituation& now) {
    return now.isRunning ? "It is running: wait for its end, or stop it" : computation(now);
}

const char* FNeeds::output(const FSituation& now) {
    return now.canReread                       ? nullptr
           : now.computation && !now.isRunning ? "No run has left output files"
                                               : idleComputation(now);
}

const char* FNeeds::results(const FSituation& now) {
    return now.hasResults ? nullptr : output(now);
}

const char* FNeeds::run(const FSituation& now) {
    return now.isAnyRunning || now.isLocked ? nullptr : "Nothing is running";
}

const char* FNeeds::doneStep(const FSituation& now) {
    return now.undoLabel.isNull() ? "There is no step to undo" : nullptr;
}

const char* FNeeds::undoneStep(const FSituation& now) {
    return now.redoLabel.isNull() ? "No step was undone" : nullptr;
}

const char* FNeeds::oneObject(const FSituation& now) {
    return now.selected == 1 ? nullptr : "Select one object first";
}

const char* FNeeds::objects(const FSituation& now) {
    // A page selects what it belongs to when it gets the focus, which the user hasn't chosen.
    return now.isPartFocused || (now.selected > 0 && !now.isPageFocused) ? nullptr
           : now.isPageFocused                                           ? "Select objects in the tree first"
                                                                         : "Select objects first";
}

const char* FNeeds::assistant(const FSituation& now) {
    Q_UNUSED(now)
    return FSetUpAssistant::isThere() ? nullptr : "The plug-in that couples programs isn't installed";
}
