#include <gtest/gtest.h>

#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/gauge/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

using Lines = std::vector<std::string>;

constexpr std::uint32_t kNormal = 0xFF6464;

std::string Printed(const char* format, auto... values) {
    char text[192];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

// In the logical units of a tile of 100 by 100 in such a client.
int TextHeight(const std::string& text, int fontHeight, int width, int height) {
    const MemoryDc dc;
    ::SetMapMode(dc.Get(), MM_ANISOTROPIC);
    ::SetWindowExtEx(dc.Get(), 100, 100, nullptr);
    ::SetViewportExtEx(dc.Get(), width, height, nullptr);
    const OwnedFont font(
        ::CreateFontA(fontHeight, 0, 0, 0, 600, FALSE, FALSE, FALSE, ANSI_CHARSET, 0, 0, 2, 0x32, "Arial"));
    const SelectGuard selected(dc.Get(), font.Get());
    SIZE size{};
    ::GetTextExtentPoint32A(dc.Get(), text.c_str(), static_cast<int>(text.size()), &size);
    return size.cy;
}

std::string Line(int y, int fontHeight, std::uint32_t colour, const std::string& text) {
    return Printed("text 50,%d align 6 font Arial %d 600 2 32 colour %06x transparent: ", y, fontHeight, colour) + text;
}

Lines Painted(const DigitalReadoutModel& model, int width, int height) {
    return FiguresOf([&](HDC dc) { PaintDigitalReadout(dc, RECT{0, 0, width, height}, model); });
}

DigitalReadoutModel Sample() {
    DigitalReadoutModel model;
    model.SetTitle("Coolant");
    model.SetUnits("deg C");
    model.SetValue(87.5f);  // 87.50
    return model;
}

TEST(DigitalReadoutPaintTest, DrawsGroundDigitsTitleUnitsAndFrame) {
    const int digits = TextHeight("87.50", 40, 300, 300), units = TextHeight("deg C", 10, 300, 300);
    EXPECT_NEAR(digits, 40, 1);
    EXPECT_EQ(Painted(Sample(), 300, 300),
              (Lines{"mapping anisotropic window 100,100 viewport 300,300", "fill 0,0,300,300 brush ffffff",
                     Line(50 - digits / 2, 40, kNormal, "87.50"), Line(6, 10, 0, "Coolant"),
                     Line(90 - units, 10, 0, "deg C"), "rectangle 0,0,100,100 pen 0 1 000000 brush none"}));
}

TEST(DigitalReadoutPaintTest, DrawsInItsColours) {
    DigitalReadoutModel model = Sample();
    for (std::uint32_t i = 0; i < 7; ++i)
        model.SetColour(i, 0x111111 * (i + 1));
    model.EnableHighLimit(1);
    model.SetHighLimit(80.0f);
    const int digits = TextHeight("87.50", 40, 500, 200), units = TextHeight("deg C", 10, 500, 200);
    EXPECT_EQ(Painted(model, 500, 200),
              (Lines{"mapping anisotropic window 100,100 viewport 500,200", "fill 0,0,500,200 brush 777777",
                     Line(50 - digits / 2, 40, 0x555555, "87.50"), Line(6, 10, 0x222222, "Coolant"),
                     Line(90 - units, 10, 0x333333, "deg C"), "rectangle 0,0,100,100 pen 0 1 111111 brush none"}));
}

TEST(DigitalReadoutPaintTest, SmallClientShowsAPartOfATileOfOneHundredPixels) {
    const Lines lines = Painted(Sample(), 60, 300);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[0], "mapping anisotropic window 100,100 viewport 100,300");
    EXPECT_EQ(lines[1], "fill 0,0,60,300 brush ffffff");
    EXPECT_EQ(Painted(Sample(), 60, 40)[0], "mapping anisotropic window 100,100 viewport 100,100");
}

TEST(DigitalReadoutPaintTest, FrameIsDrawnForItsFlagAlone) {
    DigitalReadoutModel model = Sample();
    DigitalReadoutInfo info = model.Info();
    for (const std::uint32_t flags : {0xFFFFFFDFu, 0x01u, 0u}) {
        info.flags = flags;
        model.SetInfo(info);
        EXPECT_TRUE(FiguresOfKind(Painted(model, 300, 300), "rectangle").empty()) << flags;
    }
    info.flags = 0x20;
    model.SetInfo(info);
    EXPECT_EQ(FiguresOfKind(Painted(model, 300, 300), "rectangle").size(), 1u);
}

TEST(DigitalReadoutPaintTest, DigitsStandInTheMiddleInEverySize) {
    for (const std::uint32_t length : {2u, 4u, 7u, 10u, 12u}) {
        DigitalReadoutModel model;
        model.SetFormat(0, length);
        model.SetValue(1.0f);
        const std::string text = std::string(length - 1, '0') + "1";
        const int height = DigitsHeightFor(length), extent = TextHeight(text, height, 400, 150);
        const Lines texts = FiguresOfKind(Painted(model, 400, 150), "text");
        ASSERT_FALSE(texts.empty());
        EXPECT_EQ(texts[0], Line(50 - extent / 2, height, kNormal, text));
    }
}

TEST(DigitalReadoutPaintTest, LeavesTheContextAsItWasAndNoObjectBehind) {
    const TestBitmap bitmap(120, 90, 0);
    const std::size_t before = LiveGdiObjects();
    const HGDIOBJ font = ::GetCurrentObject(bitmap.Dc(), OBJ_FONT), pen = ::GetCurrentObject(bitmap.Dc(), OBJ_PEN);
    for (int i = 0; i < 1000; ++i)
        PaintDigitalReadout(bitmap.Dc(), RECT{0, 0, 120, 90}, Sample());
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(::GetCurrentObject(bitmap.Dc(), OBJ_FONT), font);
    EXPECT_EQ(::GetCurrentObject(bitmap.Dc(), OBJ_PEN), pen);
    EXPECT_EQ(::GetMapMode(bitmap.Dc()), MM_TEXT);
}

}  // namespace
}  // namespace corvex
