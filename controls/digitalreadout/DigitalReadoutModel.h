// What a digital readout shows: the value as text, its colour and its size.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "controls/digitalreadout/DigitalReadoutInfo.h"

namespace corvex {

// On one thread.
class DigitalReadoutModel {
public:
    static constexpr std::size_t kTitleSize = 80, kUnitsSize = 50, kTextSize = 25;  // with the terminator
    static constexpr std::uint32_t kFrameFlag = 0x20;
    static constexpr int kTitleHeight = 10, kUnitsHeight = 10;  // logical units, as all heights

    void SetInfo(const DigitalReadoutInfo& info);
    DigitalReadoutInfo Info() const;

    // An index that there is none of is ignored, and reads 0.
    void SetColour(std::uint32_t index, std::uint32_t colour);
    std::uint32_t Colour(std::uint32_t index) const;

    // Chooses the colour in force, prints the value, and chooses the size when the count of characters has changed. The
    // old value. A limit counts from the value that equals it on; the high one wins.
    float SetValue(float value);
    // The old limit; the value is set again.
    float SetHighLimit(float limit);
    float SetLowLimit(float limit);
    float HighLimit() const { return highLimit_; }
    float LowLimit() const { return lowLimit_; }
    void EnableHighLimit(std::uint32_t flag) { highLimitEnabled_ = flag; }
    void EnableLowLimit(std::uint32_t flag) { lowLimitEnabled_ = flag; }

    // -1 and 0xFFFFFFFF keep what there is. Prints the value again; odd and wanted: in the size of the former text.
    void SetFormat(std::int32_t floating, std::uint32_t decimals);
    void SetAutomaticSize(bool automatic) { automaticSize_ = automatic; }

    // The count of characters kept. Null is an empty text.
    std::uint32_t SetTitle(const char* text);
    std::uint32_t SetUnits(const char* text);
    std::uint32_t SetUserWord(std::uint32_t word);
    std::uint32_t UserWord() const { return userWord_; }

    const char* Title() const { return title_.data(); }
    const char* Units() const { return units_.data(); }
    const char* Text() const { return text_.data(); }
    std::uint32_t ColourInForce() const { return colourInForce_; }
    int DigitsHeight() const { return digitsHeight_; }
    bool HasFrame() const { return (flags_ & kFrameFlag) != 0; }

private:
    std::uint32_t ChosenColour() const;
    void Print();
    void FitDigits();

    std::array<char, kTitleSize> title_{};
    std::array<char, kUnitsSize> units_{};
    std::array<char, kTextSize> text_{};
    std::uint32_t flags_ = 0x21;
    std::array<std::uint32_t, kReadoutColourCount> colours_{0, 0, 0, 0xFF6464, 0x0000FF, 0x00FF00, 0xFFFFFF};
    std::uint32_t colourInForce_ = 0xFF6464;
    int digitsHeight_ = 34;
    std::int32_t floating_ = 1;
    std::uint32_t decimals_ = 2;
    bool automaticSize_ = true;
    std::size_t sizedLength_ = 1;  // of the text that the height was chosen for
    float value_ = 0.0f, lowLimit_ = -1.0f, highLimit_ = 256.0f;
    std::uint32_t lowLimitEnabled_ = 0, highLimitEnabled_ = 0;
    std::uint32_t userWord_ = 0;
};

// In which digits of that many characters are drawn.
int DigitsHeightFor(std::size_t length);

}  // namespace corvex
