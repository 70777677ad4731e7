#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "definition/ADXLookupTable.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

void Fill(ADXLookupTable& table, std::initializer_list<std::pair<float, float>> entries) {
    for (const auto& [input, output] : entries) {
        table.AddEntry(input, output);
    }
}

std::string Text(const ADXLookupTable& table, float x) {
    char out[40] = "";
    table.ConvertToText(x, out, sizeof out);
    return out;
}

std::string Shown(const ADXLookupTable& table, float x, int digcount = 2) {
    char out[40] = "unchanged";
    const std::uint32_t length = table.Format(x, out, sizeof out, nullptr, digcount);
    EXPECT_EQ(length, test::Length(out));
    return out;
}

TEST(ADXLookupTable, StartsWithItsDefaults) {
    const ADXLookupTable table;
    EXPECT_EQ(table.GetType(), 0x00000200u);
    EXPECT_EQ(table.flags, 0u);
    EXPECT_EQ(table.inputtype, 3u);
    EXPECT_EQ(table.GetOutputType(), 3u);
    EXPECT_EQ(table.GetLookupMode(), 0u);
    EXPECT_EQ(table.GetEntryCount(), 0u);
    EXPECT_EQ(table.Convert(5), 0.0F);
}

TEST(ADXLookupTableModes, InterpolateWithinAndHoldTheEnds) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}});
    EXPECT_EQ(table.Convert(15), 150.0F);
    EXPECT_EQ(table.Convert(5), 100.0F);
    EXPECT_EQ(table.Convert(25), 200.0F);
    EXPECT_EQ(table.Convert(20), 200.0F);
    EXPECT_EQ(table.Convert(10), 100.0F);
}

TEST(ADXLookupTableModes, InterpolateIn32BitFloats) {
    ADXLookupTable table;
    Fill(table, {{0.1F, 16777216.0F}, {0.7F, 16777220.0F}});
    const float t = (0.3F - 0.1F) / (0.7F - 0.1F);
    const float expected = 16777216.0F + (16777220.0F - 16777216.0F) * t;
    EXPECT_EQ(table.Convert(0.3F), expected);
    EXPECT_EQ(expected, 16777218.0F);  // doubles would give 16777217.33
}

TEST(ADXLookupTableModes, LowerMissesTheLastKeyOfTwo) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}});
    table.SetLookupMode(ADXLookupTable::kLower);
    EXPECT_EQ(table.Convert(20), 100.0F);
    EXPECT_EQ(table.Convert(10), 100.0F);
    EXPECT_EQ(table.Convert(20.5F), 200.0F);
    EXPECT_EQ(table.Convert(5), 100.0F);
}

TEST(ADXLookupTableModes, LowerHitsAKeyThatIsProbed) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}, {30, 300}});
    table.SetLookupMode(ADXLookupTable::kLower);
    EXPECT_EQ(table.Convert(20), 200.0F);
    EXPECT_EQ(table.Convert(30), 200.0F);
    EXPECT_EQ(table.Convert(29), 200.0F);
    EXPECT_EQ(table.Convert(19), 100.0F);
}

TEST(ADXLookupTableModes, NearestGivesATieToTheHigher) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}});
    table.SetLookupMode(ADXLookupTable::kNearest);
    EXPECT_EQ(table.Convert(15), 200.0F);
    EXPECT_EQ(table.Convert(14.9F), 100.0F);
    EXPECT_EQ(table.Convert(0), 100.0F);
    EXPECT_EQ(table.Convert(20), 200.0F);
    EXPECT_EQ(table.Convert(99), 200.0F);
}

TEST(ADXLookupTableModes, HigherTakesTheHigherKey) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}, {30, 300}});
    table.SetLookupMode(ADXLookupTable::kHigher);
    EXPECT_EQ(table.Convert(11), 200.0F);
    EXPECT_EQ(table.Convert(20), 200.0F);
    EXPECT_EQ(table.Convert(30), 300.0F);
    EXPECT_EQ(table.Convert(31), 300.0F);
    EXPECT_EQ(table.Convert(9), 100.0F);
}

