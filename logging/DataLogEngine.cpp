#include "logging/DataLogEngine.h"

#include "logging/LogChain.h"
#include "logging/RecordingSync.h"

namespace corvex {

namespace {

FileAccess AccessOf(std::uint32_t mode) {
    if (mode == kLogForWriting) return FileAccess::kCreate;
    // Closing a log that was read writes its header back.
    return mode == kLogForLooking ? FileAccess::kRead : FileAccess::kReadWrite;
}

}  // namespace

DataLogEngine::~DataLogEngine() {
    static_cast<void>(Close());
    workers_.Wait();
    WaitForSync();
}

std::uint32_t DataLogEngine::Open(const char* path, std::uint32_t mode) {
    static_cast<void>(Close());  // what was recorded is in its file, whether the close succeeds or not
    const std::lock_guard lock(lock_);
    ResetLocked();
    const std::uint32_t result = OpenFileLocked(path, mode);
    if (result != kLogSuccess) {
        reader_.Attach(nullptr);
        file_.reset();
        return result;
    }
    state.store(mode == kLogForWriting ? kLogOpenedForWrite : kLogReady, std::memory_order_relaxed);
    return kLogSuccess;
}

void DataLogEngine::ResetLocked() {
    state.store(kLogClosed, std::memory_order_relaxed);
    ++opens_;
    reader_.Attach(nullptr);
    file_.reset();
    EndSyncLocked();
    sync_.reset();
    harm_ = LogHarm::kNone;
    partLeft_ = false;
    items_ = std::make_shared<ItemTable>();
    readMode = 0;
    looksOnly_ = false;
    recordBuffer_ = {};
    header = {};
    appendAt_ = 0;
    sampleIndex.store(0, std::memory_order_relaxed);
    currentMs.store(0, std::memory_order_relaxed);
    paceBaseMs.store(0, std::memory_order_relaxed);
    speed.store(1.0F, std::memory_order_relaxed);
}

std::uint32_t DataLogEngine::OpenFileLocked(const char* path, std::uint32_t mode) {
    openError_.clear();
    path_ = path == nullptr ? "" : path;
    if (path == nullptr || *path == '\0') return kLogCannotOpen;
    file_ = files_.Open(path, AccessOf(mode), &openError_);
    if (!file_) return kLogCannotOpen;
    reader_.Attach(file_.get());
    readMode = mode == kLogForWriting ? 0 : 1;
    looksOnly_ = mode == kLogForLooking;
    return mode == kLogForWriting ? std::uint32_t{kLogSuccess} : ReadHeaderLocked();
}

std::uint32_t DataLogEngine::Close() {
    const std::uint32_t before = State();
    if (before == kLogClosed) return 1;
    if (before == kLogPlaying) static_cast<void>(RequestStop());
    const std::lock_guard lock(lock_);
    if (!file_) return 0;
    if (before == kLogRecording) static_cast<void>(StopRecordingLocked());  // the header below says it again
    if (WriteHeaderLocked() != kLogSuccess) return 0;
    static_cast<void>(file_->Seek(header.endMark));
    if (before == kLogRecording) EndSyncLocked();  // the header of one that could not be ended is written by now
    reader_.Attach(nullptr);
    file_.reset();
    recordBuffer_ = {};
    state.store(kLogClosed, std::memory_order_relaxed);
    return 1;
}

std::uint32_t DataLogEngine::WriteHeader() {
    const std::lock_guard lock(lock_);
    return WriteHeaderLocked();
}

std::uint32_t DataLogEngine::WriteHeaderLocked() {
    if (!file_) return kLogFileError;
    if (readMode == 0 && !WriteTableLocked()) return kLogFileError;
    header.version = kLogVersion;
    if (!looksOnly_) {
        std::uint8_t bytes[kLogHeaderBytes];
        EncodeHeader(header, bytes);
        if (!file_->Seek(0) || !file_->Write(bytes, kLogHeaderBytes)) return kLogFileError;
    }
    if (!file_->Seek(header.dataOffset)) return kLogFileError;
    reader_.Seek(header.dataOffset);
    reader_.Discard();
    return kLogSuccess;
}

// In one write, so that a process that dies leaves either no table or a whole one.
bool DataLogEngine::WriteTableLocked() {
    const std::vector<std::uint8_t> table = EncodeItemTable(*items_);
    if (!file_->Seek(kLogHeaderBytes)) return false;
    if (file_->Size().value_or(0) < kLogHeaderBytes && !file_->EndHere()) return false;
    if (!file_->Write(table.data(), static_cast<std::uint32_t>(table.size()))) return false;
    header.dataOffset = static_cast<std::uint32_t>(file_->Position());
    return true;
}

std::uint32_t DataLogEngine::ReadHeader() {
    const std::lock_guard lock(lock_);
    return ReadHeaderLocked();
}

std::uint32_t DataLogEngine::ReadHeaderLocked() {
    reader_.Seek(0);
    std::uint8_t bytes[kLogHeaderBytes];
    if (reader_.Read(bytes, kLogHeaderBytes) != kLogHeaderBytes) return kLogFileError;
    header = DecodeHeader(bytes);
    if (header.version != kLogVersion) return kLogWrongVersion;
    std::uint8_t word[4];
    if (reader_.Read(word, sizeof word) != sizeof word) return kLogFileError;
    return ReadItemsLocked(word[0] | std::uint32_t{word[1]} << 8U | std::uint32_t{word[2]} << 16U |
                           std::uint32_t{word[3]} << 24U);
}

// The count is taken on trust, but what it allocates comes with the bytes that are there.
std::uint32_t DataLogEngine::ReadItemsLocked(std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint8_t bytes[kLogItemBytes];
        if (reader_.Read(bytes, kLogItemBytes) != kLogItemBytes) return kLogFileError;
        LogItem item;
        static_cast<LogItemFields&>(item) = DecodeItem(bytes);
        std::vector<std::uint8_t> mask(item.maskLength);
        if (reader_.Read(mask.data(), item.maskLength) != item.maskLength) return kLogFileError;
        item.mask = LogMask(std::move(mask));
        OwnItemsLocked().push_back(std::move(item));
    }
    return kLogSuccess;
}

