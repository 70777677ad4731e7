#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <string>
#include <thread>

#include "controls/statusgauge/StatusGauge.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/gauge/ShownGauge.h"
#include "tests/controls/window/PaintTestHelper.h"
#include "tests/support/Eventually.h"

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
        EXPECT_EQ(gauge.Send(which.set, reinterpret_cast<WPARAM>(text), length), 0);
    }
    void SetText(TextMessages which, const std::string& text) {
        SetText(which, text.c_str(), static_cast<LPARAM>(text.size()));
    }
    std::string Text(TextMessages which, LPARAM size = 64) {
        char buffer[64];
        std::memset(buffer, '?', sizeof buffer);
        EXPECT_EQ(gauge.Send(which.get, reinterpret_cast<WPARAM>(buffer), size), 0);
        return std::string(buffer, ::strnlen(buffer, sizeof buffer));
    }
    void Repaint() { ::RedrawWindow(gauge.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    bool Shows(COLORREF colour) { return gauge.Colours().contains(colour); }

    const bool registered = StatusGauge::Register(::GetModuleHandleA(nullptr));
    ShownGauge gauge{"QZSTATUSGAUGE", 120, 90, 0x12345};
};

TEST_F(StatusGaugeTest, ClassWantsDoubleClicksAndHasAnArrowAndAWindowBackground) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    ASSERT_TRUE(::GetClassInfoExA(::GetModuleHandleA(nullptr), "QZSTATUSGAUGE", &windowClass));
    EXPECT_EQ(windowClass.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(windowClass.cbWndExtra, static_cast<int>(sizeof(void*)));
    EXPECT_EQ(windowClass.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    EXPECT_EQ(windowClass.hbrBackground, reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)));
}

TEST_F(StatusGaugeTest, BeginsOffAndWithoutTexts) {
    for (const TextMessages which : {kTitle, kTrue, kFalse})
        EXPECT_EQ(Text(which), "");
    SetText(kTrue, "ON");
    Repaint();
    EXPECT_FALSE(Shows(kGreen));
    EXPECT_FALSE(Shows(kRed));
    SetText(kFalse, "OFF");
    Repaint();
    EXPECT_TRUE(Shows(kRed));
}

TEST_F(StatusGaugeTest, StateChoosesTheBlock) {
    SetText(kTrue, "ON");
    SetText(kFalse, "OFF");
    EXPECT_EQ(gauge.Send(1529, 1, 1), 0);
    EXPECT_TRUE(Shows(kGreen));
    EXPECT_FALSE(Shows(kRed));
    EXPECT_EQ(gauge.Send(1529, 0, 1), 0);
    EXPECT_FALSE(Shows(kGreen));
    EXPECT_TRUE(Shows(kRed));
}

TEST_F(StatusGaugeTest, StateTwoShowsTheTrueTextOnTheFalseColour) {
    SetText(kTrue, "ON");
    gauge.Send(1529, 2, 1);
    EXPECT_TRUE(Shows(kRed));
    EXPECT_FALSE(Shows(kGreen));
}

TEST_F(StatusGaugeTest, StateWithoutItsTextShowsNoBlock) {
    SetText(kFalse, "OFF");
    gauge.Send(1529, 1, 1);
    EXPECT_FALSE(Shows(kGreen));
    EXPECT_FALSE(Shows(kRed));
    SetText(kTrue, "ON");
    SetText(kFalse, nullptr, 3);
    gauge.Send(1529, 0, 1);
    EXPECT_FALSE(Shows(kGreen));
    EXPECT_FALSE(Shows(kRed));
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
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(1524, 0x80, 1), 0); }), 1);
    EXPECT_TRUE(isRound());
    gauge.Send(1524, 0x01, 1);
    EXPECT_TRUE(isRound());
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(1526, 0x80, 1), 0); }), 1);
    EXPECT_FALSE(isRound());
    EXPECT_EQ(gauge.PaintsIn([&] { gauge.Send(1524, 0x80, 0); }), 0);
    EXPECT_FALSE(isRound());
    EXPECT_EQ(gauge.PaintsIn([&] { gauge.Send(1526, 0x01, 0); }), 0);
    Repaint();
    EXPECT_TRUE(isRound());
    gauge.Send(1524, 0, 1);
    EXPECT_FALSE(isRound());
}

