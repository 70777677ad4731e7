// What tests of the dash and the list begin with: the program with a definition of the test's own, and an engine that
// answers with given replies.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/DashView.h"
#include "tests/program/driver/Eyes.h"
#include "tests/support/AdxText.h"
#include "tools/driver/LogFiles.h"

namespace corvex::test {

class ViewsProgramTest : public ProgramTest {
protected:
    static constexpr int kDashTab = 1;

    // Before the program.
    void TearDown() override;

    // A definition of two commands, POLL, which is polled, and OTHER, and no items.
    static AdxText Commands();
    // What values of a command have besides: a range from 0 to 255, a low alarm below 10 and a high one above 200, a
    // decimal and "unit". No command: of every one.
    static std::string Shown(const std::string& command = "POLL");
    // What bits have: an alarm while they are set, in 0x00C000.
    static std::string Lit();
    // A reply of POLL with these bytes first.
    static LoggedReply Poll(std::vector<std::uint8_t> bytes, std::uint32_t time = 0);
    // Starts the program with it, as own.adx.
    void StartWith(const std::string& definition);
    // An engine of own.adx that answers with these in turn, over and over, in the line's time, and a scan that has got
    // through to it.
    void Scan(const std::vector<LoggedReply>& replies);
    void StopScan();

    DashView Dash() { return DashView(Window()); }
    const Eyes& Look();

    // Sooner or later the gauge looks as `wanted` draws it in the size of its window.
    void ExpectLook(int gauge, const std::function<Picture(HWND)>& wanted, const std::string& what);
    void ExpectNeedle(int gauge, int value);
    void ExpectDial(int gauge, const std::string& title, const std::vector<float>& shown);
    void ExpectReadout(int gauge, const std::string& title, float value);
    void ExpectLamp(int gauge, const std::string& title, bool isOn);

private:
    std::optional<Eyes> eyes_;
};

}  // namespace corvex::test
