#include "host/core/FLogHold.h"

namespace {

FLogHold* innermost = nullptr;

}  // namespace

FLogHold::FLogHold() : mOuter(innermost) {
    innermost = this;
}

FLogHold::~FLogHold() {
    innermost = mOuter;
}

bool FLogHold::keep(const FLogMsg& message) {
    if (innermost) {
        innermost->mMessages.append(message);
    }
    return innermost != nullptr;
}
