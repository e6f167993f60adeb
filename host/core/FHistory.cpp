#include "host/core/FHistory.h"

#include "host/core/FAssert.h"
#include "host/core/FChangeCount.h"
#include "host/core/FChanges.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserStep.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <utility>

FHistory::ModelChange::ModelChange(FManaged* changed, bool isCreated)
    : object(changed), managed(changed), created(isCreated) {
    managed->holdByStep(true);
}

FHistory::ModelChange::~ModelChange() {
    if (!object.isEmpty()) {
        managed->holdByStep(false);
    }
}

FHistory* FHistory::instance() {
    // Never destroyed: it holds objects whose destructors use other parts of the program.
    static auto* history = new FHistory;
    return history;
}

void FHistory::startTransaction(const QString& label) {
    if (mDepth == 0 && mBlockers == 0) {
        acceptUnrecorded();
    }
    if (mDepth++ == 0) {
        mOpen.label = label;
    }
}

void FHistory::commit(int steps) {
    if (mDepth == 0) {
        return;
    }
    mDepth = std::max(0, mDepth - steps);
    if (mDepth == 0) {
        std::exchange(mFailed, false) ? takeBack() : close();
    }
}

void FHistory::rollback() {
    if (mDepth == 0) {
        return;
    }
    takeBack();
    mFailed = --mDepth > 0;
}

void FHistory::startUserStep(const QString& label) {
    ++mUserSteps;
    startTransaction(label);
}

void FHistory::commitUserStep() {
    --mUserSteps;
    commit(1);
}

void FHistory::rollbackUserStep(const std::function<void()>& endBlocker) {
    --mUserSteps;
    rollback();
    const bool wasReplaying = std::exchange(mReplaying, true);
    endBlocker();
    mReplaying = wasReplaying;
}

// ---- without recording ----

void FHistory::endBlocking() {
    if (--mBlockers == 0) {
        acceptUnrecorded();
    }
}

void FHistory::acceptUnrecorded() {
    const auto changed = std::exchange(mUnrecorded, {});
    Objects objects;
    for (auto entry = changed.begin(); entry != changed.end(); ++entry) {
        auto* object = const_cast<FRecorded*>(entry.key());
        if (object->isRecorded() && !mTouched.contains(object)) {
            object->rememberState();
        }
        objects.push_back(FExprBase(object->getOwner()));
    }
    announceChanged(objects);
}

void FHistory::checkOpen(const QString& what) const {
    F_ASSERT(mDepth > 0 || FMerixCtrl::instance()->isLoadingProject(),
             QStringLiteral("\"%1\" is changed outside of any step of the history").arg(what));
}

// ---- the end of a step ----

FHistory::Transaction FHistory::takeOpen() {
    mTouched.clear();
    return std::exchange(mOpen, Transaction());
}

void FHistory::close() {
    Transaction step = takeOpen();
    if (step.isEmpty()) {
        return;
    }
    forgetChangesOfNew(step);
    std::for_each(step.objects.begin(), step.objects.end(), &keepDifference);
    dropUnchanged(step);
    if (step.isEmpty()) {
        return;
    }
    const Objects changed = objectsOf(step);
    dropUndone();
    const QString label = step.label;
    const bool joins = mayJoin(step);
    keep(joins ? joinedWithLast(std::move(step)) : std::move(step), true);
    if (mDone.empty()) {
        FLogMsg::warning(QStringLiteral("FHistory"),
                         QStringLiteral("\"%1\" needs more memory than all steps may have together").arg(label),
                         QStringLiteral("Neither it nor any step before it can be undone"));
    }
    announceChanged(changed);
    if (joins) {
        emit FChanges::instance()->stepJoined(label);
    }
    emit FChanges::instance()->stepDone(label);
}

bool FHistory::mayJoin(const Transaction& step) const {
    const auto isPartOfText = [](const FieldChange& field) { return field.before.type() == typeid(FTextChange); };
    const auto changesLongText = [&](const ObjectChange& change) {
        return std::any_of(change.fields.begin(), change.fields.end(), isPartOfText);
    };
    return step.joinsLast && !mDone.empty() && mDone.back().label == step.label && step.model.empty() &&
           mDone.back().model.empty() && std::none_of(step.objects.begin(), step.objects.end(), changesLongText);
}

FHistory::Transaction FHistory::joinedWithLast(Transaction step) {
    Transaction joined = std::move(mDone.back());
    mDone.pop_back();
    mSize -= joined.size;
    for (ObjectChange& change : step.objects) {
        const auto known = std::find_if(joined.objects.begin(), joined.objects.end(),
                                        [&](const ObjectChange& other) { return other.recorded == change.recorded; });
        if (known == joined.objects.end()) {
            joined.objects.push_back(std::move(change));
            continue;
        }
        for (FieldChange& field : change.fields) {
            const auto first = std::find_if(known->fields.begin(), known->fields.end(),
                                            [&](const FieldChange& other) { return other.field == field.field; });
            if (first == known->fields.end()) {
                known->fields.push_back(std::move(field));
            } else {
                first->after = std::move(field.after);
            }
        }
    }
    return joined;
}

