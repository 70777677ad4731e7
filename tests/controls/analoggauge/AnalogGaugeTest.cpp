#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/analoggauge/AnalogGaugePaint.h"
#include "tests/controls/gauge/ShownGauge.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr int kSide = 180;

template <class Pointer>
WPARAM W(Pointer* pointer) {
    return reinterpret_cast<WPARAM>(pointer);
}

template <class Pointer>
LPARAM L(Pointer* pointer) {
    return reinterpret_cast<LPARAM>(pointer);
}

// Messages go by their numbers here: whoever sends them may have been built apart.
class AnalogGaugeTest : public ::testing::Test {
protected:
    AnalogGaugeTest() {
        AnalogGauge::Register(::GetModuleHandleA(nullptr));
        gauge_ = std::make_unique<ShownGauge>("QZANALOGGAUGE", kSide, kSide, 0x12345);
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return gauge_->Send(message, wParam, lParam);
    }
    LRESULT SetValue(float value, LPARAM redraw = 0) const { return Send(1532, W(&value), redraw); }
    void Repaint() const { ::RedrawWindow(gauge_->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

    // Whether the window shows, pixel for pixel, what the paint makes of the model that should be behind it.
    bool ShowsModel(int width = kSide, int height = kSide) const {
        const TestBitmap expected(width, height, 0x123456);
        PaintAnalogGauge(expected.Dc(), RECT{0, 0, width, height}, model_);
        const ClientDc shown(gauge_->Window());
        const MemoryDc copy(shown.Get());
        const OwnedBitmap bitmap(::CreateCompatibleBitmap(shown.Get(), width, height));
        const SelectGuard selected(copy.Get(), bitmap.Get());
        ::BitBlt(copy.Get(), 0, 0, width, height, shown.Get(), 0, 0, SRCCOPY);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (::GetPixel(copy.Get(), x, y) != expected.At(x, y)) return false;
            }
        }
        return true;
    }
    bool ShowsModelWhenPainted() const {
        Repaint();
        return ShowsModel();
    }

    std::unique_ptr<ShownGauge> gauge_;
    AnalogGaugeModel model_;
};

TEST_F(AnalogGaugeTest, ClassIsAsTold) {
    WNDCLASSA words{};
    ASSERT_TRUE(::GetClassInfoA(::GetModuleHandleA(nullptr), "QZANALOGGAUGE", &words));
    EXPECT_EQ(words.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(words.hbrBackground, reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)));
    EXPECT_EQ(words.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    EXPECT_TRUE(AnalogGauge::Register(::GetModuleHandleA(nullptr)));
}

TEST_F(AnalogGaugeTest, BeginsAsTheDefaultDial) {
    EXPECT_TRUE(ShowsModel());
    const LRESULT colours[] = {0xF0F0F0, 0, 0x0050FA, 0, 0, 0xFFFFFF, 0, 0, 0xFF0000, 0xFF0000};
    for (WPARAM i = 0; i < 10; ++i)
        EXPECT_EQ(Send(1528, i), colours[i]) << i;
    EXPECT_EQ(Send(1533), 0);
    EXPECT_EQ(Send(1545, 0), 0);
    char text[4] = "xxx";
    EXPECT_EQ(Send(1540, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "");
}

TEST_F(AnalogGaugeTest, FlagsAreAddedClearedAndAllTakenByNone) {
    EXPECT_EQ(Send(1524, 0x80), 0);
    model_.flags = 0xDF;
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(Send(1526, 0x14), 0);
    model_.flags = 0xCB;
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(Send(1524, 0), 0);
    model_.flags = 0;
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(Send(1524, 0x04), 0);
    model_.flags = 0x04;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, FlagsRepaintOnlyWhenAsked) {
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1524, 0x80, 0); }), 0);
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1524, 0x80, 1); }), 1);
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1526, 0x80, 0); }), 0);
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1526, 0x80, 1); }), 1);
}

