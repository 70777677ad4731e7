#include <gtest/gtest.h>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/analoggauge/AnalogGaugePaint.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

// A dial on show, and the model that should be behind it. Messages go by their numbers here: whoever sends them may
// have been built apart.
class AnalogGaugeTest : public ::testing::Test {
protected:
    static constexpr int kSide = 180;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return gauge_.Send(message, wParam, lParam);
    }
    LRESULT SetValue(float value, LPARAM redraw = 0) const { return Send(1532, W(&value), redraw); }
    void SetBoth(std::initializer_list<float> values) {
        for (const float value : values) {
            SetValue(value);
            model_.SetValue(value);
        }
    }
    // How many paints the message brings; it answers 0.
    int PaintsOf(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return gauge_.PaintsIn([&] { EXPECT_EQ(Send(message, wParam, lParam), 0) << message; });
    }
    // Whether the window shows, pixel for pixel, what the paint makes of the model that should be behind it.
    bool ShowsModel() const {
        const TestBitmap expected(kSide, kSide, 0x123456);
        PaintAnalogGauge(expected.Dc(), RECT{0, 0, kSide, kSide}, model_);
        return TestBitmap(gauge_.Window()).Pixels() == expected.Pixels();
    }
    bool ShowsModelWhenPainted() const {
        gauge_.Repaint();
        return ShowsModel();
    }
    // The message changes the model so, and paints nothing.
    template <class Change>
    void Tell(UINT message, WPARAM wParam, LPARAM lParam, const Change& change) {
        EXPECT_EQ(PaintsOf(message, wParam, lParam), 0) << message;
        change();
        EXPECT_TRUE(ShowsModelWhenPainted()) << message;
    }

    const bool registered_ = AnalogGauge::Register(::GetModuleHandleA(nullptr));
    ShownControl gauge_{"QZANALOGGAUGE", kSide, kSide};
    AnalogGaugeModel model_;
};

TEST_F(AnalogGaugeTest, BeginsAsTheDefaultDial) {
    EXPECT_TRUE(ShowsModel());
    for (std::uint32_t i = 0; i < 10; ++i)
        EXPECT_EQ(Send(1528, i), static_cast<LRESULT>(model_.Colour(i))) << i;
    EXPECT_EQ(Send(1533), 0);
    EXPECT_EQ(Send(1545, 0), 0);
}

TEST_F(AnalogGaugeTest, FlagsAreAddedAndClearedAndRepaintWhenAsked) {
    const struct {
        UINT message;
        WPARAM bits;
        std::uint32_t flags;
    } steps[] = {{1524, 0x80, 0xDF}, {1526, 0x14, 0xCB}, {1524, 0, 0}, {1524, 0x04, 0x04}};
    for (const auto& step : steps) {
        Tell(step.message, step.bits, 0, [&] { model_.flags = step.flags; });
        EXPECT_EQ(PaintsOf(step.message, step.bits, 1), 1);
    }
}

TEST_F(AnalogGaugeTest, ColoursAreSetByIndexWithoutARepaint) {
    for (std::uint32_t i = 0; i < 10; ++i) {
        const std::uint32_t colour = 0x203040 + 0x101010 * i;
        Tell(1527, i, static_cast<LPARAM>(colour), [&] { model_.SetColour(i, colour); });
        EXPECT_EQ(Send(1528, i), static_cast<LRESULT>(colour)) << i;
    }
    Tell(1527, ~WPARAM{0}, 0xABCDEF, [] {});
    EXPECT_EQ(Send(1528, ~WPARAM{0}), 0);
}

TEST_F(AnalogGaugeTest, RangeLeavesTheValueUntilTheNextOneAndSweepTurnsTheScale) {
    SetBoth({120.0f});
    const float low = -20.0f, high = 60.0f;
    Tell(1529, W(&low), L(&high), [&] { model_.scale.rangeMinimum = low, model_.scale.rangeMaximum = high; });
    Tell(1534, W(&low), L(&high), [&] { model_.scale = {low, high, low, high}; });
    EXPECT_EQ(Send(1533), 120);
    SetBoth({120.0f});
    EXPECT_EQ(Send(1533), 60);
    SetBoth({-12.9f});
    EXPECT_EQ(Send(1533), -12);
}

