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

TEST(CommandMatcher, FindsRequestsWhereverTheyStand) {
    const struct {
        const char* name;
        std::vector<Bytes> requests;
        Bytes first;
        Found found, atPause;  // what `first` brings, and a pause behind it
        Bytes second = {};
        Found foundThen = {};
    } rows[] = {
        {"back to back", {{1, 2, 3}, {4, 5}}, {1, 2, 3, 4, 5, 1, 2, 3}, {0, 1, 0}, {}},
        {"noise and broken requests", {{1, 2, 3}}, {9, 1, 1, 2, 1, 2, 3, 9, 9, 2, 3}, {0}, {}},
        {"the longest", {{1, 2}, {1, 2, 3, 4}, {2, 3}}, {1, 2, 3, 4}, {1}, {}, {1, 2, 3, 9}, {0}},
        {"one that is held until a pause", {{1, 2}, {1, 2, 3, 4}}, {1, 2}, {}, {0}},
        {"one behind a disproved one", {{1, 1, 2, 3}, {1, 2}}, {1, 1, 2, 9}, {1}, {}},
        {"one that a pause cuts", {{1, 2, 3}}, {1, 2}, {}, {}, {3}, {}},
        {"a broken one before a pause", {{1, 2, 3}}, {1, 2, 1, 2}, {}, {}, {1, 2, 3}, {0}},
        {"the first of equal ones", {{}, {7, 8}, {7, 8}}, {7, 8, 7, 8}, {1, 1}, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        CommandMatcher matcher(row.requests);
        EXPECT_EQ(FeedAll(matcher, row.first), row.found);
        EXPECT_TRUE(matcher.IsWaiting() || row.atPause.empty());
        EXPECT_EQ(Pause(matcher), row.atPause);
        EXPECT_FALSE(matcher.IsWaiting());
        EXPECT_EQ(FeedAll(matcher, row.second), row.foundThen);
    }
}

}  // namespace
}  // namespace corvex
