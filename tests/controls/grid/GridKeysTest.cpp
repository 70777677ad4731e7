#include <gtest/gtest.h>

#include "controls/grid/GridKeys.h"
#include "tests/controls/grid/GridHostFake.h"

namespace corvex {
namespace {

using Places = std::vector<int>;  // anchor row and column, cursor row and column

// Ten rows and columns fit.
class GridKeysTest : public ::testing::Test {
protected:
    Places After(const std::vector<GridKey>& keys) {
        for (const GridKey key : keys)
            fake.machine.keys.OnDown(key);
        for (const GridKey key : {GridKey::kShift, GridKey::kCtrl})
            fake.machine.keys.OnUp(key);
        return fake.Selection();
    }
    void Select(unsigned anchorRow, unsigned anchorColumn, unsigned row, unsigned column) {
        fake.machine.SetSelection(cellAddress(anchorRow, anchorColumn), cellAddress(row, column));
    }
    std::optional<std::string> Copied() {
        fake.host.clipboard.reset();
        fake.machine.keys.OnCharacter(3);
        return fake.host.clipboard;
    }

    FakeGrid fake{550, 231, 30, 10};
    GridModel& grid = fake.grid;
    static constexpr GridKey shift = GridKey::kShift, ctrl = GridKey::kCtrl, up = GridKey::kUp, down = GridKey::kDown,
                             left = GridKey::kLeft, right = GridKey::kRight;
};

TEST_F(GridKeysTest, ArrowsMoveTheCursorAndTheAnchorBySituation) {
    const struct {
        std::vector<GridKey> keys;
        Places places;  // from 2,3 to 4,5
    } cases[] = {
        {{down}, {5, 5, 5, 5}},
        {{GridKey::kEnter}, {5, 5, 5, 5}},
        {{up}, {3, 5, 3, 5}},
        {{left}, {4, 4, 4, 4}},
        {{right}, {4, 6, 4, 6}},
        {{ctrl, right}, {4, 6, 4, 6}},
        {{shift, down}, {2, 3, 5, 5}},
        {{shift, left}, {2, 3, 4, 4}},
        {{shift, ctrl, down}, {3, 3, 5, 5}},
        {{shift, ctrl, up}, {1, 3, 3, 5}},
        {{shift, ctrl, up, up, up, up}, {1, 3, 1, 5}},
        {{shift, ctrl, left, left, left}, {2, 1, 4, 2}},
        {{shift, ctrl, right}, {2, 4, 4, 6}},
        {{GridKey::kPageDown}, {14, 3, 14, 5}},
        {{GridKey::kPageUp}, {1, 3, 1, 5}},
        {{shift, GridKey::kPageDown}, {2, 3, 14, 5}},
        {{GridKey::kPageDown, GridKey::kPageDown, GridKey::kPageDown}, {30, 3, 30, 5}},
    };
    for (const auto& [keys, places] : cases) {
        Select(2, 3, 4, 5);
        EXPECT_EQ(After(keys), places) << static_cast<int>(keys.back()) << " of " << keys.size();
    }
    fake.machine.ClearStyle(kGridMultiSelect, true);
    Select(2, 3, 4, 5);
    EXPECT_EQ(After({shift, down}), (Places{5, 5, 5, 5}));
    Select(2, 3, 4, 5);
    EXPECT_EQ(After({shift, GridKey::kPageDown}), (Places{2, 3, 14, 5})) << "whatever the style says";
}

TEST_F(GridKeysTest, EveryMovementIsToldAndBroughtIntoView) {
    for (const GridKey key : {up, down, left, right, GridKey::kPageUp, GridKey::kPageDown, GridKey::kEnter})
        EXPECT_EQ(fake.Press(key), GridCodes{kGridCursorMoved});
    EXPECT_EQ(grid.rows.first, 3);
    fake.Press(GridKey::kPageUp);
    EXPECT_EQ(grid.rows.first, 2);
    EXPECT_EQ(fake.Press(static_cast<GridKey>(0x24)), GridCodes{}) << "Home means nothing";
    for (std::uint32_t i = 0; i < 12; ++i)
        EXPECT_EQ(fake.Press(static_cast<GridKey>(0x70 + i)), GridCodes{11 + i});
}

TEST_F(GridKeysTest, HiddenOnesArePassedOverButCopied) {
    fake.machine.SetColumnWidth(2, 0);
    fake.machine.SetRowHeight(2, 0);
    grid.cells.At(1, 2).SetText("hidden");
    EXPECT_EQ(After({right}), (Places{1, 3, 1, 3}));
    EXPECT_EQ(After({down, left}), (Places{3, 1, 3, 1}));
    EXPECT_EQ(After({up}), (Places{1, 1, 1, 1}));
    Select(1, 1, 1, 3);
    EXPECT_EQ(Copied(), "\thidden\t\r\n");
}

TEST_F(GridKeysTest, CopyTakesTheSelectionFromItsTopLeft) {
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column)
            grid.cells.At(row, column).SetText(std::to_string(row) + std::to_string(column));
    }
    Select(3, 3, 2, 2);
    EXPECT_EQ(Copied(), "22\t23\r\n32\t33\r\n");
    grid.cells.At(1, 1).SetText(std::string(300, 'x'));
    Select(1, 1, 1, 1);
    EXPECT_EQ(Copied(), std::string(255, 'x') + "\r\n");
    fake.machine.keys.OnCharacter(1);
    EXPECT_EQ(fake.Selection(), (Places{1, 1, 30, 10}));
    fake.machine.SetSize(0, 3);
    EXPECT_EQ(Copied(), std::nullopt) << "nothing is selected";
    fake.machine.keys.OnCharacter(1);
    EXPECT_EQ(fake.Selection(), (Places{1, 1, 1, 3}));
}

