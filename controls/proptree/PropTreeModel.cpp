#include "controls/proptree/PropTreeModel.h"

#include <algorithm>

namespace corvex {

PropTreeModel::PropTreeModel(int treeWidth, int minimumHeight)
    : treeWidth_(std::max(treeWidth, 0)), tallest_(std::max(minimumHeight, 0)) {}

void PropTreeModel::AddPage(PropSize page) {
    widest_ = std::max(widest_, page.width);
    tallest_ = std::max(tallest_, page.height);
}

PropBox PropTreeModel::Tree(PropSize client) const {
    return {0, 0, std::max(client.width - widest_, 0), std::max(client.height, 0)};
}

PropBox PropTreeModel::Ok(PropSize client) const {
    return {client.width - kPropButtonMargin - kPropButtonWidth, client.height - kPropButtonMargin - kPropButtonHeight,
            kPropButtonWidth, kPropButtonHeight};
}

PropBox PropTreeModel::Cancel(PropSize client) const {
    PropBox box = Ok(client);
    box.x -= kPropButtonGap + kPropButtonWidth;
    return box;
}

int PropTreeModel::PageX(PropSize client) const {
    return Tree(client).width + kPropPageGap;
}

PropSize PropTreeModel::MinimumTrack() const {
    return {treeWidth_ + widest_, tallest_};
}

PropSize PropTreeModel::FittingClient() const {
    return {treeWidth_ + widest_, tallest_ + kPropButtonHeight + 2 * kPropButtonMargin};
}

PropBox CentredOver(PropBox owner, PropBox screen, PropSize window) {
    const int x = owner.x + (owner.width - window.width) / 2;
    const int y = owner.y + (owner.height - window.height) / 2;
    const int farthestX = std::max(screen.x + screen.width - window.width, screen.x);
    const int farthestY = std::max(screen.y + screen.height - window.height, screen.y);
    return {std::clamp(x, screen.x, farthestX), std::clamp(y, screen.y, farthestY), window.width, window.height};
}

}  // namespace corvex
