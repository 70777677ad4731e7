// Somebody who works with the program by himself, for runs that are shown and for pictures.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "tools/driver/CorvexWindow.h"
#include "tools/driver/EngineHost.h"
#include "tools/driver/RunningProgram.h"

namespace corvex::test {

// Every step waits for what it leads to, with a long deadline, and throws std::runtime_error when that does not come.
class Operator {
public:
    // Starts the Corvex.exe of the folder, on the named desktop as RunningProgram does.
    explicit Operator(std::string folder, const std::string& desktop = {});

    const CorvexWindow& Window() const { return *window_; }
    DWORD Process() const { return program_->Id(); }
    std::string File(const std::string& name) const { return folder_ + "\\" + name; }

    void Connect();
    void StopScan();
    void StartRecording();
    // Ends the recording under that name of the folder.
    void SaveRecording(const std::string& name);
    void Play();
    void WaitForPlaybackEnd();
    // Waits for so many seconds while the program must go on answering.
    void Watch(double seconds) const;
    void Exit();
    // The exit code of a program that was told to go; nothing when it stays.
    std::optional<DWORD> WaitForExit() const { return program_->WaitForExit(30000); }

    void WaitFor(const std::string& what, const std::function<bool()>& isSo) const;
    void WaitForLeft(const std::string& text) const;

    EngineHost engines;

private:
    std::string folder_;
    std::unique_ptr<RunningProgram> program_;
    std::optional<CorvexWindow> window_;
};

}  // namespace corvex::test
