#pragma once

#include "host/core/FExport.h"

#include <QtGlobal>

class FManaged;
class QWidget;

/**
 * A page on which the user edits one object. It is a document of the window, or a tab of a larger document. Its class
 * is also that of the widget.
 */
class MERIX_EXPORT FObjectPage {
 public:
    virtual ~FObjectPage() = default;

    virtual QWidget* widget() = 0;
    /** Shows a place of the object's text. Line and column count from 1; line 0 stands for the object as a whole. */
    virtual void goTo(int line, int column) = 0;
    /** The page of another object within this one, brought to the front; null if there is none. */
    virtual FObjectPage* showPageOf(const FManaged* object) {
        Q_UNUSED(object)
        return nullptr;
    }
    /** Whether a part of the page has the focus that Delete takes away, instead of the selected objects. */
    virtual bool isPartFocused() const { return false; }
    /** Takes that part away. */
    virtual void deletePart() {}
    /**
     * The page has been taken out of the window and will be deleted: it lets go of its object and of all text, and no
     * change of the model reaches it any more. The object may have left the model.
     */
    virtual void letGo() = 0;
};
