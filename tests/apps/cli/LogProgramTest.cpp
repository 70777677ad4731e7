// What only a real process and a real disk can show of the commands that read logs.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

class LogProgramTest : public ::testing::Test {
protected:
    LogProgramTest() {
        test::LogBytes log = BeginLog({kPollHash});
        for (std::uint32_t i = 0; i < 40000; ++i)  // far more text than a pipe holds
            log.Record(0, i * 83, PollReply({static_cast<std::uint8_t>(i)}));
        xdl.emplace(log.MarkEnd());
    }
    void ExpectDecodeEnds(const std::string& where, const std::string& pipe, const char* exit,
                          const std::string& text) {
        const TempFile code("", ".code"), err("", ".err");
        const std::string line = "( " CORVEX_CLI " decode -d " + adx.Path() + ' ' + xdl->Path() + ' ' + where + " 2>" +
                                 err.Path() + "; echo $? >" + code.Path() + " ) " + pipe;
        EXPECT_EQ(std::system(line.c_str()), 0);
        EXPECT_EQ(ReadFile(code.Path()), exit);
        EXPECT_EQ(ReadFile(err.Path()), text);
    }
    // The example, as plain lines.
    ToolResult Play(const std::string& before) const {
        return RunTool({"play", "-d", Example("harrier-8192.adx"), Example("harrier-8192.xdl"), "--plain"}, before);
    }

    const TempFile adx{DefinitionWith(ValueText("RPM", "X"))};
    std::optional<LogTempFile> xdl;
};

TEST_F(LogProgramTest, DecodeTellsThatTheDiskIsFullAndNothingOfAReaderThatHadEnough) {
    ExpectDecodeEnds("", "| head -c 10 >/dev/null", "0\n", "");
    const std::string full = " cannot be written: No space left on device\n";
    ExpectDecodeEnds(">/dev/full", "", "1\n", "corvex-cli: the output" + full);
    ExpectDecodeEnds("-o /dev/full", "", "1\n", "corvex-cli: /dev/full" + full);
}

TEST_F(LogProgramTest, PlayStopsAtCtrlC) {
    const ToolResult result = Play("timeout --foreground --preserve-status -s INT 1 ");
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out.find("0.000 POLL: "), 0U) << result.out;
    EXPECT_TRUE(Has(result.out, " good replies in "));
}

TEST_F(LogProgramTest, PlayEndsWhenNobodyReadsItsOutput) {
    const ToolResult result = Play("sh -c '\"$@\" | head -n 1' sh ");
    EXPECT_EQ(result.out.find("0.000 POLL: "), 0U) << result.out;
    EXPECT_TRUE(Has(result.err, "nobody takes the output any more"));
}

}  // namespace
}  // namespace corvex
