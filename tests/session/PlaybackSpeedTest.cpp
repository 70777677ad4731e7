#include <limits>

#include "session/PlaybackSpeed.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

class PlaybackSpeedTest : public ScanTest {};

TEST_F(PlaybackSpeedTest, EachFactorHasItsItem) {
    const struct {
        std::uint32_t command;
        const char* text;
        float factor;
    } items[] = {{32809, "400%", 4.0F},
                 {32810, "200%", 2.0F},
                 {32811, "100%", 1.0F},
                 {32812, "50%", 0.5F},
                 {32813, "25%", 0.25F}};
    for (std::size_t i = 0; i < kSpeedItems.size(); ++i) {
        EXPECT_EQ(Listed(items[i].command, items[i].text, items[i].command),
                  Listed(kSpeedItems[i].command, kSpeedItems[i].text, CommandOfSpeed(items[i].factor)));
        EXPECT_EQ(items[i].factor, SpeedOfCommand(items[i].command));
    }
}

TEST_F(PlaybackSpeedTest, AnyOtherFactorIsCustom) {
    for (const float factor : {0.0F, -1.0F, 0.9999F, 8.0F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(32815U, CommandOfSpeed(factor));
    EXPECT_EQ(std::nullopt, SpeedOfCommand(32815));
    EXPECT_EQ(std::nullopt, SpeedOfCommand(32814));
}

// Also with no log loaded.
TEST_F(PlaybackSpeedTest, SettingItShowsInTitleAndMenu) {
    session.SetSpeed(2.0F);
    EXPECT_EQ(2.0F, session.log.speed);
    EXPECT_EQ((Calls{"title", "check 32810"}), recorder.Take());
    session.SetSpeed(3.0F);
    EXPECT_EQ(3.0F, session.log.speed);
    EXPECT_EQ((Calls{"title", "check 32815"}), recorder.Take());
}

}  // namespace
}  // namespace corvex::test
