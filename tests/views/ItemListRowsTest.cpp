#include <gtest/gtest.h>

#include "tests/views/ListTestHelper.h"
#include "tests/views/MenuDriver.h"
#include "views/ItemListRows.h"

namespace corvex::test {
namespace {

using ItemListRowsTest = ListTest;

TEST_F(ItemListRowsTest, EveryRowShowsItsValueAndItsTitle) {
    ShowRows({speed, fan});
    Arrive({50, 1});
    EXPECT_EQ((Strings{"50.0 | Speed", "runs | Fan"}), Table());
    Arrive({60, 0});
    EXPECT_EQ((Strings{"60.0 | Speed", "rests | Fan"}), Table());
}

TEST_F(ItemListRowsTest, AnEntryWithoutItsItemHasNoRow) {
    AddRow(speed);
    AddRow(nullptr);
    AddHeading("Faults", 0);
    AddRow(fan);
    ADXLVENTRY odd;
    odd.entrytype = 5;
    AddEntry(odd);
    odd.entrytype = ADXLVENTRY::kHeadingRow;
    odd.item = speed;
    AddEntry(odd);
    Show();
    EXPECT_EQ((Strings{"0.0 | Speed", " | Faults", "rests | Fan", " | ", " | "}), Table());
    EXPECT_EQ("", Cell(1, kEmptyColumn));
    EXPECT_EQ(list->GetEntry(3), EntryOfRow(List(), 2));
    EXPECT_EQ(nullptr, EntryOfRow(List(), 5));
}

TEST_F(ItemListRowsTest, AnotherListHasItsOwnRows) {
    auto* const second = AddTitled<ADXListView>(session.definition, "TWO", "Two");
    AddRow(speed);
    AddRow(fan, second);
    AddRow(speed, second);
    Show();
    EXPECT_EQ(1, RowCount());
    Choose(Page(1), IDC_LIST_COMBO, 1);
    EXPECT_EQ((Strings{"rests | Fan", "0.0 | Speed"}), Table());
    Choose(Page(1), IDC_LIST_COMBO, -1);
    EXPECT_EQ(0, RowCount());
}

TEST_F(ItemListRowsTest, TheFirstListHasItsRowsFromTheStart) {
    AddRow(speed);
    CreateItemListPage(session);
    EXPECT_EQ(Strings{"0.0 | Speed"}, Table());
}

TEST_F(ItemListRowsTest, RefreshLeavesNoRowOfAListThatIsGone) {
    ShowRows({speed, fan});
    session.definition.Clear();
    RefreshItemListPage(session);
    EXPECT_EQ(0, RowCount());
    FillDefinition();
    AddRow(fan);
    RefreshItemListPage(session);
    EXPECT_EQ(Strings{"rests | Fan"}, Table());
}

TEST_F(ItemListRowsTest, ARepaintFromAWorkerIsAskedForAndNotWaitedFor) {
    ShowRows({speed, fan});
    ::UpdateWindow(List());
    ASSERT_FALSE(::GetUpdateRect(List(), nullptr, FALSE));
    MainThread mainThread;
    bool isDue = false;
    WhilePumping([&] {
        RepaintList();
        RepaintList();
        mainThread.Run([&] {
            RepaintList();
            isDue = ::GetUpdateRect(List(), nullptr, FALSE) != FALSE;
        });
    });
    EXPECT_TRUE(isDue);
    Arrive({50, 1});
    EXPECT_EQ((Strings{"50.0 | Speed", "runs | Fan"}), Table());
}

TEST_F(ItemListRowsTest, OnlyRowsInViewAreReadWhenTheyArePainted) {
    // No row but the last reads this word, which is far below.
    auto* const deep = AddTitled<ADXValue>(session.definition, "DEEP", "Deep");
    deep->SetEquation("X", 1);
    for (int i = 0; i < 200; ++i)
        AddRow(speed);
    AddRow(deep);
    Show();
    const std::uint8_t packet[] = {50, 1};
    session.StoreLastPacket(LastPacket::Of(PacketView(packet, 2), kCommand));
    RepaintList();
    ::UpdateWindow(List());
    EXPECT_EQ(50U, speed->GetRaw(nullptr));
    EXPECT_EQ(0U, deep->GetRaw(nullptr));
    EXPECT_EQ("50.00", Cell(200, 1));
    EXPECT_EQ(50U, deep->GetRaw(nullptr));
}

}  // namespace
}  // namespace corvex::test
