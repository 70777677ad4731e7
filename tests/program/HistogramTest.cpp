#include <algorithm>

#include "controls/grid/Grid.h"
#include "controls/window/Clipboard.h"
#include "export/HistogramCells.h"
#include "tests/apps/cli/ToolRunner.h"
#include "tests/program/ViewsProgramTest.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {
namespace {

constexpr int kHistogramTab = 3;
constexpr int kHistogramComboId = 1002, kStatisticComboId = 1003, kClearId = 1005, kChartId = 1006, kGraphId = 1007;

class HistogramsOnShow : public ViewsProgramTest {
protected:
    // One for all commands and one for the other command alone, fed by the first two bytes.
    static AdxText WithHistograms() {
        const std::string axes = AdxTag("rows", "3") + AdxTag("cols", "4") + AdxTag("xmin", "0") +
                                 AdxTag("xmax", "150") + AdxTag("ymin", "0") + AdxTag("ymax", "1") +
                                 AdxTag("xidhash", AdxHash("SPEED")) + AdxTag("yidhash", AdxHash("LOAD")) +
                                 AdxTag("zidhash", AdxHash("SPEED"));
        return Commands()
            .Value({"SPEED", "Speed"}, 0, "X/2")
            .Value({"LOAD", "Load"}, 1, "X/100")
            .Object("ADXHISTOGRAM", {"MAP", "Map"}, axes)
            .Object("ADXHISTOGRAM", {"NONE", "None"}, AdxParent("OTHER") + axes);
    }
    HWND Below(const char* className, int id) { return FindBelow(Window().Handle(), className, id); }
    HWND Grid() { return Below(kGridClass, -1); }
    // As Ctrl+C puts it on the clipboard, as comma-separated values.
    std::string Copied() {
        Ask(Grid(), WM_CHAR, 0x03);
        std::string text = TextOfClipboard(nullptr).value_or("nothing");
        std::replace(text.begin(), text.end(), '\t', ',');
        std::erase(text, '\r');
        return text;
    }
};

TEST_F(HistogramsOnShow, AReplayedLogShowsWhatTheToolPrints) {
    std::vector<LoggedReply> log;
    for (std::uint32_t i = 0; i < 40; ++i)
        log.push_back(Poll({static_cast<std::uint8_t>(17 * i), static_cast<std::uint8_t>(41 * i)}, 20 * i));
    folder.Files().Put("drive.xdl", MakeLog(log));
    Settle(
        {{"lastadxpath", folder.Files().Put("own.adx", WithHistograms())}, {"lastxdlpath", folder.Name("drive.xdl")}});
    Start();
    Window().ShowTab(kHistogramTab);
    Window().Send(kPlay);
    ExpectOutput("Playback stopped");
    for (int i = 0; const HistogramStatistic& statistic : kHistogramStatistics) {
        SelectRow(Below("ComboBox", kStatisticComboId), i++);
        const ToolResult tool = RunTool({"histogram", "-d", folder.Name("own.adx"), folder.Name("drive.xdl"), "--csv",
                                         "--id", "MAP", "--view", statistic.name});
        EXPECT_EQ(tool.out, Copied()) << statistic.title << tool.err;
    }
    SelectRow(Below("ComboBox", kStatisticComboId), 0);
    const std::string full = Copied();
    SelectRow(Below("ComboBox", kHistogramComboId), 1);
    const std::string empty = Copied();
    EXPECT_NE(full, empty);
    SelectRow(Below("ComboBox", kHistogramComboId), 0);
    EXPECT_EQ(full, Copied()) << "chosen again, with all that it had";
    Ask(Below("Button", kClearId), BM_CLICK);
    EXPECT_EQ(empty, Copied());
    Ask(Below("Button", kGraphId), BM_CLICK);
    EXPECT_TRUE(::IsWindowVisible(Below("3DCHART", kChartId)));
    EXPECT_FALSE(::IsWindowVisible(Grid()));
}

TEST_F(HistogramsOnShow, FillsWithAScanAndGoesWithItsDefinition) {
    StartWith(WithHistograms());
    Scan({Poll({200, 0})});
    Window().ShowTab(kHistogramTab);
    EXPECT_TRUE(Eventually([&] { return Copied().find("\n0,,,100,\n") != std::string::npos; })) << Copied();
    StopScan();
    folder.Files().Put("none.adx", Commands());
    Window().Send(kLoadDefinition);
    ChooseFile(program->Id(), "Select ADX...", folder.Name("none.adx"));
    EXPECT_TRUE(Eventually([&] { return Ask(Grid(), GRM_GETROWS) == 0; }));
    EXPECT_EQ("", TextOf(Grid()));
}

}  // namespace
}  // namespace corvex::test
