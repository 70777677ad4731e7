#include <gtest/gtest.h>

#include "controls/grid/GridEditor.h"
#include "tests/controls/grid/GridHostFake.h"

namespace corvex {
namespace {

class GridEditorTest : public ::testing::Test {
protected:
    GridEditorTest() {
        host.TakeFocus();
        host.notes.clear();
    }
    void Put(int row, int column, std::string_view text) { grid.cells.At(row, column).SetText(text); }
    GridCell& Cell(int row, int column) { return grid.cells.At(row, column); }

    FakeGrid fake{550, 231, 20, 10};
    GridModel& grid = fake.grid;
    GridHostFake& host = fake.host;
};

TEST_F(GridEditorTest, TypingBeginsOnceAndAMovementStoresIt) {
    EXPECT_EQ(fake.Type("1"), GridCodes{kGridEditBegun});
    EXPECT_EQ(fake.Type("2}"), GridCodes{});
    EXPECT_EQ(grid.edited, "12}");
    EXPECT_TRUE(grid.Is(kGridEditing) && host.isCaretShown);
    EXPECT_EQ(host.caret, std::pair(100 - 8, 21 + 4 + 10 - 14 + 2));
    EXPECT_EQ(host.parts.back(), grid.CellBox(1, 1));
    EXPECT_EQ(fake.Text(1, 1), "");
    EXPECT_EQ(fake.Press(GridKey::kDelete), GridCodes{kGridDeleteKey}) << "goes on";
    EXPECT_EQ(fake.Press(GridKey::kF1), GridCodes{11});
    host.notes.clear();
    fake.machine.keys.OnDown(GridKey::kEnter);
    EXPECT_EQ(host.notes, (GridNotes{{kGridEditEnded, cellAddress(1, 1)},
                                     {kGridTextStored, cellAddress(1, 1)},
                                     {kGridCursorMoved, cellAddress(2, 1)}}));
    EXPECT_EQ(fake.Text(1, 1), "12}");
    EXPECT_TRUE(Cell(1, 1).IsChanged() && grid.Is(kGridModified));
    EXPECT_FALSE(grid.Is(kGridEditing) || host.isCaretShown);
}

TEST_F(GridEditorTest, TheSameTextAgainIsNoChange) {
    Put(1, 1, "7");
    fake.Type("7");
    EXPECT_EQ(fake.Press(GridKey::kRight), (GridCodes{kGridEditEnded, kGridTextStored, kGridCursorMoved}));
    EXPECT_FALSE(Cell(1, 1).IsChanged() || grid.Is(kGridModified));
}

TEST_F(GridEditorTest, TheLetterBehindThreeHundredBeeps) {
    fake.Type(std::string(300, 'x'));
    EXPECT_EQ(host.beeps, 0);
    fake.Type("y");
    EXPECT_EQ(host.beeps, 1);
    EXPECT_EQ(grid.edited, std::string(300, 'x'));
    fake.Press(GridKey::kBackspace);
    fake.Type("z");
    EXPECT_EQ(host.beeps, 1);
    EXPECT_EQ(grid.edited, std::string(299, 'x') + "z");
}

TEST_F(GridEditorTest, EscapeForgetsAndBackspaceBegins) {
    Put(1, 1, "old");
    EXPECT_EQ(fake.Press(GridKey::kEscape), GridCodes{});
    EXPECT_EQ(fake.Press(GridKey::kBackspace), GridCodes{kGridEditBegun});
    EXPECT_EQ(grid.edited, "");
    fake.Type("ab");
    EXPECT_EQ(fake.Press(GridKey::kBackspace), GridCodes{});
    EXPECT_EQ(grid.edited, "a");
    EXPECT_EQ(fake.Press(GridKey::kEscape), GridCodes{kGridEditEnded});
    EXPECT_EQ(fake.Press(GridKey::kDown), GridCodes{kGridCursorMoved});
    EXPECT_EQ(fake.Text(1, 1), "old");
}

TEST_F(GridEditorTest, NothingIsTypedWhereItMayNotBe) {
    const auto isRefused = [&] {
        const bool refused = !fake.machine.keys.OnCharacter('1') && !fake.machine.keys.OnDown(GridKey::kBackspace);
        fake.machine.mouse.OnDoubleClick(60, 30);
        return refused && host.TakeNotes().empty() && !grid.Is(kGridEditing);
    };
    Cell(1, 1).SetProtected(true);
    EXPECT_TRUE(isRefused());
    Cell(1, 1).SetProtected(false);
    fake.machine.ClearStyle(kGridEditable, true);
    EXPECT_TRUE(isRefused());
    fake.machine.SetStyle(kGridEditable, true);
    fake.machine.SetSize(0, 10);
    EXPECT_TRUE(isRefused());
    fake.machine.SetSize(10, 10);
    for (const std::uint32_t character : {0x08u, 0x0Du, 0x1Bu, 0x1Fu, 0x7Eu, 0x7Fu, 0xE4u, 0x131u})
        EXPECT_FALSE(fake.machine.keys.OnCharacter(character)) << character;
    EXPECT_FALSE(isRefused());
}

TEST_F(GridEditorTest, AParentThatForbidsItWhenItBeginsIsHeard) {
    host.handler = [&](std::uint32_t code) {
        if (code == kGridEditBegun) Cell(1, 1).SetProtected(true);
    };
    fake.Type("1");
    EXPECT_FALSE(grid.Is(kGridEditing));
    EXPECT_EQ(grid.edited, "");
}

TEST_F(GridEditorTest, ACursorOutOfViewIsBroughtBackAndTheLetterKept) {
    fake.machine.SetCursor(20, 1);
    EXPECT_EQ(grid.rows.first, 1);
    fake.Type("x");
    EXPECT_EQ(grid.rows.first, 11);
    EXPECT_EQ(grid.edited, "x");
    fake.machine.view.ScrollTo(true, 1);
    EXPECT_FALSE(host.isCaretShown);
    fake.machine.view.ScrollTo(true, 10);
    EXPECT_TRUE(host.isCaretShown);
}

TEST_F(GridEditorTest, ADoubleClickOnTheCursorBeginsEmpty) {
    Put(1, 1, "old");
    fake.machine.mouse.OnDoubleClick(110, 30);
    EXPECT_FALSE(grid.Is(kGridEditing));
    fake.machine.mouse.OnDoubleClick(60, 30);
    EXPECT_EQ(host.TakeCodes(), GridCodes{kGridEditBegun});
    EXPECT_TRUE(grid.Is(kGridEditing) && host.isCaretShown);
    EXPECT_EQ(grid.edited, "");
    fake.machine.mouse.OnDoubleClick(60, 30);
    EXPECT_EQ(host.TakeCodes(), GridCodes{});
}

TEST_F(GridEditorTest, TheEndOfTheFocusStoresAndLetsGoOfCtrlAndShift) {
    fake.Type("1");
    fake.Press(GridKey::kCtrl);
    fake.Press(GridKey::kShift);
    EXPECT_EQ(fake.Press(GridKey::kTab), (GridCodes{kGridFocusLost, kGridEditEnded, kGridTextStored}));
    EXPECT_EQ(fake.Text(1, 1), "1");
    EXPECT_EQ(grid.state & (kGridCtrlDown | kGridShiftDown | kGridFocused | kGridEditing), 0u);
    EXPECT_FALSE(host.hasCaret);
    host.TakeFocus();
    EXPECT_EQ(host.notes, (GridNotes{{kGridFocusGained, 0}}));
    EXPECT_TRUE(host.hasCaret);
}

// A parent that shows a box when it is told takes the focus, and that ends the editing too.
TEST_F(GridEditorTest, EndsOnceThoughTheParentTakesTheFocusMeanwhile) {
    host.handler = [&](std::uint32_t code) {
        if (code == kGridEditEnded) host.PassFocusToParent();
    };
    fake.Type("1");
    EXPECT_EQ(fake.Press(GridKey::kDown),
              (GridCodes{kGridEditEnded, kGridFocusLost, kGridTextStored, kGridCursorMoved}));
    EXPECT_EQ(fake.Text(1, 1), "1");
}

TEST_F(GridEditorTest, WhatTakesTheCursorAwayStoresFirst) {
    const std::function<void()> moves[] = {
        [&] { fake.machine.SetCursor(3, 3); },
        [&] { fake.machine.SetSelection(cellAddress(1, 1), cellAddress(2, 2)); },
        [&] { fake.machine.keys.OnCharacter(1); },
        [&] { fake.machine.SetSize(1, 2); },
    };
    for (const auto& move : moves) {
        fake.machine.SetSize(5, 5);
        fake.machine.SetCursor(1, 3);
        fake.Type("9");
        move();
        EXPECT_EQ(host.TakeCodes(), (GridCodes{kGridEditEnded, kGridTextStored}));
        EXPECT_FALSE(grid.Is(kGridEditing));
    }
}

TEST_F(GridEditorTest, AStoredTextGrowsItsRowAndColumn) {
    const auto store = [&](int row, int column, std::string_view text) {
        fake.machine.editor.Store(cellAddress(static_cast<unsigned>(row), static_cast<unsigned>(column)), text);
        return std::pair(grid.rows.Size(row), grid.columns.Size(column));
    };
    EXPECT_EQ(store(1, 1, "a text of 20 letters"), std::pair(21, 50)) << "without the style";
    grid.style |= kGridGrowToText;
    EXPECT_EQ(store(1, 1, "a text of 20 letters"), std::pair(21, 145));
    EXPECT_EQ(store(1, 1, "short"), std::pair(21, 145));
    EXPECT_EQ(store(2, 2, "two\nlines of it"), std::pair(33, 82));
    EXPECT_EQ(store(3, 3, ""), std::pair(21, 50));
    grid.style |= kGridEllipsis;
    EXPECT_EQ(store(4, 4, "one\ntwo\nthree"), std::pair(21, 50));
    EXPECT_EQ(store(0, 4, "one\ntwo\nthree"), std::pair(47, 50)) << "headings keep their lines";
    host.notes.clear();
    fake.machine.editor.Store(cellAddress(21, 1), "x");
    fake.machine.editor.Store(cellAddress(0, 11), "x");
    EXPECT_EQ(host.notes, (GridNotes{{kGridBadAddress, 0}, {kGridBadAddress, 0}}));
}

}  // namespace
}  // namespace corvex
