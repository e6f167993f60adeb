#include "host/run/FMappingGuard.h"

#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>

namespace {

/** A guarded range of addresses. The signal handler uses nothing else. */
struct Slot {
    std::atomic<bool> taken = false;
    std::atomic<bool> hit = false;
    std::atomic<quintptr> begin = 0;
    std::atomic<quintptr> end = 0;

    bool contains(quintptr address) const { return begin <= address && address < end; }
};
static_assert(std::atomic<quintptr>::is_always_lock_free);

std::array<Slot, 64> slots;
quintptr pageSize = 0;
struct sigaction previousAction;

bool putZerosFrom(quintptr address, quintptr end) {
    const quintptr page = address & ~(pageSize - 1);
    return ::mmap(reinterpret_cast<void*>(page), end - page, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1,
                  0) != MAP_FAILED;
}

void passOn(int signal, siginfo_t* info, void* context) {
    if ((previousAction.sa_flags & SA_SIGINFO) != 0) {
        previousAction.sa_sigaction(signal, info, context);
    } else if (previousAction.sa_handler != SIG_DFL && previousAction.sa_handler != SIG_IGN) {
        previousAction.sa_handler(signal);
    } else {
        ::sigaction(signal, &previousAction, nullptr);  // the instruction runs again and raises the signal again
    }
}

void onBusError(int signal, siginfo_t* info, void* context) {
    const quintptr address = reinterpret_cast<quintptr>(info->si_addr);
    for (Slot& slot : slots) {
        if (slot.contains(address) && putZerosFrom(address, slot.end)) {
            slot.hit = true;
            return;
        }
    }
    passOn(signal, info, context);
}

bool install() {
    pageSize = static_cast<quintptr>(::sysconf(_SC_PAGESIZE));
    struct sigaction action = {};
    action.sa_sigaction = &onBusError;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    ::sigemptyset(&action.sa_mask);
    return ::sigaction(SIGBUS, &action, &previousAction) == 0;
}

int takeSlot() {
    static const bool installed = install();
    for (size_t i = 0; installed && i < slots.size(); ++i) {
        if (!slots[i].taken.exchange(true)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

}  // namespace

FMappingGuard::FMappingGuard(const uchar* begin, qint64 size) : mSlot(takeSlot()) {
    if (!isActive()) {
        return;
    }
    Slot& slot = slots[static_cast<size_t>(mSlot)];
    slot.hit = false;
    slot.begin = reinterpret_cast<quintptr>(begin);
    slot.end = slot.begin + static_cast<quintptr>(size);
}

FMappingGuard::~FMappingGuard() {
    if (!isActive()) {
        return;
    }
    Slot& slot = slots[static_cast<size_t>(mSlot)];
    slot.end = 0;
    slot.taken = false;
}

bool FMappingGuard::wasHit() const {
    return isActive() && slots[static_cast<size_t>(mSlot)].hit;
}
