#include "host/core/FHistory.h"

#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FLogMsg.h"

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
    dropUndone();
    const QString label = step.label;
    keep(std::move(step), true);
    if (mDone.empty()) {
        FLogMsg::warning(QStringLiteral("FHistory"),
                         QStringLiteral("\"%1\" needs more memory than all steps may have together").arg(label),
                         QStringLiteral("it can't be undone, and no step before it"));
    }
}

void FHistory::takeBack() {
    Transaction step = takeOpen();
    std::for_each(step.objects.begin(), step.objects.end(), &keepDifference);
    replay(step, false);
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
        if (change.whole || !fields[i]->equal(change.before.values[i], now.values[i])) {
            change.fields.push_back({i, std::move(change.before.values[i]), now.values[i]});
        }
    }
    change.before.values.clear();
    object.mpKnownState = std::make_unique<FState>(std::move(now));
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
    mObserver();
}

void FHistory::addStep(const FRecorded* object) {
    if (!object || !object->isRecorded() || mReplaying) {
        return;
    }
    if (mBlockers > 0) {
        if (!mTouched.contains(object)) {
            const_cast<FRecorded*>(object)->rememberState();
        }
        return;
    }
    if (mDepth == 0) {
        startTransaction(object->toString());
        touch(const_cast<FRecorded*>(object));
        commit(1);
    } else {
        touch(const_cast<FRecorded*>(object));
    }
}

void FHistory::touch(FRecorded* object, bool whole) {
    if (!mTouched.contains(object) && object->mpKnownState) {
        mTouched.insert(object, mOpen.objects.size());
        mOpen.objects.push_back({FExprBase(object), object, *object->mpKnownState, {}});
    }
    if (whole && mTouched.contains(object)) {
        mOpen.objects[mTouched.value(object)].whole = true;
    }
}

void FHistory::recordCreation(FManaged* object) {
    if (mDepth > 0 && isRecording()) {
        mOpen.model.emplace_back(object, true);
    }
}

void FHistory::recordDestruction(FManaged* object, const std::vector<FObject*>& clients) {
    if (mDepth == 0 || !isRecording()) {
        return;
    }
    touch(object);
    for (FObject* client : clients) {
        auto* recorded = dynamic_cast<FRecorded*>(client);
        if (recorded && recorded->isRecorded()) {
            // It may drop its dead handle only after the step, and has to get it back all the same.
            touch(recorded, true);
        }
    }
    mOpen.model.emplace_back(object, false);
}

bool FHistory::undo() {
    return move(mDone, false);
}

bool FHistory::redo() {
    return move(mUndone, true);
}

bool FHistory::move(std::deque<Transaction>& steps, bool forward) {
    if (mDepth > 0 || mReplaying || steps.empty()) {
        return false;
    }
    Transaction step = std::move(steps.back());
    steps.pop_back();
    mSize -= step.size;
    replay(step, forward);
    keep(std::move(step), forward);
    return true;
}

void FHistory::replay(const Transaction& step, bool forward) {
    const FImmediateUpdateBlocker blocker;
    mReplaying = true;
    const auto changeModel = [forward](const ModelChange& change) {
        auto* object = change.managed;
        const bool comes = change.created == forward;
        // What was done to it without a step has perhaps done it already.
        if (object->isInModel() != comes) {
            comes ? object->enter() : object->leave();
        }
    };
    if (forward) {
        std::for_each(step.model.begin(), step.model.end(), changeModel);
    } else {
        std::for_each(step.model.rbegin(), step.model.rend(), changeModel);
    }
    for (const ObjectChange& change : step.objects) {
        const auto& fields = change.recorded->getClassData().getFields();
        for (const FieldChange& field : change.fields) {
            fields[field.field]->write(*change.recorded, forward ? field.after : field.before);
        }
        change.recorded->rememberState();
    }
    mReplaying = false;
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

void FHistory::clear() {
    dropUndone();
    mDone.clear();
    mSize = 0;
}

void FHistory::setLimit(std::size_t bytes) {
    mLimit = bytes;
    trim();
}

void FHistory::dropUndone() {
    for (const Transaction& step : mUndone) {
        mSize -= step.size;
    }
    mUndone.clear();
}

void FHistory::trim() {
    for (std::deque<Transaction>* steps : {&mUndone, &mDone}) {
        while (mSize > mLimit && !steps->empty()) {
            mSize -= steps->front().size;
            steps->pop_front();
        }
    }
}
