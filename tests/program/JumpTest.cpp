#include <numeric>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

// A record that stands still for so long is not reached by waiting.
constexpr std::uint32_t kForever = 1000000;

// Of 30 records, those of these numbers (from 0) come only after a time that no test waits for.
std::string MakeLogWithStops(const std::vector<std::uint32_t>& stops) {
    std::vector<std::uint32_t> times;
    std::uint32_t time = 0;
    for (std::uint32_t i = 0; i < 30; ++i) {
        for (const std::uint32_t stop : stops)
            time += stop == i ? kForever : 0;
        times.push_back(time);
        time += 150;
    }
    return MakeLog(times);
}

class Jump : public ProgramTest {
protected:
    void Play(const std::vector<std::uint32_t>& stops) {
        folder.Files().Put("drive.xdl", MakeLogWithStops(stops));
        Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
        Start();
        Window().Send(kPlay);
    }
    void ExpectSlider(int position) {
        EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() == position; })) << Window().SliderPosition();
    }
    // What a key does on the slider once it has the focus.
    void PressOnSlider(WPARAM key) {
        ::PostMessageA(Window().Slider(), WM_KEYDOWN, key, 0);
        ::PostMessageA(Window().Slider(), WM_KEYUP, key, 0);
    }
};

TEST_F(Jump, GoesForwardToTheTenthRecord) {
    Play({2, 15});
    ExpectSlider(2);
    Window().Send(kJumpForward);
    ExpectSlider(15);
}

TEST_F(Jump, GoesForwardByOneRecordPastTheTenth) {
    Play({12, 13, 15});
    ExpectSlider(12);
    // The thirteenth was being waited for and is dropped by the jump, which itself reads the fourteenth.
    Window().Send(kJumpForward);
    ExpectSlider(15);
}

TEST_F(Jump, GoesTenRecordsBack) {
    Play({14});
    ExpectSlider(14);
    Window().Send(kJumpBackward);
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() < 14; }));
    ExpectSlider(14);
}

TEST_F(Jump, BackInTheFirstTenRecordsEndsTheLog) {
    Play({3});
    ExpectSlider(3);
    Window().Send(kJumpBackward);
    ExpectLeft("ALDL: Not Connected");
    ExpectOutput("Playback stopped");
}

TEST_F(Jump, FollowsTheSlider) {
    Play({20});
    ExpectSlider(20);
    PressOnSlider(VK_HOME);
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() < 10; }));
    ExpectSlider(20);
    PressOnSlider(VK_END);
    ExpectLeft("ALDL: Not Connected");
    ExpectSlider(0);
}

TEST_F(Jump, WhilePausedPlaysOnFromThere) {
    Play({2, 15});
    ExpectSlider(2);
    Window().Send(kPause);
    ExpectLeft("Log Paused");
    Window().Send(kJumpForward);
    Resume();
    ExpectSlider(15);
}

}  // namespace
}  // namespace corvex::test
