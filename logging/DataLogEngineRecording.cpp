#include <algorithm>
#include <cmath>

#include "logging/DataLogEngine.h"
#include "logging/LogBuffers.h"
#include "logging/RecordingSync.h"

namespace corvex {

namespace {

// A definition may claim replies of any size; a buffer for the largest is made only where that is sane.
constexpr std::size_t kSaneReply = 1U << 24U;

// Halves go up. 0 where the machine has no counter and time is no number.
std::uint32_t Milliseconds(double seconds) {
    if (!std::isfinite(seconds)) return 0;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(std::floor(seconds * 1000.0 + 0.5)));
}

}  // namespace

std::uint32_t DataLogEngine::StartRecording() {
    const std::lock_guard lock(lock_);
    if (State() != kLogOpenedForWrite) return kLogWrongState;
    header.startTime = CurrentLocalTime();
    header.endMark = kNeverEnded;
    header.sampleCount = 0;
    recorded.store(0, std::memory_order_relaxed);
    // The end of an earlier recording has paused it, and a paused stopwatch would restart at that moment.
    stopWatch_.Restart();
    BeginSyncLocked();
    state.store(kLogRecording, std::memory_order_relaxed);
    return kLogSuccess;
}

// A log that can't be synced is recorded all the same.
void DataLogEngine::BeginSyncLocked() {
    std::unique_ptr<IFileSync> file = file_->OpenSync();
    if (!file) return;
    sync_ = std::make_shared<RecordingSync>(std::move(file));
    if (!sync_->Begin(syncers_)) sync_.reset();
}

void DataLogEngine::EndSyncLocked() {
    if (sync_) sync_->End();
}

void DataLogEngine::WaitForSync() {
    {
        const std::lock_guard lock(lock_);
        EndSyncLocked();
    }
    syncers_.Wait();
}

bool DataLogEngine::SyncFailed() const {
    const std::lock_guard lock(lock_);
    return sync_ && sync_->Failed();
}

LogHarm DataLogEngine::Harm() const {
    const std::lock_guard lock(lock_);
    if (harm_ != LogHarm::kNone || !file_ || State() != kLogRecording) return harm_;
    return file_->StandsAt(path_) ? LogHarm::kNone : LogHarm::kGone;
}

// Synced first: what still holds the file open would keep it from being moved.
std::uint32_t DataLogEngine::ContinueIn(const std::string& path, const std::function<bool()>& move) {
    const std::lock_guard lock(lock_);
    if (State() != kLogRecording || !file_) return kLogWrongState;
    EndSyncLocked();
    syncers_.Wait();
    const bool closed = file_->Close();
    reader_.Attach(nullptr);
    file_.reset();
    if (closed && move()) file_ = files_.Open(path, FileAccess::kReadWrite, &openError_);
    if (!file_) {
        sync_.reset();
        state.store(kLogClosed, std::memory_order_relaxed);
        return kLogFileError;
    }
    path_ = path;
    reader_.Attach(file_.get());
    BeginSyncLocked();
    return kLogSuccess;
}

std::uint32_t DataLogEngine::AddSample(std::uint32_t commandId, const std::uint8_t* reply, std::uint32_t count) {
    if (State() != kLogRecording) return kLogWrongState;
    const std::lock_guard lock(lock_);
    if (State() != kLogRecording || !file_) return kLogWrongState;
    const std::uint32_t index = FindItemLocked(commandId);
    // A record has one byte for it.
    if (index > 0xFF) return kLogUnknownItem;
    return AddSampleLocked((*items_)[index], static_cast<std::uint8_t>(index), reply, count);
}

std::uint32_t DataLogEngine::AddSampleLocked(const LogItem& item, std::uint8_t index, const std::uint8_t* reply,
                                             std::uint32_t count) {
    if (item.packedSize > 0xFFFFFFFF - kLogRecordBytes) return kLogFileError;
    const std::uint32_t size = kLogRecordBytes + item.packedSize;
    const std::size_t largest = std::size_t{kLogRecordBytes} + LargestPackedSize(*items_);
    if (!GrowBuffer(recordBuffer_, largest <= kSaneReply ? largest : size)) return kLogFileError;

    LogRecord record;
    if (header.sampleCount == 0) {
        if (WriteHeaderLocked() != kLogSuccess) return kLogFileError;
        appendAt_ = header.dataOffset;
        stopWatch_.Restart();
    } else {
        record.timeMs = Milliseconds(stopWatch_.Elapsed());
    }
    record.nextOffset = static_cast<std::uint32_t>(appendAt_ + size);
    record.itemIndex = index;
    EncodeRecord(record, recordBuffer_.data());
    std::uint8_t* const data = recordBuffer_.data() + kLogRecordBytes;
    std::fill(data, data + item.packedSize, std::uint8_t{0});
    if (reply != nullptr) PackReply(item.mask, reply, count, data, item.packedSize);
    if (!MendCutLocked() || !AppendLocked(recordBuffer_.data(), size)) return kLogFileError;
    ++header.sampleCount;
    recorded.store(header.sampleCount, std::memory_order_relaxed);
    if (sync_) sync_->Note();
    return kLogSuccess;
}

// What another program has cut off is lost, and in its place there will be zeros that readers stop at; what comes
// behind them can be saved only if the table is there to tell what it is.
bool DataLogEngine::MendCutLocked() {
    const std::uint64_t size = file_->Size().value_or(appendAt_);
    if (size >= appendAt_) return true;
    harm_ = LogHarm::kCut;
    return size >= header.dataOffset || WriteHeaderLocked() == kLogSuccess;
}

// A disk that is full takes a part: left in the file it would be read as the head of the next record.
bool DataLogEngine::AppendLocked(const std::uint8_t* bytes, std::uint32_t size) {
    if (file_->Position() != appendAt_ && !file_->Seek(appendAt_)) return false;
    if (file_->Write(bytes, size)) {
        appendAt_ += size;
        partLeft_ = false;  // written over
        return true;
    }
    partLeft_ = !file_->Seek(appendAt_) || !file_->EndHere();
    return false;
}

std::uint32_t DataLogEngine::StopRecording() {
    const std::lock_guard lock(lock_);
    return StopRecordingLocked();
}

// A log without a sample has no bytes yet when its end is marked, so its endMark is 1; readers start at dataOffset
// then.
std::uint32_t DataLogEngine::StopRecordingLocked() {
    if (State() != kLogRecording) return kLogWrongState;
    stopWatch_.Pause();
    std::optional<std::uint64_t> size = file_ ? file_->Size() : std::nullopt;
    if (!size) return kLogFileError;
    if (!file_->StandsAt(path_)) harm_ = LogHarm::kGone;
    if (header.sampleCount != 0 && *size < appendAt_) harm_ = LogHarm::kCut;
    if (header.sampleCount != 0 && *size > appendAt_ && !partLeft_) harm_ = LogHarm::kLengthened;
    // A part of a sample that could not be taken out when its write failed.
    if (header.sampleCount != 0 && *size > appendAt_ && file_->Seek(appendAt_) && file_->EndHere()) size = appendAt_;
    header.endMark = static_cast<std::uint32_t>(*size + 1);
    if (WriteHeaderLocked() != kLogSuccess) return kLogFileError;
    EndSyncLocked();
    readMode = 1;
    state.store(kLogReady, std::memory_order_relaxed);
    return kLogSuccess;
}

}  // namespace corvex
