// Playback of the tool as a program, as a person stops it.
#include <gtest/gtest.h>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

std::vector<std::string> PlayExample() {
    return {"play", "-d", Example("harrier-8192.adx"), Example("harrier-8192.xdl"), "--plain"};
}

TEST(PlayProgramTest, StopsAtCtrlC) {
    const ToolResult result = RunTool(PlayExample(), "timeout --foreground --preserve-status -s INT 1 ");
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out.find("0.000 POLL: "), 0U) << result.out;
    EXPECT_NE(result.out.find(" good replies in "), std::string::npos) << result.out;
}

TEST(PlayProgramTest, EndsWhenNobodyReadsItsOutput) {
    const ToolResult result = RunTool(PlayExample(), "sh -c '\"$@\" | head -n 1' sh ");
    EXPECT_EQ(result.out.find("0.000 POLL: "), 0U) << result.out;
    EXPECT_NE(result.err.find("nobody takes the output any more"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace corvex