TEST_F(GridKeysTest, APasteFillsABlockWhateverIsProtected) {
    grid.cells.At(4, 5).SetText("c");
    grid.cells.At(3, 4).SetProtected(true);
    fake.host.clipboard = "a\tb\r\n\tc\r\n";
    Select(7, 7, 3, 4);
    fake.host.notes.clear();
    fake.machine.keys.OnCharacter(0x16);
    EXPECT_EQ(fake.host.notes, (GridNotes{{kGridTextStored, cellAddress(3, 4)},
                                          {kGridTextStored, cellAddress(3, 5)},
                                          {kGridTextStored, cellAddress(4, 4)},
                                          {kGridTextStored, cellAddress(4, 5)}}));
    EXPECT_EQ(fake.Text(3, 4) + fake.Text(3, 5) + fake.Text(4, 4) + fake.Text(4, 5), "abc");
    EXPECT_TRUE(grid.cells.At(3, 4).IsChanged() && grid.cells.At(3, 5).IsChanged());
    EXPECT_FALSE(grid.cells.At(4, 4).IsChanged() || grid.cells.At(4, 5).IsChanged()) << "as they were";
    EXPECT_EQ(fake.Selection(), (Places{3, 4, 4, 5}));
}

TEST_F(GridKeysTest, WhatDoesNotFitIsNotPasted) {
    const auto pasted = [&](const char* text) {
        fake.host.clipboard = text == nullptr ? std::optional<std::string>() : text;
        fake.host.notes.clear();
        fake.machine.keys.Paste();
        return !fake.host.notes.empty();
    };
    Select(30, 10, 30, 10);
    EXPECT_FALSE(pasted(nullptr));
    EXPECT_FALSE(pasted(""));
    EXPECT_FALSE(pasted("a\tb"));
    EXPECT_FALSE(pasted("a\nb\n"));
    EXPECT_TRUE(pasted("a\n"));
    fake.machine.ClearStyle(kGridEditable, false);
    EXPECT_FALSE(pasted("a\n"));
    fake.machine.SetStyle(kGridEditable, false);
    fake.machine.SetSize(1, 1);
    EXPECT_FALSE(pasted("a\tb\r\n"));
    fake.machine.SetSize(0, 1);
    EXPECT_FALSE(pasted("a"));
    EXPECT_EQ(fake.Text(0, 1), "");
}

}  // namespace
}  // namespace corvex
