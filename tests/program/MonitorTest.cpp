#include "tests/program/ViewsProgramTest.h"
#include "tests/program/driver/PopupMenu.h"
#include "tools/driver/DialogAnswers.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {
namespace {

constexpr int kMonitorTab = 4, kFirstChartId = 9000;
constexpr COLORREF kBlue = 0xFF0000, kSecondColour = 0x009600;

class MonitorsOnShow : public ViewsProgramTest {
protected:
    static AdxText WithOneMonitor() {
        return Commands()
            .Value({"SPEED", "Speed"}, 0, "X", Shown())
            .Value({"LOAD", "Load"}, 1, "X", Shown())
            .Object(
                "ADXMONITOR", {"ENGINE", "Engine"},
                AdxTag("entrycount", "1").append("<ADXMONSERIES linecolor=\"0xFF0000\" linewidth=\"3\" itemidhash=\"") +
                    AdxHash("SPEED") + "\" />");
    }
    void ExpectLine(COLORREF colour, bool isThere = true) {
        const HWND chart = FindBelow(Window().Handle(), "QZDATACHART", kFirstChartId);
        EXPECT_TRUE(Eventually([&] {
            const Picture picture = Look().Of(chart);
            return (picture.Count({0, 0, picture.width, picture.height}, colour) > 20) == isThere;
        })) << colour;
    }
    void ChooseValue(int row) {
        OpenPopup(FindBelow(Window().Handle(), "QZDATACHART", kFirstChartId));
        EXPECT_TRUE(ChooseRow(Window().Handle(), row));
    }
};

TEST_F(MonitorsOnShow, DrawsTheScanAndKeepsWhatTheMenuAdds) {
    StartWith(WithOneMonitor());
    Window().ShowTab(kMonitorTab);
    ExpectLine(kBlue, false);
    Scan({Poll({120, 60})});
    ExpectLine(kBlue);
    ExpectLine(kSecondColour, false);
    ChooseValue(1);
    ExpectLine(kSecondColour);
    StopScan();
    Window().Close();
    CancelDialog(program->Id(), "Corvex");
    Window().Send(kExit);
    PressButton(WaitForDialog(program->Id(), "Corvex"), IDYES);
    EXPECT_EQ(program->WaitForExit(kLongestEnd), std::optional<DWORD>(0));
    const std::string saved = folder.Files().Content("own.adx");
    const std::size_t monitor = saved.find("<ADXMONITOR");
    for (const char* const item : {"SPEED", "LOAD"})
        EXPECT_NE(saved.find("itemidhash=\"" + AdxHash(item), monitor), std::string::npos) << item;
}

}  // namespace
}  // namespace corvex::test
