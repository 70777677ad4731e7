#include <gtest/gtest.h>

#include <array>

#include "controls/chart3d/Chart3D.h"
#include "session/window/DefinitionCommands.h"
#include "tests/session/window/main/ViewsHelper.h"

namespace corvex::test {
namespace {

// Definitions are loaded while a log plays as fast as it can and one page after the other shows it.
class ViewsStormTest : public ViewsTest {
protected:
    void TearDown() override {
        // Their timer is the window's.
        commands_.reset();
    }
    // A log of so many records without a pause between them.
    std::string PutFastLog(std::uint32_t count) { return PutLog("fast.xdl", std::vector<std::uint32_t>(count, 0)); }
    void LoadDuringPlayback(const std::string& path, const std::string& title) {
        if (!commands_) commands_.emplace(desktop);
        Pump();  // as a user's command comes after the end of the log before, which would end this one too
        Command(IDM_PLAY);
        ASSERT_TRUE(Pumps([&] { return session.log.sampleIndex != 0; }));
        isDuringPlayback_ += session.log.IsPlaying() ? 1 : 0;
        commands_->LoadDefinition(path);
        ASSERT_TRUE(
            Pumps([&] { return session.currentDashboard != nullptr && desktop.IsQuiet() && ShowsTitle(title); }));
    }
    bool ShowsTitle(const std::string& title) const { return session.currentDashboard->Title() == title; }
    void ExpectPagesOf(const std::string& title) {
        ASSERT_EQ(4U, Dash().Gauges().size());
        EXPECT_EQ(session.currentDashboard, Dash().Dashboard());
        for (std::uint32_t i = 0; i < 4; ++i)
            EXPECT_EQ(session.currentDashboard->GetEntry(i), EntryOf(Dash().Gauges()[i]));
        EXPECT_EQ(5, ::SendMessageA(List(), LVM_GETITEMCOUNT, 0, 0));
        EXPECT_EQ(title, Cell(0, 2));
        char shown[64] = "";
        ::GetWindowTextA(Grid(), shown, sizeof shown);
        EXPECT_EQ(title + " - A vs B vs A", shown);
        EXPECT_EQ(1, ::SendMessageA(HistogramItem(IDC_HISTOGRAM_CHART), CH3M_GETPLOTCOUNT, 0, 0));
        ASSERT_EQ(1U, Monitors().Charts().size());
        EXPECT_EQ(title, Monitors().Charts()[0].monitor->Title());
    }

    int isDuringPlayback_ = 0;

private:
    std::optional<DefinitionCommands> commands_;
};

TEST_F(ViewsStormTest, TwoHundredLoadsLeaveNoPageBehind) {
    StartShown();
    const std::string paths[] = {folder.Name("one.adx"), PutDefinition("two.adx", Objects("Two"))};
    session.settings.SetLastLog(PutFastLog(3000));
    for (int i = 0; i < 200; ++i) {
        Select(std::array{kDashTab, kListTab, kHistogramTab, kMonitorTab}[static_cast<std::size_t>(i / 2 % 4)]);
        if (i % 100 == 0) ::SendMessageA(HistogramItem(IDC_HISTOGRAM_GRAPH), BM_CLICK, 0, 0);
        const int next = (i + 1) % 2;
        const std::string title = next == 0 ? "One" : "Two";
        ASSERT_NO_FATAL_FAILURE(LoadDuringPlayback(paths[next], title)) << i;
        ASSERT_NO_FATAL_FAILURE(ExpectPagesOf(title)) << i;
    }
    EXPECT_GT(isDuringPlayback_, 150) << "the log was too short";
}

}  // namespace
}  // namespace corvex::test
