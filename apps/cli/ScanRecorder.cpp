#include "apps/cli/ScanRecorder.h"

#include <filesystem>
#include <system_error>

#include "apps/cli/AtomicReplace.h"
#include "definition/ADXDefinition.h"
#include "logging/LogContent.h"
#include "platform/FileReplacement.h"
#include "session/RecordingItems.h"

namespace corvex {

namespace {

constexpr std::uint32_t kNotReplaced = 0x100;  // beside the codes of the log

bool IsFull(const std::string& path) {
    std::error_code unknown;
    const auto folder = std::filesystem::absolute(path, unknown).parent_path();
    const auto space = std::filesystem::space(folder, unknown);
    constexpr std::uintmax_t kBlock = 4096;
    return !unknown && space.available < kBlock;
}

bool Exists(const std::string& path) {
    std::error_code unknown;
    return std::filesystem::exists(path, unknown);
}

std::string WhyNotWritten(const std::string& path, std::uint32_t code) {
    if (code == kLogUnknownItem) return path + ": a log has no room for a command of this definition";
    if (IsFull(path)) return path + ": no space is left for the recording";
    return path + (code == kNotReplaced ? ": the old log cannot be replaced" : ": the recording cannot be written");
}

std::string WhatWasDone(const std::string& path, LogHarm harm) {
    switch (harm) {
        case LogHarm::kNone:
            return {};
        case LogHarm::kCut:
            return path + ": another program has cut off a part of the recording; corvex-cli repair saves what is left";
        case LogHarm::kLengthened:
            return path + ": another program has written behind the recording; that was cut off";
        case LogHarm::kGone:
            break;
    }
    return path + ": the recording is no longer there: another program has removed or replaced it";
}

}  // namespace

bool ScanRecorder::Begin(const std::string& path, const ADXDefinition& definition, bool force, std::string& error) {
    path_ = path;
    definition_ = &definition;
    const bool holds = LookIntoLog(path) != LogContent::kNothing;
    if (holds && !force) {
        error = path + ": exists and is not empty; --force replaces it";
        return false;
    }
    replaces_ = holds && !IsDeviceOrPipe(path);
    if (replaces_) {
        std::string reason = "there can be no file beside it";
        old_ = files_.Open(path, FileAccess::kReadWrite, &reason);
        const bool may = old_ && !AtomicReplace(path).Name().empty();
        if (!may) error = path + ": cannot be replaced: " + reason;
        return may;
    }
    if (const std::uint32_t result = Open(path); result != kLogSuccess) {
        error =
            result == kLogCannotOpen ? path + ": cannot be opened: " + log_.OpenError() : WhyNotWritten(path, result);
        return false;
    }
    return true;
}

// The table is in the file before the first reply comes, so that a scan that dies early leaves a log, too.
std::uint32_t ScanRecorder::Open(const std::string& path) {
    if (const std::uint32_t result = log_.Open(path.c_str(), kLogForWriting); result != kLogSuccess) return result;
    AddRecordingItems(log_, *definition_);
    const bool begun = log_.StartRecording() == kLogSuccess && log_.WriteHeader() == kLogSuccess;
    return begun ? kLogSuccess : kLogFileError;
}

void ScanRecorder::Add(const ADXObject& command, PacketView reply) {
    const std::uint32_t result = replaces_ ? Replace(command, reply) : Write(command, reply);
    if (result == kLogSuccess) {
        records_.fetch_add(1, std::memory_order_relaxed);
        return;
    }
    if (lost_.load(std::memory_order_relaxed) == 0) firstCode_.store(result, std::memory_order_relaxed);
    lost_.fetch_add(1, std::memory_order_release);
}

std::uint32_t ScanRecorder::Write(const ADXObject& command, PacketView reply) {
    return log_.AddSample(command.GetIdHash(), reply.Bytes(), reply.Size());
}

// Whatever fails, the old log still stands, and the next reply tries again.
std::uint32_t ScanRecorder::Replace(const ADXObject& command, PacketView reply) {
    if (!HoldOld()) return kNotReplaced;
    AtomicReplace fresh(path_);
    if (fresh.Name().empty()) return kNotReplaced;
    std::uint32_t result = Open(fresh.Name());
    if (result == kLogSuccess) result = Write(command, reply);
    if (result == kLogSuccess) {
        const auto move = [&] {
            old_.reset();  // on Windows nothing that is open is replaced
            return fresh.MoveIntoPlace();
        };
        if (log_.ContinueIn(path_, move) != kLogSuccess) result = kNotReplaced;
    }
    if (result == kLogSuccess) {
        replaces_ = false;
    } else {
        static_cast<void>(log_.Close());
        log_.WaitForSync();  // what still holds the fresh file open would keep it from going
    }
    return result;
}

// What stands there now may not be what stood there at the beginning, and may be the recording of somebody else.
bool ScanRecorder::HoldOld() {
    if (old_ && old_->StandsAt(path_)) return true;
    old_ = files_.Open(path_, FileAccess::kReadWrite);
    return old_ || !Exists(path_);
}

std::string ScanRecorder::Trouble() const {
    if (Failed()) return WhyNotWritten(path_, firstCode_.load(std::memory_order_relaxed));
    if (log_.SyncFailed()) return path_ + ": the disk says that it does not have all of the recording";
    return WhatWasDone(path_, log_.Harm());
}

bool ScanRecorder::End() {
    if (replaces_) return true;
    const bool ended = log_.StopRecording() == kLogSuccess && log_.Close() != 0;
    log_.WaitForSync();
    return ended;
}

}  // namespace corvex
