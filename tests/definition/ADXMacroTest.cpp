#include <gtest/gtest.h>

#include <cstring>

#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXMacro, StartsWithItsDefaults) {
    const ADXMacro macro;
    EXPECT_EQ(macro.GetType(), 0x00010000u);
    EXPECT_EQ(macro.flags, 0u);
    EXPECT_EQ(macro.repeatcount, 1u);
    EXPECT_EQ(macro.GetNodeCount(), 0u);
    const ADXMacroNode node;
    EXPECT_EQ(node.command, nullptr);
    EXPECT_STREQ(node.commandid, "");
    EXPECT_EQ(node.flags, 0u);
    EXPECT_EQ(node.repeatcount, 1u);
}

TEST(ADXMacro, CopiesNodes) {
    ADXMacro macro;
    ADXMacroNode node;
    std::strcpy(node.commandid, "ABC");
    node.repeatcount = 3;
    macro.AddNode(&node);
    macro.AddNode(nullptr);
    EXPECT_EQ(macro.GetNodeCount(), 1u);
    node.repeatcount = 4;
    ADXMacroNode copy;
    macro.GetNode(0, &copy);
    EXPECT_STREQ(copy.commandid, "ABC");
    EXPECT_EQ(copy.repeatcount, 3u);
}

TEST(ADXMacro, GivesNothingPastTheCount) {
    const ADXMacro macro;
    ADXMacroNode node;
    node.repeatcount = 9;
    macro.GetNode(0, &node);
    macro.GetNode(0, nullptr);
    EXPECT_EQ(node.repeatcount, 9u);
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

TEST(ADXMacro, WritesNoNodesWhenThereAreNone) {
    ADXMacro macro;
    macro.SetId("A");
    EXPECT_EQ(test::WrittenText(macro), "<ADXMACRO id=\"A\" idhash=\"0x86F344BB\" title=\"\" repeatcount=\"1\" />\n");
}

TEST(ADXMacro, WritesResolvedNodesAlone) {
    ADXCTrigger trigger;
    trigger.SetId("ABCDEFGHIJKLMNO");
    ADXCTrigger plain;
    plain.SetId("A&B");
    ADXMacro macro;
    macro.SetId("A");
    macro.SetDesc("All", 3);
    macro.flags = 0x12;
    macro.repeatcount = 4000000000U;
    ADXMacroNode node;
    std::strcpy(node.commandid, "NOBODY");
    macro.AddNode(&node);
    node.command = &trigger;
    node.flags = 3;
    node.repeatcount = 2;
    macro.AddNode(&node);
    node = ADXMacroNode();
    node.command = &plain;
    macro.AddNode(&node);
    // Fourteen characters of an id, as it is stored; the node that names nobody is gone.
    EXPECT_EQ(test::WrittenText(macro),
              "<ADXMACRO id=\"A\" idhash=\"0x86F344BB\" title=\"\" repeatcount=\"4000000000\" flags=\"0x00000012\">\n"
              "    <desc>All</desc>\n"
              "    <NODE flags=\"0x00000003\" commandID=\"ABCDEFGHIJKLMN\" repeatcount=\"2\" />\n"
              "    <NODE commandID=\"A&B\" repeatcount=\"1\" />\n"
              "</ADXMACRO>\n");
}

TEST(ADXMacro, NeedsAWriter) {
    EXPECT_EQ(ADXMacro().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
