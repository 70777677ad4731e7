#include <gtest/gtest.h>

#include "controls/grid/GridMouse.h"
#include "tests/controls/grid/GridHostFake.h"

namespace corvex {
namespace {

using Places = std::vector<int>;  // anchor row and column, cursor row and column

// Ten rows and columns fit. Column n begins at 50 n, row n at 21 n.
class GridMouseTest : public ::testing::Test {
protected:
    GridMouseTest() {
        fake.machine.SetStyle(kGridSizeColumns | kGridSizeRows, true);
        fake.host.TakeFocus();
        fake.host.notes.clear();
    }
    void Down(int x, int y) {
        fake.machine.mouse.OnMove(x, y);
        fake.machine.mouse.OnDown(x, y);
    }
    GridCodes Move(int x, int y) {
        fake.host.notes.clear();
        fake.machine.mouse.OnMove(x, y);
        return fake.host.TakeCodes();
    }
    void Tick(int x, int y) { fake.machine.mouse.OnTick(x, y); }
    void Up() { fake.machine.mouse.EndGesture(); }

    FakeGrid fake{550, 231, 30, 30};
    GridModel& grid = fake.grid;
    GridHostFake& host = fake.host;
};

TEST_F(GridMouseTest, AClickMovesTheCursorAndTellsSo) {
    EXPECT_EQ(fake.Click(160, 45),
              (GridNotes{{kGridCellClicked, cellAddress(2, 3)}, {kGridCursorMoved, cellAddress(2, 3)}}));
    EXPECT_EQ(fake.Click(160, 45), (GridNotes{{kGridCellClicked, cellAddress(2, 3)}}));
    EXPECT_EQ(fake.Selection(), (Places{2, 3, 2, 3}));
    fake.Press(GridKey::kShift);
    fake.Click(260, 90);
    fake.Click(110, 30);
    EXPECT_EQ(fake.Selection(), (Places{2, 3, 1, 2}));
    fake.machine.ClearStyle(kGridMultiSelect, true);
    fake.Click(260, 90);
    EXPECT_EQ(fake.Selection(), (Places{4, 5, 4, 5}));
}

TEST_F(GridMouseTest, HeadingsSelectWholeLines) {
    const struct {
        int x, y;
        Places places;
    } cases[] = {{175, 10, {1, 3, 30, 3}}, {25, 52, {2, 1, 2, 30}}, {20, 5, {1, 1, 30, 30}}};
    for (const auto& [x, y, places] : cases) {
        grid.rows.first = grid.columns.first = 1;
        Down(x, y);
        EXPECT_EQ(fake.Selection(), places) << x;
        Up();
        EXPECT_EQ(fake.host.TakeCodes(), GridCodes{kGridCursorMoved});
    }
    fake.machine.ClearStyle(kGridMultiSelect, true);
    for (const auto& [x, y, places] : cases) {
        Down(x, y);
        EXPECT_EQ(fake.Selection(), cases[2].places) << x;
        Up();
    }
}

TEST_F(GridMouseTest, ADragTakesTheCursorAlongAsItBegan) {
    Down(160, 45);
    EXPECT_TRUE(host.hasCapture);
    EXPECT_EQ(Move(270, 90), GridCodes{kGridSelectionDragged});
    EXPECT_EQ(Move(271, 91), GridCodes{});
    EXPECT_EQ(Move(275, 5), GridCodes{}) << "over the heading";
    EXPECT_EQ(Move(20, 45), GridCodes{kGridSelectionDragged}) << "the row alone";
    EXPECT_EQ(fake.Selection(), (Places{2, 3, 2, 5}));
    Up();
    EXPECT_FALSE(host.hasCapture);
    EXPECT_EQ(Move(160, 45), GridCodes{});
    Down(175, 10);
    Move(290, 90);
    EXPECT_EQ(fake.Selection(), (Places{1, 3, 30, 5}));
    Up();
    fake.machine.view.ScrollTo(true, 1);
    Down(25, 52);
    Move(290, 100);
    EXPECT_EQ(fake.Selection(), (Places{2, 1, 4, 30}));
}

TEST_F(GridMouseTest, ADragOutsideScrollsByItsDistance) {
    for (unsigned tick = 0; tick < 48; ++tick) {
        const auto step = [&](int position) { return AutoScrollStep(position, 100, tick); };
        for (const auto& [distance, divisor] :
             {std::pair(0, 8u), std::pair(10, 8u), std::pair(15, 8u), std::pair(16, 3u), std::pair(47, 3u),
              std::pair(48, 1u), std::pair(4000, 1u)}) {
            EXPECT_EQ(step(100 + distance), tick % divisor == 0 ? 1 : 0) << tick << " at " << distance;
            EXPECT_EQ(step(-1 - distance), tick % divisor == 0 ? -1 : 0) << tick << " at " << distance;
        }
        EXPECT_EQ(step(0), 0);
        EXPECT_EQ(step(99), 0);
    }
}

TEST_F(GridMouseTest, ADragBelowScrollsARowEachEightTicksAndTheSelectionFollows) {
    Down(60, 30);
    Move(60, 241);
    EXPECT_EQ(host.timerStarts, 1);
    Move(60, 242);
    EXPECT_EQ(host.timerStarts, 1) << "runs already";
    for (int i = 0; i < 80; ++i)
        Tick(60, 241);
    EXPECT_EQ(grid.rows.first, 11);
    EXPECT_EQ(fake.Selection(), (Places{1, 1, 21, 1}));
    for (int i = 0; i < 5; ++i)
        Tick(60, 291);
    EXPECT_EQ(grid.rows.first, 16);
    host.notes.clear();
    Tick(60, -60);
    EXPECT_EQ(grid.rows.first, 15);
    EXPECT_EQ(host.notes, (GridNotes{{kGridSelectionDragged, cellAddress(15, 1)}}));
    for (int i = 0; i < 100; ++i)
        Tick(700, 700);
    EXPECT_EQ(grid.rows.first, 21);
    EXPECT_EQ(grid.columns.first, 21);
    EXPECT_EQ(fake.Selection(), (Places{1, 1, 30, 30}));
    Move(60, 100);
    EXPECT_EQ(host.timerStops, 1) << "inside again";
    Tick(700, 700);
    EXPECT_EQ(grid.rows.first, 21);
}

TEST_F(GridMouseTest, ThePointerTellsWhereAHeadingCanBeDragged) {
    const struct {
        int x, y;
        GridPointer pointer;
    } cases[] = {
        {75, 10, GridPointer::kArrow},   {91, 10, GridPointer::kSizeColumn}, {108, 10, GridPointer::kSizeColumn},
        {95, 30, GridPointer::kArrow},   {45, 5, GridPointer::kSizeColumn},  {20, 30, GridPointer::kSizeRow},
        {20, 36, GridPointer::kSizeRow}, {20, 15, GridPointer::kSizeRow},    {20, 5, GridPointer::kArrow},
        {160, 45, GridPointer::kArrow},
    };
    for (const auto& [x, y, pointer] : cases) {
        Move(x, y);
        EXPECT_EQ(host.pointer, pointer) << x << "," << y;
    }
    fake.machine.ClearStyle(kGridSizeColumns | kGridSizeRows, true);
    for (const auto& one : cases) {
        Move(one.x, one.y);
        EXPECT_EQ(host.pointer, GridPointer::kArrow);
    }
}

TEST_F(GridMouseTest, AHeadingIsSizedByItsEdge) {
    const struct {
        int x, y, toX, toY;
        bool isRow;
        int index, size;
    } cases[] = {
        {95, 10, 125, 10, false, 1, 80}, {95, 10, -500, 10, false, 1, 0}, {105, 10, 115, 200, false, 1, 60},
        {45, 10, 65, 10, false, 0, 70},  {20, 40, 20, 60, true, 1, 41},   {20, 65, 200, 5, true, 2, 0},
    };
    for (const auto& one : cases) {
        grid.columns.SetSize(0, 50);
        grid.columns.SetSize(1, 50);
        grid.rows.SetSize(1, 21);
        grid.rows.first = grid.columns.first = 1;
        grid.style |= kGridWholeLastRow;
        const Places before = fake.Selection();
        Down(one.x, one.y);
        EXPECT_FALSE(grid.Has(kGridWholeLastRow)) << "so that it is seen what is dragged";
        Move(one.toX, one.toY);
        EXPECT_EQ((one.isRow ? grid.rows : grid.columns).Size(one.index), one.size) << one.x << "," << one.y;
        EXPECT_EQ(fake.Selection(), one.index == 0 ? (Places{1, 1, 30, 30}) : before) << "the corner is a corner too";
        Up();
        EXPECT_TRUE(grid.Has(kGridWholeLastRow));
        EXPECT_EQ(host.pointer, GridPointer::kArrow);
        Move(300, 10);
        EXPECT_EQ((one.isRow ? grid.rows : grid.columns).Size(one.index), one.size) << "let go";
    }
}

TEST_F(GridMouseTest, NoEdgeIsFoundWhereThereIsNone) {
    grid.columns.SetSize(3, 12);
    Down(156, 10);
    Move(166, 10);
    EXPECT_EQ(grid.columns.Size(3), 22) << "of two near edges that of the column under the pointer";
    Up();
    grid.titleHeight = 30;
    Move(20, 25);
    EXPECT_EQ(host.pointer, GridPointer::kArrow) << "the title band";
    fake.machine.SetSize(2, 2);
    fake.machine.SetColumnWidth(0, 100);
    Move(205, 35);
    EXPECT_EQ(host.pointer, GridPointer::kSizeColumn) << "behind the last column, which it sizes";
    Down(205, 35);
    Move(225, 35);
    EXPECT_EQ(grid.columns.Size(2), 70);
}

TEST_F(GridMouseTest, AClickGoesOnUnlessTheFocusIsTakenFromIt) {
    fake.Type("1");
    EXPECT_EQ(fake.Click(160, 45), (GridNotes{{kGridEditEnded, cellAddress(1, 1)},
                                              {kGridTextStored, cellAddress(1, 1)},
                                              {kGridCellClicked, cellAddress(2, 3)},
                                              {kGridCursorMoved, cellAddress(2, 3)}}));
    fake.Type("1");
    bool isTaken = false;
    host.handler = [&](std::uint32_t code) {
        if (code == kGridEditEnded && !std::exchange(isTaken, true)) host.PassFocusToParent();
    };
    host.notes.clear();
    Down(260, 90);
    EXPECT_EQ(host.TakeCodes(), (GridCodes{kGridEditEnded, kGridFocusLost, kGridTextStored, kGridFocusGained}));
    EXPECT_EQ(fake.Selection(), (Places{2, 3, 2, 3}));
    EXPECT_FALSE(grid.Is(kGridButtonDown) || host.hasCapture);
    EXPECT_TRUE(host.hasFocus);
}

TEST_F(GridMouseTest, ScrollingKeepsToTheRange) {
    const auto scroll = [&](bool isVertical, GridScroll how, int thumb = 0) {
        fake.machine.view.OnScroll(isVertical, how, thumb);
        return isVertical ? grid.rows.first : grid.columns.first;
    };
    host.SetFocus(false);
    EXPECT_EQ(scroll(true, GridScroll::kLineBack), 1);
    EXPECT_TRUE(host.hasFocus);
    EXPECT_EQ(scroll(true, GridScroll::kLineOn), 2);
    EXPECT_EQ(scroll(true, GridScroll::kPageOn), 12) << "the last row on show, of which no pixel is";
    EXPECT_EQ(scroll(true, GridScroll::kPageBack), 2);
    EXPECT_EQ(scroll(true, GridScroll::kThumbEnd, 9), 2);
    EXPECT_EQ(scroll(true, GridScroll::kThumbMoves, 9), 9);
    EXPECT_EQ(scroll(true, GridScroll::kThumbMoves, 99), 21);
    EXPECT_EQ(scroll(false, GridScroll::kPageOn), 11);
    EXPECT_EQ(scroll(false, GridScroll::kThumbEnd, 5), 5);
    EXPECT_EQ(scroll(false, GridScroll::kPageBack), 1);
    EXPECT_EQ(scroll(true, static_cast<GridScroll>(8)), 21);
    const std::pair<std::pair<int, std::uint32_t>, int> wheel[] = {
        {{120, 3}, 18},          {{-120, 3}, 21}, {{119, 3}, 21}, {{250, 2}, 17}, {{120, kGridWheelPage}, 7},
        {{32760, 4000000000}, 1}};
    for (const auto& [turn, first] : wheel) {
        EXPECT_TRUE(fake.machine.view.OnWheel(turn.first, turn.second));
        EXPECT_EQ(grid.rows.first, first) << turn.first;
    }
    fake.machine.view.ScrollTo(true, 21);
    fake.machine.SetSize(40, 30);
    EXPECT_EQ(grid.rows.first, 31) << "at the end it stays there";
    fake.machine.SetSize(10, 10);
    EXPECT_EQ(grid.rows.first, 1);
    EXPECT_FALSE(fake.machine.view.OnWheel(120, 3));
}

TEST_F(GridMouseTest, ATitleMakesRoomForItsLines) {
    const std::pair<std::string, int> cases[] = {
        {"one", 16}, {"one\ntwo", 33}, {"1\n2\n3\n", 67}, {"", 0}, {std::string(300, 'x'), 16}};
    for (const auto& [title, height] : cases) {
        fake.machine.SetTitle(title);
        EXPECT_EQ(grid.title, title);
        EXPECT_EQ(grid.titleHeight, height) << title;
    }
    fake.machine.SetTitle(std::string(301, 'x'));
    EXPECT_EQ(grid.title, "Title too long (300 chars max)");
    EXPECT_EQ(grid.titleHeight, 16);
    fake.machine.SetCursor(9, 1);
    fake.machine.SetTitleHeight(100);
    EXPECT_EQ(grid.rows.first, 5) << "the cursor stays in view";
}

}  // namespace
}  // namespace corvex