std::uint32_t DataLogEngine::ReadRecord(LogRecord* record, std::uint8_t* buffer, std::uint32_t size,
                                        const LogItem** item) {
    if (record == nullptr || buffer == nullptr || item == nullptr) return kLogNullArgument;
    const std::lock_guard lock(lock_);
    return ReadRecordLocked(*items_, record, buffer, size, item);
}

// A record that could not be read whole is left to be read again, and then from the file: it may grow, and a recorder
// takes out again what a full disk took in part.
std::uint32_t DataLogEngine::ReadRecordLocked(const ItemTable& items, LogRecord* record, std::uint8_t* buffer,
                                              std::uint32_t size, const LogItem** item) {
    const std::uint64_t begin = reader_.Position();
    std::uint8_t bytes[kLogRecordBytes];
    const std::optional<std::uint32_t> got = reader_.Read(bytes, kLogRecordBytes);
    if (!got || *got < kLogRecordBytes) {
        reader_.Seek(begin);
        return got ? kLogEndOfFile : kLogFileError;
    }
    *record = DecodeRecord(bytes);
    // No recording writes this: it is what a power cut leaves where the system had made the file longer already. Read
    // as records of the first item they would be values of an engine that stands.
    if (IsBlank(*record)) {
        reader_.Seek(begin);
        return kLogEndOfFile;
    }
    if (record->itemIndex >= items.size()) {
        reader_.Seek(record->nextOffset);
        return kLogUnknownItem;
    }
    *item = &items[record->itemIndex];
    const std::uint32_t packedSize = (*item)->packedSize;
    if (size < packedSize) {
        reader_.Seek(begin);
        return kLogBufferTooSmall;
    }
    const std::optional<std::uint32_t> data = reader_.Read(buffer, packedSize);
    if (!data || *data < packedSize) {
        reader_.Seek(begin);
        return data ? kLogEndOfFile : kLogFileError;
    }
    sampleIndex.fetch_add(1, std::memory_order_relaxed);
    currentMs.store(record->timeMs, std::memory_order_relaxed);
    return kLogSuccess;
}

// A finished log that was read to its very end stands one byte before its endMark, and so ends again at once: one that
// was paused on its last record comes to its end and does not start over.
void DataLogEngine::GoToDataLocked() {
    const std::uint64_t position = reader_.Position();
    if (position >= header.endMark || position < header.dataOffset) reader_.Seek(header.dataOffset);
}

void DataLogEngine::GoToData() {
    const std::lock_guard lock(lock_);
    GoToDataLocked();
}

void DataLogEngine::GoTo(std::uint64_t offset) {
    const std::lock_guard lock(lock_);
    reader_.Seek(offset);
}

std::uint64_t DataLogEngine::PositionLocked() const {
    if (!file_) return 0;
    return readMode == 0 ? file_->Position() : reader_.Position();
}

std::uint64_t DataLogEngine::Position() const {
    const std::lock_guard lock(lock_);
    return PositionLocked();
}

std::uint64_t DataLogEngine::FileSizeLocked() const {
    return file_ ? file_->Size().value_or(0) : 0;
}

std::uint64_t DataLogEngine::FileSize() const {
    const std::lock_guard lock(lock_);
    return FileSizeLocked();
}

}  // namespace corvex
