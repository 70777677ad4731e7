// A text with two colours and the message that may take its place for a time: what the label and the progress bar
// share.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvex {

// In place of a colour 0x00BBGGRR: none chosen. As a back colour it means that of the system's buttons.
inline constexpr std::uint32_t kNoColour = 0xFFFFFFFF;

// On one thread. Texts are in the system's code page and hold no zero byte.
class FlashTextModel {
public:
    static constexpr std::size_t kMaximumLength = 260;

    // What is on show: the message while a flash runs.
    const char* Text() const { return text_.data(); }
    std::size_t Length() const { return std::string_view(Text()).size(); }
    std::uint32_t TextColour() const { return colours_.text; }
    std::uint32_t BackColour() const { return colours_.back; }
    // Copies the text, cut to a capacity in bytes that counts the terminator. The length copied, without it.
    std::size_t CopyText(char* buffer, std::size_t capacity) const;

    // While a flash runs these change what comes after it, and answer what would have come.
    void SetText(std::string_view text);
    std::uint32_t SetTextColour(std::uint32_t colour);
    std::uint32_t SetBackColour(std::uint32_t colour);

    bool Flashing() const { return flashing_; }
    // False, and nothing happens, while another flash runs.
    bool BeginFlash(std::string_view text, std::uint32_t textColour, std::uint32_t backColour);
    // False when none runs.
    bool EndFlash();

private:
    struct Colours {
        std::uint32_t text = 0, back = kNoColour;
    };
    void Store(std::string_view text);

    std::array<char, kMaximumLength + 1> text_{};  // the last byte is never written
    Colours colours_;
    bool flashing_ = false;
    Colours savedColours_;
    std::string savedText_;
};

}  // namespace corvex
