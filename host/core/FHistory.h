#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"

#include <QHash>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

/**
 * Undo and redo. A transaction is one undo step with a label; transactions nest, and the outermost one counts. An
 * object may be added to it before or after its change: what is kept is the difference to its last known state, field
 * by field.
 */
class MERIX_EXPORT FHistory {
 public:
    static FHistory* instance();

    void startTransaction(const QString& label);
    /** Ends a transaction; `steps` is the number of transactions to end, in general 1. */
    void commit(int steps = 1);
    /**
     * Ends a transaction and takes back what was done since the outermost one began. That one goes on, but what is done
     * in it is taken back at its end, too.
     */
    void rollback();
    /** The object belongs to the step. Without an open transaction it becomes a step of its own. */
    void addStep(const FRecorded* object);
    bool inTransaction() const { return mDepth > 0; }

    bool undo();
    bool redo();
    /** Labels of the steps that can be undone, the oldest first. */
    QStringList getLabels() const;
    bool canRedo() const { return !mUndone.empty(); }
    void clear();

    /** Called whenever the model may have changed: at the end of each step, and after undo and redo. */
    void setObserver(std::function<void()> observer) { mObserver = std::move(observer); }

    /**
     * How much memory steps may hold, in bytes. Dropped are first steps that could be redone, the farthest first, and
     * then the oldest; a step that alone is larger can't be undone, which is told in the log.
     */
    void setLimit(std::size_t bytes);
    /** About how many bytes are held that nothing of the model holds. */
    std::size_t getSize() const { return mSize; }

    /** True while undo or redo replays: nothing is recorded and nothing follows from a destruction. */
    bool isReplaying() const { return mReplaying; }

    // Only for FManaged.
    void recordCreation(FManaged* object);
    void recordDestruction(FManaged* object, const std::vector<FObject*>& clients);

 private:
    friend class FHistoryBlocker;

    /** Keeps the object as long as it can bring it back. */
    struct ModelChange {
        ModelChange(FManaged* changed, bool isCreated);
        ~ModelChange();
        ModelChange(ModelChange&&) noexcept = default;
        ModelChange& operator=(ModelChange&&) = delete;

        FExprBase object;
        FManaged* managed;
        bool created;
    };
    struct FieldChange {
        std::size_t field;
        std::any before;
        std::any after;
    };
    struct ObjectChange {
        FExprBase object;
        FRecorded* recorded;
        FState before;  // all fields while the transaction is open
        std::vector<FieldChange> fields;
        bool whole = false;  // fields that are the same at the end are restored, too
    };
    struct Transaction {
        QString label;
        std::vector<ModelChange> model;
        std::vector<ObjectChange> objects;
        std::size_t size = 0;  // of what the model doesn't hold: it depends on whether the step is done or undone
        bool isEmpty() const { return model.empty() && objects.empty(); }
    };

    bool isRecording() const { return !mReplaying && mBlockers == 0; }
    void touch(FRecorded* object, bool whole = false);
    void close();
    void takeBack();
    Transaction takeOpen();
    static void forgetChangesOfNew(Transaction& step);
    static void keepDifference(ObjectChange& change);
    static std::size_t memoryOf(const Transaction& step, bool isDone);
    void keep(Transaction step, bool isDone);
    /** Takes the last of the steps over to the others. */
    bool move(std::deque<Transaction>& steps, bool forward);
    void replay(const Transaction& step, bool forward);
    void dropUndone();
    void trim();

    int mDepth = 0;
    int mBlockers = 0;
    bool mFailed = false;  // a transaction within the open one was rolled back
    bool mReplaying = false;
    Transaction mOpen;
    QHash<const FRecorded*, std::size_t> mTouched;  // the objects of mOpen, by their places
    std::deque<Transaction> mDone;
    std::deque<Transaction> mUndone;  // the farthest from the present state first
    std::function<void()> mObserver = [] {};
    std::size_t mSize = 0;
    std::size_t mLimit = std::size_t{256} << 20U;
};

/** A transaction for the life of the object. */
class MERIX_EXPORT FHistoryTransaction {
 public:
    explicit FHistoryTransaction(const QString& label) { FHistory::instance()->startTransaction(label); }
    ~FHistoryTransaction() { FHistory::instance()->commit(1); }
    FHistoryTransaction(const FHistoryTransaction&) = delete;
    FHistoryTransaction& operator=(const FHistoryTransaction&) = delete;

    void addStep(const FRecorded* object) { FHistory::instance()->addStep(object); }
};

/** While one exists, nothing is recorded: an object that is added to the step counts as having always been so. */
class MERIX_EXPORT FHistoryBlocker {
 public:
    FHistoryBlocker() { ++FHistory::instance()->mBlockers; }
    ~FHistoryBlocker() { --FHistory::instance()->mBlockers; }
    FHistoryBlocker(const FHistoryBlocker&) = delete;
    FHistoryBlocker& operator=(const FHistoryBlocker&) = delete;
};
