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

TEST(ADXLookupTableModes, ConvertByTheirRule) {
    EXPECT_EQ(ADXLookupTable().Convert(5), 0.0F);
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const struct {
        const char* rule;
        std::uint32_t mode;
        std::initializer_list<std::pair<float, float>> entries, results;
    } cases[] = {
        {"interpolates within and holds the ends",
         ADXLookupTable::kInterpolate,
         {{10, 100}, {20, 200}},
         {{15, 150}, {5, 100}, {25, 200}, {20, 200}, {10, 100}}},
        {"takes the middle for what is no number",
         ADXLookupTable::kInterpolate,
         {{10, 100}, {20, 200}, {30, 300}},
         {{std::numeric_limits<float>::quiet_NaN(), 200}, {kInfinity, 300}, {-kInfinity, 100}}},
        {"lower misses the last key of two",
         ADXLookupTable::kLower,
         {{10, 100}, {20, 200}},
         {{20, 100}, {10, 100}, {20.5F, 200}, {5, 100}}},
        {"lower hits a key that is probed",
         ADXLookupTable::kLower,
         {{10, 100}, {20, 200}, {30, 300}},
         {{20, 200}, {30, 200}, {29, 200}, {19, 100}}},
        {"nearest gives a tie to the higher",
         ADXLookupTable::kNearest,
         {{10, 100}, {20, 200}},
         {{15, 200}, {14.9F, 100}, {0, 100}, {20, 200}, {99, 200}}},
        {"higher takes the higher key",
         ADXLookupTable::kHigher,
         {{10, 100}, {20, 200}, {30, 300}},
         {{11, 200}, {20, 200}, {30, 300}, {31, 300}, {9, 100}}},
        {"unknown gives zero except on a hit",
         9,
         {{10, 100}, {20, 200}, {30, 300}},
         {{15, 0}, {5, 0}, {35, 0}, {20, 200}}},
    };
    for (const auto& one : cases) {
        ADXLookupTable table;
        Fill(table, one.entries);
        table.SetLookupMode(one.mode);
        for (const auto& [x, result] : one.results)
            EXPECT_EQ(table.Convert(x), result) << one.rule << ", " << x;
    }
}

TEST(ADXLookupTableModes, InterpolateIn32BitFloats) {
    ADXLookupTable table;
    Fill(table, {{0.1F, 16777216.0F}, {0.7F, 16777220.0F}});
    const float t = (0.3F - 0.1F) / (0.7F - 0.1F);
    const float expected = 16777216.0F + (16777220.0F - 16777216.0F) * t;
    EXPECT_EQ(table.Convert(0.3F), expected);
    EXPECT_EQ(expected, 16777218.0F);  // doubles would give 16777217.33
}

TEST(ADXLookupTableModes, OnlyEntryAnswersInEveryMode) {
    ADXLookupTable table;
    Fill(table, {{10, 100}});
    for (std::uint32_t mode = 0; mode < 6; ++mode) {
        table.SetLookupMode(mode);
        for (const float x : {-5.0F, 10.0F, 50.0F})
            EXPECT_EQ(table.Convert(x), 100.0F) << mode;
    }
}

TEST(ADXLookupTableModes, BracketEveryPlaceOfALongerTable) {
    ADXLookupTable table;
    for (int i = 0; i < 11; ++i)
        table.AddEntry(static_cast<float>(i * 10), static_cast<float>(i));
    for (int i = 0; i < 10; ++i) {
        const auto here = static_cast<float>(i), between = static_cast<float>(i * 10 + 4);
        const std::pair<std::uint32_t, float> cases[] = {{ADXLookupTable::kLower, here},
                                                         {ADXLookupTable::kNearest, here},
                                                         {ADXLookupTable::kHigher, here + 1},
                                                         {ADXLookupTable::kInterpolate, here + 0.4F}};
        for (const auto& [mode, expected] : cases) {
            table.SetLookupMode(mode);
            EXPECT_FLOAT_EQ(table.Convert(between), expected) << mode;
        }
        table.SetLookupMode(ADXLookupTable::kHigher);
        EXPECT_EQ(table.Convert(static_cast<float>(i * 10)), here);
    }
}

