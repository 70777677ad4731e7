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

TEST_F(DebugOutputTest, AnEmptyFirstLineLeavesTheControlEmpty) {
    DebugOutput::Print(&log_, "%s", "");
    DebugOutput::Print(&log_, "x");
    EXPECT_EQ(text_.Text(), "x");
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

TEST_F(DebugOutputTest, NothingTestsTheEnabledWord) {
    log_.enabled = 0;
    DebugOutput::Print(&log_, "still here");
    EXPECT_EQ(text_.Text(), "still here");
}

TEST_F(DebugOutputTest, DumpsASingleRow) {
    DebugOutput::HexDump("Read", &log_, "AB\x01", 3);
    EXPECT_EQ(text_.Text(), "Read\r\n0000: 41 42 01 " + std::string(13 * 3, ' ') + "AB.");
}

TEST_F(DebugOutputTest, SeventeenBytesMakeTwoRows) {
    std::array<unsigned char, 17> bytes{};
    std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(0x70));
    DebugOutput::HexDump(nullptr, &log_, bytes.data(), bytes.size());
    EXPECT_EQ(text_.Text(),
              "0000: 70 71 72 73 74 75 76 77 78 79 7A 7B 7C 7D 7E 7F pqrstuvwxyz{|}~.\r\n"
              "0010: 80 " +
                  std::string(15 * 3, ' ') + ".");
}

TEST_F(DebugOutputTest, FullRowsHaveNoBlankRowBehindThem) {
    DebugOutput::HexDump(nullptr, &log_, "0123456789abcdef0123456789abcdef", 32);
    EXPECT_EQ(text_.Text(),
              "0000: 30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66 0123456789abcdef\r\n"
              "0010: 30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66 0123456789abcdef");
}

TEST_F(DebugOutputTest, NothingToDumpPrintsNoLabelEither) {
    DebugOutput::HexDump("label", &log_, "abc", 0);
    DebugOutput::HexDump("label", &log_, nullptr, 3);
    EXPECT_EQ(text_.Text(), "");
}

TEST_F(DebugOutputTest, ALabelIsReadAsAFormat) {
    DebugOutput::HexDump("100%% of it", &log_, "A", 1);
    EXPECT_EQ(text_.Text().substr(0, text_.Text().find('\r')), "100% of it");
}

TEST_F(DebugOutputTest, OffsetsGrowBeyondFourDigits) {
    const std::string zeros(0x10010, '\0');
    DebugOutput::HexDump(nullptr, &log_, zeros.data(), zeros.size());
    EXPECT_NE(text_.Text().find("\r\n10000: 00 "), std::string::npos);
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
