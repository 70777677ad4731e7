#include <gtest/gtest.h>

#include <string>

#include "export/text/NumberMemo.h"

namespace corvex {
namespace {

TEST(NumberMemoTest, KnowsNothingAtFirstAndThenEveryWordOfAByte) {
    NumberMemo memo;
    for (std::uint32_t word = 0; word < 256; ++word) {
        EXPECT_TRUE(memo.Find(word).empty());
        memo.Keep(word, std::to_string(word));
    }
    for (std::uint32_t word = 0; word < 256; ++word)
        EXPECT_EQ(memo.Find(word), std::to_string(word));
}

TEST(NumberMemoTest, TakesNoWordForAnother) {
    NumberMemo memo;
    memo.Keep(0x112, "a");
    EXPECT_TRUE(memo.Find(0x12).empty());
    EXPECT_TRUE(memo.Find(0x01000112).empty());
    memo.Keep(0x212, "b");
    EXPECT_TRUE(memo.Find(0x112).empty());
    EXPECT_EQ(memo.Find(0x212), "b");
}

TEST(NumberMemoTest, ForgetsRatherThanCut) {
    NumberMemo memo;
    memo.Keep(1, "-2.2250738585072014e-308");
    EXPECT_EQ(memo.Find(1), "-2.2250738585072014e-308");
    memo.Keep(2, std::string(28, '9'));
    EXPECT_TRUE(memo.Find(2).empty());
}

}  // namespace
}  // namespace corvex
