#include "host/core/FStateField.h"

#include "host/core/FRecorded.h"

FState FState::capture(const FObject& object) {
    FState state;
    const auto& fields = object.getClassData().getFields();
    state.values.reserve(fields.size());
    for (const FStateField* field : fields) {
        state.values.push_back(field->read(object));
    }
    return state;
}

void FState::restore(FObject& object) const {
    const auto& fields = object.getClassData().getFields();
    for (std::size_t i = 0; i < values.size(); ++i) {
        fields[i]->write(object, values[i]);
    }
}

bool FState::equals(const FState& other, const FObject& object) const {
    const auto& fields = object.getClassData().getFields();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!fields[i]->equal(values[i], other.values[i])) {
            return false;
        }
    }
    return true;
}

std::size_t FState::size(const FObject& object) const {
    const auto& fields = object.getClassData().getFields();
    std::size_t sum = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        sum += fields[i]->size(values[i]);
    }
    return sum;
}

FOwnedState FOwnedState::capture(std::vector<FExprBase> objects) {
    FOwnedState owned;
    owned.states.reserve(objects.size());
    for (const FExprBase& object : objects) {
        const FObject* stored = object.getStored();
        // A managed object has a history of its own.
        const bool isOwned = stored && stored->getBlock()->kind == FObjectBlock::Kind::Plain;
        owned.states.push_back(isOwned ? FState::capture(*stored) : FState());
    }
    owned.objects = std::move(objects);
    return owned;
}

void FOwnedState::restoreElements() const {
    for (std::size_t i = 0; i < objects.size(); ++i) {
        if (FObject* stored = objects[i].getStored()) {
            states[i].restore(*stored);
        }
    }
}

bool FOwnedState::equals(const FOwnedState& other) const {
    if (objects != other.objects) {
        return false;
    }
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const FObject* stored = objects[i].getStored();
        if (stored && !states[i].equals(other.states[i], *stored)) {
            return false;
        }
    }
    return true;
}

std::size_t FOwnedState::size() const {
    std::size_t sum = objects.size() * sizeof(FExprBase);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const FObject* stored = objects[i].getStored();
        // One without fields never changes, so that its own text tells.
        const bool hasFields = stored && !states[i].values.empty();
        sum += hasFields ? states[i].size(*stored) : heldMemory(objects[i]);
    }
    return sum;
}

std::size_t heldMemory(const FExprBase& handle) {
    constexpr std::size_t least = 64;
    const FObject* stored = handle.getStored();
    if (!stored || stored->getBlock()->kind != FObjectBlock::Kind::Plain) {
        return sizeof(FExprBase);
    }
    if (const auto* part = dynamic_cast<const FRecorded*>(stored)) {
        return sizeof(FExprBase) + (part->isRecorded() ? 0 : part->getMemory());
    }
    return least + static_cast<std::size_t>(stored->toString().size()) * sizeof(QChar);
}
