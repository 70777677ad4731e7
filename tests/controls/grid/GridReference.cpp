#include "tests/controls/grid/GridReference.h"

#include <algorithm>

namespace corvex {

GridReference::GridReference(int width, int height, int rows, int columns) : extent{height, width} {
    sizes[0] = {21};
    sizes[1] = {50};
    SetSizes(rows, columns);
}

int GridReference::Fits(int d, int from, int step, int room) const {
    int count = 0, used = 0;
    for (int i = from; i >= 1 && i <= Last(d); i += step) {
        used += sizes[d][static_cast<std::size_t>(i)];
        if (used > room) return count;
        ++count;
    }
    return count;
}

int GridReference::Neighbour(int d, int from, int step) const {
    do {
        from += step;
        if (from < 1 || from > Last(d)) return 0;
    } while (sizes[d][static_cast<std::size_t>(from)] == 0);
    return from;
}

int GridReference::At(int d, int position) const {
    if (d == 0 && position <= 0) return -1;
    if (position < sizes[d][0]) return 0;
    int start = sizes[d][0];
    for (int i = first[d]; i <= Last(d); ++i) {
        start += sizes[d][static_cast<std::size_t>(i)];
        if (position < start) return i;
    }
    return -1;
}

void GridReference::Tell(std::uint32_t code, int row, int column) {
    notes.emplace_back(code, cellAddress(static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(column)));
}

bool GridReference::MayEdit() const {
    return editable && HasBody() && !guarded.contains({cursor[0], cursor[1]});
}

void GridReference::Put(int row, int column, const std::string& text) {
    if (row > Last(0) || column > Last(1)) return Tell(3, 0, 0);
    texts[{row, column}] = text;
    Tell(26, row, column);
}

void GridReference::Commit() {
    if (!editing) return;
    editing = false;
    const std::string text = typed;
    typed.clear();
    if (HasBody() && texts[{cursor[0], cursor[1]}] != text) changed.insert({cursor[0], cursor[1]});
    TellCursor(10);
    Put(cursor[0], cursor[1], text);
    Bars();
}

void GridReference::Bars() {
    for (const int d : {1, 0}) {
        const int fit = std::max(1, Fits(d, Last(d), -1, Room(d)));
        const bool atEnd = bar[d] && first[d] >= barEnd[d];
        bar[d] = fit < Last(d);
        barEnd[d] = bar[d] ? Last(d) + 1 - fit : 1;
        if (!bar[d]) first[d] = 1;
        if (first[d] > barEnd[d] || (bar[d] && atEnd)) first[d] = barEnd[d];
    }
}

// A step at a time, as long as the cursor ends outside and does not begin the body.
void GridReference::IntoView() {
    for (const int d : {0, 1}) {
        const auto start = [&] {
            int pixels = 0;
            for (int i = first[d]; i < cursor[d]; ++i)
                pixels += sizes[d][static_cast<std::size_t>(i)];
            return pixels;
        };
        const int size = cursor[d] <= Last(d) ? sizes[d][static_cast<std::size_t>(cursor[d])] : 0;
        while (start() + size > Room(d) && start() != 0)
            ++first[d];
        while (cursor[d] < first[d] && first[d] > 1)
            --first[d];
    }
}

void GridReference::Scroll(int d, int to) {
    if (!bar[d]) return;
    first[d] = std::max(1, std::min(to, barEnd[d]));
    Bars();
}

void GridReference::Key(GridKey key) {
    const auto number = static_cast<std::uint32_t>(key);
    if (number >= 0x70 && number <= 0x7B) return TellCursor(number - 0x70 + 11);
    const int step = key == GridKey::kUp || key == GridKey::kLeft || key == GridKey::kPageUp ? -1 : 1;
    switch (key) {
        case GridKey::kShift:
            shift = true;
            return;
        case GridKey::kCtrl:
            ctrl = true;
            return;
        case GridKey::kEscape:
            if (editing) {
                editing = false;
                typed.clear();
                Bars();
                TellCursor(10);
            }
            return;
        case GridKey::kBackspace:
            if (!MayEdit()) return;
            BeginEditing();
            if (!typed.empty()) typed.pop_back();
            return;
        case GridKey::kTab:
            return SetFocus(false);
        case GridKey::kDelete:
            return TellCursor(9);
        default:
            break;
    }
    Commit();
    if (HasBody() && (key == GridKey::kPageUp || key == GridKey::kPageDown)) {
        cursor[0] = std::max(1, std::min(cursor[0] + step * Fits(0, cursor[0], step, Room(0)), Last(0)));
        if (!shift) anchor[0] = cursor[0];
    } else if (HasBody()) {
        const int d = key == GridKey::kLeft || key == GridKey::kRight ? 1 : 0;
        if (Neighbour(d, cursor[d], step) != 0) cursor[d] = Neighbour(d, cursor[d], step);
        if (!shift || !multi) {
            std::copy(cursor, cursor + 2, anchor);
        } else if (ctrl && Neighbour(d, anchor[d], step) != 0) {
            anchor[d] = Neighbour(d, anchor[d], step);
        }
    }
    TellCursor(5);
    IntoView();
    Bars();
}

void GridReference::KeyUp(GridKey key) {
    (key == GridKey::kShift ? shift : ctrl) = false;
}

void GridReference::BeginEditing() {
    IntoView();
    if (!editing) TellCursor(8);
    editing = true;
}

void GridReference::Character(unsigned character) {
    if (character >= 0x20 && character <= 0x7D) {
        if (!MayEdit()) return;
        BeginEditing();
        if (typed.size() < 300) {
            typed += static_cast<char>(character);
        } else {
            ++beeps;
        }
    } else if (character == 1) {
        Commit();
        if (!HasBody()) return;
        for (const int d : {0, 1}) {
            anchor[d] = 1;
            cursor[d] = Last(d);
        }
    } else if (character == 3 && HasBody()) {
        clipboard.clear();
        for (int row = std::min(anchor[0], cursor[0]); row <= std::max(anchor[0], cursor[0]); ++row) {
            for (int column = std::min(anchor[1], cursor[1]); column <= std::max(anchor[1], cursor[1]); ++column)
                clipboard +=
                    texts[{row, column}].substr(0, 255) + (column == std::max(anchor[1], cursor[1]) ? "\r\n" : "\t");
        }
    } else if (character == 0x16) {
        Paste();
    }
}

// What was copied here, line by line.
void GridReference::Paste() {
    Commit();
    if (!editable || !HasBody() || clipboard.empty()) return;
    std::vector<std::vector<std::string>> lines{{""}};
    for (const char c : clipboard) {
        if (c == '\n') {
            lines.push_back({""});
        } else if (c == '\t') {
            lines.back().push_back("");
        } else if (c != '\r') {
            lines.back().back() += c;
        }
    }
    lines.pop_back();
    const int top = std::min(anchor[0], cursor[0]), left = std::min(anchor[1], cursor[1]);
    const int bottom = top + static_cast<int>(lines.size()) - 1, right = left + static_cast<int>(lines[0].size()) - 1;
    if (bottom > Last(0) || right > Last(1)) return;
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            const std::string& field =
                lines[static_cast<std::size_t>(row - top)][static_cast<std::size_t>(column - left)];
            if (texts[{row, column}] != field) changed.insert({row, column});
            Put(row, column, field);
        }
    }
    anchor[0] = top;
    anchor[1] = left;
    cursor[0] = bottom;
    cursor[1] = right;
}

