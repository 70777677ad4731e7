#include "controls/digitalreadout/DigitalReadoutModel.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "controls/gauge/GaugeNumberModel.h"

namespace corvex {

namespace {

template <std::size_t Size>
std::uint32_t Copy(std::array<char, Size>& buffer, const char* text) {
    std::size_t length = 0;
    while (text != nullptr && length < Size - 1 && text[length] != '\0')
        ++length;
    // The text may be the buffer itself, handed out by Info.
    if (length != 0) std::memmove(buffer.data(), text, length);
    buffer[length] = '\0';
    return static_cast<std::uint32_t>(length);
}

}  // namespace

int DigitsHeightFor(std::size_t length) {
    constexpr std::array<int, 11> kHeights{50, 50, 50, 50, 44, 40, 34, 30, 28, 26, 24};
    return kHeights[std::min(length, kHeights.size() - 1)];
}

void DigitalReadoutModel::SetInfo(const DigitalReadoutInfo& info) {
    flags_ = info.flags;
    colours_[kReadoutNormalColour] = info.normalColour;
    colours_[kReadoutHighColour] = info.highColour;
    colours_[kReadoutLowColour] = info.lowColour;
    colours_[kReadoutBackground] = info.background;
    colours_[kReadoutFrameColour] = info.frameColour;
    lowLimit_ = info.lowLimit[1];
    floating_ = info.floating;
    decimals_ = info.decimals;
    if (info.title != nullptr) Copy(title_, info.title);
    if (info.units != nullptr) Copy(units_, info.units);
    userWord_ = info.userWord;
    lowLimitEnabled_ = info.lowLimitEnabled;
    highLimitEnabled_ = info.highLimitEnabled;
}

DigitalReadoutInfo DigitalReadoutModel::Info() const {
    DigitalReadoutInfo info{};
    info.flags = flags_;
    info.normalColour = colours_[kReadoutNormalColour];
    info.highColour = colours_[kReadoutHighColour];
    info.lowColour = colours_[kReadoutLowColour];
    info.background = colours_[kReadoutBackground];
    info.frameColour = colours_[kReadoutFrameColour];
    info.lowLimit[0] = info.lowLimit[1] = lowLimit_;
    info.floating = floating_;
    info.decimals = decimals_;
    info.title = Title();
    info.units = Units();
    info.userWord = userWord_;
    info.lowLimitEnabled = lowLimitEnabled_;
    info.highLimitEnabled = highLimitEnabled_;
    return info;
}

void DigitalReadoutModel::SetColour(std::uint32_t index, std::uint32_t colour) {
    if (index < colours_.size()) colours_[index] = colour;
}

std::uint32_t DigitalReadoutModel::Colour(std::uint32_t index) const {
    return index < colours_.size() ? colours_[index] : 0;
}

float DigitalReadoutModel::SetValue(float value) {
    const float former = std::exchange(value_, value);
    colourInForce_ = ChosenColour();
    Print();
    FitDigits();
    return former;
}

float DigitalReadoutModel::SetHighLimit(float limit) {
    const float former = std::exchange(highLimit_, limit);
    SetValue(value_);
    return former;
}

float DigitalReadoutModel::SetLowLimit(float limit) {
    const float former = std::exchange(lowLimit_, limit);
    SetValue(value_);
    return former;
}

void DigitalReadoutModel::SetFormat(std::int32_t floating, std::uint32_t decimals) {
    if (floating != -1) floating_ = floating;
    if (decimals != 0xFFFFFFFF) decimals_ = decimals;
    Print();
}

std::uint32_t DigitalReadoutModel::SetTitle(const char* text) {
    return Copy(title_, text);
}

std::uint32_t DigitalReadoutModel::SetUnits(const char* text) {
    return Copy(units_, text);
}

std::uint32_t DigitalReadoutModel::SetUserWord(std::uint32_t word) {
    return std::exchange(userWord_, word);
}

// Told as "not beyond the value", so a value or limit that is no number has reached it.
std::uint32_t DigitalReadoutModel::ChosenColour() const {
    if (highLimitEnabled_ != 0 && !(highLimit_ > value_)) return colours_[kReadoutHighColour];
    if (lowLimitEnabled_ != 0 && !(lowLimit_ < value_)) return colours_[kReadoutLowColour];
    return colours_[kReadoutNormalColour];
}

void DigitalReadoutModel::Print() {
    const std::string text =
        floating_ != 0 ? FormatDecimals(value_, decimals_, kTextSize) : FormatWhole(value_, decimals_, kTextSize);
    Copy(text_, text.c_str());
}

void DigitalReadoutModel::FitDigits() {
    const std::size_t length = std::strlen(text_.data());
    if (!automaticSize_ || length == sizedLength_) return;
    digitsHeight_ = DigitsHeightFor(length);
    sizedLength_ = length;
}

}  // namespace corvex
