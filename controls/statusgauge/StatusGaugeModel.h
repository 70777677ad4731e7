// What a status gauge shows: the word for its state and the colours for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "controls/gauge/GaugeTextModel.h"

namespace corvex {

// On one thread. Colours are 0x00BBGGRR.
struct StatusGaugeModel {
    static constexpr std::uint32_t kRoundFlag = 0x80;  // units are as wide as they are high
    static constexpr std::size_t kWordSize = 255;      // with the terminator; a longer word is cut

    std::uint32_t flags = 1;
    std::uint32_t titleColour = 0x000000;
    std::uint32_t trueColour = 0x000000, falseColour = 0x000000;
    std::uint32_t trueFill = 0x00FF00, falseFill = 0x0000FF;
    std::uint32_t state = 0;
    GaugeText title, trueText, falseText;

    // 0 clears all flags.
    void AddFlags(std::uint32_t bits);
    bool Round() const { return (flags & kRoundFlag) != 0; }

    // Odd and wanted: any state but 0 shows the word of the true one, but only 1 shows its colours.
    std::string_view Word() const;
    std::uint32_t WordColour() const { return state == 1 ? trueColour : falseColour; }
    std::uint32_t WordFill() const { return state == 1 ? trueFill : falseFill; }

    // Who asks for the false text gets this one. Odd and wanted: absent without a title, whatever the text.
    const GaugeText& ToldFalseText() const { return title.Present() ? falseText : title; }
};

}  // namespace corvex
