#include <gtest/gtest.h>

#include "tests/apps/cli/ToolRunner.h"

namespace corvex {
namespace {

TEST(WindowsScanProgramTest, SaysThatTheSimulatorNeedsAPseudoTerminal) {
    const ToolResult result = RunTool({"scan", "--simulate", "--definition", Example("harrier-8192.adx")});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: --simulate: Windows has no pseudo-terminals; name a serial port\n");
}

TEST(WindowsScanProgramTest, SaysThatThereIsNoSqlite) {
    const ToolResult result = RunTool(
        {"decode", "--definition", Example("harrier-8192.adx"), Example("harrier-8192.xdl"), "--sqlite", "out.db"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: this build has no SQLite; write CSV with -o and import that\n");
}

}  // namespace
}  // namespace corvex
