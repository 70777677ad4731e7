#include <gtest/gtest.h>

#include <array>

#include "controls/textprogress/TextProgress.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

constexpr COLORREF kFirstBar = 0xD26400;

class TextProgressTest : public ::testing::Test {
protected:
    LRESULT Send(UINT message, LRESULT wParam = 0, LPARAM lParam = 0) {
        return bar.Send(message, static_cast<WPARAM>(wParam), lParam);
    }
    using Range = std::pair<LRESULT, LRESULT>;
    Range RangeNow() { return {Send(1031, 1), Send(1031, 0)}; }
    COLORREF At(int x, int y) const { return PixelOf(bar.Window(), x, y); }

    const bool registered = TextProgress::Register(::GetModuleHandleA(nullptr));
    const COLORREF ground = ::GetSysColor(COLOR_BTNFACE);
    ShownControl bar{"QZTEXTPROGRESS", 102, 20};
};

TEST_F(TextProgressTest, RangeIsSetInOneWordOrTwoAndReadWhereItIsAskedFor) {
    EXPECT_EQ(RangeNow(), Range(0, 255));
    Send(1025, 0, MAKELPARAM(12, 65000));
    EXPECT_EQ(RangeNow(), Range(12, 65000));
    Send(1030, -5, -1);
    EXPECT_EQ(RangeNow(), Range(-5, -1));
    Send(1030, 100003, 200009);
    std::array<std::int32_t, 3> pair{0, 0, 77}, pointed{};
    EXPECT_EQ(Send(1031, 1, L(pair.data())), 100003);
    EXPECT_EQ(pair, (std::array{100003, 200009, 77}));
    EXPECT_EQ(Send(1031, 0, L(pair.data())), 200009);
    EXPECT_EQ(Send(1031, 2), 0);
    EXPECT_EQ(Send(1031, -1), 0);
    bar.Send(1327, W(&pointed[0]), 0);
    bar.Send(1327, 0, L(&pointed[1]));
    EXPECT_EQ(pointed, (std::array{100003, 200009, 0}));
}

TEST_F(TextProgressTest, PositionAndStepAnswerTheOldOnes) {
    Send(1030, 5, 20);
    for (const auto& [message, word, old, position] : {std::tuple{1026U, 300, 0, 300},
                                                       {1026U, -7, 300, -7},
                                                       {1026U, 10, -7, 10},
                                                       {1028U, 20, 1, 10},
                                                       {1028U, 10, 20, 10},
                                                       {1029U, 0, 10, 20},
                                                       {1029U, 0, 20, 5}}) {
        EXPECT_EQ(Send(message, word), old) << message << " " << word;
        EXPECT_EQ(Send(1032), position);
    }
}

TEST_F(TextProgressTest, ColourAndDirectionShowWithTheNextPaint) {
    EXPECT_EQ(Send(1033, 0, 0x00FF00), static_cast<LRESULT>(kFirstBar));
    EXPECT_EQ(Send(1033, 0, 0), 0x00FF00);
    EXPECT_EQ(Send(1326), 0);
    Send(1030, 0, 2);
    Send(1026, 1);
    Send(1325, 0, 1);
    EXPECT_EQ(Send(1326), 1);
    ::UpdateWindow(bar.Window());
    EXPECT_EQ(At(25, 2), ground);
    EXPECT_EQ(At(75, 17), 0u);
    Send(1325, 0, 0);
    EXPECT_EQ(Send(1326), 0);
}

TEST_F(TextProgressTest, MovedBarIsSeenAtOnceWithoutAMessageLoop) {
    Send(1030, 0, 2);
    Send(1026, 1);
    EXPECT_EQ(At(10, 10), kFirstBar);
    Send(1029);
    EXPECT_EQ(At(90, 10), kFirstBar);
    Send(1030, 0, 4);
    EXPECT_EQ(At(90, 10), ground);
    Send(1026, 0x7FFFFFFF);
    EXPECT_EQ(ColoursOf(bar.Window()), Colours{kFirstBar});
    Send(1030, 7, 7);
    EXPECT_EQ(ColoursOf(bar.Window()), Colours{ground});
}

TEST_F(TextProgressTest, BarThatStaysIsNotPaintedAgain) {
    Send(1030, 0, 1000000);
    Send(1026, 500000);
    EXPECT_EQ(bar.PaintsIn([&] { Send(1026, 500001); }), 0);
    EXPECT_EQ(bar.PaintsIn([&] { Send(1026, 520000); }), 1);
}

}  // namespace
}  // namespace corvex
