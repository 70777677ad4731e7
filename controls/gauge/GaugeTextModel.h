// A text that a gauge keeps for itself: there, empty, or absent.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace corvex {

// On one thread.
class GaugeText {
public:
    // Texts from this many characters on are kept, but not drawn.
    static constexpr std::size_t kDrawnLimit = 100;

    // Copies the text up to its zero byte. Absent for a null text or a length of 0. A text longer than the length told
    // becomes an empty one, not a cut one: callers count on telling the full length. Never reads beyond length + 1
    // bytes.
    void Set(const char* text, std::size_t length);
    // Copies the text with a terminator, cut to the capacity in bytes; an absent one as an empty one. Nothing happens
    // for a null buffer or no capacity.
    void CopyTo(char* buffer, std::size_t capacity) const;

    bool Present() const { return text_.has_value(); }
    // Empty for an absent one.
    std::string_view View() const { return text_ ? std::string_view(*text_) : std::string_view(); }
    // What is drawn of it: all or nothing.
    std::string_view Drawn() const { return View().size() < kDrawnLimit ? View() : std::string_view(); }

private:
    std::optional<std::string> text_;
};

}  // namespace corvex
