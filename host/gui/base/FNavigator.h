#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QString>

class FManaged;
class FResultsGeneric;

/** Shows what a panel refers to, elsewhere in the window. */
class MERIX_EXPORT FNavigator {
 public:
    /** A place in a file. Lines and columns count from 1; 0 stands for the file or line as a whole. */
    struct Place {
        QString file;
        qint64 line = 0;
        qint64 column = 0;
        qint64 length = 0;    //!< of what is marked, in UTF-16 units
        QString reason = {};  //!< why the place is shown; may be empty
    };

    virtual ~FNavigator() = default;

    /**
     * Shows what a message or problem is about.
     * @param place   as name:line:column or name:line; may be empty
     *                the name is that of an object or of a file
     * @param object  name of the object concerned, which is shown if the place doesn't lead anywhere
     */
    void showPlace(const QString& place, const QString& object);

    /** Selects the object, and shows it in the tree and in the object editor. */
    virtual void showObject(FManaged* object) = 0;
    /** Shows an entry of a configuration in the object editor. The focus stays where it is. */
    virtual void showEntry(FManaged* configuration, const QString& path) = 0;
    /** Shows a file, which isn't edited, with the place marked. */
    virtual void showFile(const Place& place) = 0;
    /**
     * Selects the object, and opens the page on which the user edits it, if its class has one, at a place of its text.
     * Line 0 stands for the object as a whole.
     */
    virtual void showTemplate(FManaged* file, int line, int column) = 0;
    /** Shows the tables of results. */
    virtual void showResults(const FExpr<FResultsGeneric>& results) = 0;
    /** Shows the numbers of a run of the session, by its row in the list of runs, in place of the present ones. */
    virtual void showResultsOfRun(const FExpr<FResultsGeneric>& present, int run) = 0;
    /** Shows the reference of a class or command. */
    virtual void showHelp(const QString& topic) = 0;
    /** Shows a short message for a few seconds. */
    virtual void showStatus(const QString& text) = 0;
    /** Another part of a page has the focus, and other things can be done (see FObjectPage::isPartFocused). */
    virtual void partFocused() = 0;
};