TEST_F(AnalogGaugeTest, ValueRepaintsAtOnceOnlyWhenAsked) {
    EXPECT_EQ(gauge_.PaintsIn([&] { EXPECT_EQ(SetValue(40.5f, 0), 0); }), 0);
    EXPECT_TRUE(ShowsModel());
    EXPECT_EQ(gauge_.PaintsIn([&] { EXPECT_EQ(SetValue(50.5f, 1), 0); }), 1);
    model_.SetValue(40.5f);
    model_.SetValue(50.5f);
    EXPECT_TRUE(ShowsModel());
}

TEST_F(AnalogGaugeTest, ExtremesAreForgottenApartAndDigitsTravelInTheSecondParameter) {
    SetBoth({30.0f, 90.0f, 60.5f});
    Tell(1537, 0, 0, [this] { model_.ResetLowest(); });
    Tell(1538, 0, 0, [this] { model_.ResetHighest(); });
    for (const std::uint32_t digits : {1U, 0x7FFFFFFFU})
        Tell(1543, 5, static_cast<LPARAM>(digits), [&] { model_.digits = digits; });
}

TEST_F(AnalogGaugeTest, DoubleClickForgetsBothAndTheNextSampleRefillsThemBeforeItsPaint) {
    SetBoth({30.0f, 90.0f, 60.0f});
    gauge_.Repaint();
    EXPECT_EQ(PaintsOf(WM_LBUTTONDBLCLK), 0);
    EXPECT_FALSE(::GetUpdateRect(gauge_.Window(), nullptr, FALSE));
    EXPECT_TRUE(ShowsModel());
    SetValue(60.0f, 1);
    model_.ResetLowest();
    model_.ResetHighest();
    model_.SetValue(60.0f);
    EXPECT_TRUE(ShowsModel());
}

TEST_F(AnalogGaugeTest, TitleAndUnitsAreKeptApartAndDrawn) {
    Tell(1539, W("Coolant"), 7, [this] { model_.title.Set("Coolant", 7); });
    Tell(1541, W("deg C"), 5, [this] { model_.units.Set("deg C", 5); });
    char text[16];
    EXPECT_EQ(Send(1540, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "Coolant");
    EXPECT_EQ(Send(1542, W(text), 4), 0);
    EXPECT_STREQ(text, "deg");
}

TEST_F(AnalogGaugeTest, BandsAreAddedReplacedPutInFrontReadAndCleared) {
    const GaugeAlarmBand one{10.0f, 40.0f, 0x0000FF}, two{30.0f, 60.0f, 0x00FF00}, three{20.0f, 50.0f, 0xFF0000};
    EXPECT_EQ(Send(1544, 0, 0), -1);
    for (const auto& [index, band] : {std::pair{WPARAM{10}, &one},
                                      {WPARAM{10}, &two},
                                      {WPARAM{0xFFFFFFFF}, &three},
                                      {WPARAM{1}, &two},
                                      {~WPARAM{0}, &one}})
        EXPECT_EQ(Send(1544, index, L(band)), model_.SetAlarm(static_cast<std::uint32_t>(index), band)) << index;
    EXPECT_TRUE(ShowsModelWhenPainted());
    GaugeAlarmBand band{};
    EXPECT_EQ(Send(1545, 1, L(&band)), 1);
    EXPECT_EQ(band.low, 20.0f);
    EXPECT_EQ(Send(1545, 3, 0), 1);
    EXPECT_EQ(Send(1545, 4, L(&band)), 0);
    EXPECT_EQ(PaintsOf(1546), 0);
    EXPECT_EQ(Send(1545, 0, 0), 0);
}

TEST_F(AnalogGaugeTest, NullPointersAndASizeChangeNothing) {
    EXPECT_EQ(PaintsOf(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 300)), 0);
    const float value = 5.0f;
    EXPECT_EQ(PaintsOf(1532, 0, 1), 0);
    for (const UINT pair : {1529u, 1534u}) {
        EXPECT_EQ(Send(pair, 0, L(&value)), 0);
        EXPECT_EQ(Send(pair, W(&value), 0), 0);
    }
    for (const UINT text : {1539u, 1540u, 1541u, 1542u})
        EXPECT_EQ(Send(text, 0, 10), 0) << text;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

}  // namespace
}  // namespace corvex
