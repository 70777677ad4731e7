#include "platform/ProgramPlace.h"

#include <atomic>

namespace corvex {

namespace {

std::atomic<IProgramPlace*> forcedPlace{nullptr};

}  // namespace

IProgramPlace& CurrentProgramPlace() {
    IProgramPlace* const place = forcedPlace.load(std::memory_order_acquire);
    return place != nullptr ? *place : SystemProgramPlace();
}

ScopedProgramPlace::ScopedProgramPlace(IProgramPlace& place)
    : previous_(forcedPlace.exchange(&place, std::memory_order_acq_rel)) {}

ScopedProgramPlace::~ScopedProgramPlace() {
    forcedPlace.store(previous_, std::memory_order_release);
}

}  // namespace corvex
