#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>

class FEntryBase;

/**
 * The entries of a holder in their order, with an index by name. To append one takes constant time, and so does a
 * snapshot, which the history takes with each step: as long as entries are only appended, it is the length of the
 * list.
 */
class MERIX_EXPORT FEntryList {
 public:
    using Entries = QList<FExpr<FEntryBase>>;

 private:
    /** What the list was while entries were only appended. */
    struct Stretch {
        const FEntryList* live = nullptr;  //!< the list that still is it; null once it isn't
        Entries entries;                   //!< its entries then
    };

 public:
    /** The list as it was at some time. */
    class MERIX_EXPORT Snapshot {
     public:
        Entries getEntries() const;
        /** About how many bytes entries take that are in no list of the model. */
        std::size_t heldMemory() const;
        friend bool operator==(const Snapshot& a, const Snapshot& b) {
            return a.mStretch == b.mStretch ? a.mSize == b.mSize : a.getEntries() == b.getEntries();
        }

     private:
        friend class FEntryList;

        std::shared_ptr<const Stretch> mStretch;
        int mSize = 0;
    };

    FEntryList();
    ~FEntryList();
    FEntryList(const FEntryList&) = delete;
    FEntryList& operator=(const FEntryList&) = delete;

    const Entries& get() const { return mEntries; }
    void append(const FExpr<FEntryBase>& entry);
    void replace(const Entries& entries);
    Snapshot getSnapshot() const;

    /** The first entry of that name; null if there is none. */
    FEntryBase* find(const QString& name) const;
    /** An entry has another name. */
    void forgetNames() { mByName.clear(); }

 private:
    void endStretch();

    Entries mEntries;
    std::shared_ptr<Stretch> mStretch;
    mutable QHash<QString, FEntryBase*> mByName;  // empty, or of all entries
};
