// The fields of one block of a legacy text definition, taken by their order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "files/ads/AdsInput.h"

namespace corvex {

// A field is what stands between a "=" and the next ";"; the name before it means nothing. Each operation takes the
// next field and stores it, and leaves the target as it is, its default, when there is no further field in the block
// or when the file's format is older than the field. A field that the file ends in is none.
class AdsFieldReader {
public:
    // Longer fields are read to their end and cut to so many characters.
    static constexpr std::size_t kFieldLength = 255;

    explicit AdsFieldReader(AdsInput& input) : input_(input) {}

    // The place behind the "{" of a block has been reached.
    void StartBlock() { ended_ = false; }
    // True behind the "}" of the block, or behind the end of the file.
    bool Ended() const { return ended_; }

    // The format version of the file, for the fields that follow.
    void SetVersion(float version) { version_ = version; }

    void Skip(float minimum = kFirstVersion) { Next(minimum); }
    // Keeps at most size - 1 characters.
    void Text(std::string& out, std::size_t size = kFieldLength + 1, float minimum = kFirstVersion);
    // However long it is: the text of a table is nothing without its end.
    void WholeText(std::string& out);
    void Integer(std::int32_t& out, float minimum = kFirstVersion);
    // Numbers of up to 32 bits, signed or not, read alike.
    void Word(std::uint32_t& out, float minimum = kFirstVersion);
    void HexWord(std::uint32_t& out, float minimum = kFirstVersion);
    void Double(double& out);
    void Float(float& out, float minimum = kFirstVersion);

    // Bytes of the file read so far.
    std::uint64_t Position() const { return input_.Position(); }
    std::uint32_t FieldsTaken() const { return taken_; }
    std::uint32_t FieldsCut() const { return cut_; }

private:
    static constexpr float kFirstVersion = 1.0F;

    // The view lasts until the next field.
    std::optional<std::string_view> Next(float minimum, std::size_t limit = kFieldLength);
    bool SkipToField();

    AdsInput& input_;
    std::string field_;
    float version_ = 0.0F;
    bool ended_ = false;
    std::uint32_t taken_ = 0;
    std::uint32_t cut_ = 0;
};

}  // namespace corvex