TEST(ADXLookupTableModes, UnknownGivesZeroExceptOnAHit) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}, {30, 300}});
    table.SetLookupMode(9);
    EXPECT_EQ(table.Convert(15), 0.0F);
    EXPECT_EQ(table.Convert(5), 0.0F);
    EXPECT_EQ(table.Convert(35), 0.0F);
    EXPECT_EQ(table.Convert(20), 200.0F);
}

TEST(ADXLookupTableModes, UnknownGivesTheTextOfTheFirstEntry) {
    ADXLookupTable table;
    table.SetOutputType(ADXLookupTable::kText);
    table.AddEntryText(10, "ten", 3);
    table.AddEntryText(20, "twenty", 6);
    table.AddEntryText(30, "thirty", 6);
    table.SetLookupMode(9);
    EXPECT_EQ(Text(table, 35), "ten");
    EXPECT_EQ(Text(table, 20), "twenty");
}

TEST(ADXLookupTableModes, OnlyEntryAnswersInEveryMode) {
    ADXLookupTable table;
    Fill(table, {{10, 100}});
    for (std::uint32_t mode = 0; mode < 6; ++mode) {
        table.SetLookupMode(mode);
        EXPECT_EQ(table.Convert(-5), 100.0F) << mode;
        EXPECT_EQ(table.Convert(10), 100.0F) << mode;
        EXPECT_EQ(table.Convert(50), 100.0F) << mode;
    }
}

TEST(ADXLookupTableModes, BracketEveryPlaceOfALongerTable) {
    ADXLookupTable table;
    for (int i = 0; i < 11; ++i) {
        table.AddEntry(static_cast<float>(i * 10), static_cast<float>(i));
    }
    for (int i = 0; i < 10; ++i) {
        const auto between = static_cast<float>(i * 10 + 4);
        table.SetLookupMode(ADXLookupTable::kLower);
        EXPECT_EQ(table.Convert(between), static_cast<float>(i));
        table.SetLookupMode(ADXLookupTable::kHigher);
        EXPECT_EQ(table.Convert(between), static_cast<float>(i + 1));
        EXPECT_EQ(table.Convert(static_cast<float>(i * 10)), static_cast<float>(i));
        table.SetLookupMode(ADXLookupTable::kNearest);
        EXPECT_EQ(table.Convert(between), static_cast<float>(i));
        table.SetLookupMode(ADXLookupTable::kInterpolate);
        EXPECT_FLOAT_EQ(table.Convert(between), static_cast<float>(i) + 0.4F);
    }
}

TEST(ADXLookupTableModes, TakeTheMiddleForWhatIsNoNumber) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}, {30, 300}});
    EXPECT_EQ(table.Convert(std::numeric_limits<float>::quiet_NaN()), 200.0F);
    EXPECT_EQ(table.Convert(std::numeric_limits<float>::infinity()), 300.0F);
    EXPECT_EQ(table.Convert(-std::numeric_limits<float>::infinity()), 100.0F);
}

TEST(ADXLookupTableEntries, StaySortedAndReplaceARepeatedKey) {
    ADXLookupTable table;
    EXPECT_EQ(table.AddEntry(30, 3), 0);
    EXPECT_EQ(table.AddEntry(10, 1), 0);
    EXPECT_EQ(table.AddEntry(20, 2), 1);
    EXPECT_EQ(table.AddEntry(40, 4), 3);
    EXPECT_EQ(table.AddEntry(20, 9), 1);
    ASSERT_EQ(table.GetEntryCount(), 4u);
    const float inputs[] = {10, 20, 30, 40};
    const float outputs[] = {1, 9, 3, 4};
    for (std::uint32_t i = 0; i < 4; ++i) {
        float input = 0;
        float output = 0;
        EXPECT_EQ(table.GetEntry(i, &input, &output), 1);
        EXPECT_EQ(input, inputs[i]);
        EXPECT_EQ(output, outputs[i]);
    }
    EXPECT_EQ(table.GetEntry(4, nullptr, nullptr), 0);
    EXPECT_EQ(table.GetEntry(0, nullptr, nullptr), 1);
}

TEST(ADXLookupTableEntries, AreRemovedByIndex) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}, {30, 300}});
    EXPECT_EQ(table.RemoveEntry(1), 20.0F);
    EXPECT_EQ(table.RemoveEntry(2), 0.0F);
    EXPECT_EQ(table.GetEntryCount(), 2u);
    EXPECT_EQ(table.Convert(30), 300.0F);
}

