// Records the good replies of a scan into a log.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "definition/PacketView.h"
#include "logging/DataLogEngine.h"

namespace corvex {

class ADXDefinition;
class ADXObject;

// Stands on a log of its own and not on the session's, which takes samples only once the line is connected and says
// nothing of one that was lost. The file is a log that can be read from Begin on, however the process ends.
//
// Threads: Add on the connect thread, Failed and Lost from anywhere, the rest on the main thread.
class ScanRecorder {
public:
    explicit ScanRecorder(IFileSystem& files = SystemFiles()) : log_(files) {}

    // Makes the file, with an item for each command of the definition that brings a reply. False with one sentence in
    // `error`: an old file that holds something is kept unless `force`; it may be emptied when the disk fails. A log
    // that never came to a record holds nothing.
    bool Begin(const std::string& path, const ADXDefinition& definition, bool force, std::string& error);

    // The whole reply of a command that ended well. What cannot be written is counted, and the next one tried.
    void Add(const ADXObject& command, PacketView reply);

    // True from the first reply on that could not be written.
    bool Failed() const { return Lost() != 0; }
    std::uint32_t Lost() const { return lost_.load(std::memory_order_relaxed); }
    // "drive.xdl: no space is left", as far as it is known why. After Failed.
    std::string WhyFailed() const;

    // Ends the recording as a log that is whole. Nobody calls Add any more. False: it is as a killed process leaves it.
    [[nodiscard]] bool End();
    // Replies in the file. After End.
    std::uint32_t Records() const { return records_.load(std::memory_order_relaxed); }
    const std::string& Path() const { return path_; }

private:
    DataLogEngine log_;
    std::string path_;
    std::atomic<std::uint32_t> records_{0}, lost_{0}, firstCode_{0};
};

}  // namespace corvex
