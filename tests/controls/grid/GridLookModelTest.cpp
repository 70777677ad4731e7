#include <gtest/gtest.h>

#include "controls/grid/GridLookModel.h"

namespace corvex {
namespace {

constexpr std::uint32_t kHeadingGray = 0xF0F0F0;

class GridLookModelTest : public ::testing::Test {
protected:
    std::uint32_t Fill(int row, int column) const { return LookOfCell(grid, row, column).fill; }
    std::string Text(int row, int column) const { return LookOfCell(grid, row, column).text; }

    GridModel grid{kHeadingGray};
};

TEST_F(GridLookModelTest, HeadingsHaveLettersAndNumbersOrTheirOwnText) {
    grid.Resize(30, 60);
    grid.cells.At(0, 27).SetText("own");
    grid.cells.At(12, 0).SetText("own");
    grid.cells.At(0, 0).SetText("corner");
    const std::vector<std::string> first{Text(0, 0), Text(0, 1), Text(0, 26), Text(0, 27), Text(0, 52), Text(12, 0)};
    EXPECT_EQ(first, (std::vector<std::string>{"corner", " A", " Z", "AA", "AZ", "12"}));
    grid.style = 0;
    EXPECT_EQ(Text(0, 27) + Text(12, 0) + Text(0, 1) + Text(1, 0), "ownown");
    EXPECT_EQ(LookOfCell(grid, 0, 1).format, 0x8835u);
}

TEST_F(GridLookModelTest, HeadingsShowTheSelectionByStyleAndFocus) {
    grid.Select(2, 3, 4, 5);
    const auto all = [&] {
        return std::vector{Fill(0, 2), Fill(0, 3), Fill(0, 5), Fill(1, 0), Fill(3, 0), Fill(0, 0)};
    };
    const std::uint32_t no = kHeadingGray, dull = 0xDCDCDC, bright = 0x9EEDF8;
    EXPECT_EQ(all(), (std::vector{no, dull, dull, no, dull, no}));
    grid.Set(kGridFocused, true);
    EXPECT_EQ(all(), (std::vector{no, bright, bright, no, bright, no}));
    grid.style &= ~std::uint32_t{kGridMarkRows};
    EXPECT_EQ(all(), (std::vector{no, bright, bright, no, no, no}));
    grid.style &= ~std::uint32_t{kGridMarkColumns};
    EXPECT_EQ(all(), (std::vector{no, no, no, no, no, no}));
}

TEST_F(GridLookModelTest, ABodyCellIsFilledByWhatItIs) {
    constexpr std::uint32_t own = 0x204060, colours = kGridCellColours,
                            blending = kGridCellColours | kGridBlendSelection;
    const struct {
        bool isSelected, isOverlaid, isFocused, isProtected;
        std::uint32_t style, fill;
    } cases[] = {
        {false, false, false, false, 0, 0xFFFFFF},      {false, false, true, false, colours, own},
        {false, false, false, true, colours, 0xE6E6E6}, {false, true, false, true, colours, 0x00FFFF},
        {true, false, false, true, 0, 0xB4B4B4},        {true, false, true, false, 0, 0xDBA280},
        {true, false, true, false, colours, 0xDBA280},  {true, false, true, false, kGridBlendSelection, 0xDBA280},
        {true, false, true, false, blending, 0x7D7170}, {true, false, false, false, blending, 0x6A7A8A},
        {true, true, true, false, blending, 0x5AD9D9},  {true, true, false, false, blending, 0x6DD0BF},
    };
    for (const auto& one : cases) {
        grid.style = one.style;
        grid.Set(kGridFocused, one.isFocused);
        grid.Select(1, 1, one.isSelected ? 4 : 1, one.isSelected ? 4 : 1);
        grid.overlay = {one.isOverlaid ? cellAddress(5, 1) : 0, one.isOverlaid ? cellAddress(2, 3) : 0};
        grid.cells.At(3, 3).SetFill(own);
        grid.cells.At(3, 3).SetProtected(one.isProtected);
        EXPECT_EQ(Fill(3, 3), one.fill) << &one - cases;
    }
    EXPECT_EQ(blend(0xFF0001, 0x000002), 0x7F0001u);
}

TEST_F(GridLookModelTest, AnOverlayReachesFromCornerToCorner) {
    for (const auto& corners :
         {std::array{cellAddress(2, 5), cellAddress(4, 3)}, std::array{cellAddress(4, 5), cellAddress(2, 3)}}) {
        grid.overlay = corners;
        const std::pair<int, int> inside[] = {{2, 3}, {4, 5}, {3, 4}}, outside[] = {{1, 3}, {5, 5}, {2, 2}, {4, 6}};
        for (const auto& [row, column] : inside)
            EXPECT_TRUE(grid.IsOverlaid(row, column)) << row << "," << column;
        for (const auto& [row, column] : outside)
            EXPECT_FALSE(grid.IsOverlaid(row, column)) << row << "," << column;
    }
    grid.overlay = {};
    EXPECT_FALSE(grid.IsOverlaid(0, 0) || grid.IsOverlaid(1, 1));
}

TEST_F(GridLookModelTest, TextColourIsTheFirstThatApplies) {
    GridCell& cell = grid.cells.At(1, 1);
    cell.SetTextColour(0x112233);
    cell.SetChanged(true);
    const auto colour = [&] { return LookOfCell(grid, 1, 1).textColour; };
    grid.colours[kGridCellText] = 0x445566;
    grid.style |= kGridMarkChanged;
    EXPECT_EQ(colour(), 0x0000FFu);
    grid.style &= ~std::uint32_t{kGridMarkChanged};
    EXPECT_EQ(colour(), 0x112233u);
    grid.style &= ~std::uint32_t{kGridCellColours};
    EXPECT_EQ(colour(), 0x445566u);
    EXPECT_EQ(LookOfCell(grid, 1, 0).textColour, 0x445566u);
    grid.Set(kGridDisabled, true);
    for (const int row : {0, 1})
        EXPECT_EQ(LookOfCell(grid, row, row).textColour, kGridDisabledText);
}

TEST_F(GridLookModelTest, TextsAndNumbersAreAlignedByStyleOrByTheirOwn) {
    const struct {
        const char* text;
        std::uint32_t style, align;
        unsigned format;
    } cases[] = {
        {"text", 0, 0, 0x820},
        {"text", kGridTextRight, 0, 0x822},
        {"text", kGridEllipsis, 0, 0x8824},
        {"text", kGridEllipsis | kGridTextRight, 0, 0x8826},
        {"12", 0, 0, 0x826},
        {"12", kGridNumbersLeft, 0, 0x824},
        {"12", kGridEllipsis, 0, 0x8826},
        {"12", kGridEllipsis | kGridNumbersLeft | kGridTextRight, 0, 0x8824},
        {"12", kGridEllipsis, kGridAlignLeft, 0x820},
        {"12", 0, kGridAlignCentre | kGridAlignMiddle, 0x825},
        {"12", 0, kGridAlignRight | kGridAlignBottom, 0x82A},
        {"text", kGridTextRight, kGridAlignTop, 0x820},
    };
    for (const auto& one : cases) {
        grid.style = one.style;
        for (const int column : {0, 1}) {
            grid.cells.At(1, column).SetText(one.text);
            grid.cells.At(1, column).SetAlign(one.align);
        }
        EXPECT_EQ(LookOfCell(grid, 1, 1).format, one.format) << one.text << " " << one.style << " " << one.align;
    }
    grid.style = 0;
    grid.cells.At(1, 0).SetAlign(0);
    EXPECT_EQ(LookOfCell(grid, 1, 0).format, 0x826u) << "a row's heading counts as a number";
}

TEST_F(GridLookModelTest, WhatIsBeingTypedShowsInPlaceOfItsCell) {
    grid.cells.At(1, 1).SetText("old");
    grid.edited = "new";
    grid.Set(kGridEditing, true);
    const GridLook look = LookOfCell(grid, 1, 1);
    EXPECT_TRUE(look.isBeingEdited && look.text == "new" && look.format == 0x26u);
    EXPECT_FALSE(LookOfCell(grid, 1, 2).isBeingEdited);
}

}  // namespace
}  // namespace corvex
