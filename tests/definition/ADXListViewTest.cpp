#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXListView, StartsWithItsDefaults) {
    const ADXListView list;
    EXPECT_EQ(list.GetType(), 0x00000100u);
    EXPECT_EQ(list.flags, 0u);
    EXPECT_EQ(list.GetEntryCount(), 0u);
    const ADXLVENTRY row;
    EXPECT_EQ(row.flags, 0u);
    EXPECT_EQ(row.entrytype, 0u);
    EXPECT_EQ(row.itemidhash, 0u);
    EXPECT_FALSE(row.title.IsSet());
    EXPECT_EQ(row.item, nullptr);
    EXPECT_EQ(row.color, 0u);
}

TEST(ADXListView, KeepsTenEntriesWhenAskedFor256) {
    ADXListView list;
    list.SetEntryCount(10);
    list.SetEntryCount(256);
    EXPECT_EQ(list.GetEntryCount(), 10u);
}

TEST(ADXListView, CopiesTitlesWithTheirRows) {
    ADXListView list;
    ADXLVENTRY row;
    row.title.Set("Fuel", 4);
    list.AddEntry(&row);
    row.title.Set("Spark", 5);
    list.AddEntry(&row);
    EXPECT_STREQ(list.GetEntry(0)->title.CStr(), "Fuel");
    EXPECT_STREQ(list.GetEntry(1)->title.CStr(), "Spark");
    list.SetEntryCount(1);
    list.SetEntryCount(2);
    EXPECT_FALSE(list.GetEntry(1)->title.IsSet());
}

TEST(ADXListView, BindsAnItemRowWithItsHash) {
    ADXBitmask item;
    item.SetId("A");
    ADXLVENTRY row;
    row.SetItem(&item);
    EXPECT_EQ(row.item, &item);
    EXPECT_EQ(row.itemidhash, 0x86F344BBu);
    row.SetItem(nullptr);
    EXPECT_EQ(row.item, nullptr);
    EXPECT_EQ(row.itemidhash, 0x86F344BBu);
    ADXLVENTRY heading;
    heading.entrytype = ADXLVENTRY::kHeadingRow;
    heading.SetItem(&item);
    EXPECT_EQ(heading.itemidhash, 0u);
}

TEST(ADXListView, WritesItsRows) {
    ADXListView list;
    list.SetId("A");
    list.SetTitle("All", 3);
    list.SetDesc("d", 1);
    list.flags = 1;
    ADXLVENTRY row;
    row.entrytype = ADXLVENTRY::kHeadingRow;
    row.flags = 1;
    row.title.Set("Fuel & air", 10);
    row.color = 0xFF;
    list.AddEntry(&row);
    row = ADXLVENTRY();
    row.itemidhash = 0x1234;
    list.AddEntry(&row);
    EXPECT_EQ(test::WrittenText(list),
              "<ADXLISTVIEW id=\"A\" idhash=\"0x86F344BB\" title=\"All\">\n"
              "    <desc>d</desc>\n"
              "    <flags>0x00000001</flags>\n"
              "    <entrycount>2</entrycount>\n"
              "    <ADXLVENTRY entrytype=\"1\" flags=\"0x00000001\" title=\"Fuel &amp; air\" color=\"000000FF\" />\n"
              "    <ADXLVENTRY entrytype=\"0\" itemidhash=\"0x00001234\" />\n"
              "</ADXLISTVIEW>\n");
}

TEST(ADXListView, WritesAtMost256CharactersOfATitle) {
    ADXListView list;
    ADXLVENTRY row;
    const std::string title = std::string(255, '<') + "&cut";
    row.title.Set(title.c_str(), title.size());
    list.AddEntry(&row);
    const std::string written = test::WrittenText(list);
    EXPECT_EQ(test::Count(written, "&lt;"), 255u);
    EXPECT_NE(written.find("&lt;&amp;\" />"), std::string::npos);
}

TEST(ADXListView, NeedsAWriter) {
    EXPECT_EQ(ADXListView().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
