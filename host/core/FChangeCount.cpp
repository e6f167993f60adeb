#include "host/core/FChangeCount.h"

namespace FChangeCount {
namespace {

quint64 count = 0;

}  // namespace

quint64 now() {
    return count;
}

void add() {
    ++count;
}

}  // namespace FChangeCount
