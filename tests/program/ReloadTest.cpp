#include "tests/program/ViewsProgramTest.h"

namespace corvex::test {
namespace {

using Rows = std::vector<std::string>;

// Another one than the first has other items, and other numbers of them.
SmallDefinition First() {
    SmallDefinition definition;
    definition.Value("SPEED", "Speed", "POLL", 0).Value("LOAD", "Load", "POLL", 1).Bit("FAN", "Fan", "POLL", 2);
    return definition.Dashboard("First", {{0, "SPEED"}, {1, "LOAD"}})
        .Dashboard("Second", {{0, "LOAD"}, {2, "FAN"}, {1, "SPEED"}})
        .List("Rows", {"#Head", "SPEED", "LOAD"});
}

SmallDefinition Another() {
    SmallDefinition definition;
    definition.Value("OIL", "Oil", "POLL", 2).Bit("LAMP", "Lamp", "POLL", 3);
    return definition.Dashboard("Third", {{0, "OIL"}, {2, "LAMP"}, {1, "OIL"}}).List("Others", {"OIL", "LAMP"});
}

class Reload : public ViewsProgramTest {
protected:
    const LoggedReply drive{"POLL", SmallDefinition::Reply({10, 20, 31, 1})};

    // A playback that goes on for as long as a test may take.
    std::vector<LoggedReply> LongLog() const {
        std::vector<LoggedReply> log;
        for (std::uint32_t i = 0; i < 6000; ++i)
            log.push_back({"POLL", drive.bytes, 20 * i});
        return log;
    }
    void ExpectChosen(int row, int gauges) {
        EXPECT_TRUE(Eventually([&] { return Dash().Chosen() == row && Dash().GaugeCount() == gauges; }))
            << Dash().Chosen() << " with " << Dash().GaugeCount();
    }
    // Both definitions have their turn, with this tab on show, while a scan or a playback keeps the program busy.
    void ExpectLoadsSurvived(int tab, Command begin, const char* busy) {
        const std::string first = folder.Name("own.adx"), other = Put("other.adx", Another());
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
    Serve({drive});
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

}  // namespace
}  // namespace corvex::test