TEST_F(StatusGaugeTest, TextsAreCopiedInAndOut) {
    std::string source = "Fan 1";
    SetText(kTitle, source);
    SetText(kTrue, "ON");
    SetText(kFalse, "OFF");
    source = "xxxxx";
    EXPECT_EQ(Text(kTitle), "Fan 1");
    EXPECT_EQ(Text(kTrue), "ON");
    EXPECT_EQ(Text(kFalse), "OFF");
}

TEST_F(StatusGaugeTest, SettingATextPaintsNothing) {
    EXPECT_EQ(gauge.PaintsIn([&] {
        SetText(kTitle, "Fan");
        SetText(kTrue, "ON");
        SetText(kFalse, "OFF");
    }),
              0);
}

TEST_F(StatusGaugeTest, GettersTruncate) {
    SetText(kTitle, "Ventilator");
    SetText(kTrue, "running");
    SetText(kFalse, "at rest");
    EXPECT_EQ(Text(kTitle, 5), "Vent");
    EXPECT_EQ(Text(kTrue, 4), "run");
    EXPECT_EQ(Text(kFalse, 3), "at");
    EXPECT_EQ(Text(kTitle, 1), "");
    EXPECT_EQ(Text(kTitle, 0), std::string(64, '?'));
    EXPECT_EQ(gauge.Send(kTitle.get, 0, 64), 0);
}

TEST_F(StatusGaugeTest, NullTextOrNoLengthMakesItAbsent) {
    for (const TextMessages which : {kTrue, kFalse, kTitle}) {
        SetText(kTitle, "Fan");
        SetText(which, "text");
        SetText(which, nullptr, 4);
        EXPECT_EQ(Text(which), "");
        SetText(which, "text");
        SetText(which, "text", 0);
        EXPECT_EQ(Text(which), "");
    }
}

TEST_F(StatusGaugeTest, TooSmallALengthMakesAnEmptyText) {
    for (const TextMessages which : {kTitle, kTrue, kFalse}) {
        SetText(kTitle, "Fan");
        SetText(which, "text", 3);
        EXPECT_EQ(Text(which), "");
        SetText(which, "text", 4);
        EXPECT_EQ(Text(which), "text");
        SetText(which, "text", 1000);
        EXPECT_EQ(Text(which), "text");
    }
}

// With an empty title, which is there, the false text is told; with an absent one it isn't.
TEST_F(StatusGaugeTest, FalseTextIsToldOnlyWhereThereIsATitle) {
    SetText(kFalse, "OFF");
    EXPECT_EQ(Text(kFalse), "");
    SetText(kTitle, "Fan", 1);
    EXPECT_EQ(Text(kTitle), "");
    EXPECT_EQ(Text(kFalse), "OFF");
    SetText(kFalse, nullptr, 0);
    EXPECT_EQ(Text(kFalse), "");
    SetText(kTitle, nullptr, 0);
    SetText(kTrue, "ON");
    EXPECT_EQ(Text(kTrue), "ON");
}

TEST_F(StatusGaugeTest, NumbersBetweenAreNotMessagesOfTheGauge) {
    char buffer[8] = "?";
    for (const UINT message : {1523u, 1525u, 1527u, 1528u, 1530u, 1537u}) {
        EXPECT_EQ(gauge.PaintsIn([&] { gauge.Send(message, reinterpret_cast<WPARAM>(buffer), 8); }), 0) << message;
        EXPECT_STREQ(buffer, "?") << message;
    }
}

