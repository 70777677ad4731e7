#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

#include "files/ads/AdsInput.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

std::string Drain(AdsInput& input) {
    std::string text;
    for (int c = input.Next(); c != AdsInput::kEnd; c = input.Next())
        text.push_back(static_cast<char>(c));
    return text;
}

std::string ReadWhole(const std::string& bytes) {
    AdsInput input(bytes.data(), bytes.size());
    return Drain(input);
}

TEST(AdsInput, GivesEveryCharacterOnceUpToAByte255) {
    EXPECT_EQ(ReadWhole("a\tb\xFE\x80"), "a\tb\xFE\x80");
    EXPECT_EQ(ReadWhole(""), "");
    EXPECT_EQ(ReadWhole("ab\xFFzz"), "ab");
    AdsInput ended("\xFFzz", 3);
    EXPECT_EQ(ended.Next(), AdsInput::kEnd);
    EXPECT_EQ(ended.Next(), AdsInput::kEnd);
    EXPECT_EQ(AdsInput(nullptr, 5).Next(), AdsInput::kEnd);
}

TEST(AdsInput, TakesALineEndOfTwoCharactersForOne) {
    EXPECT_EQ(ReadWhole("a\r\nb\rc\r"), "a\nb\rc\r");
    AdsInput input("a\r\nb", 4);
    Drain(input);
    EXPECT_EQ(input.Position(), 4u);
}

TEST(AdsInput, FindsALineEndThatTwoBlocksOfAFileShare) {
    const std::string bytes = std::string(4095, 'x') + "\r\n" + std::string(5000, 'y');
    const test::TestFolder folder;
    const std::string path = folder.Put("a.ads", bytes);
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    ASSERT_NE(file, nullptr);
    AdsInput input(file.get());
    EXPECT_EQ(Drain(input), std::string(4095, 'x') + "\n" + std::string(5000, 'y'));
    EXPECT_FALSE(input.Failed());
}

}  // namespace
}  // namespace corvex
