// One direction of a grid: its rows from the top down, or its columns from the left.
#pragma once

#include <climits>
#include <cstdint>
#include <vector>

namespace corvex {

// Indices count from 1 in the body, the header is 0. Sizes are pixels, 0 for what is hidden. A room is the number of
// pixels that the body has on the client, negative when even the header does not fit. Walks begin at the first one on
// show, so that they cost what is seen of the grid and not what there is of it.
class GridAxis {
public:
    static constexpr int kLargest = 0xFFFF;

    GridAxis(int body, int freshSize);

    int Last() const { return static_cast<int>(sizes_.size()) - 1; }  // 0 without a body
    bool Has(int index) const { return index >= 0 && index <= Last(); }
    bool IsInBody(int index) const { return index >= 1 && index <= Last(); }
    int Size(int index) const { return Has(index) ? sizes_[static_cast<std::size_t>(index)] : 0; }
    // Cut to 0 and 65535. False for an index out of range.
    bool SetSize(int index, int pixels);
    // What survives keeps its size. Cursor, anchor, first and the bar's end are cut into the body, at least 1.
    void Resize(int body);

    // The next one that is not hidden, forward or backward by the sign of the step; 0 when there is none.
    int Next(int from, int step) const;
    // How many fit into a room, hidden ones counted, from this one on in the direction of the step.
    int Fit(int from, int step, int room) const;
    // From the first one on show up to this one; not much more than `enough` when it lies further.
    int StartOf(int index, int enough = INT_MAX) const;
    // Which one the pixel of the body belongs to; -1 behind the last.
    int At(int pixel) const;

    struct Walk {
        int stop = 0;           // one past what the room ran out in, or past the last
        bool isPartly = false;  // the room ran out
    };
    Walk WalkFromFirst(int room) const;

    // Where `first` has to be so that the cursor shows, with the fewest steps.
    int FirstToShowCursor(int room) const;
    bool IsCursorShown() const { return IsInBody(cursor) && cursor >= first && cursor <= lastVisible; }
    bool IsSelected(int index) const;

    int first = 1;        // on show
    int lastVisible = 0;  // of the last look, which may be cut by the client's edge
    int cursor = 1, anchor = 1;
    bool isBarShown = false;
    int barMaximum = 1;  // of `first`, while the bar is shown

private:
    std::vector<std::uint16_t> sizes_;
    std::uint16_t freshSize_;
};

}  // namespace corvex
