#include "tests/program/ViewsProgramTest.h"

namespace corvex::test {
namespace {

class DashOnShow : public ViewsProgramTest {
protected:
    // And an entry of a type that nobody knows, which has no gauge and keeps its number.
    static AdxText WithFourGauges() {
        return Commands()
            .Value({"SPEED", "Speed"}, 0, "X", Shown())
            .Value({"LOAD", "Load"}, 1, "X/2", Shown())
            .Bit({"FAN", "Fan"}, 2, Lit())
            .Value({"GEAR", "Gear"}, 0, "X", Shown("OTHER"))
            .Value({"ANY", "Any"}, 0, "X", Shown(""))
            .Dashboard("Main", {{0, "SPEED"}, {3, "ANY"}, {1, "LOAD"}, {2, "FAN"}, {1, "GEAR"}});
    }
    // The speeds are those that the dial has shown since it was made.
    void ExpectShown(const std::vector<float>& speeds, float load, bool fan) {
        ExpectNeedle(0, static_cast<int>(speeds.back()));
        ExpectDial(0, "Speed", speeds);
        ExpectReadout(2, "Load", load);
        ExpectLamp(3, "Fan", fan);
    }
};

TEST_F(DashOnShow, ShowsWhatTheEngineSendsAndTheDriveThatWasRecorded) {
    StartWith(WithFourGauges());
    Window().ShowTab(kDashTab);
    ExpectShown({0.0F}, 0.0F, false);
    Scan({Poll({120, 101, 1})});
    ExpectShown({0.0F, 120.0F}, 50.5F, true);
    ExpectReadout(4, "Gear", 0.0F);
    Window().Send(kRecord);
    ExpectLeft("Log Recording");
    EXPECT_TRUE(Eventually([&] { return folder.Size("temp.xdl") > 400; }));
    Window().Send(kStop);
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectOutput("Log saved to ");
    StopScan();
    Scan({Poll({7, 250, 0})});
    ExpectShown({0.0F, 120.0F, 7.0F}, 125.0F, false);
    StopScan();
    Window().Send(kPlay);
    ExpectOutput("Playback stopped");
    ExpectShown({0.0F, 120.0F, 7.0F, 120.0F}, 50.5F, true);
}

}  // namespace
}  // namespace corvex::test
