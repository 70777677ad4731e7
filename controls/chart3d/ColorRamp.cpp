#include "controls/chart3d/ColorRamp.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr float kSectorDegrees = 60.0F;
constexpr int kSectors = 6;

float ChannelOf(std::uint32_t colour, int shift) {
    return static_cast<float>(colour >> shift & 0xFF);
}

std::uint32_t NearestByte(float value) {
    // std::lround would be a call, three times for each quad of a paint.
    return static_cast<std::uint32_t>(static_cast<double>(std::clamp(value, 0.0F, 255.0F)) + 0.5);
}

float Between(float start, float end, float part) {
    return start + (end - start) * part;
}

}  // namespace

HueColour HueOf(std::uint32_t colour) {
    const float red = ChannelOf(colour, 0), green = ChannelOf(colour, 8), blue = ChannelOf(colour, 16);
    const float most = std::max({red, green, blue}), extent = most - std::min({red, green, blue});
    HueColour result{0.0F, 0.0F, static_cast<std::uint8_t>(most)};
    if (extent == 0.0F) return result;
    result.saturation = extent / most;
    float sector = 0.0F;
    if (most == red)
        sector = (green - blue) / extent;
    else if (most == green)
        sector = 2.0F + (blue - red) / extent;
    else
        sector = 4.0F + (red - green) / extent;
    if (sector < 0.0F) sector += static_cast<float>(kSectors);
    result.hue = sector * kSectorDegrees;
    return result;
}

std::uint32_t ColourOf(HueColour colour) {
    const float value = colour.value;
    const float turn = colour.hue / kSectorDegrees;
    const int sector = static_cast<int>(turn);
    const float within = turn - static_cast<float>(sector);
    const std::uint32_t most = colour.value;
    const std::uint32_t least = NearestByte(value * (1.0F - colour.saturation));
    const std::uint32_t falling = NearestByte(value * (1.0F - colour.saturation * within));
    const std::uint32_t rising = NearestByte(value * (1.0F - colour.saturation * (1.0F - within)));
    const auto packed = [](std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
        return red | green << 8 | blue << 16;
    };
    switch (sector % kSectors) {
        case 0:
            return packed(most, rising, least);
        case 1:
            return packed(falling, most, least);
        case 2:
            return packed(least, most, rising);
        case 3:
            return packed(least, falling, most);
        case 4:
            return packed(rising, least, most);
        default:
            return packed(most, least, falling);
    }
}

void ColorRamp::SetColours(std::uint32_t start, std::uint32_t end) {
    start_ = HueOf(start);
    end_ = HueOf(end);
}

void ColorRamp::setRange(float minimum, float maximum) {
    minimum_ = minimum;
    maximum_ = maximum;
}

std::uint32_t ColorRamp::map(float value) const {
    // In doubles the extent of no two floats overflows.
    const double extent = static_cast<double>(maximum_) - static_cast<double>(minimum_);
    const double risen = static_cast<double>(value) - static_cast<double>(minimum_);
    float part = 0.0F;
    if (extent != 0.0 && risen / extent > 0.0) part = static_cast<float>(std::min(risen / extent, 1.0));

    HueColour colour = start_;
    const bool all = mode_ == RampMode::kAll;
    if (!all && mode_ != RampMode::kValue && mode_ != RampMode::kSaturation && mode_ != RampMode::kHue) return 0;
    if (all || mode_ == RampMode::kHue) colour.hue = Between(start_.hue, end_.hue, part);
    if (all || mode_ == RampMode::kSaturation) colour.saturation = Between(start_.saturation, end_.saturation, part);
    if (all || mode_ == RampMode::kValue)
        colour.value = static_cast<std::uint8_t>(NearestByte(Between(start_.value, end_.value, part)));
    return ColourOf(colour);
}

}  // namespace corvex
