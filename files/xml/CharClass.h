#pragma once

#include <array>
#include <cstdint>

namespace corvex {

// What a byte of narrow input can be, one bit each, so that runs are found with one look-up a byte. The bits named for
// a stop tell where a run of that kind ends; each includes NUL, LF and CR, which the caller must see singly.
enum CharClass : std::uint8_t {
    kTextStop = 0x01,         // also < and &
    kValueStop = 0x02,        // also < & and both quotes
    kNameStop = 0x04,         // everything that cannot go on a name
    kCommentStop = 0x08,      // also the hyphen
    kInstructionStop = 0x10,  // also >
    kSectionStop = 0x20,      // also ]
    kNonBlank = 0x40,         // neither space, tab, LF nor CR
};

// Letters are those of ASCII alone, whatever the locale.
constexpr bool IsLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
constexpr bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}
constexpr bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\n' || c == u'\r' || c == u'\t';
}
constexpr bool IsNameStart(char16_t c) {
    return IsLetter(c) || c == u'_' || c == u':';
}
constexpr bool IsNameChar(char16_t c) {
    return IsNameStart(c) || IsDigit(c) || c == u'-' || c == u'.';
}

constexpr std::uint8_t ClassOf(unsigned char byte) {
    const char16_t c = byte;
    const bool single = c == 0 || c == u'\n' || c == u'\r';
    unsigned kind = 0;
    if (single || c == u'<' || c == u'&') kind |= kTextStop;
    if (single || c == u'<' || c == u'&' || c == u'"' || c == u'\'') kind |= kValueStop;
    if (!IsNameChar(c)) kind |= kNameStop;
    if (single || c == u'-') kind |= kCommentStop;
    if (single || c == u'>') kind |= kInstructionStop;
    if (single || c == u']') kind |= kSectionStop;
    if (!IsBlank(c)) kind |= kNonBlank;
    return static_cast<std::uint8_t>(kind);
}

inline constexpr std::array<std::uint8_t, 256> kCharClass = [] {
    std::array<std::uint8_t, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        table[byte] = ClassOf(static_cast<unsigned char>(byte));
    }
    return table;
}();

}  // namespace corvex