TEST_F(AnalogGaugeTest, ColoursAreSetByIndexWithoutARepaint) {
    EXPECT_EQ(gauge_->PaintsIn([&] {
        for (std::uint32_t i = 0; i < 10; ++i) {
            model_.SetColour(i, 0x203040 + 0x101010 * i);
            EXPECT_EQ(Send(1527, i, 0x203040 + 0x101010 * static_cast<LPARAM>(i)), 0);
        }
        ::UpdateWindow(gauge_->Window());
    }),
              0);
    for (std::uint32_t i = 0; i < 10; ++i)
        EXPECT_EQ(Send(1528, i), static_cast<LRESULT>(0x203040 + 0x101010 * i)) << i;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, ColourIndexTenIsNone) {
    EXPECT_EQ(Send(1527, 10, 0xABCDEF), 0);
    EXPECT_EQ(Send(1528, 10), 0);
    EXPECT_EQ(Send(1527, ~WPARAM{0}, 0xABCDEF), 0);
    EXPECT_EQ(Send(1528, ~WPARAM{0}), 0);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, RangeLeavesTheValueUntilTheNextOne) {
    SetValue(120.0f);
    const float minimum = -20.0f, maximum = 60.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1529, W(&minimum), L(&maximum)), 0); }), 0);
    EXPECT_EQ(Send(1533), 120);
    model_.SetValue(120.0f);
    model_.scale.rangeMinimum = -20.0f;
    model_.scale.rangeMaximum = 60.0f;
    EXPECT_TRUE(ShowsModelWhenPainted());
    SetValue(120.0f);
    EXPECT_EQ(Send(1533), 60);
}

TEST_F(AnalogGaugeTest, SweepTurnsTheScale) {
    const float start = 0.0f, end = 180.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1534, W(&start), L(&end)), 0); }), 0);
    model_.scale.sweepStart = 0.0f;
    model_.scale.sweepEnd = 180.0f;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, ValueIsClampedAndReadTruncated) {
    EXPECT_EQ(SetValue(12.9f), 0);
    EXPECT_EQ(Send(1533), 12);
    SetValue(-5.0f);
    EXPECT_EQ(Send(1533), 0);
    SetValue(1000.0f);
    EXPECT_EQ(Send(1533), 150);
    const float minimum = -100.0f, maximum = 3e9f;
    Send(1529, W(&minimum), L(&maximum));
    SetValue(-12.9f);
    EXPECT_EQ(Send(1533), -12);
    SetValue(3e9f);
    EXPECT_EQ(Send(1533), LRESULT{-2147483647} - 1);
}

TEST_F(AnalogGaugeTest, ValueRepaintsAtOnceOnlyWhenAsked) {
    EXPECT_EQ(gauge_->PaintsIn([&] { SetValue(40.5f, 0); }), 0);
    EXPECT_TRUE(ShowsModel());
    EXPECT_EQ(gauge_->PaintsIn([&] { SetValue(50.5f, 1); }), 1);
    model_.SetValue(40.5f);
    model_.SetValue(50.5f);
    EXPECT_TRUE(ShowsModel());
}

