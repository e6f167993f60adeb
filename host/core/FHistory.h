#pragma once

#include "host/core/FManaged.h"

#include <QHash>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

/**
 * Undo and redo. A transaction is one undo step with a label; transactions nest, and the outermost one counts. An
 * object may be added to it before or after its change: the history keeps the difference to the object's last known
 * state, field by field.
 *
 * A change outside of any transaction is a programming error (F_ASSERT), except while a project is loaded, during undo
 * and redo, and under an FHistoryBlocker. It can't be undone. Steps are reported on FChanges.
 */
class MERIX_EXPORT FHistory {
 public:
    static FHistory* instance();

    void startTransaction(const QString& label);
    /** Ends a transaction; `steps` is the number of transactions to end, in general 1. */
    void commit(int steps = 1);
    /**
     * Ends a transaction and takes back what was done since the outermost one began. The outermost one stays open, but
     * what is done in it is taken back at its end, too.
     */
    void rollback();
    /** The object belongs to the step, even if it is unchanged at its end. */
    void addStep(const FRecorded* object);
    /** The object belongs to the step if it has changed by its end. */
    void record(const FRecorded* object);
    /**
     * The open step becomes a part of the last one at its end, if that has the same label, neither of them brings
     * objects into the model or takes them out of it, and this one changes no long text.
     */
    void joinLast() { mOpen.joinsLast = true; }
    bool inTransaction() const { return mDepth > 0; }
    /** Whether anything was recorded in the open transaction. */
    bool hasOpenChanges() const { return !mOpen.isEmpty(); }

    bool undo();
    bool redo();
    /** Labels of the steps that can be undone, the oldest first. */
    QStringList getLabels() const;
    /** Labels of the steps that can be redone, the next one first. */
    QStringList getUndoneLabels() const;
    void clear();

    /**
     * How much memory steps may hold, in bytes. First to be dropped are steps that could be redone, the farthest first,
     * then the oldest; a step that alone is larger can't be undone, which the log reports.
     */
    void setLimit(std::size_t bytes);
    /** About how many bytes are held that nothing of the model holds. */
    std::size_t getSize() const { return mSize; }

    /**
     * True while undo, redo or a rollback restores a state, and during the updates that follow: nothing is recorded,
     * and a destruction has no consequences.
     */
    bool isReplaying() const { return mReplaying; }

    // Only for FManaged.
    void recordCreation(FManaged* object);
    void recordDestruction(FManaged* object, const std::vector<FObject*>& clients);

 private:
    friend class FHistoryBlocker;
    friend class FHistoryPause;
    friend class FUserStep;

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
    /** How an object came into the step. */
    enum class Reason {
        Recorded,  //!< leaves it again if it is unchanged
        Added,     //!< stays
        Client,    //!< of a destroyed object: fields that are the same at the end are restored, too
    };
    struct ObjectChange {
        FExprBase object;
        FRecorded* recorded;
        FState before;  // all fields while the transaction is open
        std::vector<FieldChange> fields;
        Reason reason = Reason::Recorded;
    };
    struct Transaction {
        QString label;
        std::vector<ModelChange> model;
        std::vector<ObjectChange> objects;
        bool joinsLast = false;
        std::size_t size = 0;  // of what the model doesn't hold: it depends on whether the step is done or undone
        bool isEmpty() const { return model.empty() && objects.empty(); }
    };
    using Objects = std::vector<FExprBase>;

    // For FUserStep.
    void startUserStep(const QString& label);
    void commitUserStep();
    /** Restores the state, and then has the updates run that `endBlocker` sets free. */
    void rollbackUserStep(const std::function<void()>& endBlocker);

    void startBlocking() { ++mBlockers; }
    void endBlocking();
    /** Makes the present state of what changed without being recorded the known one. */
    void acceptUnrecorded();
    bool isRecording() const { return !mReplaying && mBlockers == 0; }
    /** Fails an assertion if the model may not be changed now. */
    void checkOpen(const QString& what) const;
    void add(const FRecorded* object, Reason reason);
    void touch(FRecorded* object, Reason reason);
    void close();
    void takeBack();
    Transaction takeOpen();
    static void forgetChangesOfNew(Transaction& step);
    static void keepDifference(ObjectChange& change);
    static void dropUnchanged(Transaction& step);
    static Objects objectsOf(const Transaction& step);
    static void announceChanged(const Objects& objects);
    static std::size_t memoryOf(const Transaction& step, bool isDone);
    void keep(Transaction step, bool isDone);
    bool mayJoin(const Transaction& step) const;
    /** Makes one step of the last one and the one that follows it. */
    Transaction joinedWithLast(Transaction step);
    /** Takes the last of the steps over to the others. */
    bool move(std::deque<Transaction>& steps, bool forward);
    void replay(const Transaction& step, bool forward);
    static void restoreModel(const Transaction& step, bool forward);
    static void restoreFields(const Transaction& step, bool forward);
    void dropUndone();
    void trim();

    int mDepth = 0;
    int mUserSteps = 0;  // how many of the open transactions are user steps
    int mBlockers = 0;
    bool mFailed = false;  // a transaction within the open one was rolled back
    bool mReplaying = false;
    Transaction mOpen;
    QHash<const FRecorded*, std::size_t> mTouched;   // the objects of mOpen, by their places
    QHash<const FRecorded*, FExprBase> mUnrecorded;  // changed under a blocker, or outside of any step
    std::deque<Transaction> mDone;
    std::deque<Transaction> mUndone;  // the farthest from the present state first
    std::size_t mSize = 0;
    std::size_t mLimit = std::size_t{256} << 20U;
};

/** A transaction for the life of the object. Changes by users are FUserSteps instead. */
class FHistoryTransaction {
 public:
    explicit FHistoryTransaction(const QString& label) { FHistory::instance()->startTransaction(label); }
    ~FHistoryTransaction() { FHistory::instance()->commit(1); }
    FHistoryTransaction(const FHistoryTransaction&) = delete;
    FHistoryTransaction& operator=(const FHistoryTransaction&) = delete;

    void addStep(const FRecorded* object) { FHistory::instance()->addStep(object); }
};

/** While one exists, changes aren't recorded; at its end the present state of what changed becomes the known one. */
class FHistoryBlocker {
 public:
    FHistoryBlocker() { FHistory::instance()->startBlocking(); }
    ~FHistoryBlocker() { FHistory::instance()->endBlocking(); }
    FHistoryBlocker(const FHistoryBlocker&) = delete;
    FHistoryBlocker& operator=(const FHistoryBlocker&) = delete;
};

/**
 * Interrupts the open user steps for a command that keeps steps of its own, such as undo or a run: what was done before
 * becomes a step, and what comes after it another one. Deferred updates are executed first. Has no effect inside other
 * transactions.
 */
class MERIX_EXPORT FHistoryPause {
 public:
    FHistoryPause();
    ~FHistoryPause();
    FHistoryPause(const FHistoryPause&) = delete;
    FHistoryPause& operator=(const FHistoryPause&) = delete;

 private:
    bool mIsPaused = false;
    int mDepth = 0;
    int mBlockers = 0;
    QString mLabel;
};