void GridReference::Down(int x, int y) {
    button = true;
    if (editing) {
        Commit();
    } else {
        SetFocus(true);
    }
    if (!focus) {
        SetFocus(true);
        return Up();
    }
    const int row = At(0, y), column = At(1, x), before[2] = {cursor[0], cursor[1]};
    const auto select = [&](int anchorRow, int anchorColumn, int toRow, int toColumn) {
        anchor[0] = anchorRow;
        anchor[1] = anchorColumn;
        cursor[0] = toRow;
        cursor[1] = toColumn;
    };
    if (row > 0 && column > 0) {
        const bool stays = multi && shift;
        select(stays ? anchor[0] : row, stays ? anchor[1] : column, row, column);
        TellCursor(25);
    } else if (row == 0 && column == 0 && multi && HasBody()) {
        select(1, 1, Last(0), Last(1));
    } else if (row == 0 && column > 0 && multi && HasBody()) {
        columnDrag = true;
        select(1, column, Last(0), column);
    } else if (row > 0 && column == 0 && multi && HasBody()) {
        rowDrag = true;
        select(row, 1, row, Last(1));
    }
    if (cursor[0] != before[0] || cursor[1] != before[1]) {
        TellCursor(5);
        IntoView();
        Bars();
    }
}

void GridReference::Follow(int row, int column) {
    const bool down = row > 0 && row != cursor[0] && !columnDrag,
               across = column > 0 && column != cursor[1] && !rowDrag;
    if (!HasBody() || (!down && !across)) return;
    Commit();
    if (down) cursor[0] = row;
    if (across) cursor[1] = column;
    TellCursor(6);
}