TEST_F(AnalogGaugeTest, ExtremesAreForgottenApart) {
    for (const float value : {30.0f, 90.0f, 60.0f}) {
        SetValue(value);
        model_.SetValue(value);
    }
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1537), 0); }), 0);
    model_.ResetLowest();
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1538), 0); }), 0);
    model_.ResetHighest();
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, DoubleClickForgetsBothAndTheNextSampleRefillsThemBeforeItsPaint) {
    for (const float value : {30.0f, 90.0f, 60.0f}) {
        SetValue(value, 1);
        model_.SetValue(value);
    }
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(WM_LBUTTONDBLCLK), 0); }), 0);
    EXPECT_FALSE(::GetUpdateRect(gauge_->Window(), nullptr, FALSE));
    EXPECT_TRUE(ShowsModel());
    SetValue(60.0f, 1);
    model_.ResetLowest();
    model_.ResetHighest();
    model_.SetValue(60.0f);
    EXPECT_TRUE(ShowsModel());
    Send(WM_LBUTTONDBLCLK);
    model_.ResetLowest();
    model_.ResetHighest();
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, TitleAndUnitsAreKeptApartAndDrawn) {
    char text[16];
    EXPECT_EQ(gauge_->PaintsIn([&] {
        EXPECT_EQ(Send(1539, W("Coolant"), 7), 0);
        EXPECT_EQ(Send(1541, W("deg C"), 5), 0);
    }),
              0);
    EXPECT_EQ(Send(1540, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "Coolant");
    EXPECT_EQ(Send(1542, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "deg C");
    Send(1540, W(text), 5);
    EXPECT_STREQ(text, "Cool");
    model_.title.Set("Coolant", 7);
    model_.units.Set("deg C", 5);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, TextsGoOrBecomeEmptyAsTheirLengthSays) {
    char text[16];
    for (const UINT set : {1539u, 1541u}) {
        Send(set, W("Coolant"), 7);
        Send(set, W("Coolant"), 6);
        Send(set + 1, W(text), sizeof text);
        EXPECT_STREQ(text, "") << set;
        Send(set, W("Coolant"), 7);
        Send(set, W("Coolant"), 0);
        Send(set + 1, W(text), sizeof text);
        EXPECT_STREQ(text, "") << set;
    }
}

TEST_F(AnalogGaugeTest, LongTitleIsKeptButNotDrawn) {
    const std::string title(100, 'M');
    Send(1539, W(title.c_str()), static_cast<LPARAM>(title.size()));
    char text[200];
    Send(1540, W(text), sizeof text);
    EXPECT_EQ(text, title);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, DigitsTravelInTheSecondParameter) {
    SetValue(12.5f);
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1543, 5, 1), 0); }), 0);
    model_.SetValue(12.5f);
    model_.digits = 1;
    EXPECT_TRUE(ShowsModelWhenPainted());
    Send(1543, 0, 0x7FFFFFFF);
    model_.digits = 0x7FFFFFFF;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, BandsAreAddedReplacedPutInFrontAndRead) {
    const GaugeAlarmBand one{10.0f, 40.0f, 0x0000FF}, two{30.0f, 60.0f, 0x00FF00}, three{20.0f, 50.0f, 0xFF0000};
    EXPECT_EQ(gauge_->PaintsIn([&] {
        EXPECT_EQ(Send(1544, 10, L(&one)), 0);
        EXPECT_EQ(Send(1544, 10, L(&two)), 1);
        EXPECT_EQ(Send(1544, 0xFFFFFFFF, L(&three)), 0);
        EXPECT_EQ(Send(1544, 1, L(&two)), 1);
        EXPECT_EQ(Send(1544, ~WPARAM{0}, L(&one)), 0);
    }),
              0);
    model_.SetAlarm(10, &one);
    model_.SetAlarm(10, &three);
    model_.SetAlarm(10, &two);
    model_.SetAlarm(10, &two);
    EXPECT_TRUE(ShowsModelWhenPainted());
    GaugeAlarmBand band{};
    EXPECT_EQ(Send(1545, 1, L(&band)), 1);
    EXPECT_EQ(band.low, 20.0f);
    EXPECT_EQ(band.high, 50.0f);
    EXPECT_EQ(band.colour, 0xFF0000u);
    EXPECT_EQ(Send(1545, 3, 0), 1);
    EXPECT_EQ(Send(1545, 4, L(&band)), 0);
}

TEST_F(AnalogGaugeTest, BandsAreClearedAndNoBandIsRefused) {
    const GaugeAlarmBand band{10.0f, 40.0f, 0x0000FF};
    EXPECT_EQ(Send(1544, 0, 0), -1);
    EXPECT_EQ(Send(1545, 0, 0), 0);
    Send(1544, 0, L(&band));
    EXPECT_EQ(Send(1546), 0);
    EXPECT_EQ(Send(1545, 0, 0), 0);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, NullPointersChangeNothing) {
    const float value = 5.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1532, 0, 1), 0); }), 0);
    EXPECT_EQ(Send(1529, 0, L(&value)), 0);
    EXPECT_EQ(Send(1529, W(&value), 0), 0);
    EXPECT_EQ(Send(1534, 0, L(&value)), 0);
    EXPECT_EQ(Send(1534, W(&value), 0), 0);
    for (const UINT message : {1539u, 1540u, 1541u, 1542u})
        EXPECT_EQ(Send(message, 0, 10), 0) << message;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, NumbersBetweenAreNotItsOwn) {
    float value = 5.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] {
        for (const UINT message : {1523u, 1525u, 1530u, 1531u, 1535u, 1536u, 1547u})
            EXPECT_EQ(Send(message, W(&value), L(&value)), 0) << message;
    }),
              0);
    EXPECT_EQ(value, 5.0f);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, EraseIsSwallowed) {
    gauge_->Mark();
    EXPECT_EQ(Send(WM_ERASEBKGND, W(ClientDc(gauge_->Window()).Get())), 1);
    EXPECT_EQ(ColoursOf(gauge_->Window()).size(), 1u);
    EXPECT_TRUE(gauge_->HasMark());
}

