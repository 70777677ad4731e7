// The walk through a tree of titles, without the tree control.
#pragma once

#include <string_view>

namespace corvex {

// The node after `node`, depth first: its first child, else its next sibling, else the next sibling of the nearest
// parent that has one. `Tree` has a type Node, whose value-initialised object means none, and FirstChild, NextSibling,
// Parent.
template <class Tree>
typename Tree::Node NextNode(const Tree& tree, typename Tree::Node node) {
    using Node = typename Tree::Node;
    if (const Node child = tree.FirstChild(node); child != Node{}) return child;
    for (; node != Node{}; node = tree.Parent(node)) {
        if (const Node sibling = tree.NextSibling(node); sibling != Node{}) return sibling;
    }
    return Node{};
}

// The first node from `first` on that `wanted` accepts; none when none does.
template <class Tree, class Wanted>
typename Tree::Node FindNode(const Tree& tree, typename Tree::Node first, Wanted wanted) {
    auto node = first;
    while (node != typename Tree::Node{} && !wanted(node))
        node = NextNode(tree, node);
    return node;
}

}  // namespace corvex
