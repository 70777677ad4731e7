#include <gtest/gtest.h>

#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/gauge/GaugeFont.h"
#include "controls/gauge/LogicalSquare.h"
#include "tests/controls/window/FigureRecorder.h"

namespace corvex {
namespace {

constexpr std::uint32_t kNormal = 0xFF6464;

// In the logical units of a tile of 100 by 100 in such a client.
int TextHeight(const std::string& text, int fontHeight, int width, int height) {
    const MemoryDc dc;
    const LogicalSquare square(dc.Get(), RECT{0, 0, width, height}, 100, false);
    const OwnedFont font = MakeGaugeFont(fontHeight);
    const SelectGuard selected(dc.Get(), font.Get());
    SIZE size{};
    ::GetTextExtentPoint32A(dc.Get(), text.c_str(), static_cast<int>(text.size()), &size);
    return size.cy;
}

std::string Line(int y, int fontHeight, std::uint32_t colour, const std::string& text) {
    return Printed("text 50,%d align 6 font Arial %d 600 2 32 colour %06x transparent: ", y, fontHeight, colour) + text;
}

Figures Painted(const DigitalReadoutModel& model, int width, int height) {
    return FiguresOf([&](HDC dc) { PaintDigitalReadout(dc, RECT{0, 0, width, height}, model); });
}

DigitalReadoutModel Sample() {
    DigitalReadoutModel model;
    model.SetTitle("Coolant");
    model.SetUnits("deg C");
    model.SetValue(87.5f);  // 87.50
    return model;
}

TEST(DigitalReadoutPaintTest, DrawsGroundDigitsTitleUnitsAndFrameInTheirColours) {
    DigitalReadoutModel model = Sample();
    const int digits = TextHeight("87.50", 40, 500, 200), units = TextHeight("deg C", 10, 500, 200);
    EXPECT_NEAR(digits, 40, 1);
    const auto expected = [&](unsigned frame, unsigned title, unsigned unitsColour, unsigned text, unsigned ground) {
        return Figures{"mapping anisotropic window 100,100 viewport 500,200",
                       Printed("fill 0,0,500,200 brush %06x", ground),
                       Line(50 - digits / 2, 40, text, "87.50"),
                       Line(6, 10, title, "Coolant"),
                       Line(90 - units, 10, unitsColour, "deg C"),
                       Printed("rectangle 0,0,100,100 pen 0 1 %06x brush none", frame)};
    };
    EXPECT_EQ(Painted(model, 500, 200), expected(0, 0, 0, kNormal, 0xFFFFFF));
    for (std::uint32_t i = 0; i < 7; ++i)
        model.SetColour(i, 0x111111 * (i + 1));
    model.EnableHighLimit(1);
    model.SetHighLimit(80.0f);
    EXPECT_EQ(Painted(model, 500, 200), expected(0x111111, 0x222222, 0x333333, 0x555555, 0x777777));
}

TEST(DigitalReadoutPaintTest, SmallClientShowsAPartOfATileOfOneHundredPixels) {
    const Figures lines = Painted(Sample(), 60, 300);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[0], "mapping anisotropic window 100,100 viewport 100,300");
    EXPECT_EQ(lines[1], "fill 0,0,60,300 brush ffffff");
}

TEST(DigitalReadoutPaintTest, FrameIsDrawnForItsFlagAlone) {
    DigitalReadoutModel model = Sample();
    DigitalReadoutInfo info = model.Info();
    for (const std::uint32_t flags : {0xFFFFFFDFu, 0x01u, 0u, 0x20u}) {
        info.flags = flags;
        model.SetInfo(info);
        EXPECT_EQ(FiguresOfKind(Painted(model, 300, 300), "rectangle").empty(), flags != 0x20) << flags;
    }
}

}  // namespace
}  // namespace corvex
