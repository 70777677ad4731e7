#include <gtest/gtest.h>

#include <cstring>

#include "definition/ADXMacro.h"

namespace corvex {
namespace {

TEST(ADXMacro, CopiesNodesAndGivesNothingPastTheCount) {
    ADXMacro macro;
    ADXMacroNode node, copy;
    macro.GetNode(0, &node);
    macro.GetNode(0, nullptr);
    EXPECT_EQ(node.repeatcount, 1u);
    std::strcpy(node.commandid, "ABC");
    node.repeatcount = 3;
    macro.AddNode(&node);
    macro.AddNode(nullptr);
    EXPECT_EQ(macro.GetNodeCount(), 1u);
    node.repeatcount = 4;
    macro.GetNode(0, &copy);
    macro.GetNode(1, &copy);
    EXPECT_STREQ(copy.commandid, "ABC");
    EXPECT_EQ(copy.repeatcount, 3u);
}

TEST(ADXMacro, GrowsWithDefaultNodesUpToTheOneThatIsSet) {
    ADXMacro macro;
    ADXMacroNode node;
    node.repeatcount = 5;
    macro.SetNode(2, &node);
    EXPECT_EQ(macro.GetNodeCount(), 3u);
    macro.GetNode(1, &node);
    EXPECT_EQ(node.repeatcount, 1u);
    macro.GetNode(2, &node);
    EXPECT_EQ(node.repeatcount, 5u);
    macro.SetNode(0, nullptr);
    node.repeatcount = 6;
    macro.SetNode(0, &node);
    EXPECT_EQ(macro.GetNodeCount(), 3u);
}

TEST(ADXMacro, RefusesToGrowWithoutEnd) {
    ADXMacro macro;
    const ADXMacroNode node;
    macro.SetNode(0xFFFFFFFF, &node);
    macro.SetNode(ADXMacro::kNodeLimit, &node);
    EXPECT_EQ(macro.GetNodeCount(), 0u);
    macro.SetNode(ADXMacro::kNodeLimit - 1, &node);
    EXPECT_EQ(macro.GetNodeCount(), ADXMacro::kNodeLimit);
}

}  // namespace
}  // namespace corvex
