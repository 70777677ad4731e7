// The tool is killed at any moment of a recording, of its end and of the replacement of an old log.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/AttackRounds.h"
#include "tests/support/PeerProcess.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

// The tool, which is started, read from and killed.
class KilledTool {
public:
    explicit KilledTool(const Words& args) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        from_ = ends[0];
        peer_.emplace([&] { return Become(args, ends[1]); });
        close(ends[1]);
    }
    ~KilledTool() { close(from_); }
    KilledTool(const KilledTool&) = delete;
    KilledTool& operator=(const KilledTool&) = delete;

    // Until so many bytes have come, or there are no more.
    void ReadBytes(std::size_t bytes) {
        while (text_.size() < bytes && ReadSome()) {
        }
    }
    void ReadUntil(const std::string& word) {
        while (text_.find(word) == std::string::npos && ReadSome()) {
        }
    }
    // All that it has said by then. It may have ended before.
    std::string Kill() {
        wasKilled_ = peer_->Kill();
        while (ReadSome()) {
        }
        return text_;
    }
    bool WasKilled() const { return wasKilled_; }

private:
    static int Become(Words args, int out) {
        std::string program(CORVEX_CLI);
        std::vector<char*> words{program.data()};
        for (std::string& arg : args)
            words.push_back(arg.data());
        words.push_back(nullptr);
        dup2(out, STDOUT_FILENO);
        dup2(out, STDERR_FILENO);
        return execv(program.c_str(), words.data());
    }
    bool ReadSome() {
        std::array<char, 4096> piece{};
        const ssize_t got = read(from_, piece.data(), piece.size());
        if (got > 0) text_.append(piece.data(), static_cast<std::size_t>(got));
        return got > 0;
    }

    std::optional<test::PeerProcess> peer_;
    int from_ = -1;
    std::string text_;
    bool wasKilled_ = false;
};

// Replies that came out whole; the summary is none.
std::size_t Shown(const std::string& text) {
    const Words lines = LinesOf(text);
    return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.find("\"values\":{") != std::string::npos && line.ends_with("}}");
    }));
}

class KillProgramTest : public ::testing::Test {
protected:
    // Without the line's pace, as thousands of replies are wanted.
    Words Scan(const char* example, Words more = {}) const {
        more.insert(more.begin(),
                    {"scan", "--simulate", "-d", Example(example), "--record", log, "--no-pace", "--json"});
        return more;
    }
    // Records of the log as a reader finds it.
    nlohmann::json Info() const {
        const ToolResult result = RunInside({"info", log});
        EXPECT_EQ(result.err, "");
        return nlohmann::json::parse(result.out, nullptr, false);
    }
    // Up to so many microseconds.
    void Pause(unsigned most) {
        IClock& clock = SystemClock();
        SleepUntil(clock.Counter() + clock.Frequency() * static_cast<std::int64_t>(chance() % most) / 1'000'000);
    }

    const test::TestFolder folder;
    const std::string log = folder.Name("drive.xdl");
    std::mt19937 chance{20260701};
};

TEST_F(KillProgramTest, LosesNothingThatWasShownBeforeOrAtTheEnd) {
    std::size_t shownByAll = 0;
    for (unsigned round = 0; round < test::AttackRounds(12); ++round) {
        const bool atItsEnd = round % 2 == 0;
        KilledTool scan(Scan(kExamples[round % kExamples.size()], {"--force", "--seconds", atItsEnd ? "0.15" : "60"}));
        if (atItsEnd) {
            scan.ReadUntil("\"summary\"");  // what comes just before it
            Pause(3000);
        } else {
            scan.ReadBytes(chance() % 40000);
        }
        const std::size_t shown = Shown(scan.Kill());
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
        KilledTool scan(Scan("osprey-multi.adx", {"--force"}));
        Pause(round == 0 ? 1 : 60000);  // once before it can have done anything
        scan.Kill();
        EXPECT_TRUE(scan.WasKilled());
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
