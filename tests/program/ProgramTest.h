// What every whole-program test begins with: the program in a folder of its own, and engines on request.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "tests/support/Eventually.h"
#include "tools/driver/CorvexWindow.h"
#include "tools/driver/DialogAnswers.h"
#include "tools/driver/EngineHost.h"
#include "tools/driver/ProgramFolder.h"
#include "tools/driver/RunningProgram.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

// A desktop of this process's own, with its only thread on it: what others start or bring to the front meanwhile is
// none of its business, keyboard included. Its name. (Windows lets keys through to the desktop on show only.)
const std::string& OwnDesktop();

class ProgramTest : public ::testing::Test {
protected:
    static constexpr DWORD kLongestEnd = 30000;  // ms

    // A program that is still there at the end is closed as a user would and must go.
    void TearDown() override;

    // Settings with the test's port and a copy of the 8192-baud example, unless `changes` say otherwise.
    void Settle(const std::map<std::string, std::string>& changes = {});
    // Starts the program.
    void Launch();
    // Starts the program and waits for its window.
    void Start();
    CorvexWindow& Window() { return *window_; }
    // Closes the window and expects the process to end with 0.
    void CloseProgram();

    void ExpectLeft(const std::string& text);
    void ExpectOutput(const std::string& part);
    // Whatever was at work has ended, and this is what came after it.
    void ExpectLoadedLast(const std::string& path);
    void ExpectBar(const BarStates& states);
    // An engine that answers in the line's time, and a scan that has got through to it.
    void Connect();

    std::string Definition() const { return folder.Name("harrier-8192.adx"); }
    // The whole title when no log is chosen.
    std::string TitleOf(const std::string& adx) const;

    ProgramFolder folder;
    EngineHost engines;
    std::unique_ptr<RunningProgram> program;

private:
    std::optional<CorvexWindow> window_;
};

}  // namespace corvex::test
