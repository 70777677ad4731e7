// A program that a test has started.
#pragma once

#include <optional>
#include <string>

#include "platform/WindowsApi.h"

namespace corvex::test {

// The process, from its start to its end. Throws std::runtime_error when it can't be started. One thread.
class RunningProgram {
public:
    // In `folder` as its current one, and on the named desktop, the present one when it has no name.
    RunningProgram(const std::string& file, const std::string& folder, const std::string& desktop = {});
    // Ends it by force when it still runs.
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    DWORD Id() const { return id_; }
    bool IsRunning() const;
    // The exit code; nothing when it still runs after so many milliseconds.
    std::optional<DWORD> WaitForExit(DWORD milliseconds) const;

private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

// Processes that run this very file now.
int CountProcessesOf(const std::string& file);

}  // namespace corvex::test