TEST(ADXLookupTableEntries, RefuseWhatDoesNotFitTheOutput) {
    ADXLookupTable table;
    EXPECT_EQ(table.AddEntryText(1, "one", 3), -1);
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(table.AddEntryText(1, nullptr, 3), -1);
    EXPECT_EQ(table.AddEntryText(1, "one", 0), -1);
    EXPECT_EQ(table.AddEntry(1, 1), -1);
    EXPECT_EQ(table.GetEntryCount(), 0u);
}

TEST(ADXLookupTableEntries, GiveTheirTexts) {
    ADXLookupTable table;
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(table.AddEntryText(20, "second one", 6), 0);
    EXPECT_EQ(table.AddEntryText(10, "first", 5), 0);
    EXPECT_EQ(table.AddEntryText(20, "third", 5), 1);
    float input = 0;
    char text[4];
    EXPECT_EQ(table.GetEntryText(1, &input, text, sizeof text), 1);
    EXPECT_EQ(input, 20.0F);
    EXPECT_STREQ(text, "thi");
    EXPECT_EQ(table.GetEntryText(0, nullptr, nullptr, 0), 1);
    EXPECT_EQ(table.GetEntryText(2, &input, text, sizeof text), 0);
    EXPECT_EQ(table.Convert(10), 0.0F);
}

TEST(ADXLookupTableEntries, SurviveKeysThatAreNoNumbers) {
    ADXLookupTable table;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Fill(table, {{nan, 1}, {5, 2}, {nan, 3}, {4, 4}, {6, 5}});
    EXPECT_EQ(table.GetEntryCount(), 5u);
    for (float x = 0; x < 8; x += 0.5F) {
        table.Convert(x);
    }
}

TEST(ADXLookupTableConvertToText, FollowsTheMode) {
    ADXLookupTable table;
    table.SetOutputType(ADXLookupTable::kText);
    table.AddEntryText(10, "ten", 3);
    table.AddEntryText(20, "twenty", 6);
    EXPECT_EQ(Text(table, 15), "twenty");  // nearest, and a tie goes to the higher
    EXPECT_EQ(Text(table, 14), "ten");
    table.SetLookupMode(ADXLookupTable::kLower);
    EXPECT_EQ(Text(table, 19), "ten");
    table.SetLookupMode(ADXLookupTable::kHigher);
    EXPECT_EQ(Text(table, 11), "twenty");
    EXPECT_EQ(Text(table, 1), "ten");
}

TEST(ADXLookupTableConvertToText, ReturnsTheWholeLength) {
    ADXLookupTable table;
    char out[4] = "old";
    EXPECT_EQ(table.ConvertToText(1, out, sizeof out), 0u);
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(table.ConvertToText(1, out, sizeof out), 0u);
    EXPECT_STREQ(out, "old");
    table.AddEntryText(10, "twenty", 6);
    EXPECT_EQ(table.ConvertToText(1, out, sizeof out), 6u);
    EXPECT_STREQ(out, "twe");
    EXPECT_EQ(table.ConvertToText(1, nullptr, 4), 0u);
}

TEST(ADXLookupTableFormat, ShowsEachOutputType) {
    ADXLookupTable table;
    Fill(table, {{1, 10.7F}, {2, -10.7F}});
    EXPECT_EQ(Shown(table, 1, 3), "10.700");
    EXPECT_EQ(Shown(table, 1, 0), "11");
    table.SetOutputType(ADXLookupTable::kHexadecimal);
    EXPECT_EQ(Shown(table, 1), "0x0A");
    EXPECT_EQ(Shown(table, 2), "0xFFFFFFF6");
    table.SetOutputType(ADXLookupTable::kInteger);
    EXPECT_EQ(Shown(table, 1), "10");
    EXPECT_EQ(Shown(table, 2), "-10");
    table.SetOutputType(ADXLookupTable::kUnformatted);
    EXPECT_EQ(Shown(table, 1), "");
    table.SetOutputType(4);
    EXPECT_EQ(Shown(table, 1), "");
}