TEST_F(AnalogGaugeTest, SizeAloneBringsNoPaint) {
    EXPECT_EQ(gauge_->PaintsIn([&] {
        EXPECT_EQ(Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 300)), 0);
        ::UpdateWindow(gauge_->Window());
    }),
              0);
}

TEST_F(AnalogGaugeTest, MenuIsAskedOfTheParent) {
    EXPECT_EQ(Send(WM_CONTEXTMENU, W(gauge_->Window()), MAKELPARAM(31, 17)), 0);
    ASSERT_EQ(gauge_->commands.size(), 1u);
    EXPECT_EQ(gauge_->commands[0].wParam, WPARAM{0x06262345});
    EXPECT_EQ(gauge_->commands[0].lParam, MAKELPARAM(31, 17));
}

TEST_F(AnalogGaugeTest, PaintCoversEveryPixel) {
    const SIZE sizes[] = {{60, 60}, {300, 300}, {500, 200}, {60, 300}};
    for (const SIZE& size : sizes) {
        for (const unsigned flags : {0x5Fu, 0xDFu}) {
            gauge_->Resize(size.cx, size.cy);
            Send(1524, 0);
            Send(1524, flags);
            model_.flags = flags;
            gauge_->Mark();
            Repaint();
            EXPECT_FALSE(gauge_->HasMark()) << size.cx << " " << size.cy << " " << flags;
            EXPECT_TRUE(ShowsModel(size.cx, size.cy)) << size.cx << " " << size.cy << " " << flags;
        }
    }
}

TEST_F(AnalogGaugeTest, ThousandPaintsLeakNothing) {
    gauge_->Resize(40, 40);
    Send(1539, W("Coolant"), 7);
    const GaugeAlarmBand band{10.0f, 12.0f, 0x0000FF};
    Send(1544, 0, L(&band));
    SetValue(1.0f, 1);
    const std::size_t before = LiveGdiObjects();
    EXPECT_EQ(gauge_->PaintsIn([&] {
        for (int i = 0; i < 1000; ++i)
            SetValue(static_cast<float>(i % 150), 1);
    }),
              1000);
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST_F(AnalogGaugeTest, SamplesFromAnotherThreadArePaintedByTheOwner) {
    constexpr int kSamples = 50;
    std::atomic<bool> done{false};
    std::atomic<LRESULT> read{-1};
    int paints = 0;
    std::thread sender([&] {
        for (int i = 1; i <= kSamples; ++i)
            SetValue(static_cast<float>(i), 1);
        read = Send(1533);
        done = true;
    });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    paints = gauge_->PaintsIn([&] {
        while (!done && std::chrono::steady_clock::now() < deadline) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
            Pump();
        }
    });
    ASSERT_TRUE(done);
    sender.join();
    EXPECT_EQ(read, kSamples);
    EXPECT_GE(paints, kSamples);
    for (int i = 1; i <= kSamples; ++i)
        model_.SetValue(static_cast<float>(i));
    EXPECT_TRUE(ShowsModel());
}

TEST_F(AnalogGaugeTest, ObjectGoesWithTheWindow) {
    gauge_.reset();
    const std::size_t before = LiveGdiObjects();
    const ShownGauge gauge("QZANALOGGAUGE", kSide, kSide);
    const HWND window = gauge.Window();
    ASSERT_NE(::GetWindowLongPtrA(window, 0), 0);
    EXPECT_GT(LiveGdiObjects(), before);
    ::DestroyWindow(window);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST_F(AnalogGaugeTest, TwoGaugesKnowNothingOfEachOther) {
    const ShownGauge other("QZANALOGGAUGE", 50, 50, 8);
    SetValue(70.0f);
    other.Send(1527, 0, 0x00FF00);
    EXPECT_EQ(other.Send(1533), 0);
    EXPECT_EQ(Send(1528, 0), 0xF0F0F0);
}

}  // namespace
}  // namespace corvex
