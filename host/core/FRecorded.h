#pragma once

#include "host/core/FExport.h"
#include "host/core/FObject.h"

#include <memory>

class FManaged;
class FState;

/**
 * Base of everything whose state the history saves individually: managed objects, and parts too numerous to be saved
 * with their owner.
 */
class MERIX_EXPORT FRecorded : public FObject {
 public:
    FRecorded();
    ~FRecorded() override;

    /** True while the object belongs to the model; outside it nothing is kept. */
    virtual bool isRecorded() const = 0;
    /** The managed object that it is, or is a part of; null outside the model. */
    virtual FManaged* getOwner() const = 0;
    /** About how many bytes it holds; overrides add what isn't in its raw fields. */
    virtual std::size_t getMemory() const;

 protected:
    FRecorded(const FRecorded& other);
    FRecorded& operator=(const FRecorded& other) = delete;
    /** The present state becomes the one that the next step is compared with. */
    void rememberState();
    void forgetState();
    bool hasKnownState() const { return mpKnownState != nullptr; }

 private:
    friend class FHistory;

    std::unique_ptr<FState> mpKnownState;  //!< the state at the end of the last step
};
