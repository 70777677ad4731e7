#include <gtest/gtest.h>

#include <cstring>

#include "controls/statusgauge/StatusGauge.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

constexpr COLORREF kGreen = 0x00FF00, kRed = 0x0000FF;

struct TextMessages {
    UINT set, get;
};
constexpr TextMessages kTitle{1531, 1532}, kTrue{1533, 1534}, kFalse{1535, 1536};

class StatusGaugeTest : public ::testing::Test {
protected:
    void SetText(TextMessages which, const char* text, LPARAM length) {
        EXPECT_EQ(gauge.Send(which.set, W(text), length), 0);
    }
    std::string Text(TextMessages which, LPARAM size = 64) {
        char buffer[65] = {};
        std::memset(buffer, '?', 64);
        EXPECT_EQ(gauge.Send(which.get, W(buffer), size), 0);
        return buffer;
    }
    // The colour of the block below the word.
    std::string Block() { return std::string(gauge.Shows(kGreen) ? "green" : "") + (gauge.Shows(kRed) ? "red" : ""); }

    const bool registered = StatusGauge::Register(::GetModuleHandleA(nullptr));
    ShownControl gauge{"QZSTATUSGAUGE", 120, 90};
};

TEST_F(StatusGaugeTest, StateChoosesTheBlockOfAWordThatIsThere) {
    const struct {
        const char *on, *off;
        WPARAM state;
        const char* block;
    } cases[] = {{"ON", nullptr, 0, ""},
                 {"ON", "OFF", 0, "red"},
                 {"ON", "OFF", 1, "green"},
                 {"ON", "OFF", 2, "red"},
                 {nullptr, "OFF", 1, ""}};
    EXPECT_EQ(Block(), "");
    for (const auto& expected : cases) {
        SetText(kTrue, expected.on, 2);
        SetText(kFalse, expected.off, 3);
        EXPECT_EQ(gauge.Send(1529, expected.state, 1), 0);
        EXPECT_EQ(Block(), expected.block) << expected.state;
    }
}

TEST_F(StatusGaugeTest, StatePaintsWhenToldToEvenIfItIsTheSame) {
    EXPECT_EQ(gauge.PaintsIn([&] { gauge.Send(1529, 1, 0); }), 0);
    EXPECT_FALSE(::GetUpdateRect(gauge.Window(), nullptr, FALSE));
    EXPECT_EQ(gauge.PaintsIn([&] { gauge.Send(1529, 1, 1); }), 1);
    EXPECT_EQ(gauge.PaintsIn([&] { gauge.Send(1529, 1, -1); }), 1);
    EXPECT_FALSE(::GetUpdateRect(gauge.Window(), nullptr, FALSE));
}

TEST_F(StatusGaugeTest, FlagsAreAddedClearedAndAllClearedByNone) {
    gauge.Resize(400, 150);
    const auto isRound = [&] { return PixelOf(gauge.Window(), 399, 75) != 0; };  // no frame at the right edge
    EXPECT_FALSE(isRound());
    const struct {
        UINT message;
        WPARAM flags;
        bool isRound;
    } steps[] = {{1524, 0x80, true}, {1524, 0x01, true}, {1526, 0x80, false}, {1524, 0x80, true}, {1524, 0, false}};
    for (const auto& step : steps) {
        EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(step.message, step.flags, 0), 0); }), 0);
        EXPECT_NE(isRound(), step.isRound && step.message == 1524 && step.flags == 0x80) << "not painted yet";
        EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(step.message, step.flags, 1), 0); }), 1);
        EXPECT_EQ(isRound(), step.isRound) << step.flags;
    }
}

TEST_F(StatusGaugeTest, TextsAreCopiedInAndOutByTheLengthsToldWithoutAPaint) {
    const struct {
        TextMessages messages;
        const char *text, *cut;
    } texts[] = {{kTitle, "Ventilator", "Vent"}, {kTrue, "running", "runn"}, {kFalse, "at rest", "at r"}};
    SetText(kFalse, "OFF", 3);
    EXPECT_EQ(Text(kFalse), "") << "told only where there is a title";
    for (const auto& [messages, text, cut] : texts) {
        std::string source = text;
        EXPECT_EQ(gauge.PaintsIn([&] { SetText(messages, source.c_str(), 10); }), 0);
        source.assign(source.size(), 'x');
        EXPECT_EQ(Text(messages), text);
        EXPECT_EQ(Text(messages, 5), cut);
    }
    EXPECT_EQ(Text(kTitle, 0), std::string(64, '?'));
    EXPECT_EQ(gauge.Send(kTitle.get, 0, 64), 0);
    SetText(kTrue, "text", 3);
    EXPECT_EQ(Text(kTrue), "") << "longer than was told";
}

TEST_F(StatusGaugeTest, StandardMessagesItAnswersItself) {
    CREATESTRUCTA creation{};
    gauge.Parent().heard.clear();
    EXPECT_EQ(gauge.PaintsIn([&] {
        EXPECT_EQ(gauge.Send(WM_CREATE, 0, L(&creation)), 0);
        EXPECT_EQ(gauge.Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(10, 10)), 0);
        EXPECT_EQ(gauge.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5)), 0);
        EXPECT_EQ(gauge.Send(WM_DESTROY), 0);
    }),
              0);
    EXPECT_TRUE(gauge.Parent().heard.empty());
}

}  // namespace
}  // namespace corvex
