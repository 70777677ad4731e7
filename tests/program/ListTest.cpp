#include "tests/program/ViewsProgramTest.h"
#include "tests/program/driver/ReplyLines.h"

namespace corvex::test {
namespace {

using Rows = std::vector<std::string>;

constexpr std::uint32_t kForever = 1000000;  // ms; no test waits for it
constexpr COLORREF kHigh = 0x0000FF, kLow = 0x4080FF, kSetBit = 0x00C000, kPlain = 0x000000, kSmudge = 0xFF00FF;

LoggedReply Reply(const std::string& command, std::vector<std::uint8_t> bytes, std::uint32_t time = 0) {
    return {command, SmallDefinition::Reply(std::move(bytes)), time};
}

SmallDefinition WithFiveRows(const std::vector<std::string>& connect = {"PAUSE"},
                             const std::vector<std::string>& monitor = {"POLL"}) {
    SmallDefinition definition(connect, monitor);
    definition.Trigger("REPAINT", 0x4).Trigger("REST", 0x1A);
    definition.Value("SPEED", "Speed", "POLL", 0).Value("LOAD", "Load", "POLL", 1, "X/2").Bit("FAN", "Fan", "POLL", 2);
    definition.Value("GEAR", "Gear", "OTHER", 0).Value("ANY", "Any", "", 0);
    return definition.List("Main", {"#Engine", "SPEED", "LOAD", "FAN", "GEAR", "ANY"});
}

class ListOnShow : public ViewsProgramTest {
protected:
    void StartShown(const SmallDefinition& definition, const std::vector<LoggedReply>& log = {}) {
        StartWith(definition, log);
        Window().ShowTab(kListTab);
    }
    // Pixels of a colour in the value that a row shows.
    int Count(int row, COLORREF colour) {
        const RECT place = Lists().ValuePlace(row);
        return Look().Of(Lists().List()).Count(place, colour);
    }
    // Letters have some, and nothing else has.
    void ExpectColour(int row, COLORREF wanted) {
        EXPECT_TRUE(Eventually([&] { return Count(row, wanted) > 10; })) << "row " << row;
        for (const COLORREF other : {kHigh, kLow, kSetBit, kPlain}) {
            if (other == wanted) continue;
            EXPECT_EQ(Count(row, other), 0) << "row " << row << ", colour " << std::hex << other;
        }
    }
    void SmearValues() {
        RECT area = Lists().ValuePlace(1);
        area.bottom = Lists().ValuePlace(4).bottom;
        Look().Smear(Lists().List(), area, kSmudge);
    }
    void ExpectRoundsOfTheMonitor(std::size_t rounds) {
        const std::size_t lines = Window().OutputLines().size();
        EXPECT_TRUE(Eventually([&] { return Window().OutputLines().size() > lines + 4 * rounds; }));
    }
};

TEST_F(ListOnShow, ShowsWhatTheEngineSends) {
    StartShown(WithFiveRows());
    ExpectRows({"|Engine", "0.0|Speed", "0.0|Load", "off|Fan", "0.0|Gear", "0.0|Any"});
    ExpectColour(1, kLow);
    Scan({Reply("POLL", {210, 101, 1})});
    ExpectRows({"|Engine", "210.0|Speed", "50.5|Load", "on|Fan", "0.0|Gear", "210.0|Any"});
    ExpectColour(1, kHigh);
    ExpectColour(2, kPlain);
    ExpectColour(3, kSetBit);
    StopScan();
    Scan({Reply("POLL", {9, 40, 0})});
    ExpectRows({"|Engine", "9.0|Speed", "20.0|Load", "off|Fan", "0.0|Gear", "9.0|Any"});
    ExpectColour(1, kLow);
    ExpectColour(2, kPlain);
    ExpectColour(3, kPlain);
}

TEST_F(ListOnShow, IsInAlarmBeyondItsLimitsAlone) {
    StartShown(WithFiveRows());
    Scan({Reply("POLL", {200, 20, 0})});
    ExpectRows({"|Engine", "200.0|Speed", "10.0|Load", "off|Fan", "0.0|Gear", "200.0|Any"});
    ExpectColour(1, kPlain);
    ExpectColour(2, kPlain);
}

TEST_F(ListOnShow, FollowsTheEngineWithinAScan) {
    StartShown(WithFiveRows());
    std::vector<LoggedReply> drive(30, Reply("POLL", {210, 20, 0}));
    drive.insert(drive.end(), 30, Reply("POLL", {100, 20, 1}));
    Scan(drive);
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(Eventually([&] { return Lists().Rows().at(1) == "210.0|Speed" && Count(1, kHigh) > 10; }));
        EXPECT_TRUE(Eventually([&] { return Lists().Rows().at(1) == "100.0|Speed" && Count(1, kHigh) == 0; }));
    }
}

TEST_F(ListOnShow, ShowsAPlayback) {
    StartShown(WithFiveRows(), {Reply("POLL", {210, 20, 1}), Reply("POLL", {100, 20, 1}, kForever)});
    ExpectColour(1, kLow);
    Play();
    ExpectRows({"|Engine", "210.0|Speed", "10.0|Load", "on|Fan", "0.0|Gear", "210.0|Any"});
    ExpectColour(1, kHigh);
    ExpectColour(2, kPlain);
    ExpectColour(3, kSetBit);
    EXPECT_EQ(Window().LeftText(), "Log Playing");
}

TEST_F(ListOnShow, KeepsTheLastValuesOfAPlayback) {
    StartShown(WithFiveRows(),
               {Reply("POLL", {210, 20, 1}), Reply("OTHER", {205}, 50), Reply("POLL", {100, 30, 1}, 100)});
    PlayToTheEnd();
    ExpectRows({"|Engine", "100.0|Speed", "15.0|Load", "on|Fan", "205.0|Gear", "100.0|Any"});
    ExpectColour(1, kPlain);
    ExpectColour(4, kHigh);
}

TEST_F(ListOnShow, KeepsWhatAnotherCommandSaidLast) {
    StartShown(WithFiveRows({"OTHER"}, {"POLL"}));
    Scan({Reply("OTHER", {205}), Reply("POLL", {77, 40, 1})});
    ExpectRows({"|Engine", "77.0|Speed", "20.0|Load", "on|Fan", "205.0|Gear", "77.0|Any"});
    ExpectColour(4, kHigh);
    ExpectColour(5, kPlain);
    EXPECT_TRUE(Eventually([&] { return CountReplies(Window().OutputLines()).good > 20; }));
    ExpectRows({"|Engine", "77.0|Speed", "20.0|Load", "on|Fan", "205.0|Gear", "77.0|Any"});
    ExpectColour(4, kHigh);
}

TEST_F(ListOnShow, IsPaintedAgainAtATriggerThatSaysSo) {
    StartShown(WithFiveRows({"POLL"}, {"REPAINT", "PAUSE"}));
    Scan({Reply("POLL", {210, 20, 0})});
    ExpectColour(1, kHigh);
    SmearValues();
    EXPECT_TRUE(Eventually([&] { return Count(1, kSmudge) + Count(2, kSmudge) + Count(4, kSmudge) == 0; }));
    ExpectColour(1, kHigh);
    ExpectRoundsOfTheMonitor(50);
    EXPECT_EQ(CountReplies(Window().OutputLines()).All(), 1);
    EXPECT_EQ(Window().RightText(), "0.00 Hz   Errors: 0");
}

TEST_F(ListOnShow, IsLeftAloneByOtherTriggers) {
    StartShown(WithFiveRows({"POLL"}, {"REST", "PAUSE"}));
    Scan({Reply("POLL", {210, 20, 0})});
    ExpectColour(1, kHigh);
    SmearValues();
    const int smudged = Count(2, kSmudge);
    EXPECT_GT(smudged, 100);
    ExpectRoundsOfTheMonitor(50);
    EXPECT_EQ(Count(2, kSmudge), smudged);
}

}  // namespace
}  // namespace corvex::test