void GridReference::Move(int x, int y) {
    if (!button || !multi) return;
    Follow(At(0, y), At(1, x));
    const bool outside = x < 0 || y < 0 || x >= extent[1] || y >= extent[0];
    if (outside != timer) ticks = 0;
    timer = outside;
}

void GridReference::DoubleClick(int x, int y) {
    if (MayEdit() && At(0, y) == cursor[0] && At(1, x) == cursor[1]) BeginEditing();
}

void GridReference::Tick(int x, int y) {
    if (!timer) return;
    bool moved = false;
    for (const int d : {1, 0}) {
        const int position = d == 1 ? x : y, before = first[d];
        const int distance = position < 0 ? -position - 1 : position - extent[d];
        if (position >= 0 && position < extent[d]) continue;
        if (ticks % (distance < 16 ? 8u : distance < 48 ? 3u : 1u) != 0) continue;
        Scroll(d, first[d] + (position < 0 ? -1 : 1));
        moved = moved || first[d] != before;
    }
    ++ticks;
    if (!moved) return;
    int row = y < sizes[0][0] ? first[0] : At(0, y), column = x < sizes[1][0] ? first[1] : At(1, x);
    if (row == -1) row = Last(0);
    if (column == -1) column = Last(1);
    Follow(row, column);
}

void GridReference::Wheel(int notches) {
    Scroll(0, first[0] - 3 * notches);
}

void GridReference::SetCursor(int row, int column) {
    if (row < 1 || column < 1 || row > Last(0) || column > Last(1)) return;
    if (row != cursor[0] || column != cursor[1]) Commit();
    cursor[0] = anchor[0] = row;
    cursor[1] = anchor[1] = column;
}

void GridReference::SetSizes(int rows, int columns) {
    if (cursor[0] > rows || cursor[1] > columns) Commit();
    sizes[0].resize(static_cast<std::size_t>(rows) + 1, 21);
    sizes[1].resize(static_cast<std::size_t>(columns) + 1, 50);
    const auto isGone = [&](const std::pair<int, int>& cell) { return cell.first > rows || cell.second > columns; };
    std::erase_if(texts, [&](const auto& text) { return isGone(text.first); });
    std::erase_if(changed, isGone);
    std::erase_if(guarded, isGone);
    for (const int d : {0, 1}) {
        for (int* const place : {&cursor[d], &anchor[d], &first[d]})
            *place = std::max(1, std::min(*place, Last(d)));
    }
    Bars();
}

void GridReference::SetPixels(int direction, int index, int pixels) {
    if (index > Last(direction)) return;
    sizes[direction][static_cast<std::size_t>(index)] = pixels;
    Bars();
}

void GridReference::SetFocus(bool isHere) {
    if (focus == isHere) return;
    focus = isHere;
    if (!isHere) shift = ctrl = false;
    Tell(isHere ? 23 : 24, 0, 0);
    if (!isHere) Commit();
}

}  // namespace corvex
