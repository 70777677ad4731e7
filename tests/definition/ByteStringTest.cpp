#include <gtest/gtest.h>

#include <string>

#include "definition/ByteString.h"

namespace corvex {
namespace {

constexpr std::uint8_t kRequestBytes[] = {0xF4, 0x00, 0x0A};

std::string Formatted(const ByteString& bytes, std::size_t size) {
    std::string text(size, '?');
    bytes.FormatTo(text.data(), size);
    return text.c_str();
}

ByteString Request() {
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    return bytes;
}

TEST(ByteString, KeepsZerosLikeAnyOtherByte) {
    const ByteString bytes = Request();
    ASSERT_EQ(bytes.Size(), 3u);
    EXPECT_EQ(bytes.Data()[1], 0u);
    EXPECT_EQ(bytes.Data()[2], 0x0Au);
}

TEST(ByteString, IsClearedByNullOrNoLength) {
    const std::pair<const std::uint8_t*, std::uint32_t> cases[] = {{nullptr, 0}, {nullptr, 3}, {kRequestBytes, 0}};
    for (const auto& [data, size] : cases) {
        ByteString bytes = Request();
        bytes.Set(data, size);
        EXPECT_EQ(bytes.Data(), nullptr);
        EXPECT_EQ(bytes.Size(), 0u);
    }
}

TEST(ByteString, SurvivesASliceOfItself) {
    ByteString bytes = Request();
    bytes.Set(bytes.Data() + 1, 2);
    EXPECT_EQ(Formatted(bytes, 100), "0x00 0x0A ");
}

TEST(ByteString, FormatsWholeBytesWithATrailingBlank) {
    ByteString bytes = Request();
    EXPECT_EQ(Formatted(bytes, 100), "0xF4 0x00 0x0A ");
    EXPECT_EQ(Formatted(bytes, 11), "0xF4 0x00 ");
    EXPECT_EQ(Formatted(bytes, 10), "0xF4 ");
    EXPECT_EQ(Formatted(bytes, 1), "");
    EXPECT_EQ(Formatted(ByteString(), 10), "");
    bytes.FormatTo(nullptr, 10);
    char untouched = 'x';
    bytes.FormatTo(&untouched, 0);
    EXPECT_EQ(untouched, 'x');
}

}  // namespace
}  // namespace corvex
