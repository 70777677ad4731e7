#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "controls/chart3d/ColorRamp.h"

namespace corvex {
namespace {

constexpr std::uint32_t kBlue = 0xFF0000, kRed = 0x0000FF;

// Without sectors: how far each channel is from where the hue has it whole.
void ExpectChannels(std::uint32_t colour, double hue, double saturation, double value) {
    for (const int shift : {0, 8, 16}) {
        const double k = std::fmod(5.0 - shift / 4.0 + hue / 60.0, 6.0);
        const double exact = value - value * saturation * std::max(0.0, std::min({k, 4.0 - k, 1.0}));
        ASSERT_NEAR(colour >> shift & 0xFF, exact, 0.501) << hue << " " << saturation << " " << value;
    }
}

TEST(HueColourTest, KnowsTheCornersOfTheWheel) {
    const std::uint32_t wheel[] = {0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF};
    for (int i = 0; i < 6; ++i) {
        const HueColour colour = HueOf(wheel[i]);
        EXPECT_EQ(colour.hue, 60.0F * static_cast<float>(i));
        EXPECT_EQ(colour.saturation, 1.0F);
        EXPECT_EQ(colour.value, 255);
    }
    EXPECT_EQ(HueOf(0).saturation, 0.0F);
}

TEST(HueColourTest, GivesEveryColourBack) {
    for (std::uint32_t red = 0; red < 256; red += 3) {
        for (std::uint32_t green = 0; green < 256; green += 5) {
            for (std::uint32_t blue = 0; blue < 256; blue += 3)
                ASSERT_EQ(ColourOf(HueOf(red | green << 8 | blue << 16)), red | green << 8 | blue << 16);
        }
    }
}

TEST(ColorRampTest, WalksFromBlueThroughGreenToRed) {
    const ColorRamp ramp;
    EXPECT_EQ(ramp.map(0.0F), kBlue);
    EXPECT_EQ(ramp.map(250.0F), 0xFFFF00u);
    EXPECT_EQ(ramp.map(500.0F), 0x00FF00u);
    EXPECT_EQ(ramp.map(625.0F), 0x00FF80u) << "the half of 255 is 128";
    EXPECT_EQ(ramp.map(750.0F), 0x00FFFFu);
    EXPECT_EQ(ramp.map(1000.0F), kRed);
}

TEST(ColorRampTest, BeyondTheRangeIsTheColourOfItsEnd) {
    ColorRamp ramp;
    ramp.setRange(-5.0F, 5.0F);
    EXPECT_EQ(ramp.map(-6.0F), kBlue);
    EXPECT_EQ(ramp.map(0.0F), 0x00FF00u);
    EXPECT_EQ(ramp.map(6.0F), kRed);
    EXPECT_EQ(ramp.map(HUGE_VALF), kRed);
    EXPECT_EQ(ramp.map(-HUGE_VALF), kBlue);
    EXPECT_EQ(ramp.map(std::nanf("")), kBlue);
    ramp.setRange(5.0F, -5.0F);
    EXPECT_EQ(ramp.map(6.0F), kBlue) << "a range that falls";
    EXPECT_EQ(ramp.map(-6.0F), kRed);
    ramp.setRange(7.0F, 7.0F);
    for (const float value : {6.0F, 7.0F, 8.0F, HUGE_VALF, std::nanf("")})
        EXPECT_EQ(ramp.map(value), kBlue) << "no extent";
}

TEST(ColorRampTest, NoRangeOfFloatsOverflows) {
    constexpr float kHuge = std::numeric_limits<float>::max(), kTiny = std::numeric_limits<float>::denorm_min();
    ColorRamp ramp;
    ramp.setRange(-kHuge, kHuge);
    EXPECT_EQ(ramp.map(0.0F), 0x00FF00u);
    EXPECT_EQ(ramp.map(kHuge / 2.0F), 0x00FFFFu);
    EXPECT_EQ(ramp.map(kHuge), kRed);
    ramp.setRange(0.0F, 2.0F * kTiny);
    EXPECT_EQ(ramp.map(kTiny), 0x00FF00u);
}

TEST(ColorRampTest, AModeWalksOnlyItsPart) {
    ColorRamp ramp;
    ramp.SetColours(0x4080C0, 0x00FF00);  // 30 degrees, two thirds, 192; 120 degrees, whole, 255
    const HueColour start = HueOf(0x4080C0);
    const auto middle = [&ramp](RampMode mode) {
        ramp.setMode(mode);
        return ramp.map(500.0F);
    };
    EXPECT_EQ(middle(RampMode::kAll), ColourOf({75.0F, 5.0F / 6.0F, 224}));
    EXPECT_EQ(middle(RampMode::kValue), ColourOf({start.hue, start.saturation, 224}));
    EXPECT_EQ(middle(RampMode::kSaturation), ColourOf({start.hue, 5.0F / 6.0F, 192}));
    EXPECT_EQ(middle(RampMode::kHue), ColourOf({75.0F, start.saturation, 192}));
    for (const std::uint32_t unknown : {1u, 5u, 0xFFFFFFFFu})
        EXPECT_EQ(middle(static_cast<RampMode>(unknown)), 0u);
}

TEST(ColorRampTest, FollowsAWalkInDoubles) {
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round) {
        const std::uint32_t from = random() & 0xFFFFFF, to = random() & 0xFFFFFF;
        ColorRamp ramp;
        ramp.SetColours(from, to);
        ramp.setRange(-20.0F, 80.0F);
        const float height = std::uniform_real_distribution<float>(-30.0F, 90.0F)(random);
        const double part = std::clamp((height + 20.0) / 100.0, 0.0, 1.0);
        const HueColour start = HueOf(from), end = HueOf(to);
        const double value = start.value + part * (end.value - start.value);
        if (std::abs(value - std::floor(value) - 0.5) < 1e-3) continue;
        ExpectChannels(ramp.map(height), start.hue + part * (end.hue - start.hue),
                       start.saturation + part * (end.saturation - start.saturation), std::round(value));
    }
}

}  // namespace
}  // namespace corvex
