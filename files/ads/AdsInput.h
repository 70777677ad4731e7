// The characters of a legacy text definition, one after the other.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace corvex {

// A line end of CR LF reads as LF alone on every system. A byte 0xFF ends the text as the end of the file does, and an
// end once reached stays.
class AdsInput {
public:
    static constexpr int kEnd = -1;

    // Not owned; must outlive the input.
    AdsInput(const void* bytes, std::size_t size);
    explicit AdsInput(std::FILE* file) : file_(file) {}
    AdsInput(const AdsInput&) = delete;
    AdsInput& operator=(const AdsInput&) = delete;

    // The next character, 0 to 254, or kEnd.
    int Next();
    // Bytes read so far.
    std::uint64_t Position() const { return position_; }
    // True when the file could not be read to its end.
    bool Failed() const { return failed_; }

private:
    int Peek();
    void Step() {
        ++at_;
        ++position_;
    }

    std::FILE* file_ = nullptr;
    std::array<std::uint8_t, 4096> block_{};
    const std::uint8_t* at_ = nullptr;
    const std::uint8_t* stop_ = nullptr;
    std::uint64_t position_ = 0;
    bool ended_ = false;
    bool failed_ = false;
};

}  // namespace corvex
