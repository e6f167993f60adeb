#include "host/gui/base/FPendingEdit.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<FPendingEdit*>& editors() {
    static std::vector<FPendingEdit*> all;
    return all;
}

}  // namespace

FPendingEdit::FPendingEdit() {
    editors().push_back(this);
}

FPendingEdit::~FPendingEdit() {
    auto& all = editors();
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
}

FPendingEdit* FPendingEdit::findRefusing() {
    const auto& all = editors();
    const auto found =
        std::find_if(all.begin(), all.end(), [](const auto* editor) { return !editor->refusal().fault.isEmpty(); });
    return found == all.end() ? nullptr : *found;
}

void FPendingEdit::commitAll() {
    // A commit may end editors, and start others.
    const std::vector<FPendingEdit*> present = editors();
    for (FPendingEdit* editor : present) {
        const auto& all = editors();
        if (std::find(all.begin(), all.end(), editor) != all.end()) {
            editor->commitEdit();
        }
    }
}
