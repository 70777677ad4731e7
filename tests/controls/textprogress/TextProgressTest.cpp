#include <gtest/gtest.h>

#include "controls/textprogress/TextProgress.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr COLORREF kFirstBar = 0xD26400, kMark = 0x010203;

class TextProgressTest : public ::testing::Test {
protected:
    TextProgressTest() {
        TextProgress::Register(::GetModuleHandleA(nullptr));
        window = ::CreateWindowExA(0, "QZTEXTPROGRESS", "", WS_POPUP | WS_VISIBLE, 0, 0, 102, 20, nullptr, nullptr,
                                   ::GetModuleHandleA(nullptr), nullptr);
        ::UpdateWindow(window);
    }
    ~TextProgressTest() override { ::DestroyWindow(window); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessageA(window, message, wParam, lParam);
    }
    LRESULT Position() { return Send(1032); }
    LRESULT Minimum() { return Send(1031, 1); }
    LRESULT Maximum() { return Send(1031, 0); }

    HWND window = nullptr;
};

TEST_F(TextProgressTest, BeginsEmptyFrom0To255) {
    EXPECT_EQ(Minimum(), 0);
    EXPECT_EQ(Maximum(), 255);
    EXPECT_EQ(Position(), 0);
    EXPECT_EQ(Send(1026, 255), 0);
    EXPECT_EQ(PixelOf(window, 101, 19), kFirstBar);
}

TEST_F(TextProgressTest, SetRangeWordsTakesMinimumAndMaximumFromOneWord) {
    Send(1025, 0, MAKELPARAM(12, 65000));
    EXPECT_EQ(Minimum(), 12);
    EXPECT_EQ(Maximum(), 65000);
}

TEST_F(TextProgressTest, SetRangeTakesThemFromTwo) {
    Send(1030, 100000, 200000);
    EXPECT_EQ(Minimum(), 100000);
    EXPECT_EQ(Maximum(), 200000);
    Send(1030, static_cast<WPARAM>(-5), -1);
    EXPECT_EQ(Minimum(), -5);
    EXPECT_EQ(Maximum(), -1);
}

TEST_F(TextProgressTest, GetRangeFillsTwoWordsAndAnswersTheOneAskedFor) {
    Send(1030, 3, 9);
    std::int32_t pair[3] = {0, 0, 77};
    EXPECT_EQ(Send(1031, 1, reinterpret_cast<LPARAM>(pair)), 3);
    EXPECT_EQ(pair[0], 3);
    EXPECT_EQ(pair[1], 9);
    EXPECT_EQ(pair[2], 77);
    EXPECT_EQ(Send(1031, 0, reinterpret_cast<LPARAM>(pair)), 9);
    EXPECT_EQ(Send(1031, 2), 0);
    EXPECT_EQ(Send(1031, static_cast<WPARAM>(-1)), 0);
}

TEST_F(TextProgressTest, GetRangePointersFillsWhatIsAskedFor) {
    Send(1030, 3, 9);
    std::int32_t minimum = 0, maximum = 0;
    Send(1327, reinterpret_cast<WPARAM>(&minimum), reinterpret_cast<LPARAM>(&maximum));
    EXPECT_EQ(minimum, 3);
    EXPECT_EQ(maximum, 9);
    Send(1327, 0, reinterpret_cast<LPARAM>(&minimum));
    EXPECT_EQ(minimum, 9);
    Send(1327, reinterpret_cast<WPARAM>(&maximum), 0);
    EXPECT_EQ(maximum, 3);
}

TEST_F(TextProgressTest, SetPosAnswersTheOldPositionAndDoesNotClamp) {
    EXPECT_EQ(Send(1026, 300), 0);
    EXPECT_EQ(Position(), 300);
    EXPECT_EQ(Send(1026, static_cast<WPARAM>(-7)), 300);
    EXPECT_EQ(Position(), -7);
    EXPECT_EQ(Send(1026, 1), -7);
}

TEST_F(TextProgressTest, SetStepAnswersTheOldStep) {
    EXPECT_EQ(Send(1028, 10), 1);
    EXPECT_EQ(Send(1028, 20), 10);
}

TEST_F(TextProgressTest, StepItAnswersTheOldPositionAndWrapsToTheMinimum) {
    Send(1030, 5, 20);
    Send(1026, 10);
    Send(1028, 10);
    EXPECT_EQ(Send(1029), 10);
    EXPECT_EQ(Position(), 20);
    EXPECT_EQ(Send(1029), 20);
    EXPECT_EQ(Position(), 5);
}

TEST_F(TextProgressTest, SetBarColourAnswersTheOldColour) {
    EXPECT_EQ(Send(1033, 0, 0x00FF00), static_cast<LRESULT>(kFirstBar));
    EXPECT_EQ(Send(1033, 0, 0), 0x00FF00);
    Send(1026, 255);
    ::UpdateWindow(window);
    EXPECT_EQ(PixelOf(window, 50, 10), 0u);
}

TEST_F(TextProgressTest, VerticalBarGrowsFromTheBottom) {
    EXPECT_EQ(Send(1326), 0);
    Send(1030, 0, 2);
    Send(1026, 1);
    EXPECT_EQ(PixelOf(window, 25, 2), kFirstBar);
    EXPECT_EQ(PixelOf(window, 75, 17), ::GetSysColor(COLOR_BTNFACE));
    Send(1325, 0, 1);
    EXPECT_EQ(Send(1326), 1);
    ::UpdateWindow(window);
    EXPECT_EQ(PixelOf(window, 25, 2), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(PixelOf(window, 75, 17), kFirstBar);
    Send(1325, 0, 0);
    EXPECT_EQ(Send(1326), 0);
}

TEST_F(TextProgressTest, PositionAboveTheMaximumFillsTheWindow) {
    Send(1026, 0x7FFFFFFF);
    EXPECT_EQ(ColoursOf(window), std::set<COLORREF>{kFirstBar});
}

TEST_F(TextProgressTest, EmptyRangeIsPaintedWithoutABar) {
    Send(1026, 100);
    Send(1030, 7, 7);
    EXPECT_EQ(ColoursOf(window), std::set<COLORREF>{::GetSysColor(COLOR_BTNFACE)});
}

TEST_F(TextProgressTest, MovedBarIsSeenAtOnceWithoutAMessageLoop) {
    Send(1030, 0, 2);
    Send(1026, 1);
    EXPECT_EQ(PixelOf(window, 10, 10), kFirstBar);
    Send(1029);
    EXPECT_EQ(PixelOf(window, 90, 10), kFirstBar);
    Send(1030, 0, 4);
    EXPECT_EQ(PixelOf(window, 90, 10), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(TextProgressTest, BarThatStaysIsNotPaintedAgain) {
    Send(1030, 0, 1000000);
    Send(1026, 500000);
    SetPixelOf(window, 2, 2, kMark);
    Send(1026, 500001);
    EXPECT_EQ(PixelOf(window, 2, 2), kMark);
    Send(1026, 520000);
    EXPECT_EQ(PixelOf(window, 2, 2), kFirstBar);
}

TEST_F(TextProgressTest, TextColoursHaveNumbersOfTheirOwn) {
    Send(1324, 0, 0x0000FF);
    Send(8193, 0, 0xFFFFFF);
    Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("MMM"));
    EXPECT_EQ(ColoursOf(window), (std::set<COLORREF>{0x0000FFu, 0xFFFFFFu}));
}

}  // namespace
}  // namespace corvex
