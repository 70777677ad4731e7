#include <gtest/gtest.h>

#include <algorithm>

#include "controls/grid/GridPaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr RECT kAll{0, 0, 5000, 5000};

class GridPaintTest : public ::testing::Test {
protected:
    GridPaintTest() { grid.Resize(4, 30); }
    Figures Paint(int width, int height, const RECT& due = kAll) {
        grid.clientWidth = width;
        grid.clientHeight = height;
        grid.FindVisible();
        return FiguresOf([&](HDC dc) { PaintGrid(dc, grid, fonts, due); });
    }
    static bool Has(const Figures& figures, const std::string& line) {
        return std::find(figures.begin(), figures.end(), line) != figures.end();
    }
    // Without a line it ends a pixel early.
    static std::string Empty(int left, int top, int right, int bottom) {
        return Printed("rectangle %d,%d,%d,%d pen 5 1 000000 brush 808080", left, top, right + 1, bottom + 1);
    }
    // How the one text begins that ends so.
    static std::string TextLine(const Figures& figures, const std::string& text) {
        const auto found = std::find_if(figures.begin(), figures.end(), [&](const std::string& line) {
            return line.starts_with("text ") && line.ends_with(": " + text);
        });
        return found == figures.end() ? "none" : *found;
    }

    int Width(const char* text) const { return fonts.Measure(MemoryDc().Get(), GridFont::kCell, text).width; }

    GridModel grid{0xF0F0F0};
    const GridFonts fonts;
};

TEST_F(GridPaintTest, TheTitleHeadingsAndCellsLieBesideEachOther) {
    grid.title = "A title\nof two lines";
    grid.titleHeight = 40;
    for (const auto& [width, height] : {std::pair{180, 120}, std::pair{400, 300}}) {
        const Figures figures = Paint(width, height);
        EXPECT_TRUE(Has(figures, Printed("fill 2,2,%d,38 brush f0f0f0", width - 2))) << "inside of the title's edge";
        const std::string first = TextLine(figures, "A title"), second = TextLine(figures, "of two lines");
        EXPECT_NE(first.find(",6 align 0 font Arial 14 600 2 32 colour 000000 transparent"), std::string::npos)
            << first;
        EXPECT_NE(second.find(",20 align 0 font Arial 14 600"), std::string::npos) << second;
        EXPECT_TRUE(Has(figures, "rectangle 100,40,150,61 pen 0 1 dcdcdc brush f0f0f0"));
        EXPECT_TRUE(Has(figures, "fill 100,40,150,41 brush a6a6a6")) << "a heading's edge";
        EXPECT_NE(TextLine(figures, " B").find("font Arial 14 400 2 32 colour 000000"), std::string::npos);
        EXPECT_TRUE(Has(figures, "rectangle 0,82,50,103 pen 0 1 dcdcdc brush f0f0f0")) << "a row's heading";
        EXPECT_NE(TextLine(figures, "2").find("text 41,85 align 0 font Arial 14 100 2 32"), std::string::npos);
        EXPECT_TRUE(Has(figures, "rectangle 100,82,150,103 pen 0 1 dcdcdc brush ffffff"));
        const bool hasBottom = Has(figures, Empty(100, 145, 150, height));
        EXPECT_EQ(hasBottom, height == 300) << "below the last row";
        EXPECT_EQ(FiguresOfKind(figures, "rectangle").back(), "rectangle 50,61,100,82 pen 0 1 ffffff brush none");
    }
}

TEST_F(GridPaintTest, ColumnsBehindZHaveTwoLettersAndHiddenOnesNothing) {
    grid.columns.first = 26;
    grid.columns.SetSize(28, 0);
    const Figures figures = Paint(400, 100);
    EXPECT_NE(TextLine(figures, " Z"), "none");
    EXPECT_NE(TextLine(figures, "AA"), "none");
    EXPECT_EQ(TextLine(figures, "AB"), "none");
    EXPECT_TRUE(Has(figures, "rectangle 150,21,200,42 pen 0 1 dcdcdc brush ffffff")) << "the 29th";
}

TEST_F(GridPaintTest, TheLastColumnStretchesOrTheRestIsGray) {
    grid.Resize(2, 3);
    for (const int width : {400, 700}) {
        grid.style |= kGridStretchLastColumn;
        EXPECT_TRUE(Has(Paint(width, 63), Printed("rectangle 150,21,%d,42 pen 0 1 dcdcdc brush ffffff", width)));
        grid.style &= ~std::uint32_t{kGridStretchLastColumn};
        EXPECT_TRUE(Has(Paint(width, 63), Empty(200, 0, width, 63)));
    }
}

