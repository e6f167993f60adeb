#include "host/gui/base/FSetUpAssistant.h"

namespace {

FSetUpAssistant::Open& opener() {
    static FSetUpAssistant::Open open;
    return open;
}

}  // namespace

void FSetUpAssistant::set(const Open& open) {
    opener() = open;
}

bool FSetUpAssistant::isThere() {
    return static_cast<bool>(opener());
}

void FSetUpAssistant::open(QWidget* parent) {
    if (opener()) {
        opener()(parent);
    }
}
