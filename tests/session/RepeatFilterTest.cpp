#include <gtest/gtest.h>

#include "session/RepeatFilter.h"
#include "tests/support/VirtualClock.h"

namespace corvex::test {
namespace {

TEST(RepeatFilterTest, KeyThatIsHeldDownIsNewOnce) {
    VirtualClock clock;
    const ScopedClock scope(clock);
    RepeatFilter filter;
    EXPECT_TRUE(filter.IsNew("a"));
    for (int i = 0; i < 100; ++i) {
        clock.AdvanceMilliseconds(1400);
        EXPECT_FALSE(filter.IsNew("a"));
    }
    EXPECT_TRUE(filter.IsNew("b"));
    EXPECT_TRUE(filter.IsNew("a"));
    clock.AdvanceMilliseconds(1600);
    EXPECT_TRUE(filter.IsNew("a"));
}

}  // namespace
}  // namespace corvex::test
