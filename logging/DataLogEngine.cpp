#include "logging/DataLogEngine.h"

namespace corvex {

std::uint32_t DataLogEngine::AddSample(std::uint32_t, const std::uint8_t*, std::uint32_t) {
    if (State() != kLogRecording) return kLogWrongState;
    return kLogUnknownItem;  // the item table is empty
}

std::uint32_t DataLogEngine::StopRecording() {
    if (State() != kLogRecording) return kLogWrongState;
    return kLogFileError;  // there is no file to write the header to
}

std::uint32_t DataLogEngine::RequestStop() {
    state.store(kLogStopRequested, std::memory_order_relaxed);
    return kLogSuccess;
}

}  // namespace corvex
