#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"

namespace corvex {
namespace {

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

}  // namespace
}  // namespace corvex
