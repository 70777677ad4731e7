#include <gtest/gtest.h>

#include "controls/grid/GridModel.h"
#include "tests/controls/grid/GridHostFake.h"

namespace corvex {
namespace {

TEST(GridCellStoreTest, KeepsWhatLiesInBothSizes) {
    GridCellStore store(3, 3);
    for (int row = 0; row <= 3; ++row) {
        for (int column = 0; column <= 3; ++column)
            store.At(row, column).SetText(std::to_string(10 * row + column));
    }
    store.At(2, 2).SetFill(0x123456);
    for (const auto& [rows, columns] : {std::pair{5, 2}, std::pair{2, 2}, std::pair{4, 4}}) {
        ASSERT_TRUE(store.Resize(rows, columns));
        EXPECT_EQ(store.Rows(), rows + 1);
        EXPECT_EQ(store.Columns(), columns + 1);
        EXPECT_EQ(store.At(0, 1).Text(), "1");
        EXPECT_EQ(store.At(2, 2).Text(), "22");
        EXPECT_EQ(store.At(2, 2).Fill(), 0x123456u);
    }
    EXPECT_EQ(store.At(3, 3).Text(), "") << "was gone in between";
    EXPECT_EQ(store.Find(cellAddress(5, 0)), nullptr);
    EXPECT_EQ(store.Find(cellAddress(0, 5)), nullptr);
    EXPECT_EQ(store.Find(cellAddress(4, 4)), &store.At(4, 4));
}

TEST(GridCellStoreTest, AlignmentIsKeptInABitForEachChoice) {
    const std::pair<unsigned, unsigned> cases[] = {
        {0, 0}, {1, 0x09}, {2, 0x0A}, {4, 0x0C}, {6, 0x0A}, {0x10, 0x11}, {0x20, 0x21}, {0x32, 0x12}, {0x24, 0x24},
    };
    GridCell cell;
    cell.SetProtected(true);
    for (const auto& [given, got] : cases) {
        cell.SetAlign(given);
        EXPECT_EQ(cell.Align(), got) << given;
        EXPECT_TRUE(cell.IsProtected() && !cell.IsChanged());
    }
    cell.SetFill(0xFF123456);
    cell.SetTextColour(0xFF654321);
    EXPECT_EQ(cell.Fill(), 0x123456u);
    EXPECT_EQ(cell.TextColour(), 0x654321u);
}

// The one behind the cut column counts as visible, the one behind the cut row does not.
TEST(GridModelTest, TheLastVisibleOnesDifferByDirection) {
    const struct {
        int width, height, lastColumn, lastRow;
        bool isPartlyColumn, isPartlyRow;
    } cases[] = {
        {50 + 120, 21 + 50, 4, 3, true, true},       // two and a bit
        {50 + 100, 21 + 42, 4, 3, true, true},       // exactly two: the third has no pixel
        {50 + 500, 21 + 210, 10, 10, false, false},  // exactly all
        {50 + 501, 21 + 211, 10, 10, false, false},
        {50 + 460, 21 + 200, 10, 10, true, true},  // of the last a part
        {50, 21, 2, 1, true, true},
        {49, 20, 0, 0, true, true},  // not even the headers
        {0, 0, 0, 0, true, true},
    };
    for (const auto& one : cases) {
        FakeGrid fake(one.width, one.height, 10, 10);
        fake.grid.FindVisible();
        EXPECT_EQ(fake.grid.columns.lastVisible, one.lastColumn) << one.width;
        EXPECT_EQ(fake.grid.rows.lastVisible, one.lastRow) << one.height;
        EXPECT_EQ(fake.grid.Is(kGridPartlyColumn), one.isPartlyColumn) << one.width;
        EXPECT_EQ(fake.grid.Is(kGridPartlyRow), one.isPartlyRow) << one.height;
    }
}

TEST(GridModelTest, APixelBelongsToTheCellThatBeginsThere) {
    FakeGrid fake(1000, 1000, 10, 10);
    fake.machine.SetColumnWidth(2, 0);
    fake.grid.rows.first = 3;
    const std::pair<int, int> columns[] = {{-5, 0},  {0, 0},    {49, 0},   {50, 1},  {99, 1},
                                           {100, 3}, {499, 10}, {500, -1}, {999, -1}};  // stretched, but not its own
    const std::pair<int, int> rows[] = {{-1, -1}, {0, -1}, {1, 0}, {20, 0}, {21, 3}, {41, 3}, {42, 4}, {189, -1}};
    for (const auto& [x, column] : columns)
        EXPECT_EQ(fake.grid.columnAt(x), column) << x;
    for (const auto& [y, row] : rows)
        EXPECT_EQ(fake.grid.rowAt(y), row) << y;
    fake.grid.titleHeight = 30;
    EXPECT_EQ(fake.grid.rowAt(30), -1);
    EXPECT_EQ(fake.grid.rowAt(31), 0);
    EXPECT_EQ(fake.grid.rowAt(51), 3);
}

TEST(GridModelTest, CellsLieBesideEachOtherAndTheLastColumnStretches) {
    FakeGrid fake(1000, 1000, 10, 4);
    fake.grid.titleHeight = 30;
    fake.machine.SetColumnWidth(4, 0);
    fake.grid.columns.first = 2;
    EXPECT_EQ(fake.grid.CellBox(0, 0), (GridBox{0, 30, 50, 51}));
    EXPECT_EQ(fake.grid.CellBox(2, 2), (GridBox{50, 72, 100, 93}));
    EXPECT_EQ(fake.grid.CellBox(1, 3), (GridBox{100, 51, 1000, 72})) << "the fourth is hidden";
    EXPECT_EQ(fake.grid.CellBox(1, 4), (GridBox{150, 51, 150, 72}));
    fake.grid.style &= ~std::uint32_t{kGridStretchLastColumn};
    EXPECT_EQ(fake.grid.CellBox(1, 3), (GridBox{100, 51, 150, 72}));
    fake.machine.SetSize(3, 0);
    fake.grid.style |= kGridStretchLastColumn;
    EXPECT_EQ(fake.grid.CellBox(1, 0).right, 1000) << "without a body the header column";
}

TEST(GridModelTest, ASmallerSizeCutsAllPlacesIntoTheBody) {
    FakeGrid fake(100, 100, 10, 10);
    const auto cell = [](unsigned row, unsigned column) { return cellAddress(row, column); };
    fake.machine.SetSelection(cell(9, 9), cell(8, 7));
    fake.machine.SetOverlay(cell(2, 9), cell(9, 2));
    fake.grid.rows.first = fake.grid.columns.first = 9;
    fake.machine.SetRowHeight(2, 33);
    fake.machine.SetRowHeight(5, 44);
    fake.machine.SetSize(3, 4);
    EXPECT_EQ(fake.Selection(), (std::vector{3, 4, 3, 4}));
    EXPECT_EQ(fake.grid.overlay, (std::array{cell(2, 4), cell(3, 2)}));
    EXPECT_LE(fake.grid.rows.first, 3);
    fake.machine.SetSize(0, 0);
    EXPECT_EQ(fake.Selection(), (std::vector{1, 1, 1, 1}));
    EXPECT_EQ(fake.grid.overlay, (std::array{cell(1, 1), cell(1, 1)}));
    fake.machine.SetSize(6, 6);
    EXPECT_EQ(fake.grid.rows.Size(2), 21) << "it was gone";
}

TEST(GridModelTest, SizesAreCappedAndClearAllLeavesTheHeaderRow) {
    FakeGrid fake(100, 100, 10, 10);
    fake.machine.SetSize(40000, 300);
    EXPECT_EQ(fake.grid.rows.Last(), 32000);
    EXPECT_EQ(fake.grid.columns.Last(), 256);
    fake.machine.SetSize(10, 10);
    GridCell& cell = fake.grid.cells.At(5, 5);
    cell.SetFill(1);
    cell.SetProtected(true);
    fake.grid.cells.At(0, 3).SetText("heading");
    fake.machine.SetRowHeight(5, 99);
    fake.machine.SetSelection(cellAddress(2, 2), cellAddress(5, 5));
    fake.grid.columns.first = 3;
    fake.machine.ClearAll();
    EXPECT_EQ(fake.grid.cells.Rows(), 1);
    EXPECT_FALSE(fake.grid.HasBody());
    EXPECT_EQ(fake.grid.cells.At(0, 3).Text(), "");
    EXPECT_EQ(fake.Selection(), (std::vector{1, 2, 1, 5}));
    EXPECT_EQ(fake.grid.columns.first, 1);
    fake.machine.SetSize(10, 10);
    EXPECT_EQ(fake.grid.cells.At(5, 5).Fill(), 0xFFFFFFu);
    EXPECT_FALSE(fake.grid.cells.At(5, 5).IsProtected());
    EXPECT_EQ(fake.grid.rows.Size(5), 21);
}

}  // namespace
}  // namespace corvex
