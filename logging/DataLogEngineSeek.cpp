#include "logging/DataLogEngine.h"
#include "logging/IDataLogCallback.h"
#include "logging/LogBuffers.h"

namespace corvex {

// Every Seek ends with the callback's OnLogSeekEnd, a refused one too: views that wait for it would wait for ever.
std::uint32_t DataLogEngine::Seek(std::uint32_t target, std::uint32_t flags) {
    const std::uint32_t result = SeekChecked(target, flags);
    if (callback != nullptr) static_cast<void>(callback->OnLogSeekEnd());
    return result;
}

std::uint32_t DataLogEngine::SeekChecked(std::uint32_t target, std::uint32_t flags) {
    const std::uint32_t now = State();
    const bool isOpen = now == kLogPlaying || now == kLogReady || now == kLogStopRequested;
    if (!isOpen) return kLogWrongState;
    if ((flags & kSeekUnsupported) != 0) return kLogSeekUnsupported;
    {
        const std::lock_guard lock(lock_);
        if (!GrowBuffer(recordBuffer_, PackedBufferSize(*items_, FileSizeLocked()))) return kLogFileError;
    }
    if (callback != nullptr && callback->OnLogSeekBegin(target, flags) < 0) return kLogSeekRefused;
    const std::lock_guard lock(lock_);
    if (!file_) return kLogWrongState;
    const std::uint32_t result = WalkToLocked(target, flags);
    if (result == kLogSuccess) paceBaseMs.store(currentMs.load(std::memory_order_relaxed), std::memory_order_relaxed);
    // Whatever record the thread was waiting with belongs to the place that was left.
    seeks_.fetch_add(1, std::memory_order_relaxed);
    return result;
}

// Without kSeekTime the target is compared with the count from the start of the data, with kSeekFromStart or not: a
// "forward by ten" past the tenth record goes one record on. The jump keys are known for it.
std::uint32_t DataLogEngine::WalkToLocked(std::uint32_t target, std::uint32_t flags) {
    if ((flags & kSeekFromStart) != 0) {
        reader_.Seek(header.dataOffset);
        sampleIndex.store(0, std::memory_order_relaxed);
    }
    if (target == 0) return kLogSuccess;
    LogRecord record;
    const LogItem* item = nullptr;
    const auto size = static_cast<std::uint32_t>(recordBuffer_.size());
    for (;;) {
        const std::uint64_t before = reader_.Position();
        std::uint32_t result = ReadRecordLocked(*items_, &record, recordBuffer_.data(), size, &item);
        // The buffer holds what the whole file holds: a record that does not fit is cut short.
        if (result == kLogBufferTooSmall) result = kLogEndOfFile;
        if (result == kLogEndOfFile) return result;
        if (result != kLogSuccess) {
            // Goes on behind the bad record, but never in a circle.
            if (reader_.Position() <= before) return result;
            continue;
        }
        if ((flags & kSeekTime) != 0 && target < record.timeMs) {
            reader_.Seek(before);
            sampleIndex.fetch_sub(1, std::memory_order_relaxed);
            return kLogSuccess;
        }
        if ((flags & kSeekTime) == 0 && sampleIndex.load(std::memory_order_relaxed) >= target) return kLogSuccess;
    }
}

}  // namespace corvex
