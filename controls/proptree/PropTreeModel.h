// Where a property tree's parts stand, in pixels of its client area.
#pragma once

namespace corvex {

inline constexpr int kPropButtonWidth = 65;
inline constexpr int kPropButtonHeight = 22;
inline constexpr int kPropButtonMargin = 5;  // to the client's edges
inline constexpr int kPropButtonGap = 8;
inline constexpr int kPropPageGap = 2;  // between tree and page

struct PropBox {
    int x, y, width, height;
    bool operator==(const PropBox&) const = default;
};
struct PropSize {
    int width, height;
    bool operator==(const PropSize&) const = default;
};

// The tree's wanted width, and the greatest width and height of any page.
class PropTreeModel {
public:
    // Negative sizes count as 0. The tallest page starts as `minimumHeight`.
    PropTreeModel(int treeWidth, int minimumHeight);

    void AddPage(PropSize page);

    // The tree leaves the widest page its room and takes all the rest; its wanted width only counts for the sizes
    // below.
    PropBox Tree(PropSize client) const;
    PropBox Ok(PropSize client) const;
    PropBox Cancel(PropSize client) const;
    // A page keeps its own size, so that its last 2 pixels lie beyond the client's edge.
    int PageX(PropSize client) const;

    // Of the whole window, frame and all.
    PropSize MinimumTrack() const;
    // The client area that shows the tallest page and the buttons below it.
    PropSize FittingClient() const;

private:
    int treeWidth_;
    int widest_ = 0;
    int tallest_;
};

// Where a window of this size stands in the middle of its owner, without leaving the screen at the left or the top.
PropBox CentredOver(PropBox owner, PropBox screen, PropSize window);

}  // namespace corvex