void FHistory::takeBack() {
    Transaction step = takeOpen();
    std::for_each(step.objects.begin(), step.objects.end(), &keepDifference);
    replay(step, false);
    emit FChanges::instance()->stepTakenBack(step.label);
}

// Only what changed is of interest to a listener; a new object has changed in any case.
FHistory::Objects FHistory::objectsOf(const Transaction& step) {
    Objects objects;
    QSet<const FObject*> seen;
    const auto add = [&](const FRecorded* recorded) {
        FManaged* owner = recorded->getOwner();
        if (owner && !seen.contains(owner)) {
            seen.insert(owner);
            objects.push_back(FExprBase(owner));
        }
    };
    for (const ModelChange& change : step.model) {
        add(change.managed);
    }
    for (const ObjectChange& change : step.objects) {
        add(change.recorded);
    }
    return objects;
}

void FHistory::announceChanged(const Objects& objects) {
    for (const FExprBase& handle : objects) {
        auto* object = static_cast<FManaged*>(handle.getStored());
        if (object && object->isInModel()) {
            emit FChanges::instance()->objectChanged(object);
        }
    }
}

// What an object made by the step was before its end is of no interest: it comes and goes as a whole.
void FHistory::forgetChangesOfNew(Transaction& step) {
    QSet<const FRecorded*> fresh;
    for (const ModelChange& change : step.model) {
        if (change.created) {
            fresh.insert(change.managed);
            change.managed->rememberState();
        }
    }
    step.objects.erase(std::remove_if(step.objects.begin(), step.objects.end(),
                                      [&fresh](const ObjectChange& change) { return fresh.contains(change.recorded); }),
                       step.objects.end());
}

void FHistory::keepDifference(ObjectChange& change) {
    FRecorded& object = *change.recorded;
    FState now = FState::capture(object);
    const auto& fields = object.getClassData().getFields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const bool isSame = fields[i]->equal(change.before.values[i], now.values[i]);
        if (change.reason == Reason::Client || !isSame) {
            change.fields.push_back({i, std::move(change.before.values[i]), now.values[i]});
        }
        if (!isSame) {
            fields[i]->shrink(change.fields.back().before, change.fields.back().after);
        }
    }
    change.before.values.clear();
    object.mpKnownState = std::make_unique<FState>(std::move(now));
}

void FHistory::dropUnchanged(Transaction& step) {
    const auto isUnchanged = [](const ObjectChange& change) {
        return change.reason == Reason::Recorded && change.fields.empty();
    };
    step.objects.erase(std::remove_if(step.objects.begin(), step.objects.end(), isUnchanged), step.objects.end());
}

// Of the two values of a field, the model, or the step that comes next, holds the other.
std::size_t FHistory::memoryOf(const Transaction& step, bool isDone) {
    std::size_t sum = step.model.size() * sizeof(ModelChange) + step.objects.size() * sizeof(ObjectChange);
    for (const ModelChange& change : step.model) {
        sum += change.managed->isInModel() ? 0 : change.managed->getMemory();
    }
    for (const ObjectChange& change : step.objects) {
        const auto& fields = change.recorded->getClassData().getFields();
        for (const FieldChange& field : change.fields) {
            const bool isSame = fields[field.field]->equal(field.before, field.after);
            sum += sizeof(FieldChange);
            sum += isSame ? 0 : fields[field.field]->size(isDone ? field.before : field.after);
        }
    }
    return sum;
}

void FHistory::keep(Transaction step, bool isDone) {
    step.size = memoryOf(step, isDone);
    mSize += step.size;
    (isDone ? mDone : mUndone).push_back(std::move(step));
    trim();
}

// ---- what is recorded ----

void FHistory::addStep(const FRecorded* object) {
    add(object, Reason::Added);
}

void FHistory::record(const FRecorded* object) {
    add(object, Reason::Recorded);
}

void FHistory::add(const FRecorded* object, Reason reason) {
    if (!object || !object->isRecorded() || mReplaying) {
        return;
    }
    FChangeCount::add();
    auto* recorded = const_cast<FRecorded*>(object);
    if (mBlockers > 0) {
        mUnrecorded.insert(object, FExprBase(object));
        return;
    }
    if (mDepth > 0) {
        touch(recorded, reason);
        return;
    }
    checkOpen(object->toString());
    mUnrecorded.insert(object, FExprBase(object));
}

void FHistory::touch(FRecorded* object, Reason reason) {
    if (!mTouched.contains(object) && object->mpKnownState) {
        mTouched.insert(object, mOpen.objects.size());
        mOpen.objects.push_back({FExprBase(object), object, *object->mpKnownState, {}, reason});
    }
    if (mTouched.contains(object)) {
        Reason& known = mOpen.objects[mTouched.value(object)].reason;
        known = std::max(known, reason);
    }
}

void FHistory::recordCreation(FManaged* object) {
    if (mReplaying) {
        return;
    }
    if (mBlockers > 0) {
        mUnrecorded.insert(object, FExprBase(object));
        return;
    }
    checkOpen(object->getName());
    if (mDepth > 0) {
        mOpen.model.emplace_back(object, true);
    }
}

