#include "tests/program/ViewsProgramTest.h"
#include "tests/program/driver/ReplyLines.h"

namespace corvex::test {
namespace {

using Rows = std::vector<std::string>;

SmallDefinition WithItems() {
    SmallDefinition definition;
    return definition.Value("SPEED", "Speed", "POLL", 0).Value("LOAD", "Load", "POLL", 1).Bit("FAN", "Fan", "POLL", 2);
}

SmallDefinition WithTwoDashboards() {
    return WithItems()
        .Dashboard("First", {{0, "SPEED"}, {1, "LOAD"}})
        .Dashboard("Second", {{0, "LOAD"}, {2, "FAN"}, {1, "SPEED"}})
        .List("Rows", {"#Head", "SPEED", "LOAD"});
}

// Of other items, and other numbers of them.
SmallDefinition Another() {
    SmallDefinition definition;
    definition.Value("OIL", "Oil", "POLL", 2).Bit("LAMP", "Lamp", "POLL", 3);
    return definition.Dashboard("Third", {{0, "OIL"}, {2, "LAMP"}, {1, "OIL"}}).List("Others", {"OIL", "LAMP"});
}

class ViewsReload : public ViewsProgramTest {
protected:
    const std::vector<LoggedReply> drive{{"POLL", SmallDefinition::Reply({10, 20, 31, 1})}};
    // A playback that goes on for as long as a test may take.
    std::vector<LoggedReply> LongLog() const {
        std::vector<LoggedReply> log;
        for (std::uint32_t i = 0; i < 6000; ++i)
            log.push_back({"POLL", drive[0].bytes, 20 * i});
        return log;
    }
    void ExpectChosen(int row, int gauges) {
        EXPECT_TRUE(Eventually([&] { return Dash().Chosen() == row && Dash().GaugeCount() == gauges; }))
            << Dash().Chosen() << " with " << Dash().GaugeCount();
    }
    void ExpectTheOther() {
        ExpectChosen(0, 3);
        EXPECT_EQ(Dash().Dashboards(), Rows{"Third"});
        EXPECT_EQ(ComboRows(Lists().Combo()), Rows{"Others"});
        EXPECT_EQ(Dash().Title(0), "Oil");
        EXPECT_EQ(Lists().RowCount(), 2);
    }
    void ScanAgain() {
        ExpectLeft("ALDL: Not Connected");
        Window().Send(kScan);
        ExpectLeft("ALDL: Connected");
    }
    // Both definitions have their turn, with this tab on show, while `begin` keeps the program busy.
    void ExpectLoadsSurvived(int tab, const std::function<void()>& begin) {
        const std::string first = folder.Name("own.adx"), other = Put("other.adx", Another());
        Window().ShowTab(tab);
        for (int round = 0; round < 3; ++round) {
            begin();
            Load(other);
            ExpectTheOther();
            begin();
            Load(first);
            ExpectChosen(0, 2);
            EXPECT_EQ(Dash().Title(0), "Speed");
            EXPECT_EQ(Lists().RowCount(), 3);
        }
        begin();
        Load(other);
        begin();
    }
    void BeginScan() {
        ScanAgain();
        EXPECT_TRUE(Eventually([&] { return CountReplies(Window().OutputLines()).good > 3; }));
    }
    void BeginPlayback() {
        ExpectLeft("ALDL: Not Connected");
        Play();
        EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() > 2; }));
    }
};

TEST_F(ViewsReload, AnotherDashboardIsBuiltAnew) {
    StartWith(WithTwoDashboards());
    Window().ShowTab(kDashTab);
    EXPECT_EQ(Dash().Dashboards(), (Rows{"First", "Second"}));
    Scan(drive);
    ExpectNeedle(0, 10);
    Dash().ChooseNext();
    ExpectChosen(1, 3);
    EXPECT_EQ(Dash().Title(0), "Load");
    ExpectNeedle(0, 20);
    ExpectLamp(1, "Fan", true);
    ExpectReadout(2, "Speed", 10.0F);
}

TEST_F(ViewsReload, TheFirstDashboardIsChosenAgain) {
    StartWith(WithTwoDashboards());
    Window().ShowTab(kDashTab);
    for (int round = 0; round < 2; ++round) {
        Dash().ChooseNext();
        ExpectChosen(1, 3);
        Load(folder.Name("own.adx"));
        ExpectChosen(0, 2);
        EXPECT_EQ(Dash().Title(0), "Speed");
        EXPECT_EQ(Dash().Dashboards(), (Rows{"First", "Second"}));
    }
}

// No legacy file has dashboards.
TEST_F(ViewsReload, AnImportLeavesThePageEmptyAndALoadChoosesTheFirstAgain) {
    StartWith(WithTwoDashboards());
    Window().ShowTab(kDashTab);
    Dash().ChooseNext();
    ExpectChosen(1, 3);
    Window().Send(kImportDefinition);
    ChooseFile(program->Id(), "Select file to import...", folder.TakeExample("kestrel-legacy.ads"));
    ExpectChosen(-1, 0);
    EXPECT_TRUE(Dash().Dashboards().empty());
    Load(folder.Name("own.adx"));
    ExpectChosen(0, 2);
    EXPECT_EQ(Dash().Title(0), "Speed");
}

TEST_F(ViewsReload, WithoutDashboardsThePageStandsEmpty) {
    StartWith(WithItems().List("Rows", {"SPEED"}));
    Window().ShowTab(kDashTab);
    EXPECT_TRUE(Dash().Dashboards().empty());
    ExpectChosen(-1, 0);
    EXPECT_TRUE(::IsWindowVisible(Dash().Page()));
    Scan(drive);
    EXPECT_TRUE(Eventually([&] { return CountReplies(Window().OutputLines()).good > 20; }));
    Dash().ChooseNext();
    Window().ShowTab(kListTab);
    ExpectRows({"10.0|Speed"});
    EXPECT_EQ(Window().LeftText(), "ALDL: Connected");
    EXPECT_NE(Window().RightText().find("Errors: 0"), std::string::npos) << Window().RightText();
}

TEST_F(ViewsReload, DuringAScanWithTheDashOnShow) {
    StartWith(WithTwoDashboards());
    Serve(drive);
    ExpectLoadsSurvived(kDashTab, [this] { BeginScan(); });
    ExpectNeedle(0, 31);
    ExpectLamp(1, "Lamp", true);
    ExpectReadout(2, "Oil", 31.0F);
}

TEST_F(ViewsReload, DuringAScanWithTheListOnShow) {
    StartWith(WithTwoDashboards());
    Serve(drive);
    ExpectLoadsSurvived(kListTab, [this] { BeginScan(); });
    ExpectRows({"31.0|Oil", "on|Lamp"});
}

TEST_F(ViewsReload, DuringAPlaybackWithTheDashOnShow) {
    StartWith(WithTwoDashboards(), LongLog());
    ExpectLoadsSurvived(kDashTab, [this] { BeginPlayback(); });
    ExpectNeedle(0, 31);
    ExpectLamp(1, "Lamp", true);
}

TEST_F(ViewsReload, DuringAPlaybackWithTheListOnShow) {
    StartWith(WithTwoDashboards(), LongLog());
    ExpectLoadsSurvived(kListTab, [this] { BeginPlayback(); });
    ExpectRows({"31.0|Oil", "on|Lamp"});
}

}  // namespace
}  // namespace corvex::test
