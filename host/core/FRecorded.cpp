#include "host/core/FRecorded.h"

#include "host/core/FStateField.h"

FRecorded::FRecorded() = default;
FRecorded::FRecorded(const FRecorded& other) : FObject(other) {}
FRecorded::~FRecorded() = default;

std::size_t FRecorded::getMemory() const {
    return FState::capture(*this).size(*this);
}

void FRecorded::forgetState() {
    mpKnownState.reset();
}

void FRecorded::rememberState() {
    mpKnownState = std::make_unique<FState>(FState::capture(*this));
}
