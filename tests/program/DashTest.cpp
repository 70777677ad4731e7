#include "tests/program/ViewsProgramTest.h"
#include "tests/program/driver/PopupMenu.h"

namespace corvex::test {
namespace {

using Rows = std::vector<std::string>;

constexpr int kValues = 0, kBitmasks = 1;  // submenus

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
    void Choose(int gauge, int submenu, int row) {
        OpenPopup(Dash().Gauge(gauge));
        EXPECT_TRUE(ChooseRow(Window().Handle(), submenu, row));
    }
    void ExpectTitle(int gauge, const std::string& title) {
        EXPECT_TRUE(Eventually([&] { return Dash().Title(gauge) == title; })) << Dash().Title(gauge);
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

TEST_F(DashOnShow, BindsItsGaugesByTheirMenuAndAsksBeforeThatIsDropped) {
    StartWith(WithFourGauges());
    Window().ShowTab(kDashTab);
    Scan({Poll({10, 20, 1})});
    ExpectNeedle(0, 10);
    const HWND dial = Dash().Gauge(0);
    Choose(0, kValues, 3);
    ExpectTitle(0, "Any");
    ExpectNeedle(0, 10);
    EXPECT_EQ(Dash().Gauge(0), dial);
    Choose(4, kBitmasks, 0);
    ExpectTitle(4, "Fan");
    ExpectLamp(4, "Fan", true);
    StopScan();
    const std::string before = folder.Files().Content("own.adx");
    Window().Close();
    CancelDialog(program->Id(), "Corvex");
    ExpectTitle(0, "Any");
    EXPECT_EQ(folder.Files().Content("own.adx"), before);
    Window().Send(kExit);
    PressButton(WaitForDialog(program->Id(), "Corvex"), IDYES);
    EXPECT_EQ(program->WaitForExit(kLongestEnd), std::optional<DWORD>(0));
    const std::string after = folder.Files().Content("own.adx");
    for (const auto& [type, item] : {std::pair{"0", "ANY"}, {"3", "ANY"}, {"1", "LOAD"}, {"2", "FAN"}})
        EXPECT_NE(after.find(std::string("gaugetype=\"") + type + "\" itemidhash=\"" + AdxHash(item)),
                  std::string::npos);
}

}  // namespace
}  // namespace corvex::test
