#include <gtest/gtest.h>

#include <algorithm>

#include "controls/analoggauge/AnalogGaugePaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr GaugeAlarmBand kHigh{120.0f, 150.0f, 0x0000FF}, kLow{0.0f, 20.0f, 0x00B4FA},
    kBeyond{140.0f, 400.0f, 0x00FF00};
// Each with one end of another.
constexpr GaugeAlarmBand kFromLower{60.0f, 150.0f, 0x0000FF}, kToHigher{0.0f, 70.0f, 0x00B4FA};

AnalogGaugeModel With(const std::vector<GaugeAlarmBand>& bands, float value = 61.3f) {
    AnalogGaugeModel model;
    model.title.Set("Engine Speed", 12);
    model.units.Set("rpm", 3);
    model.SetValue(value);
    for (const GaugeAlarmBand& band : bands)
        model.SetAlarm(10, &band);
    return model;
}

AnalogGaugeModel Scaled(const DialScale& scale) {
    AnalogGaugeModel model = With({kHigh, kLow});
    model.scale = scale;
    return model;
}

AnalogGaugeModel Flagged(std::uint32_t flags) {
    AnalogGaugeModel model = With({kHigh});
    model.flags = flags;
    return model;
}

AnalogGaugeModel Coloured() {
    AnalogGaugeModel model = With({kLow});
    for (std::uint32_t i = 0; i < AGC_COUNT; ++i)
        model.SetColour(i, 0x203040 + 0x101010 * i);
    return model;
}

// Neighbours differ in one thing or another that shapes must not be kept over, or may be.
std::vector<AnalogGaugeModel> States() {
    return {With({}),
            With({kHigh}),
            With({kFromLower}),
            With({kHigh, kLow}),
            With({kHigh, kToHigher}),
            With({kLow, kHigh}),
            With({kHigh, kLow, kBeyond}),
            With({kLow}),
            With({kHigh}, 149.0f),
            Coloured(),
            Scaled({0.0f, 150.0f, 0.0f, 180.0f}),
            Scaled({0.0f, 150.0f, 300.0f, 40.0f}),
            Scaled({0.0f, 150.0f, 0.0f, 360.0f}),
            Scaled({0.0f, 150.0f, 90.0f, 90.0f}),
            Scaled({-20.0f, 60.0f, 40.0f, 300.0f}),
            Scaled({5.0f, 5.0f, 40.0f, 300.0f}),
            Flagged(0x1F),
            Flagged(0xDF),
            Flagged(0)};
}

constexpr SIZE kSizes[] = {{300, 300}, {301, 199}, {180, 180}, {60, 40}};

RECT AreaOf(const SIZE& size) {
    return {0, 0, size.cx, size.cy};
}

struct Picture : TestBitmap {
    Picture(const AnalogGaugeModel& model, const SIZE& size, DialCurves& curves)
        : TestBitmap(size.cx, size.cy, 0x123456) {
        PaintAnalogGauge(Dc(), AreaOf(size), model, curves);
    }
};

// Of what is painted with curves that have been drawn before and with curves that have not.
void ExpectSamePicture(const AnalogGaugeModel& model, const SIZE& size, DialCurves& kept) {
    DialCurves drawn;
    const auto expected = Picture(model, size, drawn).Pixels();
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(Picture(model, size, kept).Pixels() == expected);
}

Figures Painted(const AnalogGaugeModel& model, const RECT& area, DialCurves& curves) {
    return FiguresOf([&](HDC dc) { PaintAnalogGauge(dc, area, model, curves); });
}

bool IsLongCurve(const std::string& figure) {
    return figure.starts_with("arc ") || figure.starts_with("ellipse 2,2,");
}

TEST(KeptDialCurvesTest, EveryPixelIsThatOfTheDrawnDial) {
    const auto states = States();
    for (const SIZE& size : kSizes) {
        KeptDialCurves kept;
        for (std::size_t i = 0; i < states.size(); ++i) {
            SCOPED_TRACE(::testing::Message() << size.cx << " by " << size.cy << ", state " << i);
            ExpectSamePicture(states[i], size, kept);
        }
    }
}

TEST(KeptDialCurvesTest, AnotherSizeHasShapesOfItsOwn) {
    const AnalogGaugeModel states[] = {With({kHigh, kLow}), Flagged(0xDF)};
    KeptDialCurves kept;
    for (const AnalogGaugeModel& model : states) {
        for (const SIZE& size : kSizes) {
            SCOPED_TRACE(::testing::Message() << size.cx << " by " << size.cy << ", flags " << model.flags);
            ExpectSamePicture(model, size, kept);
        }
    }
}

TEST(KeptDialCurvesTest, LongCurvesAreFilledAndTheRestIsDrawnAsEver) {
    KeptDialCurves kept;
    DialCurves drawn;
    const AnalogGaugeModel model = With({kHigh, kLow});
    Figures expected = Painted(model, AreaOf(kSizes[0]), drawn);
    const auto curves = std::erase_if(expected, &IsLongCurve);
    EXPECT_EQ(4U, curves) << "the face, the scale and two bands";
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(expected, Painted(model, AreaOf(kSizes[0]), kept));
}

// Also where a side alone is larger than any bitmap's, or there is none.
TEST(KeptDialCurvesTest, OfMorePixelsThanAreKeptItIsDrawnAsEver) {
    DialCurves drawn;
    const AnalogGaugeModel model = With({kHigh});
    const auto isKept = [&](const RECT& area) {
        KeptDialCurves kept;
        return Painted(model, area, drawn) != Painted(model, area, kept);
    };
    EXPECT_TRUE(isKept({0, 0, 2048, 2048}));
    for (const SIZE& size : {SIZE{2048, 2049}, SIZE{700000, 400000}, SIZE{1 << 22, 2}, SIZE{0, 0}, SIZE{0, 50}})
        EXPECT_FALSE(isKept(AreaOf(size))) << size.cx << " by " << size.cy;
}

TEST(KeptDialCurvesTest, ShapesOfArcsThatAreGoneGoToo) {
    KeptDialCurves kept;
    const Picture first(With({}), kSizes[0], kept);
    const std::size_t before = LiveGdiObjects();
    {
        const Picture more(With({kHigh, kLow, kBeyond}), kSizes[0], kept);
        EXPECT_GT(LiveGdiObjects(), before);
    }
    for (int i = 0; i < 2; ++i)
        const Picture less(With({}), kSizes[0], kept);
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST(KeptDialCurvesTest, ManyPaintsAndItsEndLeaveNothingBehind) {
    const auto states = States();
    const std::size_t before = LiveGdiObjects();
    {
        KeptDialCurves kept;
        for (const AnalogGaugeModel& model : states)
            const Picture picture(model, kSizes[3], kept);
        const std::size_t once = LiveGdiObjects();
        for (int i = 0; i < 50; ++i)
            const Picture picture(states.back(), kSizes[3], kept);
        EXPECT_EQ(once, LiveGdiObjects());
    }
    EXPECT_EQ(before, LiveGdiObjects());
}

}  // namespace
}  // namespace corvex
