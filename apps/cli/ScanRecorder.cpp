#include "apps/cli/ScanRecorder.h"

#include <filesystem>
#include <system_error>

#include "apps/cli/LogFile.h"
#include "definition/ADXDefinition.h"
#include "logging/LogContent.h"
#include "session/RecordingItems.h"

namespace corvex {

namespace {

bool IsFull(const std::string& path) {
    std::error_code unknown;
    const auto folder = std::filesystem::absolute(path, unknown).parent_path();
    const auto space = std::filesystem::space(folder, unknown);
    constexpr std::uintmax_t kBlock = 4096;
    return !unknown && space.available < kBlock;
}

std::string WhyNotWritten(const std::string& path, std::uint32_t code) {
    if (code == kLogUnknownItem) return path + ": a log has no room for a command of this definition";
    return path + (IsFull(path) ? ": no space is left for the recording" : ": the recording cannot be written");
}

}  // namespace

bool ScanRecorder::Begin(const std::string& path, const ADXDefinition& definition, bool force, std::string& error) {
    path_ = path;
    if (!force && LookIntoLog(path) != LogContent::kNothing) {
        error = path + ": exists and is not empty; --force replaces it";
        return false;
    }
    if (const std::uint32_t result = log_.Open(path.c_str(), kLogForWriting); result != kLogSuccess) {
        error = path + ": " + LogErrorText(result);
        return false;
    }
    AddRecordingItems(log_, definition);
    // The table is in the file before the first reply comes, so that a scan that dies early leaves a log, too.
    if (log_.StartRecording() == kLogSuccess && log_.WriteHeader() == kLogSuccess) return true;
    error = WhyNotWritten(path, kLogFileError);
    return false;
}

void ScanRecorder::Add(const ADXObject& command, PacketView reply) {
    const std::uint32_t result = log_.AddSample(command.GetIdHash(), reply.Bytes(), reply.Size());
    if (result == kLogSuccess) {
        records_.fetch_add(1, std::memory_order_relaxed);
        return;
    }
    if (lost_.load(std::memory_order_relaxed) == 0) firstCode_.store(result, std::memory_order_relaxed);
    lost_.fetch_add(1, std::memory_order_release);
}

std::string ScanRecorder::WhyFailed() const {
    return WhyNotWritten(path_, firstCode_.load(std::memory_order_relaxed));
}

bool ScanRecorder::End() {
    return log_.StopRecording() == kLogSuccess && log_.Close() != 0;
}

}  // namespace corvex
