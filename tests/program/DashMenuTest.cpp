#include "tests/program/ViewsProgramTest.h"
#include "tests/program/driver/PopupMenu.h"

namespace corvex::test {
namespace {

using Rows = std::vector<std::string>;

constexpr int kValues = 0, kBitmasks = 1;  // submenus

// Values 10 to 12, bitmasks 13 and 14 of the menu.
SmallDefinition WithItems() {
    SmallDefinition definition;
    definition.Value("SPEED", "Speed", "POLL", 0).Value("LOAD", "Load", "POLL", 1).Value("GEAR", "Gear", "POLL", 2);
    return definition.Bit("FAN", "Fan", "POLL", 3).Bit("PUMP", "Pump", "POLL", 4);
}

class DashMenu : public ViewsProgramTest {
protected:
    void ShowDashOf(const SmallDefinition& definition) {
        StartWith(definition);
        Window().ShowTab(kDashTab);
    }
    Rows RowsOn(int gauge) {
        const Rows rows = Look().RowsOf(OpenPopup(Dash().Gauge(gauge)));
        EXPECT_TRUE(LeaveMenu(Window().Handle()));
        return rows;
    }
    void Choose(int gauge, int submenu, int row) {
        OpenPopup(Dash().Gauge(gauge));
        EXPECT_TRUE(ChooseRow(Window().Handle(), submenu, row));
    }
    void ExpectTitle(int gauge, const std::string& title) {
        EXPECT_TRUE(Eventually([&] { return Dash().Title(gauge) == title; })) << Dash().Title(gauge);
    }
    void ExpectClass(int gauge, const std::string& name) {
        EXPECT_TRUE(Eventually([&] { return Dash().Class(gauge) == name; })) << Dash().Class(gauge);
    }
    void ExpectPlace(int gauge, const RECT& wanted) {
        const auto isSo = [&] {
            const RECT place = Dash().Place(gauge);
            return ::EqualRect(&place, &wanted) != FALSE;
        };
        EXPECT_TRUE(Eventually(isSo));
    }
    // Types and items of the entries in the file that the program saves, in their order: "0 SPEED".
    Rows SavedEntries(const Rows& items) {
        folder.Files().Put("own.adx", "");
        Window().Send(kSaveDefinition);
        // A look into the file would stand in the way of the new one, which comes whole.
        EXPECT_TRUE(Eventually([&] { return folder.Size("own.adx") != 0; }));
        // Whoever moved it there may hold it a moment longer.
        std::string text;
        EXPECT_TRUE(Eventually([&] { return !(text = folder.Files().Content("own.adx")).empty(); }));
        const std::string mark = "<ADXDGENTRY gaugetype=\"";
        Rows entries;
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
            const std::string line = text.substr(at, text.find("/>", at) - at);
            entries.push_back(line.substr(mark.size(), 1));
            for (const std::string& item : items) {
                if (line.find(HashText(item)) != std::string::npos) entries.back().append(" ").append(item);
            }
        }
        return entries;
    }
    const Rows allItems{"SPEED", "LOAD", "GEAR", "FAN", "PUMP"};
};

TEST_F(DashMenu, OffersValuesAndForWhatIsNoDialBitmasks) {
    ShowDashOf(WithItems().Dashboard("Main", {{0, "LOAD"}, {1, "SPEED"}, {2, "PUMP"}}));
    EXPECT_EQ(RowsOn(0), (Rows{"1 Values", "10 Speed", "11* Load", "12 Gear"}));
    EXPECT_EQ(RowsOn(1), (Rows{"1 Values", "10* Speed", "11 Load", "12 Gear", "2 Bitmasks", "13 Fan", "14 Pump"}));
    EXPECT_EQ(RowsOn(2), (Rows{"1 Values", "10 Speed", "11 Load", "12 Gear", "2 Bitmasks", "13 Fan", "14* Pump"}));
}

TEST_F(DashMenu, BindsADialToTheChosenValueDuringAScan) {
    ShowDashOf(WithItems().Dashboard("Main", {{0, "SPEED"}, {1, "SPEED"}}));
    Scan({{"POLL", SmallDefinition::Reply({10, 20, 30})}});
    ExpectNeedle(0, 10);
    const HWND dial = Dash().Gauge(0);
    Choose(0, kValues, 2);
    ExpectTitle(0, "Gear");
    ExpectNeedle(0, 30);
    EXPECT_EQ(Dash().Gauge(0), dial);
    Choose(1, kValues, 1);
    ExpectReadout(1, "Load", 20.0F);
    StopScan();
    EXPECT_EQ(SavedEntries(allItems), (Rows{"0 GEAR", "1 LOAD"}));
}

TEST_F(DashMenu, TurnsAReadoutIntoALampAndBack) {
    ShowDashOf(WithItems().Dashboard("Main", {{0, "SPEED"}, {1, "LOAD"}}));
    ExpectClass(1, "QZDIGITALGAUGEREADOUT");
    const RECT place = Dash().Place(1);
    Choose(1, kBitmasks, 1);
    ExpectClass(1, "QZSTATUSGAUGE");
    ExpectTitle(1, "Pump");
    ExpectLamp(1, "Pump", false);
    ExpectPlace(1, place);
    EXPECT_EQ(Dash().GaugeCount(), 2);
    EXPECT_EQ(SavedEntries(allItems), (Rows{"0 SPEED", "2 PUMP"}));
    EXPECT_EQ(RowsOn(1).back(), "14* Pump");
    Choose(1, kValues, 2);
    ExpectClass(1, "QZDIGITALGAUGEREADOUT");
    ExpectReadout(1, "Gear", 0.0F);
    ExpectPlace(1, place);
    EXPECT_EQ(SavedEntries(allItems), (Rows{"0 SPEED", "1 GEAR"}));
}

TEST_F(DashMenu, LeftByEscapeChangesNothing) {
    ShowDashOf(WithItems().Dashboard("Main", {{0, "SPEED"}, {1, "LOAD"}}));
    for (const int gauge : {0, 1}) {
        OpenPopup(Dash().Gauge(gauge));
        EXPECT_TRUE(LeaveMenu(Window().Handle()));
    }
    EXPECT_EQ(Dash().Title(0), "Speed");
    ExpectReadout(1, "Load", 0.0F);
    EXPECT_EQ(SavedEntries(allItems), (Rows{"0 SPEED", "1 LOAD"}));
}

TEST_F(DashMenu, HitsItsOwnEntryBehindOneOfAnUnknownType) {
    ShowDashOf(WithItems().Dashboard("Main", {{0, "SPEED"}, {3, "LOAD"}, {0, "LOAD"}, {1, "SPEED"}}));
    EXPECT_EQ(Dash().GaugeCount(), 3);
    EXPECT_EQ(Dash().Gauge(1), nullptr);
    Scan({{"POLL", SmallDefinition::Reply({10, 20, 30})}});
    ExpectNeedle(2, 20);
    Choose(2, kValues, 2);
    ExpectTitle(2, "Gear");
    ExpectNeedle(2, 30);
    Choose(3, kBitmasks, 0);
    ExpectClass(3, "QZSTATUSGAUGE");
    EXPECT_EQ(Dash().Title(0), "Speed");
    StopScan();
    EXPECT_EQ(SavedEntries(allItems), (Rows{"0 SPEED", "3 LOAD", "0 GEAR", "2 FAN"}));
}

TEST_F(DashMenu, WorksOnAGaugeWithoutAnItem) {
    ShowDashOf(WithItems().Dashboard("Main", {{1, ""}, {0, "SPEED"}}));
    EXPECT_EQ(RowsOn(0).at(1), "10 Speed");
    Choose(0, kValues, 1);
    ExpectReadout(0, "Load", 0.0F);
    EXPECT_EQ(SavedEntries(allItems), (Rows{"1 LOAD", "0 SPEED"}));
}

TEST_F(DashMenu, AsksBeforeWhatWasBoundIsDropped) {
    ShowDashOf(WithItems().Dashboard("Main", {{0, "SPEED"}, {1, "LOAD"}}));
    const std::string before = folder.Files().Content("own.adx");
    Choose(0, kValues, 2);
    ExpectTitle(0, "Gear");
    Window().Close();
    CancelDialog(program->Id(), "Corvex");
    Window().Send(kEditDefinition);
    CancelDialog(program->Id(), "Corvex");
    ExpectTitle(0, "Gear");
    EXPECT_EQ(folder.Files().Content("own.adx"), before);
    Window().Send(kExit);
    PressButton(WaitForDialog(program->Id(), "Corvex"), IDYES);
    EXPECT_EQ(program->WaitForExit(30000), std::optional<DWORD>(0));
    EXPECT_NE(folder.Files().Content("own.adx").find(HashText("GEAR")), std::string::npos);
}

}  // namespace
}  // namespace corvex::test
