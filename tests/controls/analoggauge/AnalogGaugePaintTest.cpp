#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "controls/analoggauge/AnalogGaugePaint.h"
#include "tests/controls/analoggauge/DialReference.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

using Text = std::optional<std::string>;

struct ExpectedBand {
    double low, high;
    unsigned colour;
};

// What is on the dial, in words; All tells by which figures it is drawn.
struct ExpectedDial {
    int width, height;
    const char* mode;
    ReferenceScale scale;
    double value = 0;
    Figures labels;
    Text title = {}, number, units = {}, lowest, highest;
    std::vector<ExpectedBand> bands = {};
    // In the order of their indices, then those of the two extremes.
    unsigned colours[12] = {0xF0F0F0, 0, 0x0050FA, 0, 0, 0xFFFFFF, 0, 0, 0xFF0000, 0xFF0000, 0, 0};

    Figures All() const;
    void AddScale(Figures& lines) const;
    double Angle(double value) const { return ReferenceAngle(scale, value); }
};

std::string Letters(int x, int y, unsigned align, int height, unsigned colour, const std::string& text) {
    return Printed("text %d,%d align %u font Arial %d 600 2 32 colour %06x transparent: ", x, y, align, height,
                   colour) +
           text;
}

std::string Radial(int from, int to, double angle, int width, unsigned colour) {
    const ReferencePlace a = ReferenceRoundedPoint(from, angle), b = ReferenceRoundedPoint(to, angle);
    return Printed("line %d,%d to %d,%d pen 0 %d %06x", a.x, a.y, b.x, b.y, width, colour);
}

void ExpectedDial::AddScale(Figures& lines) const {
    const double step = (scale.maximum - scale.minimum) / 10.0;
    for (int i = 0; i < 11; ++i) {
        const double angle = Angle(scale.minimum + step * i);
        lines.push_back(Radial(87, 79, angle, 1, colours[7]));
        const ReferencePlace anchor = ReferencePoint(76, angle);
        lines.push_back(
            Letters(anchor.x, anchor.y, ReferenceAlignment(angle), 9, colours[6], labels[static_cast<std::size_t>(i)]));
        for (int j = 1; i > 0 && j < 5; ++j)
            lines.push_back(Radial(87, 82, Angle(scale.minimum + step * (i - 1) + step * j / 5.0), 1, colours[8]));
    }
}

Figures ExpectedDial::All() const {
    Figures lines{
        Printed("mapping %s window 180,180 viewport %d,%d", mode, std::max(width, 180), std::max(height, 180)),
        Printed("fill 0,0,%d,%d brush %06x", width, height, colours[5]),
        Printed("ellipse 2,2,178,178 pen 0 1 %06x brush %06x", colours[1], colours[0])};
    if (title) lines.push_back(Letters(90, 72, 14, 12, colours[3], *title));
    if (number) lines.push_back(Letters(90, 135, 6, 10, colours[9], *number));
    if (units) lines.push_back(Letters(90, 144, 6, 10, colours[4], *units));
    if (lowest) lines.push_back(Letters(67, 120, 6, 7, colours[10], *lowest));
    if (highest) lines.push_back(Letters(112, 120, 6, 7, colours[11], *highest));
    AddScale(lines);
    std::vector<ExpectedBand> arcs{{scale.minimum, scale.maximum, colours[1]}};
    arcs.insert(arcs.end(), bands.begin(), bands.end());
    for (const auto& [low, high, colour] : arcs) {
        const ReferencePlace from = ReferencePoint(179, Angle(high)), to = ReferencePoint(179, Angle(low));
        lines.push_back(
            Printed("arc 2,2,178,178 from %d,%d to %d,%d ccw pen 0 2 %06x", from.x, from.y, to.x, to.y, colour));
    }
    const double angle = Angle(value);
    const ReferencePlace tip = ReferencePoint(75, angle), left = ReferencePoint(2, angle - 90.0),
                         right = ReferencePoint(2, angle + 90.0);
    lines.push_back(Printed("polygon %d,%d %d,%d %d,%d pen 0 1 %06x brush ffffff", tip.x, tip.y, left.x, left.y,
                            right.x, right.y, colours[2]));
    lines.push_back("ellipse 88,88,92,92 pen 0 0 000000 brush 000000");
    lines.push_back(Radial(88, 84, angle, 2, 0x0000FF));
    return lines;
}

ExpectedDial DefaultDial(int width, int height) {
    return {.width = width,
            .height = height,
            .mode = "anisotropic",
            .scale = {0.0, 150.0, 40.0, 300.0},
            .labels = {"0", "15", "30", "45", "60", "75", "90", "105", "120", "135", "150"},
            .number = "0",
            .lowest = "Min: -2147483648",
            .highest = "Max: 0.00"};
}

