// What a table writes of itself.
#include <gtest/gtest.h>

#include "definition/ADXLookupTable.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXLookupTableWrite, WritesNumbers) {
    ADXLookupTable table;
    table.SetId("A");
    table.AddEntry(20, 200.5F);
    table.AddEntry(-10, 0.1F);
    EXPECT_EQ(test::WrittenText(table),
              "<ADXLOOKUPTABLE id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <inputtype>3</inputtype>\n"
              "    <outputtype>3</outputtype>\n"
              "    <lookupmode>0</lookupmode>\n"
              "    <entrycount>2</entrycount>\n"
              "    <tableentry input=\"-10.000000\" output=\"0.100000\" />\n"
              "    <tableentry input=\"20.000000\" output=\"200.500000\" />\n"
              "</ADXLOOKUPTABLE>\n");
}

TEST(ADXLookupTableWrite, WritesTextsUnescaped) {
    ADXLookupTable table;
    table.SetId("A");
    table.SetDesc("d", 1);
    table.flags = 8;
    table.inputtype = 1;
    table.SetOutputType(ADXLookupTable::kText);
    table.AddEntryText(1, "P & N", 5);
    EXPECT_EQ(test::WrittenText(table),
              "<ADXLOOKUPTABLE id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <desc>d</desc>\n"
              "    <flags>0x00000008</flags>\n"
              "    <inputtype>1</inputtype>\n"
              "    <outputtype>5</outputtype>\n"
              "    <lookupmode>1</lookupmode>\n"
              "    <entrycount>1</entrycount>\n"
              "    <tableentry input=\"1.000000\" output=\"P & N\" />\n"
              "</ADXLOOKUPTABLE>\n");
}

TEST(ADXLookupTableWrite, NeedsAWriter) {
    EXPECT_EQ(ADXLookupTable().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
