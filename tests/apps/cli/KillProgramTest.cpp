// The tool is killed at any moment of a recording, of its end and of the replacement of an old log.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/AttackRounds.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

// Replies that came out whole; the summary is none.
std::size_t Shown(const std::string& text) {
    const Words lines = LinesOf(text);
    return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.find("\"values\":{") != std::string::npos && line.ends_with("}}");
    }));
}

class KillProgramTest : public ::testing::Test {
protected:
    // A recording that ends by itself after `seconds` unless it is killed before, and what it said by then. Without the
    // line's pace, as thousands of replies are wanted.
    std::string ScanAndKill(const char* example, const char* seconds, unsigned killMs) const {
        char kill[64];
        std::snprintf(kill, sizeof kill, "timeout -s KILL %u.%03u ", killMs / 1000, killMs % 1000);
        return RunTool({"scan", "--simulate", "-d", Example(example), "--record", log, "--no-pace", "--json", "--force",
                        "--seconds", seconds},
                       kill)
            .out;
    }
    // Records of the log as a reader finds it.
    nlohmann::json Info() const {
        const ToolResult result = RunInside({"info", log});
        EXPECT_EQ(result.err, "");
        return nlohmann::json::parse(result.out, nullptr, false);
    }

    const test::TestFolder folder;
    const std::string log = folder.Name("drive.xdl");
    std::mt19937 chance{20260701};
};

TEST_F(KillProgramTest, LosesNothingThatWasShownBeforeOrAtTheEnd) {
    std::size_t shownByAll = 0;
    for (unsigned round = 0; round < test::AttackRounds(12); ++round) {
        const bool atItsEnd = round % 2 == 0;
        const std::size_t shown = Shown(ScanAndKill(kExamples[round % kExamples.size()], atItsEnd ? "0.15" : "60",
                                                    (atItsEnd ? 150U : 100U) + static_cast<unsigned>(chance() % 200)));
        if (shown == 0) continue;
        const nlohmann::json info = Info();
        EXPECT_GE(info["records"], shown);
        EXPECT_EQ(info["result"], 7);
        const std::uint32_t endMark = info["endMark"];
        EXPECT_TRUE(endMark == 0xFFFFFFFFU || (atItsEnd && endMark == std::filesystem::file_size(log) + 1)) << endMark;
        shownByAll += shown;
    }
    EXPECT_GT(shownByAll, 100U);
}

// Either the old drive is there, or the new one with a record in it.
TEST_F(KillProgramTest, OldLogStaysUntilTheNewOneStandsInItsPlace) {
    const std::string old = ReadFile(Example("harrier-8192.xdl"));
    unsigned kept = 0;
    for (unsigned round = 0; round < test::AttackRounds(6); ++round) {
        folder.Put("drive.xdl", old);
        // Once before it can have done anything.
        ScanAndKill("osprey-multi.adx", "60", round == 0 ? 1 : 1 + static_cast<unsigned>(chance() % 100));
        if (folder.Content("drive.xdl") == old) {
            ++kept;
        } else {
            EXPECT_GT(Info()["records"], 0);
        }
    }
    EXPECT_GT(kept, 0U);
}

}  // namespace
}  // namespace corvex
