// A grid as one would write it down plainly, step by step and without a thought for speed, to compare the real one
// with.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/controls/grid/GridHostFake.h"

namespace corvex {

// Rows are direction 0, columns direction 1.
class GridReference {
public:
    GridReference(int width, int height, int rows, int columns);

    void Key(GridKey key);
    void KeyUp(GridKey key);
    void Character(unsigned character);
    void Down(int x, int y);
    void Move(int x, int y);
    void Up() { button = columnDrag = rowDrag = timer = false; }
    void DoubleClick(int x, int y);
    void Tick(int x, int y);
    void Wheel(int notches);
    void Put(int row, int column, const std::string& text);
    void SetCursor(int row, int column);
    void SetSizes(int rows, int columns);
    void SetPixels(int direction, int index, int pixels);
    void SetFocus(bool isHere);

    int cursor[2] = {1, 1}, anchor[2] = {1, 1}, first[2] = {1, 1};
    std::map<std::pair<int, int>, std::string> texts;
    std::set<std::pair<int, int>> changed, guarded;
    GridNotes notes;
    std::string typed, clipboard;
    unsigned beeps = 0;
    bool editing = false, focus = false, editable = true, multi = true;

private:
    bool HasBody() const { return Last(0) > 0 && Last(1) > 0; }
    int Last(int d) const { return static_cast<int>(sizes[d].size()) - 1; }
    int Room(int d) const { return extent[d] - sizes[d][0]; }
    int Fits(int d, int from, int step, int room) const;
    int Neighbour(int d, int from, int step) const;
    int At(int d, int position) const;
    void Tell(std::uint32_t code, int row, int column);
    void TellCursor(std::uint32_t code) { Tell(code, cursor[0], cursor[1]); }
    void Commit();
    bool MayEdit() const;
    void BeginEditing();
    void Bars();
    void IntoView();
    void Scroll(int d, int to);
    void Follow(int row, int column);
    void Paste();

    int extent[2];
    std::vector<int> sizes[2];
    bool bar[2] = {}, shift = false, ctrl = false, button = false, columnDrag = false, rowDrag = false, timer = false;
    int barEnd[2] = {1, 1};
    unsigned ticks = 0;
};

}  // namespace corvex
