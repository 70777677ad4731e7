// What a file cannot hold, and how it comes back.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

TEST(FormatLosses, AnObjectWithoutAnIdComesBackWithTheHashOfTheEmptyText) {
    ADXDefinition definition;
    definition.InsertAt(std::make_unique<ADXCTrigger>(), 0);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(definition.GetObject(kTypeAny, 0)->GetIdHash(), 0u);
    EXPECT_EQ(loaded.GetObject(kTypeAny, 0)->GetIdHash(), 0xDC379ACFu);
}

TEST(FormatLosses, NumbersKeepSixDecimals) {
    ADXDefinition definition;
    auto& value = Add<ADXValue>(definition, "V");
    value.rangelow = 0.1F;
    value.rangehigh = 1e-7F;
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(Get<ADXValue>(loaded).rangelow, 0.1F);
    EXPECT_EQ(Get<ADXValue>(loaded).rangehigh, 0.0F);
}

TEST(FormatLosses, TextsOfBlanksAloneAreLost) {
    ADXDefinition definition;
    auto& value = Add<ADXValue>(definition, "V");
    value.SetUnits("  ", 2);
    value.SetDesc(" \t\r\n", 4);
    value.SetTitle("  ", 2);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_STREQ(Get<ADXValue>(loaded).Units(), "");
    EXPECT_STREQ(Get<ADXValue>(loaded).Desc(), "");
    EXPECT_STREQ(Get<ADXValue>(loaded).Title(), "  ") << "an attribute keeps its blanks";
}

TEST(FormatLosses, LongTextsAreCutOnReading) {
    ADXDefinition definition;
    auto& view = Add<ADXListView>(definition, "L");
    const std::string text(2000, 't');
    view.SetTitle(text.data(), 300);
    view.SetDesc(text.data(), 2000);
    view.SetEntryCount(1);
    view.GetEntry(0)->title.Set(text.data(), 300);
    EXPECT_TRUE(Contains(SaveText(definition), "entrytype=\"0\" title=\"" + std::string(256, 't') + "\""));
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(Get<ADXListView>(loaded).Title(), std::string(255, 't'));
    EXPECT_EQ(Get<ADXListView>(loaded).Desc(), std::string(1023, 't'));
    EXPECT_EQ(Get<ADXListView>(loaded).GetEntry(0)->title.CStr(), std::string(255, 't'));
}

TEST(FormatLosses, AnUnknownOperationOfABitmaskReadsBackAsAnd) {
    ADXDefinition definition;
    Add<ADXBitmask>(definition, "B").bitop = 7;
    EXPECT_FALSE(Contains(SaveText(definition), "bitop"));
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(Get<ADXBitmask>(loaded).bitop, 0u);
}

TEST(FormatLosses, ALetterUsedTwiceLosesItsLink) {
    ADXDefinition definition;
    auto& value = Add<ADXValue>(definition, "V");
    value.SetEquation("X*X", 3);
    value.SetVar({1, 'X', 0xABC});
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    ADXVar var;
    Get<ADXValue>(loaded).GetVar(0, &var);
    // The second entry of the letter is native and is read into the first.
    EXPECT_EQ(var.type, 0u);
}

TEST(FormatLosses, FlagsOfASeriesKeepTheirLowHalf) {
    ADXDefinition definition;
    ADXMONSERIES series;
    series.flags = 0x12345678;
    series.item = &Add<ADXValue>(definition, "V");
    Add<ADXMonitor>(definition, "M").AddEntry(&series);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(Get<ADXMonitor>(loaded, 1).GetEntry(0)->flags, 0x5678u);
}

TEST(FormatLosses, TableKeysThatAgreeInSixDecimalsBecomeOne) {
    ADXDefinition definition;
    auto& table = Add<ADXLookupTable>(definition, "T");
    table.SetOutputType(5);
    table.AddEntryText(1.0F, "one", 3);
    table.AddEntryText(1.0000001F, "two", 3);
    ASSERT_EQ(table.GetEntryCount(), 2u);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(Get<ADXLookupTable>(loaded).GetEntryCount(), 1u) << "keys that agree in six decimals are one key";
}

}  // namespace
}  // namespace corvex
