#include <gtest/gtest.h>

#include <vector>

#include "apps/sim/SimArguments.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

struct ParsedWords {
    bool run = false;
    int exitCode = -1;
    SimArguments arguments;
};

ParsedWords Parse(std::vector<const char*> words) {
    words.insert(words.begin(), "corvex-sim");
    ParsedWords outcome;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    outcome.run = ParseArguments(static_cast<int>(words.size()), words.data(), outcome.arguments, outcome.exitCode);
    testing::internal::GetCapturedStdout();
    testing::internal::GetCapturedStderr();
    return outcome;
}

TEST(SimArguments, TakeAllFaultsTogether) {
    const ParsedWords outcome = Parse({"x.adx", "--pace",    "--echo",    "--seed",           "5",   "--drop",
                                       "0.1",   "--noise",   "0.2",       "--faulty-replies", "7",   "--late",
                                       "30",    "--chatter", "--silent",  "--unplug-after",   "2.5", "--seconds",
                                       "9",     "--replay",  "drive.xdl", "--sweep"});
    ASSERT_TRUE(outcome.run);
    const SimOptions& options = outcome.arguments.options;
    EXPECT_TRUE(options.pace && options.echo && options.chatter && options.silent);
    EXPECT_EQ(test::Listed(outcome.arguments.definition, options.seed, options.drop, options.noise, options.late,
                           outcome.arguments.replay),
              "x.adx 5 0.1 0.2 30 drive.xdl");
    EXPECT_EQ(options.faultyReplies, 7U);
    EXPECT_EQ(options.unplugAfter, 2.5);
    EXPECT_EQ(options.seconds, 9.0);
    EXPECT_EQ(options.motion, Motion::kSweep);
    EXPECT_EQ(Parse({"x.adx"}).arguments.options.motion, Motion::kDrive);
    EXPECT_EQ(Parse({"x.adx"}).arguments.replay, "");
}

TEST(SimArguments, EndWithZeroOnHelpAndVersionAndWithTwoOnWrongUsage) {
    const struct {
        std::vector<const char*> words;
        int exitCode;
    } rows[] = {{{"--help"}, 0},
                {{"--version"}, 0},
                {{}, 2},
                {{"x.adx", "--drop", "1.5"}, 2},
                {{"x.adx", "--noise", "-1"}, 2},
                {{"x.adx", "--nonsense"}, 2},
                {{"x.adx", "--late", "soon"}, 2},
                {{"x.adx", "y.adx"}, 2},
                {{"x.adx", "--port", "COM1", "--link", "/tmp/x"}, 2}};
    for (const auto& row : rows) {
        const ParsedWords outcome = Parse(row.words);
        EXPECT_FALSE(outcome.run);
        EXPECT_EQ(outcome.exitCode, row.exitCode);
    }
}

}  // namespace
}  // namespace corvex
