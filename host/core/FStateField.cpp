#include "host/core/FStateField.h"

#include "host/core/FBasicType.h"
#include "host/core/FRecorded.h"

#include <algorithm>

bool isSameValue(const FExprBase& a, const FExprBase& b) {
    if (a == b) {
        return true;
    }
    const FObject* one = a.getStored();
    const FObject* other = b.getStored();
    if (!one || !other || one->getPrototype() != other->getPrototype()) {
        return false;
    }
    if (const auto* list = dynamic_cast<const FObjectList*>(one)) {
        const auto& elements = list->getObjects();
        const auto& others = static_cast<const FObjectList*>(other)->getObjects();
        return std::equal(elements.begin(), elements.end(), others.begin(), others.end(), &isSameValue);
    }
    if (!dynamic_cast<const FBasicType*>(one)) {
        return false;
    }
    return one->getClassData().getFields().empty() ? one->toHistoryString() == other->toHistoryString()
                                                   : FState::capture(*one).equals(FState::capture(*other), *one);
}

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

// ---- long texts ----

namespace {

/** Shorter texts are cheaper whole than compared. */
constexpr int longText = 1024;

int commonStart(const QString& a, const QString& b) {
    const auto differ = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return static_cast<int>(differ.first - a.begin());
}

/** How many of the last characters are the same, at most `most`. */
int commonEnd(const QString& a, const QString& b, int most) {
    int count = 0;
    while (count < most && a[a.size() - 1 - count] == b[b.size() - 1 - count]) {
        ++count;
    }
    return count;
}

}  // namespace

void FTextChange::shrink(std::any& before, std::any& after) {
    const auto old = std::any_cast<QString>(before);
    const auto fresh = std::any_cast<QString>(after);
    if (old.size() < longText && fresh.size() < longText) {
        return;
    }
    const int start = commonStart(old, fresh);
    const int end = commonEnd(old, fresh, std::min(old.size(), fresh.size()) - start);
    before = FTextChange{start, end, old.mid(start, old.size() - start - end)};
    after = FTextChange{start, end, fresh.mid(start, fresh.size() - start - end)};
}

QString FTextChange::whole(const std::any& value, const std::any& known) {
    const auto* change = std::any_cast<FTextChange>(&value);
    if (!change) {
        return std::any_cast<QString>(value);
    }
    const auto& other = std::any_cast<const QString&>(known);
    return other.left(change->before) + change->middle + other.right(change->after);
}

bool FTextChange::equal(const std::any& a, const std::any& b) {
    const auto* whole = std::any_cast<QString>(&a);
    const auto* other = std::any_cast<QString>(&b);
    // What was shrunk differs.
    return whole && other && *whole == *other;
}

std::size_t FTextChange::size(const std::any& value) {
    const auto* change = std::any_cast<FTextChange>(&value);
    const QString text = change ? change->middle : std::any_cast<QString>(value);
    return static_cast<std::size_t>(text.size()) * sizeof(QChar);
}

// ---- owned objects ----

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
    const auto same = [&](std::size_t i) {
        const FObject* stored = objects[i].getStored();
        const FObject* otherStored = other.objects[i].getStored();
        const bool isComparable = stored && otherStored && stored->getPrototype() == otherStored->getPrototype() &&
                                  !states[i].values.empty() && !other.states[i].values.empty();
        return isComparable ? states[i].equals(other.states[i], *stored) : isSameValue(objects[i], other.objects[i]);
    };
    bool isSame = objects.size() == other.objects.size();
    for (std::size_t i = 0; isSame && i < objects.size(); ++i) {
        isSame = same(i);
    }
    return isSame;
}

std::size_t FOwnedState::size() const {
    std::size_t sum = objects.size() * sizeof(FExprBase);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const FObject* stored = objects[i].getStored();
        // An object without fields never changes, so only its own text counts.
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
