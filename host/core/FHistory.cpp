#include "host/core/FHistory.h"

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
        mOpen = Transaction();
        mTouched.clear();
        mOpen.label = label;
    }
}

void FHistory::commit(int steps) {
    if (mDepth == 0) {
        return;
    }
    mDepth = std::max(0, mDepth - steps);
    if (mDepth == 0) {
        close();
    }
}

void FHistory::close() {
    Transaction step = std::exchange(mOpen, Transaction());
    if (step.isEmpty()) {
        return;
    }
    forgetChangesOfNew(step);
    for (ObjectChange& change : step.objects) {
        keepDifference(change, step.size);
    }
    step.size += step.model.size() * sizeof(ModelChange) + step.objects.size() * sizeof(ObjectChange);
    mSize += step.size;
    mDone.push_back(std::move(step));
    for (const Transaction& undone : mUndone) {
        mSize -= undone.size;
    }
    mUndone.clear();
    trim();
    mObserver();
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

void FHistory::keepDifference(ObjectChange& change, std::size_t& size) {
    FRecorded& object = *change.recorded;
    FState now = FState::capture(object);
    const auto& fields = object.getClassData().getFields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (change.whole || !fields[i]->equal(change.before.values[i], now.values[i])) {
            size += fields[i]->size(change.before.values[i]) + fields[i]->size(now.values[i]);
            change.fields.push_back({i, std::move(change.before.values[i]), now.values[i]});
        }
    }
    change.before.values.clear();
    object.mpKnownState = std::make_unique<FState>(std::move(now));
}

void FHistory::rollback() {
    if (mDepth == 0) {
        return;
    }
    mDepth = 0;
    Transaction step = std::exchange(mOpen, Transaction());
    for (ObjectChange& change : step.objects) {
        keepDifference(change, step.size);
    }
    replay(step, false);
}

void FHistory::addStep(const FRecorded* object) {
    if (!object || !object->isRecorded() || !isRecording()) {
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
    if (mDepth > 0 || mDone.empty()) {
        return false;
    }
    Transaction step = std::move(mDone.back());
    mDone.pop_back();
    replay(step, false);
    mUndone.push_back(std::move(step));
    mObserver();
    return true;
}

bool FHistory::redo() {
    if (mDepth > 0 || mUndone.empty()) {
        return false;
    }
    Transaction step = std::move(mUndone.back());
    mUndone.pop_back();
    replay(step, true);
    mDone.push_back(std::move(step));
    mObserver();
    return true;
}

void FHistory::replay(const Transaction& step, bool forward) {
    mReplaying = true;
    const auto changeModel = [forward](const ModelChange& change) {
        auto* object = change.managed;
        if (change.created == forward) {
            object->enter();
        } else {
            object->leave();
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
    mDone.clear();
    mUndone.clear();
    mSize = 0;
}

void FHistory::setLimit(std::size_t bytes) {
    mLimit = bytes;
    trim();
}

void FHistory::trim() {
    while (mSize > mLimit && mDone.size() > 1) {
        mSize -= mDone.front().size;
        mDone.pop_front();
    }
}
