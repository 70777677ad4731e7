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

TEST_F(ProgressBarTest, KeepsQuietForShortWork) {
    ProgressBar bar(err_, true, clock_);
    bar.Update(1, 2);
    clock_.AdvanceMilliseconds(499);
    bar.Update(1, 2);
    bar.Clear();
    EXPECT_EQ(Drawn(), "");
}

TEST_F(ProgressBarTest, DrawsTheShareDone) {
    ProgressBar bar(err_, true, clock_);
    clock_.AdvanceMilliseconds(500);
    bar.Update(1, 2);
    EXPECT_EQ(Drawn(), std::string("\r[").append(20, '#').append(20, ' ').append("]  50 %"));
}

TEST_F(ProgressBarTest, DrawsTenTimesASecond) {
    ProgressBar bar(err_, true, clock_);
    clock_.AdvanceMilliseconds(500);
    bar.Update(1, 4);
    EXPECT_NE(Drawn(), "");
    clock_.AdvanceMilliseconds(99);
    bar.Update(2, 4);
    EXPECT_EQ(Drawn(), "");
    clock_.AdvanceMilliseconds(1);
    bar.Update(3, 4);
    EXPECT_NE(Drawn().find(" 75 %"), std::string::npos);
}

TEST_F(ProgressBarTest, NeverPassesTheEnd) {
    ProgressBar bar(err_, true, clock_);
    clock_.AdvanceMilliseconds(500);
    bar.Update(9, 4);
    EXPECT_NE(Drawn().find("] 100 %"), std::string::npos);
    clock_.AdvanceMilliseconds(500);
    bar.Update(0, 0);
    EXPECT_NE(Drawn().find("] 100 %"), std::string::npos);
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
