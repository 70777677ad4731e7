#include "tests/program/ViewsProgramTest.h"

namespace corvex::test {
namespace {

constexpr COLORREF kHigh = 0x0000FF, kLow = 0x4080FF, kSetBit = 0x00C000, kPlain = 0x000000;

class ListOnShow : public ViewsProgramTest {
protected:
    // Letters have some pixels of the colour, and nothing else has.
    void ExpectColour(int row, COLORREF wanted) {
        const auto count = [&](COLORREF colour) {
            return Look().Of(Lists().List()).Count(Lists().ValuePlace(row), colour);
        };
        EXPECT_TRUE(Eventually([&] { return count(wanted) > 10; })) << "row " << row;
        for (const COLORREF other : {kHigh, kLow, kSetBit, kPlain}) {
            if (other == wanted) continue;
            EXPECT_EQ(count(other), 0) << "row " << row << ", colour " << std::hex << other;
        }
    }
};

TEST_F(ListOnShow, ShowsWhatTheEngineSendsAndWhatIsPlayed) {
    const LoggedReply alarming = Poll({210, 101, 1}), quiet = Poll({100, 40, 0});
    StartWith(Commands()
                  .Value({"SPEED", "Speed"}, 0, "X", Shown())
                  .Value({"LOAD", "Load"}, 1, "X/2", Shown())
                  .Bit({"FAN", "Fan"}, 2, Lit())
                  .Value({"GEAR", "Gear"}, 0, "X", Shown("OTHER"))
                  .Value({"ANY", "Any"}, 0, "X", Shown(""))
                  .List("Main", {"#Engine", "SPEED", "LOAD", "FAN", "GEAR", "ANY"}),
              {quiet, alarming});
    Window().ShowTab(kListTab);
    ExpectRows({"|Engine", "0.0|Speed", "0.0|Load", "off|Fan", "0.0|Gear", "0.0|Any"});
    ExpectColour(1, kLow);
    Scan({alarming});
    ExpectRows({"|Engine", "210.0|Speed", "50.5|Load", "on|Fan", "0.0|Gear", "210.0|Any"});
    ExpectColour(1, kHigh);
    ExpectColour(2, kPlain);
    ExpectColour(3, kSetBit);
    StopScan();
    Scan({quiet});
    ExpectRows({"|Engine", "100.0|Speed", "20.0|Load", "off|Fan", "0.0|Gear", "100.0|Any"});
    ExpectColour(1, kPlain);
    ExpectColour(3, kPlain);
    StopScan();
    Window().Send(kPlay);
    ExpectOutput("Playback stopped");
    ExpectRows({"|Engine", "210.0|Speed", "50.5|Load", "on|Fan", "0.0|Gear", "210.0|Any"});
    ExpectColour(1, kHigh);
}

}  // namespace
}  // namespace corvex::test
