// What only a real process and a real disk can show.

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

// Far more text than a pipe holds.
test::LogBytes LongLog() {
    test::LogBytes log = BeginLog({kPollHash});
    for (std::uint32_t i = 0; i < 40000; ++i)
        log.Record(0, i * 83, PollReply({static_cast<std::uint8_t>(i)}));
    return log.MarkEnd();
}

class DecodeProgramTest : public ::testing::Test {
protected:
    // The exit code, and what came on standard error.
    ToolResult Run(const std::string& where) {
        const TempFile code("", ".code"), err("", ".err");
        const std::string line = "( " CORVEX_CLI " decode -d " + adx_.Path() + ' ' + xdl_.Path() + ' ' + where + " 2>" +
                                 err.Path() + "; echo $? >" + code.Path() + " ) " + pipe_;
        EXPECT_EQ(std::system(line.c_str()), 0);
        return {std::atoi(ReadFile(code.Path()).c_str()), "", ReadFile(err.Path())};
    }

    const TempFile adx_{DefinitionWith(ValueText("RPM", "X"))};
    const LogTempFile xdl_{LongLog()};
    std::string pipe_;
};

TEST_F(DecodeProgramTest, TellsThatNobodyReads) {
    pipe_ = "| head -c 10 >/dev/null";
    const ToolResult result = Run("");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: the output cannot be written\n");
}

TEST_F(DecodeProgramTest, TellsThatTheDiskIsFull) {
    const ToolResult redirected = Run(">/dev/full");
    EXPECT_EQ(redirected.code, 1);
    EXPECT_EQ(redirected.err, "corvex-cli: the output cannot be written\n");
    const ToolResult named = Run("-o /dev/full");
    EXPECT_EQ(named.code, 1);
    EXPECT_EQ(named.err, "corvex-cli: /dev/full cannot be written\n");
}

TEST_F(DecodeProgramTest, WritesToADeviceAsItStands) {
    EXPECT_EQ(Run("-o /dev/null").code, 0);
}

TEST_F(DecodeProgramTest, ReadsALogThatMayNotBeWritten) {
    EXPECT_EQ(std::system(("chmod 444 " + xdl_.Path()).c_str()), 0);
    EXPECT_EQ(Run("-o /dev/null").code, 0);
}

}  // namespace
}  // namespace corvex
