#include <gtest/gtest.h>

#include <algorithm>

#include "tests/views/ListTestHelper.h"

namespace corvex::test {
namespace {

constexpr COLORREF kRed = 0x0000FF, kOrange = 0x4080FF, kSetColour = 0x0000C0;

// The page is asked for the look of cells as the control asks, on a context that is looked into afterwards; and the
// real control is painted.
class ItemListColoursTest : public ListTest {
protected:
    struct Look {
        LRESULT result;
        COLORREF colour;
    };
    Look Ask(int row, int column, DWORD stage = CDDS_ITEMPREPAINT | CDDS_SUBITEM) {
        NMLVCUSTOMDRAW draw{};
        draw.nmcd.hdr = {List(), IDC_LIST_VIEW, static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.nmcd.dwDrawStage = stage;
        draw.nmcd.hdc = memory.Get();
        draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
        draw.iSubItem = column;
        draw.clrText = 0xABCDEF;
        const LRESULT result = ::SendMessageA(Page(1), WM_NOTIFY, IDC_LIST_VIEW, L(&draw));
        return {result, draw.clrText};
    }
    // Asks for the three cells of a row; 'b' for each that is bold.
    std::string BoldCells(int row) {
        std::string cells;
        for (int column = 0; column < 3; ++column) {
            Ask(row, column);
            cells += IsBold() ? 'b' : '-';
        }
        return cells;
    }
    COLORREF ColourOf(int row, int column) { return Ask(row, column).colour; }
    LOGFONTA Font() const {
        LOGFONTA font{};
        ::GetObjectA(::GetCurrentObject(memory.Get(), OBJ_FONT), sizeof font, &font);
        return font;
    }
    bool IsBold() const { return Font().lfWeight == 600; }
    // Which of the colours there are in a cell on the screen, as '1' for each; shades do not count.
    std::string Ink(int row, int column) {
        RedrawList();
        const Colours colours = TestBitmap(List()).ColoursIn(CellPlace(row, column));
        std::string found;
        for (const COLORREF colour : {COLORREF{kHeadingColour}, COLORREF{kOwn}, kRed, kOrange, kSetColour})
            found += colours.contains(colour) ? '1' : '-';
        return found;
    }

    MemoryDc memory;
    OwnedFont ordinary = MakeTestFont();
    SelectGuard selected{memory.Get(), ordinary.Get()};
};

TEST_F(ItemListColoursTest, EachStageIsAnswered) {
    ShowRows({speed});
    EXPECT_EQ(0x20, Ask(0, 0, CDDS_PREPAINT).result);
    EXPECT_EQ(0x20, Ask(0, 0, CDDS_ITEMPREPAINT).result);
    EXPECT_EQ(0, Ask(0, 1).result);
    EXPECT_EQ(0, Ask(0, 0, CDDS_POSTPAINT).result);
    EXPECT_EQ(0xABCDEFU, Ask(0, 1, CDDS_ITEMPOSTPAINT).colour);
    EXPECT_EQ(0xABCDEFU, Ask(9, 1).colour) << "a row that is not there";
}

TEST_F(ItemListColoursTest, AnAlarmIsInTheValueColumnAloneInTheBoldFont) {
    speed->flags = ADXValue::kAlarmHigh;
    ShowRows({speed});
    Arrive({100, 0});
    EXPECT_EQ("---", BoldCells(0));
    Arrive({101, 0});
    EXPECT_EQ("-b-", BoldCells(0));
    EXPECT_EQ(kOwn, ColourOf(0, 0));
    EXPECT_EQ(kOwn, ColourOf(0, 2));
    EXPECT_EQ(kRed, ColourOf(0, 1));
    const LOGFONTA font = Font();
    EXPECT_EQ(14, font.lfHeight);
    EXPECT_EQ(600, font.lfWeight);
    EXPECT_EQ(2, font.lfQuality);
    EXPECT_EQ(0x32, font.lfPitchAndFamily);
    EXPECT_STREQ("Arial", font.lfFaceName);
    EXPECT_EQ(0, font.lfCharSet);
}

TEST_F(ItemListColoursTest, ARowsBoldCarriesOnUntilAnotherColumn) {
    speed->flags = ADXValue::kAlarmHigh;
    ShowRows({speed, fan});
    Arrive({150, 0});
    Ask(0, 1);
    Ask(1, 1);
    EXPECT_TRUE(IsBold()) << "without an alarm the font is left as it is";
    Ask(0, 2);
    EXPECT_FALSE(IsBold());
    Ask(1, 1);
    EXPECT_FALSE(IsBold());
}

TEST_F(ItemListColoursTest, AHeadingIsBoldAndTheRowsBelowAreNot) {
    AddHeading("Engine", 1);
    AddRow(speed);
    AddHeading("Plain", 0);
    AddRow(fan);
    Show();
    EXPECT_EQ("bbb", BoldCells(0));
    EXPECT_EQ("---", BoldCells(1));
    EXPECT_EQ("---", BoldCells(2));
    EXPECT_EQ("bbb", BoldCells(0));
    EXPECT_EQ("---", BoldCells(3));
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(kHeadingColour, ColourOf(0, column));
        EXPECT_EQ(kHeadingColour, ColourOf(2, column));
    }
}

TEST_F(ItemListColoursTest, TheScreenShowsTheColours) {
    speed->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    fan->flags = ADXBitmask::kAlarmOnSet;
    AddHeading("Engine", 1);
    ShowRows({speed, fan});
    Arrive({150, 1});
    EXPECT_EQ("-----", Ink(0, 1));
    EXPECT_EQ("1----", Ink(0, 2));
    EXPECT_EQ("--1--", Ink(1, 1));
    EXPECT_EQ("-1---", Ink(1, 2));
    EXPECT_EQ("----1", Ink(2, 1));
    EXPECT_EQ("-1---", Ink(2, 2));
    Arrive({10, 0});
    EXPECT_EQ("---1-", Ink(1, 1));
    EXPECT_EQ("-1---", Ink(2, 1));
}

TEST_F(ItemListColoursTest, AThousandPaintsLeaveNothingBehind) {
    speed->flags = ADXValue::kAlarmHigh;
    AddHeading("Engine", 1);
    AddRow(speed);
    AddRow(fan);
    AddHeading("Last", 1);
    Show();
    Arrive({150, 1});
    RedrawList();
    const std::size_t before = AllGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        Arrive({static_cast<std::uint8_t>(i), 1});
        RepaintList();
        ::UpdateWindow(List());
    }
    EXPECT_EQ(before, AllGdiObjects());
    const std::size_t owned = LiveGdiObjects();
    ::DestroyWindow(Page(1));
    EXPECT_EQ(owned - 3, LiveGdiObjects()) << "the bold font and the bitmap with its context go with the page";
}

// One moment and one computation, in whatever order the control asks.
TEST_F(ItemListColoursTest, ARowThatIsPaintedIsReadOnce) {
    speed->flags = ADXValue::kAlarmHigh;
    ShowRows({speed});
    for (const bool textFirst : {false, true}) {
        Arrive({50, 0});
        Ask(0, 0, CDDS_ITEMPREPAINT);
        Arrive({150, 0});
        if (textFirst) {
            EXPECT_EQ("50.0", Cell(0, 1));
        }
        EXPECT_EQ(kOwn, ColourOf(0, 1));
        if (!textFirst) {
            EXPECT_EQ("50.0", Cell(0, 1));
        }
        EXPECT_EQ("150.0", Cell(0, 1));
        EXPECT_EQ(kRed, ColourOf(0, 1));
    }
}

}  // namespace
}  // namespace corvex::test