Figures Painted(const AnalogGaugeModel& model, int width, int height) {
    return FiguresOf([&](HDC dc) { PaintAnalogGauge(dc, RECT{0, 0, width, height}, model); });
}

TEST(AnalogGaugePaintTest, DefaultDialAsToldOfWhichASmallClientShowsTheUpperLeftPart) {
    EXPECT_EQ(Painted(AnalogGaugeModel(), 300, 300), DefaultDial(300, 300).All());
    EXPECT_EQ(Painted(AnalogGaugeModel(), 60, 90), DefaultDial(60, 90).All());
    AnalogGaugeModel model;
    model.title.Set(std::string(100, 't').c_str(), 100);
    model.units.Set(std::string(100, 'u').c_str(), 100);
    EXPECT_EQ(Painted(model, 300, 300), DefaultDial(300, 300).All()) << "texts too long to be drawn";
}

TEST(AnalogGaugePaintTest, EveryPartInItsOwnColourOnARoundDial) {
    AnalogGaugeModel model;
    ExpectedDial dial = DefaultDial(500, 200);
    for (unsigned i = 0; i < 10; ++i) {
        dial.colours[i] = 0x102030 + i;
        model.SetColour(i, dial.colours[i]);
    }
    dial.colours[10] = model.lowestColour = 0xABCDEF;
    dial.colours[11] = model.highestColour = 0xFEDCBA;
    model.SetFlags(AGF_ROUND);
    model.scale = {-50.0f, 25.0f, 0.0f, 270.0f};
    model.digits = 1;
    model.title.Set("Coolant", 7);
    model.units.Set("deg", 3);
    model.SetValue(-12.5f);
    model.SetValue(-40.25f);
    const GaugeAlarmBand bands[] = {{-50.0f, -20.0f, 0x0000FF}, {10.0f, -10.0f, 0x00FF00}};
    model.SetAlarm(10, &bands[0]);
    model.SetAlarm(10, &bands[1]);

    dial.mode = "isotropic";
    dial.scale = {-50.0, 25.0, 0.0, 270.0};
    dial.value = -40.25;
    dial.labels = {"-50", "-42.5", "-35", "-27.5", "-20", "-12.5", "-5", "2.5", "10", "17.5", "25"};
    dial.title = "Coolant";
    dial.number = "-40.2";
    dial.units = "deg";
    dial.lowest = "Min: -40.2";
    dial.highest = "Max: 0.0";
    dial.bands = {{-50.0, -20.0, 0x0000FF}, {10.0, -10.0, 0x00FF00}};
    EXPECT_EQ(Painted(model, 500, 200), dial.All());
}

TEST(AnalogGaugePaintTest, FlagsTakePartsAway) {
    const GaugeAlarmBand band{30.0f, 60.0f, 0x0000FF};
    for (const unsigned flag : {0x04u, 0x08u, 0x10u, 0x40u, 0x01u, 0x02u, 0x20u}) {
        AnalogGaugeModel model;
        model.SetAlarm(0, &band);
        model.flags = 0x7Fu & ~flag;
        ExpectedDial dial = DefaultDial(180, 180);
        if (flag == 0x04) dial.number.reset();
        if (flag == 0x08) dial.highest.reset();
        if (flag == 0x10) dial.lowest.reset();
        if (flag != 0x40) dial.bands = {{30.0, 60.0, 0x0000FF}};
        EXPECT_EQ(Painted(model, 180, 180), dial.All()) << flag;
    }
}

TEST(AnalogGaugePaintTest, SurvivesWhatIsNoNumber) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity(), kLargest = std::numeric_limits<float>::max();
    for (const float odd : {std::nanf(""), kInfinity, -kInfinity, kLargest, -kLargest}) {
        AnalogGaugeModel model;
        const GaugeAlarmBand band{odd, -odd, 0x0000FF};
        model.SetAlarm(0, &band);
        model.scale = {odd, odd, odd, -odd};
        model.SetValue(odd);
        const Figures lines = Painted(model, 300, 300);
        // mapping, ground, face, digits, two extremes, 11 labels, 51 ticks, two arcs, needle, hub, mark
        EXPECT_EQ(lines.size(), 3u + 3u + 11u + 51u + 2u + 3u) << odd;
        const TestBitmap bitmap(100, 100, 0);
        PaintAnalogGauge(bitmap.Dc(), RECT{0, 0, 100, 100}, model);
    }
}

}  // namespace
}  // namespace corvex
