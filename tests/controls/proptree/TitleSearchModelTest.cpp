#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/proptree/TitleSearchModel.h"

namespace corvex {
namespace {

// Nodes count from 1; 0 is none.
struct TreeFake {
    using Node = int;
    std::vector<int> parents{0};

    int Add(int parent) {
        parents.push_back(parent);
        return static_cast<int>(parents.size()) - 1;
    }
    int Find(int parent, int after) const {
        for (int i = after + 1; i < static_cast<int>(parents.size()); ++i) {
            if (parents[static_cast<std::size_t>(i)] == parent) return i;
        }
        return 0;
    }
    int FirstChild(int node) const { return Find(node, 0); }
    int NextSibling(int node) const { return Find(Parent(node), node); }
    int Parent(int node) const { return parents[static_cast<std::size_t>(node)]; }
};

std::vector<int> Walk(const TreeFake& tree, int first) {
    std::vector<int> order;
    FindNode(tree, first, [&](int node) {
        order.push_back(node);
        return false;
    });
    return order;
}

TEST(TitleSearchModelTest, AnEmptyTreeHasNoTitle) {
    EXPECT_EQ(FindNode(TreeFake{}, 0, [](int) { return true; }), 0);
}

TEST(TitleSearchModelTest, ChildrenComeBeforeSiblings) {
    TreeFake tree;
    const int general = tree.Add(0), keys = tree.Add(0), com = tree.Add(general), speed = tree.Add(com),
              port = tree.Add(com), colours = tree.Add(general);
    EXPECT_EQ(Walk(tree, general), (std::vector<int>{general, com, speed, port, colours, keys}));
}

TEST(TitleSearchModelTest, TheWalkClimbsOverParentsWithoutSiblings) {
    TreeFake tree;
    const int a = tree.Add(0), b = tree.Add(a), c = tree.Add(b), last = tree.Add(0);
    EXPECT_EQ(Walk(tree, a), (std::vector<int>{a, b, c, last}));
}

TEST(TitleSearchModelTest, TheFirstOfTwoIsFound) {
    TreeFake tree;
    const int a = tree.Add(0), deep = tree.Add(a);
    tree.Add(0);
    EXPECT_EQ(FindNode(tree, a, [&](int node) { return node != a; }), deep);
    EXPECT_EQ(FindNode(tree, a, [](int node) { return node == 99; }), 0);
}

}  // namespace
}  // namespace corvex
