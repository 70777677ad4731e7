#include "session/ScanStop.h"

#include "acquisition/DataAcqEngine.h"

namespace corvex {

void ScanStop::Begin() {
    asked_.store(false, std::memory_order_relaxed);
    engine_.ForgetStop();
}

void ScanStop::Ask(bool insists) {
    const bool again = asked_.exchange(true, std::memory_order_relaxed);
    engine_.RequestStop();
    if (again && insists && disconnecting_.load(std::memory_order_relaxed)) engine_.RequestCut();
}

void ScanStop::RunDisconnect(const ADXObject* command) {
    if (command == nullptr) return;
    disconnecting_.store(true, std::memory_order_relaxed);
    // The line is being left, whatever it says.
    static_cast<void>(engine_.RunWhole(command, kDisconnectLimit));
    disconnecting_.store(false, std::memory_order_relaxed);
}

}  // namespace corvex
