#include <gtest/gtest.h>

#include <sstream>

#include "apps/cli/ProgressBar.h"
#include "tests/support/VirtualClock.h"

namespace corvex {
namespace {

class ProgressBarTest : public ::testing::Test {
protected:
    // What was drawn since the last call.
    std::string Drawn() {
        std::string text = err_.str();
        err_.str("");
        return text;
    }
    test::VirtualClock clock_;
    std::ostringstream err_;
};

TEST_F(ProgressBarTest, DrawsTheShareDoneTenTimesASecondButNotForShortWork) {
    ProgressBar bar(err_, true, clock_);
    const auto after = [&](int milliseconds, std::uint64_t done, std::uint64_t all) {
        clock_.AdvanceMilliseconds(milliseconds);
        bar.Update(done, all);
        return Drawn();
    };
    EXPECT_EQ(after(499, 1, 2), "");
    EXPECT_EQ(after(1, 1, 2), std::string("\r[").append(20, '#').append(20, ' ').append("]  50 %"));
    EXPECT_EQ(after(99, 3, 4), "");
    EXPECT_NE(after(1, 3, 4).find(" 75 %"), std::string::npos);
    EXPECT_NE(after(500, 9, 4).find("] 100 %"), std::string::npos);
    EXPECT_NE(after(500, 0, 0).find("] 100 %"), std::string::npos);
}

TEST_F(ProgressBarTest, LeavesTheLineEmpty) {
    std::string line;
    {
        ProgressBar bar(err_, true, clock_);
        clock_.AdvanceMilliseconds(500);
        bar.Update(4, 4);
        line = Drawn();
    }
    EXPECT_EQ(Drawn(), std::string("\r").append(line.size() - 1, ' ').append("\r"));
}

TEST_F(ProgressBarTest, ShowsNothingWhereNobodyLooks) {
    ProgressBar bar(err_, false, clock_);
    clock_.AdvanceMilliseconds(5000);
    bar.Update(1, 2);
    bar.Clear();
    EXPECT_EQ(Drawn(), "");
    EXPECT_EQ(clock_.Readings(), 0U);
}

}  // namespace
}  // namespace corvex