TEST_F(StatusGaugeTest, EveryPixelIsPaintedInEverySize) {
    SetText(kTitle, "Fan");
    SetText(kFalse, "OFF");
    for (const SIZE size : {SIZE{60, 60}, SIZE{300, 300}, SIZE{500, 200}}) {
        for (const WPARAM flags : {WPARAM{0}, WPARAM{0x80}}) {
            gauge.Resize(size.cx, size.cy);
            gauge.Mark();
            gauge.Send(1524, flags, 1);
            EXPECT_FALSE(gauge.HasMark()) << size.cx << " " << flags;
        }
    }
}

TEST_F(StatusGaugeTest, StandardMessagesItAnswersItself) {
    CREATESTRUCTA creation{};
    EXPECT_EQ(gauge.Send(WM_CREATE, 0, reinterpret_cast<LPARAM>(&creation)), 0);
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(10, 10)), 0); }), 0);
    EXPECT_EQ(gauge.Send(WM_DESTROY), 0);
    gauge.Mark();
    const ClientDc dc(gauge.Window());
    EXPECT_EQ(gauge.Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.Get())), 1);
    EXPECT_EQ(gauge.Colours().size(), 1u);
    EXPECT_TRUE(gauge.HasMark());
}

TEST_F(StatusGaugeTest, DoubleClickDoesNothingAndIsNotPassedOn) {
    gauge.Parent().seen.clear();
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5)), 0); }), 0);
    EXPECT_TRUE(gauge.Parent().seen.empty());
    EXPECT_TRUE(gauge.commands.empty());
}

TEST_F(StatusGaugeTest, MenuIsReportedToTheParentUnderTheCodeOfTheAnalogGauge) {
    EXPECT_EQ(gauge.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(gauge.Window()), MAKELPARAM(-5, 700)), 0);
    ASSERT_EQ(gauge.commands.size(), 1u);
    EXPECT_EQ(gauge.commands[0].wParam, WPARAM{(1574u << 16) | 0x2345u});
    EXPECT_EQ(gauge.commands[0].lParam, static_cast<LPARAM>(MAKELPARAM(-5, 700)));
    EXPECT_EQ(gauge.Parent().Count(WM_CONTEXTMENU), 0);
}

TEST_F(StatusGaugeTest, ParentMayDestroyItWhenTheMenuIsAskedFor) {
    gauge.Parent().handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == WM_COMMAND) ::DestroyWindow(gauge.Window());
        return false;
    };
    EXPECT_EQ(gauge.Send(WM_CONTEXTMENU), 0);
    EXPECT_FALSE(::IsWindow(gauge.Window()));
}

TEST_F(StatusGaugeTest, ThousandPaintsAndTheEndLeaveNothingBehind) {
    SetText(kTitle, "Fan");
    SetText(kFalse, "OFF");
    const std::size_t before = LiveGdiObjects();
    for (WPARAM i = 0; i < 1000; ++i)
        gauge.Send(1529, i % 3, 1);
    EXPECT_EQ(LiveGdiObjects(), before);
    ::DestroyWindow(gauge.Window());
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST_F(StatusGaugeTest, WorkerMaySendWhileTheOwnerPaints) {
    std::atomic<bool> done{false};
    int paints = 0;
    std::thread worker([&] {
        for (WPARAM i = 0; i < 200; ++i) {
            SetText(kTrue, i % 2 == 0 ? "running" : "ON");
            paints += gauge.PaintsIn([&] { gauge.Send(1529, 1, 1); });
        }
        done = true;
    });
    EXPECT_TRUE(test::Eventually([&] {
        Pump();
        const std::string text = Text(kTrue);
        EXPECT_TRUE(text.empty() || text == "running" || text == "ON") << text;
        return done.load();
    }));
    worker.join();
    EXPECT_EQ(paints, 200);
    EXPECT_EQ(Text(kTrue), "ON");
    EXPECT_TRUE(Shows(kGreen));
}

}  // namespace
}  // namespace corvex
