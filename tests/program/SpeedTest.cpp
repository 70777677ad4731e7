#include <cstdio>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

struct Speed {
    Command command;
    int percent;
};

constexpr double kLogMilliseconds = 1600.0;

class PlaybackSpeed : public ProgramTest {};

// The ratios are for the reader; on a busy machine they say more about that.
TEST_F(PlaybackSpeed, IsKeptByEveryPlay) {
    folder.Files().Put("drive.xdl", MakeEvenLog(17, 100));
    Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
    Start();
    int plays = 0;
    for (const Speed& speed : {Speed{kSpeed400, 400}, Speed{kSpeed200, 200}, Speed{kSpeed100, 100}, Speed{kSpeed50, 50},
                               Speed{kSpeed25, 25}}) {
        Window().Send(speed.command);
        const std::string ending = "(Speed: " + std::to_string(speed.percent) + "%)";
        EXPECT_TRUE(Eventually([&] { return Window().Title().find(ending) != std::string::npos; }));
        const Timer timer;
        Window().Send(kPlay);
        ExpectLeft("Log Playing");
        ++plays;
        const auto ended = [&] {
            int ends = 0;
            for (const std::string& line : Window().OutputLines())
                ends += line == "Playback stopped" ? 1 : 0;
            return ends == plays;
        };
        ASSERT_TRUE(Eventually(ended));
        const double taken = timer.Milliseconds();
        std::printf("%3d %%: %.0f ms, %.3f of what the speed says\n", speed.percent, taken,
                    taken * speed.percent / 100.0 / kLogMilliseconds);
        // Never sooner than the records say; half of it leaves room for a pace that is only roughly kept.
        EXPECT_GT(taken, kLogMilliseconds * 100.0 / speed.percent / 2);
        EXPECT_NE(Window().Title().find(ending), std::string::npos);
    }
}

}  // namespace
}  // namespace corvex::test