void FHistory::recordDestruction(FManaged* object, const std::vector<FObject*>& clients) {
    if (!isRecording()) {
        return;
    }
    checkOpen(object->getName());
    if (mDepth == 0) {
        return;
    }
    touch(object, Reason::Recorded);
    for (FObject* client : clients) {
        auto* recorded = dynamic_cast<FRecorded*>(client);
        if (recorded && recorded->isRecorded()) {
            // It may drop its dead handle only after the step, and has to get it back all the same.
            touch(recorded, Reason::Client);
        }
    }
    mOpen.model.emplace_back(object, false);
}

// ---- undo and redo ----

bool FHistory::undo() {
    FUserStep::commitEdits();
    return move(mDone, false);
}

bool FHistory::redo() {
    FUserStep::commitEdits();
    return move(mUndone, true);
}

bool FHistory::move(std::deque<Transaction>& steps, bool forward) {
    if (mDepth > 0 || mReplaying || steps.empty()) {
        return false;
    }
    Transaction step = std::move(steps.back());
    steps.pop_back();
    mSize -= step.size;
    const QString label = step.label;
    replay(step, forward);
    keep(std::move(step), forward);
    emit forward ? FChanges::instance()->stepRedone(label) : FChanges::instance()->stepUndone(label);
    return true;
}

void FHistory::replay(const Transaction& step, bool forward) {
    const FBusy busy;
    const bool wasReplaying = std::exchange(mReplaying, true);
    {
        const FImmediateUpdateBlocker blocker;
        restoreModel(step, forward);
        restoreFields(step, forward);
    }
    mReplaying = wasReplaying;
    announceChanged(objectsOf(step));
}

void FHistory::restoreModel(const Transaction& step, bool forward) {
    const auto restore = [forward](const ModelChange& change) {
        auto* object = change.managed;
        const bool comes = change.created == forward;
        // A change without a step may have done it already.
        if (object->isInModel() != comes) {
            comes ? object->enter() : object->leave();
        }
    };
    if (forward) {
        std::for_each(step.model.begin(), step.model.end(), restore);
    } else {
        std::for_each(step.model.rbegin(), step.model.rend(), restore);
    }
}

void FHistory::restoreFields(const Transaction& step, bool forward) {
    FChangeCount::add();
    for (const ObjectChange& change : step.objects) {
        FRecorded& object = *change.recorded;
        const auto& fields = object.getClassData().getFields();
        for (const FieldChange& field : change.fields) {
            const std::any& value = forward ? field.after : field.before;
            fields[field.field]->restore(object, value, object.mpKnownState->values[field.field]);
        }
        object.rememberState();
    }
    for (const ModelChange& change : step.model) {
        change.managed->setOutOfDate(true);
    }
    for (const ObjectChange& change : step.objects) {
        change.recorded->setOutOfDate(true);
    }
}

QStringList FHistory::getLabels() const {
    QStringList labels;
    for (const Transaction& step : mDone) {
        labels.append(step.label);
    }
    return labels;
}

QStringList FHistory::getUndoneLabels() const {
    QStringList labels;
    for (auto step = mUndone.rbegin(); step != mUndone.rend(); ++step) {
        labels.append(step->label);
    }
    return labels;
}

void FHistory::clear() {
    dropUndone();
    QStringList dropped = getLabels();
    mDone.clear();
    mSize = 0;
    for (const QString& label : dropped) {
        emit FChanges::instance()->stepDropped(label);
    }
}

void FHistory::setLimit(std::size_t bytes) {
    mLimit = bytes;
    trim();
}

void FHistory::dropUndone() {
    QStringList dropped;
    for (const Transaction& step : mUndone) {
        mSize -= step.size;
        dropped.append(step.label);
    }
    mUndone.clear();
    for (const QString& label : dropped) {
        emit FChanges::instance()->stepDropped(label);
    }
}

void FHistory::trim() {
    for (std::deque<Transaction>* steps : {&mUndone, &mDone}) {
        while (mSize > mLimit && !steps->empty()) {
            const QString label = steps->front().label;
            mSize -= steps->front().size;
            steps->pop_front();
            emit FChanges::instance()->stepDropped(label);
        }
    }
}

// ---- interruption ----

FHistoryPause::FHistoryPause() {
    FHistory& history = *FHistory::instance();
    if (history.mUserSteps != history.mDepth || history.mReplaying || history.mBlockers > 0) {
        return;
    }
    mIsPaused = true;
    mBlockers = FImmediateUpdateBlocker::suspend();
    mDepth = history.mDepth;
    mLabel = history.mOpen.label;
    history.commit(mDepth);
    history.mUserSteps = 0;
}

FHistoryPause::~FHistoryPause() {
    if (!mIsPaused) {
        return;
    }
    FHistory& history = *FHistory::instance();
    history.mDepth = mDepth;
    history.mUserSteps = mDepth;
    history.mOpen.label = mLabel;
    FImmediateUpdateBlocker::resume(mBlockers);
}
