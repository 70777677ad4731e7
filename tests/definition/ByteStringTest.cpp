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

TEST(ByteString, KeepsZerosLikeAnyOtherByte) {
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    ASSERT_EQ(bytes.Size(), 3u);
    EXPECT_EQ(bytes.Data()[1], 0u);
    EXPECT_EQ(bytes.Data()[2], 0x0Au);
}

TEST(ByteString, IsClearedByNullOrNoLength) {
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    bytes.Set(nullptr, 0);
    EXPECT_EQ(bytes.Data(), nullptr);
    EXPECT_EQ(bytes.Size(), 0u);
    bytes.Set(kRequestBytes, 3);
    bytes.Set(kRequestBytes, 0);
    EXPECT_EQ(bytes.Size(), 0u);
    bytes.Set(nullptr, 3);
    EXPECT_EQ(bytes.Size(), 0u);
}

TEST(ByteString, SurvivesASliceOfItself) {
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    bytes.Set(bytes.Data() + 1, 2);
    ASSERT_EQ(bytes.Size(), 2u);
    EXPECT_EQ(bytes.Data()[1], 0x0Au);
}

TEST(ByteString, FormatsEachByteWithATrailingBlank) {
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    EXPECT_EQ(Formatted(bytes, 100), "0xF4 0x00 0x0A ");
}

TEST(ByteString, FormatsWholeBytesOnly) {
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    EXPECT_EQ(Formatted(bytes, 11), "0xF4 0x00 ");
    EXPECT_EQ(Formatted(bytes, 10), "0xF4 ");
    EXPECT_EQ(Formatted(bytes, 1), "");
}

TEST(ByteString, FormatsNothingOfNothing) {
    EXPECT_EQ(Formatted(ByteString(), 10), "");
    ByteString bytes;
    bytes.Set(kRequestBytes, 3);
    bytes.FormatTo(nullptr, 10);
    char untouched = 'x';
    bytes.FormatTo(&untouched, 0);
    EXPECT_EQ(untouched, 'x');
}

}  // namespace
}  // namespace corvex
