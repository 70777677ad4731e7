// Numbers that were computed and written before, so that a raw word which comes again costs neither.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvex {

// Remembers one text for each low byte of a word: all there is of a field of one byte. One thread.
class NumberMemo {
public:
    // The text of this word's number, until the next Keep; empty when it is not remembered.
    std::string_view Find(std::uint32_t word) const;
    // Ignores a text that is longer than any number's.
    void Keep(std::uint32_t word, std::string_view text);

private:
    struct Entry {
        std::uint32_t word = 0;
        std::uint8_t length = 0;  // 0: none
        std::array<char, 27> text{};
    };
    std::array<Entry, 256> entries_{};
};

}  // namespace corvex