TEST(ADXLookupTableFormat, HasOneResultForNumbersThatDoNotFit) {
    ADXLookupTable table;
    Fill(table, {{1, 1e30F}, {2, std::numeric_limits<float>::quiet_NaN()}});
    table.SetOutputType(ADXLookupTable::kInteger);
    EXPECT_EQ(Shown(table, 1), "-2147483648");
    EXPECT_EQ(Shown(table, 3), "-2147483648");
    table.SetOutputType(ADXLookupTable::kHexadecimal);
    EXPECT_EQ(Shown(table, 1), "0x00");
}

TEST(ADXLookupTableFormat, ShowsTheEntrysText) {
    ADXLookupTable table;
    EXPECT_EQ(Shown(table, 1), "0.00");
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(Shown(table, 1), "");
    table.AddEntryText(1, "one", 3);
    EXPECT_EQ(Shown(table, 1), "one");
    float result = 7;
    char out[2];
    EXPECT_EQ(table.Format(1, out, sizeof out, &result, 2), 3u);
    EXPECT_STREQ(out, "o");
    EXPECT_EQ(result, 7.0F);  // a text leaves the number alone
    EXPECT_EQ(table.Format(1, nullptr, 2, &result, 2), 0u);
    EXPECT_EQ(result, 0.0F);
}

TEST(ADXLookupTableFormat, GivesTheNumberToo) {
    ADXLookupTable table;
    Fill(table, {{1, 1234}});
    float result = 0;
    char out[4];
    EXPECT_EQ(table.Format(1, out, sizeof out, &result, 2), 7u);
    EXPECT_STREQ(out, "123");
    EXPECT_EQ(result, 1234.0F);
    result = 0;
    EXPECT_EQ(table.Format(1, out, 0, &result, 2), 0u);
    EXPECT_EQ(result, 1234.0F);
}

TEST(ADXLookupTableFormat, CutsAnEndlessNumberAt99Characters) {
    ADXLookupTable table;
    Fill(table, {{1, 1}});
    char out[300];
    EXPECT_EQ(table.Format(1, out, sizeof out, nullptr, 255), 99u);
    EXPECT_EQ(std::string(out), "1." + std::string(97, '0'));
}

TEST(ADXLookupTableSetOutputType, LosesTheNumbersThroughText) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}});
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kText), 3u);
    EXPECT_EQ(table.GetLookupMode(), 1u);
    EXPECT_EQ(Text(table, 10), "100.000000");
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kFloat), 5u);
    EXPECT_EQ(table.Convert(10), 0.0F);
    EXPECT_EQ(table.Convert(20), 0.0F);
    EXPECT_EQ(table.GetEntryCount(), 2u);
}

TEST(ADXLookupTableSetOutputType, KeepsTheNumbersAmongNumericTypes) {
    ADXLookupTable table;
    Fill(table, {{10, 100.5F}});
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kInteger), 3u);
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kInteger), 1u);
    EXPECT_EQ(table.Convert(10), 100.5F);
    EXPECT_EQ(table.GetLookupMode(), 0u);
}

TEST(ADXLookupTableSetOutputType, CutsALongNumbersTextAt19Characters) {
    ADXLookupTable table;
    Fill(table, {{10, 1e20F}});
    table.SetLookupMode(ADXLookupTable::kHigher);
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(table.GetLookupMode(), 3u);
    EXPECT_EQ(Text(table, 10), "1000000020040877342");
}

TEST(ADXLookupTableSetLookupMode, NeverInterpolatesTexts) {
    ADXLookupTable table;
    table.SetLookupMode(2);
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(table.GetLookupMode(), 2u);
    table.SetLookupMode(0);
    EXPECT_EQ(table.GetLookupMode(), 1u);
}

TEST(ADXLookupTable, ResetsToItsDefaults) {
    ADXLookupTable table;
    table.AddEntry(1, 1);
    table.inputtype = 1;
    table.SetOutputType(ADXLookupTable::kText);
    table.SetLookupMode(3);
    table.Reset();
    EXPECT_EQ(table.GetEntryCount(), 0u);
    EXPECT_EQ(table.inputtype, 3u);
    EXPECT_EQ(table.GetOutputType(), 3u);
    EXPECT_EQ(table.GetLookupMode(), 0u);
}

}  // namespace
}  // namespace corvex
