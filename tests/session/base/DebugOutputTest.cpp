#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "session/base/DebugOutput.h"
#include "tests/support/TextRecorder.h"

namespace corvex {

namespace {

class DebugOutputTest : public ::testing::Test {
protected:
    DebugOutputTest() { log_.edit = &text_; }

    test::TextRecorder text_;
    DebugOutput log_;
};

TEST_F(DebugOutputTest, BreaksStandBeforeLinesAndNeverAfter) {
    log_.enabled = 0;  // which nothing tests
    DebugOutput::Print(&log_, "%s", "");
    DebugOutput::Print(&log_, "one %i", 1);
    EXPECT_EQ(text_.Text(), "one 1");
    DebugOutput::Print(&log_, "%s", "two");
    EXPECT_EQ(text_.Text(), "one 1\r\ntwo");
    text_.Clear();
    DebugOutput::Print(&log_, "first again");
    EXPECT_EQ(text_.Text(), "first again");
}

TEST_F(DebugOutputTest, AppendsTheBreaksAskedFor) {
    DebugOutput::AppendText(&text_, "a", 3);
    DebugOutput::AppendText(&text_, "b", 2, 99);
    DebugOutput::AppendText(&text_, "c", 0);
    DebugOutput::AppendText(&text_, "d", -1);
    EXPECT_EQ(text_.Text(), "a\r\n\r\nbcd");
    DebugOutput::AppendText(nullptr, "e", 1);
}

TEST_F(DebugOutputTest, CutsALineAt4095Characters) {
    const std::string longLine(5000, 'x');
    DebugOutput::Print(&log_, "%s", longLine.c_str());
    EXPECT_EQ(text_.Text(), std::string(4095, 'x'));
    text_.Clear();
    DebugOutput::Print(&log_, "%s", std::string(4095, 'y').c_str());
    EXPECT_EQ(text_.Text(), std::string(4095, 'y'));
}

TEST_F(DebugOutputTest, IsSilentWithoutSinkOrControl) {
    DebugOutput::Print(nullptr, "lost %i", 1);
    log_.edit = nullptr;
    DebugOutput::Print(&log_, "lost %i", 2);
    DebugOutput::HexDump("lost", &log_, "abc", 3);
    DebugOutput::HexDump("lost", nullptr, "abc", 3);
    EXPECT_EQ(text_.Text(), "");
}

TEST_F(DebugOutputTest, DumpsRowsOfSixteenBytes) {
    std::array<unsigned char, 17> bytes{};
    std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(0x70));
    const auto dumped = [this](const char* label, const void* from, std::size_t count) {
        text_.Clear();
        DebugOutput::HexDump(label, &log_, from, count);
        return text_.Text();
    };
    EXPECT_EQ(dumped("100%% Read", "AB\x01", 3), "100% Read\r\n0000: 41 42 01 " + std::string(13 * 3, ' ') + "AB.");
    const std::string full = "0000: 70 71 72 73 74 75 76 77 78 79 7A 7B 7C 7D 7E 7F pqrstuvwxyz{|}~.";
    EXPECT_EQ(dumped(nullptr, bytes.data(), 16), full);
    EXPECT_EQ(dumped(nullptr, bytes.data(), 17), full + "\r\n0010: 80 " + std::string(15 * 3, ' ') + ".");
    EXPECT_NE(dumped(nullptr, std::string(0x10010, '\0').data(), 0x10010).find("\r\n10000: 00 "), std::string::npos);
    EXPECT_EQ(dumped("label", "abc", 0), "");
    EXPECT_EQ(dumped("label", nullptr, 3), "");
}

TEST_F(DebugOutputTest, ThreadsDoNotSpoilEachOthersLines) {
    DebugOutput::Print(&log_, "start");
    const auto print = [this](char letter) {
        const std::string line(100, letter);
        for (int i = 0; i < 200; ++i)
            DebugOutput::Print(&log_, "%s", line.c_str());
    };
    std::thread a(print, 'a'), b(print, 'b');
    a.join();
    b.join();
    const std::string all = text_.Text();
    int lines = 0;
    for (std::size_t at = all.find("\r\n"); at != std::string::npos; at = all.find("\r\n", at + 2), ++lines) {
        const std::string line = all.substr(at + 2, 100);
        ASSERT_EQ(line, std::string(100, line[0]));
    }
    EXPECT_EQ(lines, 400);
}

}  // namespace

}  // namespace corvex
