#include "platform/ProgramPlace.h"

#include <atomic>

namespace corvex {

namespace {

std::atomic<IProgramPlace*> forced{nullptr};

}  // namespace

IProgramPlace& CurrentProgramPlace() {
    IProgramPlace* const place = forced.load(std::memory_order_acquire);
    return place != nullptr ? *place : SystemProgramPlace();
}

ScopedProgramPlace::ScopedProgramPlace(IProgramPlace& place)
    : previous_(forced.exchange(&place, std::memory_order_acq_rel)) {}

ScopedProgramPlace::~ScopedProgramPlace() {
    forced.store(previous_, std::memory_order_release);
}

}  // namespace corvex
