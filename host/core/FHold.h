#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

/** Holds a part of the user interface back as long as it exists. Holds of the same part nest. */
class MERIX_EXPORT FHold {
 public:
    explicit FHold(FUserInterface::What what);
    ~FHold();
    FHold(const FHold&) = delete;
    FHold& operator=(const FHold&) = delete;

 private:
    FUserInterface::What mWhat;
};

/** Shows the busy pointer. */
class FWaitCursor : public FHold {
 public:
    FWaitCursor() : FHold(FUserInterface::What::Cursor) {}
};

/** Holds back the refresh of all object editors. */
class FEditorUpdateBlocker : public FHold {
 public:
    FEditorUpdateBlocker() : FHold(FUserInterface::What::Editors) {}
};

/** Holds back the refresh of the object tree. */
class FObjectTreeBlocker : public FHold {
 public:
    FObjectTreeBlocker() : FHold(FUserInterface::What::ObjectTree) {}
};

/** There is no 3D view to hold back. */
class FGlUpdateBlocker {
 public:
    FGlUpdateBlocker() {}
    ~FGlUpdateBlocker() {}
    FGlUpdateBlocker(const FGlUpdateBlocker&) = delete;
    FGlUpdateBlocker& operator=(const FGlUpdateBlocker&) = delete;
};
