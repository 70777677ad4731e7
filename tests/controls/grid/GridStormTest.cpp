// Random keys, clicks, drags and messages, after each of which the grid must be what the plain reference is.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/controls/grid/GridReference.h"

namespace corvex {
namespace {

class Storm {
public:
    explicit Storm(unsigned seed) : random_(seed) {}

    // One doing to both, and what it was.
    std::string Step();
    void Compare();

private:
    int Next(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    std::string Key();
    std::string Character();
    std::string Mouse();
    std::string Message();
    std::string MoreMessages();

    static constexpr int kWidth = 330, kHeight = 150, kRows = 12, kColumns = 9;
    std::mt19937 random_;
    FakeGrid fake_{kWidth, kHeight, kRows, kColumns};
    GridMachine& real_ = fake_.machine;
    GridReference plain_{kWidth, kHeight, kRows, kColumns};
    int x_ = 0, y_ = 0;
};

std::string Storm::Key() {
    static constexpr GridKey keys[] = {GridKey::kDown,   GridKey::kUp,       GridKey::kLeft,      GridKey::kRight,
                                       GridKey::kEnter,  GridKey::kPageDown, GridKey::kPageUp,    GridKey::kShift,
                                       GridKey::kCtrl,   GridKey::kEscape,   GridKey::kBackspace, GridKey::kTab,
                                       GridKey::kDelete, GridKey::kF1,       GridKey::kF12};
    const GridKey key = keys[Next(std::size(keys))];
    if ((key == GridKey::kShift || key == GridKey::kCtrl) && Next(2) == 0) {
        real_.keys.OnUp(key);
        plain_.KeyUp(key);
        return "up";
    }
    real_.keys.OnDown(key);
    plain_.Key(key);
    return "key " + std::to_string(static_cast<int>(key));
}

std::string Storm::Character() {
    static constexpr unsigned others[] = {1, 3, 3, 0x16, 0x16, 0x7E, 0x1F};
    const int times = Next(40) == 0 ? 310 : 1;
    const unsigned character =
        Next(4) == 0 ? others[Next(std::size(others))] : static_cast<unsigned>(0x20 + Next(0x60));
    for (int i = 0; i < times; ++i) {
        real_.keys.OnCharacter(character);
        plain_.Character(character);
    }
    return "character " + std::to_string(character);
}

std::string Storm::Mouse() {
    x_ = Next(kWidth + 160) - 80;
    y_ = Next(kHeight + 160) - 80;
    const int what = Next(6);
    if (what == 0) real_.mouse.OnDown(x_, y_), plain_.Down(x_, y_);
    if (what == 1 || what == 2) real_.mouse.OnMove(x_, y_), plain_.Move(x_, y_);
    if (what == 3) real_.mouse.EndGesture(), plain_.Up();
    if (what == 4) real_.mouse.OnDoubleClick(x_, y_), plain_.DoubleClick(x_, y_);
    for (int i = 0; what == 5 && i < 10; ++i)
        real_.mouse.OnTick(x_, y_), plain_.Tick(x_, y_);
    return "mouse " + std::to_string(what) + " at " + std::to_string(x_) + "," + std::to_string(y_);
}

std::string Storm::Message() {
    const int row = Next(14), column = Next(11), what = Next(7);
    const auto cell = cellAddress(static_cast<unsigned>(row), static_cast<unsigned>(column));
    const std::string text = std::to_string(Next(100));
    switch (what) {
        case 0:
            real_.editor.Store(cell, text);
            plain_.Put(row, column, text);
            break;
        case 1:
            real_.SetCursor(static_cast<unsigned>(row), static_cast<unsigned>(column));
            plain_.SetCursor(row, column);
            break;
        case 2: {
            const int pixels = Next(3) == 0 ? 0 : Next(Next(4) == 0 ? 400 : 90), direction = Next(2);
            direction == 0 ? real_.SetRowHeight(row, pixels) : real_.SetColumnWidth(column, pixels);
            plain_.SetPixels(direction, direction == 0 ? row : column, pixels);
            break;
        }
        case 3:
            if (GridCell* const found = fake_.grid.cells.Find(cell)) {
                found->SetProtected(!found->IsProtected());
                if (!plain_.guarded.erase({row, column})) plain_.guarded.insert({row, column});
            }
            break;
        default:
            return MoreMessages();
    }
    return "message " + std::to_string(what) + " at " + std::to_string(row) + "," + std::to_string(column);
}

std::string Storm::MoreMessages() {
    const int what = Next(12);
    if (what == 0) {
        const int rows = Next(16), columns = Next(12);
        real_.SetSize(static_cast<unsigned>(rows), static_cast<unsigned>(columns));
        plain_.SetSizes(rows, columns);
    } else if (what == 1) {
        plain_.editable = !plain_.editable;
        plain_.editable ? real_.SetStyle(kGridEditable, false) : real_.ClearStyle(kGridEditable, false);
    } else if (what == 2) {
        plain_.multi = !plain_.multi;
        plain_.multi ? real_.SetStyle(kGridMultiSelect, false) : real_.ClearStyle(kGridMultiSelect, false);
    } else if (what < 6) {
        fake_.host.SetFocus(what != 3);
        plain_.SetFocus(what != 3);
    } else {
        real_.view.OnWheel(what % 2 == 0 ? 120 : -120, 3);
        plain_.Wheel(what % 2 == 0 ? 1 : -1);
    }
    return "more " + std::to_string(what);
}

std::string Storm::Step() {
    switch (Next(5)) {
        case 0:
            return Character();
        case 1:
            return Mouse();
        case 2:
            return Message();
        default:
            return Key();
    }
}

void Storm::Compare() {
    ASSERT_EQ(fake_.host.TakeNotes(), std::exchange(plain_.notes, {}));
    ASSERT_EQ(fake_.Selection(), (std::vector{plain_.anchor[0], plain_.anchor[1], plain_.cursor[0], plain_.cursor[1]}));
    ASSERT_EQ(std::pair(fake_.grid.rows.first, fake_.grid.columns.first), std::pair(plain_.first[0], plain_.first[1]));
    ASSERT_EQ(fake_.grid.edited, plain_.typed);
    ASSERT_EQ(fake_.grid.Is(kGridEditing), plain_.editing);
    ASSERT_EQ(fake_.grid.Is(kGridFocused), plain_.focus);
    ASSERT_EQ(fake_.host.clipboard.value_or(""), plain_.clipboard);
    ASSERT_EQ(static_cast<unsigned>(fake_.host.beeps), plain_.beeps);
    for (int row = 0; row < fake_.grid.cells.Rows(); ++row) {
        for (int column = 0; column < fake_.grid.cells.Columns(); ++column) {
            ASSERT_EQ(fake_.Text(row, column), plain_.texts[std::pair(row, column)]) << row << "," << column;
            ASSERT_EQ(fake_.grid.cells.At(row, column).IsChanged(), plain_.changed.contains({row, column}));
        }
    }
}

class GridStormTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(GridStormTest, TenThousandDoingsLeaveItAsThePlainOne) {
    Storm storm(GetParam());
    for (int i = 0; i < 10000; ++i) {
        const std::string doing = storm.Step();
        storm.Compare();
        if (HasFatalFailure()) FAIL() << "after " << i << ": " << doing;
    }
}

// Whatever the parent does when it is told of something, the places stay in the grid that there is by then.
TEST_P(GridStormTest, AParentThatMeddlesBreaksNothing) {
    std::mt19937 random(GetParam());
    const auto next = [&](unsigned below) { return static_cast<unsigned>(random()) % below; };
    FakeGrid fake(330, 150, 12, 9);
    GridMachine& grid = fake.machine;
    const std::function<void()> doings[] = {
        [&] { grid.SetSize(next(14), next(11)); },
        [&] { grid.ClearAll(); },
        [&] { grid.SetCursor(next(14), next(11)); },
        [&] { grid.SetSelection(cellAddress(next(14), next(11)), cellAddress(next(14), next(11))); },
        [&] { grid.SetOverlay(cellAddress(next(14), next(11)), cellAddress(next(14), next(11))); },
        [&] { grid.editor.Store(cellAddress(next(14), next(11)), std::string(next(30), '7')); },
        [&] { fake.host.SetFocus(next(2) == 0); },
        [&] { grid.SetRowHeight(static_cast<int>(next(14)), static_cast<int>(next(200))); },
        [&] { grid.SetColumnWidth(static_cast<int>(next(11)), static_cast<int>(next(200))); },
        [&] { grid.SetTitle(std::string(next(400), '\n')); },
        [&] { grid.OnSize(static_cast<int>(next(500)), static_cast<int>(next(300))); },
        [&] { grid.SetStyle(1u << next(21), true); },
        [&] { grid.ClearStyle(1u << next(21), true); },
        [&] { grid.keys.OnCharacter(next(0x80)); },
        [&] { grid.keys.OnDown(static_cast<GridKey>(next(0x80))); },
        [&] { grid.mouse.OnDown(static_cast<int>(next(400)) - 20, static_cast<int>(next(200)) - 20); },
        [&] { grid.mouse.OnMove(static_cast<int>(next(400)) - 20, static_cast<int>(next(200)) - 20); },
        [&] { grid.mouse.OnTick(static_cast<int>(next(600)) - 99, static_cast<int>(next(400)) - 99); },
        [&] { grid.mouse.OnDoubleClick(static_cast<int>(next(400)), static_cast<int>(next(200))); },
        [&] { grid.mouse.EndGesture(); },
        [&] { grid.view.OnScroll(next(2) == 0, static_cast<GridScroll>(next(9)), static_cast<int>(next(0x10000))); },
    };
    const auto doOne = [&] { doings[next(static_cast<unsigned>(std::size(doings)))](); };
    int depth = 0;
    fake.host.handler = [&](std::uint32_t) {
        if (next(3) != 0 || depth == 3) return;
        ++depth;
        doOne();
        --depth;
    };
    for (int i = 0; i < 10000; ++i) {
        doOne();
        for (const GridAxis* const axis : {&fake.grid.rows, &fake.grid.columns}) {
            for (const int place : {axis->first, axis->cursor, axis->anchor})
                ASSERT_TRUE(place >= 1 && place <= std::max(1, axis->Last())) << i;
        }
        ASSERT_EQ(fake.grid.cells.Rows(), fake.grid.rows.Last() + 1);
        ASSERT_LE(fake.grid.edited.size(), 300u);
        fake.host.notes.clear();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GridStormTest, ::testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace corvex