TEST(ADXLookupTableEntries, StaySortedAndReplaceARepeatedKey) {
    ADXLookupTable table;
    const struct {
        float input, output;
        int index;
    } added[] = {{30, 3, 0}, {10, 1, 0}, {20, 2, 1}, {40, 4, 3}, {20, 9, 1}};
    for (const auto& one : added)
        EXPECT_EQ(table.AddEntry(one.input, one.output), one.index);
    const std::pair<float, float> expected[] = {{10, 1}, {20, 9}, {30, 3}, {40, 4}};
    ASSERT_EQ(table.GetEntryCount(), 4u);
    for (std::uint32_t i = 0; i < 4; ++i) {
        std::pair<float, float> entry;
        EXPECT_EQ(table.GetEntry(i, &entry.first, &entry.second), 1);
        EXPECT_EQ(entry, expected[i]);
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
    for (const auto& [input, text] : {std::pair{10.0F, "ten"}, {20.0F, "twenty"}, {30.0F, "thirty"}})
        table.AddEntryText(input, text, test::Length(text));
    const struct {
        std::uint32_t mode;
        float x;
        const char* text;
    } cases[] = {{ADXLookupTable::kNearest, 15, "twenty"},  // a tie goes to the higher
                 {ADXLookupTable::kLower, 19, "ten"},
                 {ADXLookupTable::kHigher, 11, "twenty"},
                 {9, 35, "ten"},
                 {9, 20, "twenty"}};
    for (const auto& one : cases) {
        table.SetLookupMode(one.mode);
        EXPECT_EQ(Text(table, one.x), one.text) << one.mode << ", " << one.x;
    }
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
    Fill(table, {{1, 10.7F}, {2, -10.7F}, {3, 1e30F}, {4, std::numeric_limits<float>::quiet_NaN()}});
    const struct {
        std::uint32_t type;
        float x;
        int digcount;
        const char* text;
    } cases[] = {
        {ADXLookupTable::kFloat, 1, 3, "10.700"},
        {ADXLookupTable::kFloat, 1, 0, "11"},
        {ADXLookupTable::kHexadecimal, 1, 2, "0x0A"},
        {ADXLookupTable::kHexadecimal, 2, 2, "0xFFFFFFF6"},
        {ADXLookupTable::kInteger, 1, 2, "10"},
        {ADXLookupTable::kInteger, 2, 2, "-10"},
        {ADXLookupTable::kUnformatted, 1, 2, ""},
        {4, 1, 2, ""},
        // Numbers that do not fit have one result.
        {ADXLookupTable::kInteger, 3, 2, "-2147483648"},
        {ADXLookupTable::kInteger, 5, 2, "-2147483648"},
        {ADXLookupTable::kHexadecimal, 3, 2, "0x00"},
    };
    for (const auto& one : cases) {
        table.SetOutputType(one.type);
        EXPECT_EQ(Shown(table, one.x, one.digcount), one.text) << one.type << ", " << one.x;
    }
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

TEST(ADXLookupTableFormat, GivesTheNumberTooAndStaysWithinTheBuffer) {
    ADXLookupTable table;
    Fill(table, {{1, 1234}});
    float result = 0;
    char out[300];
    EXPECT_EQ(table.Format(1, out, 4, &result, 2), 7u);
    EXPECT_STREQ(out, "123");
    EXPECT_EQ(result, 1234.0F);
    result = 0;
    EXPECT_EQ(table.Format(1, out, 0, &result, 2), 0u);
    EXPECT_EQ(result, 1234.0F);
    EXPECT_EQ(table.Format(1, out, sizeof out, nullptr, 255), 99u);
    EXPECT_EQ(std::string(out), "1234." + std::string(94, '0'));
}

TEST(ADXLookupTableSetOutputType, LosesTheNumbersThroughTextAlone) {
    ADXLookupTable table;
    Fill(table, {{10, 100}, {20, 200}});
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kInteger), 3u);
    EXPECT_EQ(table.Convert(10), 100.0F);
    EXPECT_EQ(table.GetLookupMode(), 0u);
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kText), 1u);
    EXPECT_EQ(table.GetLookupMode(), 1u);
    EXPECT_EQ(Text(table, 10), "100.000000");
    EXPECT_EQ(table.SetOutputType(ADXLookupTable::kFloat), 5u);
    EXPECT_EQ(table.Convert(10), 0.0F);
    EXPECT_EQ(table.Convert(20), 0.0F);
    EXPECT_EQ(table.GetEntryCount(), 2u);
}

TEST(ADXLookupTableSetOutputType, CutsALongNumbersTextAt19Characters) {
    ADXLookupTable table;
    Fill(table, {{10, 1e20F}});
    table.SetLookupMode(ADXLookupTable::kHigher);
    table.SetOutputType(ADXLookupTable::kText);
    EXPECT_EQ(table.GetLookupMode(), 3u);
    EXPECT_EQ(Text(table, 10), "1000000020040877342");
}

TEST(ADXLookupTableSetLookupMode, NeverInterpolatesTextsUntilReset) {
    ADXLookupTable table;
    table.SetOutputType(ADXLookupTable::kText);
    for (const auto& [asked, mode] : {std::pair{2U, 2U}, {0U, 1U}}) {
        table.SetLookupMode(asked);
        EXPECT_EQ(table.GetLookupMode(), mode);
    }
    table.AddEntryText(1, "one", 3);
    table.inputtype = 1;
    table.Reset();
    EXPECT_EQ(table.GetEntryCount(), 0u);
    EXPECT_EQ(table.inputtype, 3u);
    EXPECT_EQ(table.GetOutputType(), 3u);
    EXPECT_EQ(table.GetLookupMode(), 0u);
}

}  // namespace
}  // namespace corvex
