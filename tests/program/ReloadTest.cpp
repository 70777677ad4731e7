#include "tests/program/ViewsProgramTest.h"

namespace corvex::test {
namespace {

using Rows = std::vector<std::string>;

class Reload : public ViewsProgramTest {
protected:
    static AdxText First() {
        return Commands()
            .Value({"SPEED", "Speed"}, 0, "X", Shown())
            .Value({"LOAD", "Load"}, 1, "X", Shown())
            .Bit({"FAN", "Fan"}, 2, Lit())
            .Dashboard("First", {{0, "SPEED"}, {1, "LOAD"}})
            .Dashboard("Second", {{0, "LOAD"}, {2, "FAN"}, {1, "SPEED"}})
            .List("Rows", {"#Head", "SPEED", "LOAD"});
    }
    // Of other items, and other numbers of them.
    static AdxText Another() {
        return Commands()
            .Value({"OIL", "Oil"}, 2, "X", Shown())
            .Bit({"LAMP", "Lamp"}, 3, Lit())
            .Dashboard("Third", {{0, "OIL"}, {2, "LAMP"}, {1, "OIL"}})
            .List("Others", {"OIL", "LAMP"});
    }
    // A playback that goes on for as long as a test may take.
    static std::vector<LoggedReply> LongLog() {
        std::vector<LoggedReply> log;
        for (std::uint32_t i = 0; i < 6000; ++i)
            log.push_back(Poll({10, 20, 31, 1}, 20 * i));
        return log;
    }
    void ExpectChosen(int row, int gauges) {
        EXPECT_TRUE(Eventually([&] { return Dash().Chosen() == row && Dash().GaugeCount() == gauges; }))
            << Dash().Chosen() << " with " << Dash().GaugeCount();
    }
    // Both definitions have their turn, with this tab on show, while a scan or a playback keeps the program busy.
    void ExpectLoadsSurvived(int tab, Command begin, const char* busy) {
        const std::string first = folder.Name("own.adx"), other = folder.Files().Put("other.adx", Another());
        Window().ShowTab(tab);
        for (int round = 0; round < 3; ++round) {
            Begin(begin, busy);
            Dash().ChooseNext();
            ExpectChosen(1, 3);
            EXPECT_EQ(Dash().Title(0), "Load");
            Load(other);
            ExpectChosen(0, 3);
            EXPECT_EQ(Dash().Dashboards(), Rows{"Third"});
            EXPECT_EQ(ComboRows(Lists().Combo()), Rows{"Others"});
            EXPECT_EQ(Dash().Title(0), "Oil");
            EXPECT_EQ(Lists().RowCount(), 2);
            Begin(begin, busy);
            Load(first);
            ExpectChosen(0, 2);
            EXPECT_EQ(Dash().Dashboards(), (Rows{"First", "Second"}));
            EXPECT_EQ(Dash().Title(0), "Speed");
            EXPECT_EQ(Lists().RowCount(), 3);
        }
        Begin(begin, busy);
        Load(other);
        Begin(begin, busy);
    }
    void Begin(Command begin, const char* busy) {
        ExpectLeft("ALDL: Not Connected");
        Window().Send(begin);
        ExpectLeft(busy);
        EXPECT_TRUE(Eventually([&] { return Window().OutputHas("Command/Reply Success"); }));
    }
};

TEST_F(Reload, DuringAScanWithTheDashOnShow) {
    StartWith(First());
    Serve({Poll({10, 20, 31, 1})});
    ExpectLoadsSurvived(kDashTab, kScan, "ALDL: Connected");
    ExpectNeedle(0, 31);
    ExpectLamp(1, "Lamp", true);
    ExpectReadout(2, "Oil", 31.0F);
}

TEST_F(Reload, DuringAPlaybackWithTheListOnShow) {
    StartWith(First(), LongLog());
    ExpectLoadsSurvived(kListTab, kPlay, "Log Playing");
    ExpectRows({"31.0|Oil", "on|Lamp"});
}

TEST_F(Reload, LeavesAPausedLogWhereItStands) {
    StartWith(First(), LongLog());
    Begin(kPlay, "Log Playing");
    Window().Send(kPause);
    ExpectLeft("Log Paused");
    Load(folder.Files().Put("other.adx", Another()));
    Window().Send(kPlay);
    EXPECT_TRUE(Eventually([&] { return Window().Bar().pause; })) << Window().Output();
    ExpectLeft("Log Playing");
}

}  // namespace
}  // namespace corvex::test