TEST_F(GridPaintTest, ALastRowThatIsCutIsLeftOutByStyle) {
    const std::string cut = "rectangle 100,63,150,84 pen 0 1 dcdcdc brush ffffff";
    const auto isDrawn = [&](bool hasStyle, bool hasBar, int height) {
        grid.style = hasStyle ? grid.style | kGridWholeLastRow : grid.style & ~std::uint32_t{kGridWholeLastRow};
        grid.Set(kGridVerticalBar, hasBar);
        return Has(Paint(300, height), cut);
    };
    EXPECT_TRUE(isDrawn(false, true, 70));
    EXPECT_TRUE(isDrawn(true, false, 70));
    EXPECT_FALSE(isDrawn(true, true, 70));
    EXPECT_TRUE(Has(Paint(300, 70), Empty(100, 63, 150, 70)));
    EXPECT_TRUE(isDrawn(true, true, 90));
}

TEST_F(GridPaintTest, SelectionOverlayAndCursorShowTheFocus) {
    grid.style &= ~std::uint32_t{kGridCellColours};
    grid.Select(1, 1, 2, 2);
    grid.overlay = {cellAddress(2, 2), cellAddress(2, 3)};
    for (const bool isFocused : {false, true}) {
        grid.Set(kGridFocused, isFocused);
        const Figures figures = Paint(300, 120);
        const auto cell = [&](int left, int top, const char* fill) {
            return Has(figures,
                       Printed("rectangle %d,%d,%d,%d pen 0 1 dcdcdc brush ", left, top, left + 50, top + 21) + fill);
        };
        EXPECT_TRUE(cell(50, 21, isFocused ? "dba280" : "b4b4b4"));
        EXPECT_TRUE(cell(100, 42, isFocused ? "5ad9d9" : "6dd0bf"));
        EXPECT_TRUE(cell(150, 42, "00ffff"));
        EXPECT_TRUE(cell(50, 0, isFocused ? "9eedf8" : "dcdcdc")) << "the heading";
        EXPECT_EQ(figures.back(), Printed("rectangle 100,42,150,63 pen 0 %d ffffff brush none", isFocused ? 3 : 1));
    }
    grid.rows.first = 3;
    EXPECT_EQ(Paint(300, 120).back().find("brush none"), std::string::npos) << "the cursor is out of view";
}

TEST_F(GridPaintTest, TextsKeepToTheirPlacesAndEndInAnEllipsis) {
    grid.cells.At(1, 1).SetText("a text that is too long");
    grid.cells.At(2, 1).SetText("12");
    grid.cells.At(3, 1).SetText("mid");
    grid.cells.At(3, 1).SetAlign(kGridAlignCentre | kGridAlignBottom);
    grid.cells.At(4, 1).SetText("a & b");
    Figures figures = Paint(300, 150);
    const auto place = [&](const std::string& text) {
        return TextLine(figures, text).substr(5, TextLine(figures, text).find(" align") - 5);
    };
    EXPECT_EQ(place("a text that is too long"), "52,21");
    EXPECT_EQ(place("12"), Printed("%d,45", 98 - Width("12")));
    EXPECT_EQ(place("mid"), Printed("%d,70", 52 + (46 - Width("mid")) / 2));
    EXPECT_EQ(place("a & b"), "52,84");
    grid.style |= kGridEllipsis | kGridTextRight | kGridNumbersLeft;
    figures = Paint(300, 150);
    EXPECT_EQ(TextLine(figures, "a text that is too long"), "none");
    const Figures texts = FiguresOfKind(figures, "text");
    EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [](const std::string& line) {
        return line.find(": a te") != std::string::npos && line.ends_with("...");
    }));
    EXPECT_EQ(place("12"), "52,45");
}

TEST_F(GridPaintTest, WhatIsTypedIsFramedAndKeptAtItsEnd) {
    grid.edited = "typed";
    grid.Set(kGridEditing, true);
    const Figures figures = Paint(300, 150);
    EXPECT_TRUE(Has(figures, "rectangle 52,23,98,40 pen 0 1 dcdcdc brush d9d9d9"));
    EXPECT_TRUE(TextLine(figures, "typed").starts_with(Printed("text %d,24 ", 91 - Width("typed"))));
}

TEST_F(GridPaintTest, OnlyWhatIsDueIsDrawn) {
    const Figures all = Paint(500, 300), part = Paint(500, 300, RECT{110, 50, 140, 60});
    EXPECT_EQ(part, (Figures{"rectangle 100,42,150,63 pen 0 1 dcdcdc brush ffffff", all.back()}));
    EXPECT_EQ(Paint(500, 300, RECT{110, 50, 160, 60}).size(), 3u);
}

TEST_F(GridPaintTest, AClientWithoutRoomHasNoBody) {
    for (const auto& [width, height] : {std::pair{0, 0}, std::pair{49, 300}, std::pair{300, 20}}) {
        const Figures rectangles = FiguresOfKind(Paint(width, height), "rectangle");
        EXPECT_TRUE(std::none_of(rectangles.begin(), rectangles.end(),
                                 [](const std::string& line) {
                                     return line.find("brush ffffff") != std::string::npos ||
                                            line.find("brush none") != std::string::npos;
                                 }))
            << width << " by " << height;
    }
}

}  // namespace
}  // namespace corvex
