// Records the good replies of a scan into a log.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "definition/PacketView.h"
#include "logging/DataLogEngine.h"

namespace corvex {

class ADXDefinition;
class ADXObject;

// Stands on a log of its own and not on the session's, which takes samples only once the line is connected and says
// nothing of one that was lost. The file is a log that can be read from its first record on, however the process ends.
//
// An old log that is to be replaced stays until the first good reply. The new one is then begun beside it and moved
// into its place, which makes that one Add wait for the disk.
//
// Threads: Add on the connect thread, Trouble, Failed and Lost from anywhere, the rest on the main thread.
class ScanRecorder {
public:
    explicit ScanRecorder(IFileSystem& files = SystemFiles()) : files_(files), log_(files) {}

    // With an item for each command of the definition, which outlives this, that brings a reply. False with one
    // sentence in `error`, and nothing changed: an old file that holds something is kept unless `force`, one that
    // another program writes always. A log that never came to a record holds nothing.
    bool Begin(const std::string& path, const ADXDefinition& definition, bool force, std::string& error);

    // The whole reply of a command that ended well. What cannot be written is counted, and the next one tried.
    void Add(const ADXObject& command, PacketView reply);

    // True from the first reply on that could not be written.
    bool Failed() const { return Lost() != 0; }
    std::uint32_t Lost() const { return lost_.load(std::memory_order_relaxed); }
    // What went wrong so far, "drive.xdl: no space is left", as far as it is known why; empty when nothing did. Asks
    // the system where the file is.
    std::string Trouble() const;

    // Ends the recording as a log that is whole, and waits until the disk has it. Nobody calls Add any more. False: it
    // is as a killed process leaves it.
    [[nodiscard]] bool End();
    // Replies in the file. After End.
    std::uint32_t Records() const { return records_.load(std::memory_order_relaxed); }
    // No reply came, and what was to be replaced still stands. After End.
    bool KeptOld() const { return replaces_; }
    const std::string& Path() const { return path_; }

private:
    std::uint32_t Open(const std::string& path);
    std::uint32_t Write(const ADXObject& command, PacketView reply);
    std::uint32_t Replace(const ADXObject& command, PacketView reply);
    bool HoldOld();

    IFileSystem& files_;
    DataLogEngine log_;
    const ADXDefinition* definition_ = nullptr;
    std::string path_;
    std::unique_ptr<IFile> old_;         // what will be replaced, held so that nobody else does
    std::atomic<bool> replaces_{false};  // until the new log stands in its place
    std::atomic<std::uint32_t> records_{0}, lost_{0}, firstCode_{0};
};

}  // namespace corvex
