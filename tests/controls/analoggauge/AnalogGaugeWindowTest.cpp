#include <atomic>
#include <chrono>
#include <thread>

#include "tests/controls/analoggauge/AnalogGaugeFixture.h"

namespace corvex {
namespace {

class AnalogGaugeWindowTest : public AnalogGaugeFixture {};

TEST_F(AnalogGaugeWindowTest, ClassIsAsTold) {
    WNDCLASSA windowClass{};
    ASSERT_TRUE(::GetClassInfoA(::GetModuleHandleA(nullptr), "QZANALOGGAUGE", &windowClass));
    EXPECT_EQ(windowClass.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(windowClass.hbrBackground, reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)));
    EXPECT_EQ(windowClass.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    EXPECT_TRUE(AnalogGauge::Register(::GetModuleHandleA(nullptr)));
}

TEST_F(AnalogGaugeWindowTest, EraseIsSwallowed) {
    gauge_->Mark();
    EXPECT_EQ(Send(WM_ERASEBKGND, W(ClientDc(gauge_->Window()).Get())), 1);
    EXPECT_EQ(ColoursOf(gauge_->Window()).size(), 1u);
    EXPECT_TRUE(gauge_->HasMark());
}

TEST_F(AnalogGaugeWindowTest, SizeAloneBringsNoPaint) {
    EXPECT_EQ(gauge_->PaintsIn([&] {
        EXPECT_EQ(Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 300)), 0);
        ::UpdateWindow(gauge_->Window());
    }),
              0);
}

TEST_F(AnalogGaugeWindowTest, MenuIsAskedOfTheParent) {
    EXPECT_EQ(Send(WM_CONTEXTMENU, W(gauge_->Window()), MAKELPARAM(31, 17)), 0);
    ASSERT_EQ(gauge_->commands.size(), 1u);
    EXPECT_EQ(gauge_->commands[0].wParam, WPARAM{0x06262345});
    EXPECT_EQ(gauge_->commands[0].lParam, MAKELPARAM(31, 17));
}

TEST_F(AnalogGaugeWindowTest, PaintCoversEveryPixel) {
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

TEST_F(AnalogGaugeWindowTest, ThousandPaintsLeakNothing) {
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

TEST_F(AnalogGaugeWindowTest, SamplesFromAnotherThreadArePaintedByTheOwner) {
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

TEST_F(AnalogGaugeWindowTest, ObjectGoesWithTheWindow) {
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

TEST_F(AnalogGaugeWindowTest, TwoGaugesKnowNothingOfEachOther) {
    const ShownGauge other("QZANALOGGAUGE", 50, 50, 8);
    SetValue(70.0f);
    other.Send(1527, 0, 0x00FF00);
    EXPECT_EQ(other.Send(1533), 0);
    EXPECT_EQ(Send(1528, 0), 0xF0F0F0);
}

}  // namespace
}  // namespace corvex
