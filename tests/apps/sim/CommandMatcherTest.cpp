#include <gtest/gtest.h>

#include "apps/sim/CommandMatcher.h"
#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using Found = std::vector<std::size_t>;

Found FeedAll(CommandMatcher& matcher, const Bytes& bytes) {
    Found found;
    for (const std::uint8_t byte : bytes) {
        matcher.Feed(byte);
        while (const auto index = matcher.Next())
            found.push_back(*index);
    }
    return found;
}

Found Pause(CommandMatcher& matcher) {
    Found found;
    while (const auto index = matcher.NextAfterPause())
        found.push_back(*index);
    return found;
}

TEST(CommandMatcher, FindsRequestsBackToBack) {
    CommandMatcher matcher({{1, 2, 3}, {4, 5}});
    EXPECT_EQ(FeedAll(matcher, {1, 2, 3, 4, 5, 1, 2, 3}), (Found{0, 1, 0}));
    EXPECT_FALSE(matcher.IsWaiting());
}

TEST(CommandMatcher, SkipsNoiseAndBrokenRequests) {
    CommandMatcher matcher({{1, 2, 3}});
    EXPECT_EQ(FeedAll(matcher, {9, 1, 1, 2, 1, 2, 3, 9, 9, 2, 3}), (Found{0}));
    EXPECT_EQ(FeedAll(matcher, {1, 2}), Found{});
    EXPECT_EQ(FeedAll(matcher, {1, 2, 3}), (Found{0}));
}

TEST(CommandMatcher, PrefersTheLongestRequest) {
    CommandMatcher matcher({{1, 2}, {1, 2, 3, 4}, {2, 3}});
    EXPECT_EQ(FeedAll(matcher, {1, 2, 3, 4}), (Found{1}));
    EXPECT_EQ(FeedAll(matcher, {1, 2, 3, 9}), (Found{0}));
}

TEST(CommandMatcher, DecidesAHeldRequestAtAPause) {
    CommandMatcher matcher({{1, 2}, {1, 2, 3, 4}});
    EXPECT_EQ(FeedAll(matcher, {1, 2}), Found{});
    EXPECT_TRUE(matcher.IsWaiting());
    EXPECT_EQ(Pause(matcher), (Found{0}));
    EXPECT_FALSE(matcher.IsWaiting());
}

TEST(CommandMatcher, FindsTheRequestBehindADisprovedOne) {
    CommandMatcher matcher({{1, 1, 2, 3}, {1, 2}});
    EXPECT_EQ(FeedAll(matcher, {1, 1, 2}), Found{});
    EXPECT_EQ(FeedAll(matcher, {9}), (Found{1}));
}

TEST(CommandMatcher, ForgetsABegunRequestAtAPause) {
    CommandMatcher matcher({{1, 2, 3}});
    EXPECT_EQ(FeedAll(matcher, {1, 2}), Found{});
    EXPECT_EQ(Pause(matcher), Found{});
    EXPECT_EQ(FeedAll(matcher, {3}), Found{});
}

TEST(CommandMatcher, IgnoresEmptyPatternsAndTakesTheFirstOfEqualOnes) {
    CommandMatcher matcher({{}, {7, 8}, {7, 8}});
    EXPECT_EQ(FeedAll(matcher, {7, 8, 7, 8}), (Found{1, 1}));
}

TEST(CommandMatcher, FindsEveryRequestInAStreamOfNoise) {
    const Bytes request{0xF4, 0x57, 0x01, 0x00, 0xB4};
    CommandMatcher matcher({request});
    std::uint32_t random = 12345;
    for (int i = 0; i < 500; ++i) {
        Bytes stream;
        for (int j = 0; j < i % 11; ++j) {
            random = random * 1664525U + 1013904223U;
            stream.push_back(static_cast<std::uint8_t>(random >> 24));
        }
        if (!stream.empty() && stream.back() == 0xF4) stream.back() = 0;
        stream.insert(stream.end(), request.begin(), request.end());
        ASSERT_EQ(FeedAll(matcher, stream), (Found{0})) << i;
    }
}

}  // namespace
}  // namespace corvex
