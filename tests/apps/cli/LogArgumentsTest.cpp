#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "apps/cli/Arguments.h"

namespace corvex {
namespace {

// The options of the command, or the code to end with.
std::variant<Options, ExitCode> ParseLogArguments(std::vector<std::string> args) {
    std::ostringstream out, err;
    return ParseArguments(std::move(args), out, err);
}

template <class T>
T OptionsFrom(std::vector<std::string> args) {
    const auto parsed = ParseLogArguments(std::move(args));
    const Options* const options = std::get_if<Options>(&parsed);
    const T* const chosen = options == nullptr ? nullptr : std::get_if<T>(options);
    EXPECT_NE(chosen, nullptr);
    return chosen == nullptr ? T() : *chosen;
}

TEST(LogArgumentsTest, ReadsInfo) {
    const auto plain = OptionsFrom<InfoOptions>({"info", "a.xdl"});
    EXPECT_EQ(plain.log, "a.xdl");
    EXPECT_FALSE(plain.human);
    EXPECT_EQ(plain.definition, "");
    const auto human = OptionsFrom<InfoOptions>({"info", "a.xdl", "--human", "-d", "b.adx"});
    EXPECT_TRUE(human.human);
    EXPECT_EQ(human.definition, "b.adx");
}

TEST(LogArgumentsTest, ReadsDecode) {
    const auto plain = OptionsFrom<DecodeOptions>({"decode", "-d", "b.adx", "a.xdl"});
    EXPECT_EQ(plain.log, "a.xdl");
    EXPECT_EQ(plain.definition, "b.adx");
    EXPECT_EQ(plain.output, "-");
    EXPECT_EQ(plain.from, 0.0);
    EXPECT_TRUE(std::isinf(plain.to));
    const auto full = OptionsFrom<DecodeOptions>(
        {"decode", "-d", "b.adx", "a.xdl", "-o", "-", "--text", "--items", "*rpm*", "--from", "1.5", "--to", "2"});
    EXPECT_EQ(full.output, "-");
    EXPECT_TRUE(full.text);
    EXPECT_EQ(full.items, "*rpm*");
    EXPECT_EQ(full.from, 1.5);
    EXPECT_EQ(full.to, 2.0);
}

TEST(LogArgumentsTest, ReadsPlay) {
    EXPECT_EQ(OptionsFrom<PlayOptions>({"play", "-d", "b.adx", "a.xdl"}).speed, 1.0);
    const auto full =
        OptionsFrom<PlayOptions>({"play", "-d", "b.adx", "a.xdl", "--speed", "4", "--from", "9", "--json", "-v"});
    EXPECT_EQ(full.speed, 4.0);
    EXPECT_EQ(full.from, 9.0);
    EXPECT_TRUE(full.json);
    EXPECT_TRUE(full.verbose);
}

TEST(LogArgumentsTest, TakesSeveralViewsAndTheLogBehindThem) {
    const auto options = OptionsFrom<HistogramOptions>(
        {"histogram", "-d", "b.adx", "--id", "H", "--view", "count", "--view", "average-total", "a.xdl", "--csv"});
    EXPECT_EQ(options.log, "a.xdl");
    EXPECT_EQ(options.id, "H");
    EXPECT_EQ(options.views, (std::vector<std::string>{"count", "average-total"}));
    EXPECT_TRUE(options.csv);
}

TEST(LogArgumentsTest, ReadsRepairAndRecord) {
    const auto repair = OptionsFrom<RepairOptions>({"repair", "a.xdl", "b.xdl", "--force"});
    EXPECT_EQ(repair.input, "a.xdl");
    EXPECT_EQ(repair.output, "b.xdl");
    EXPECT_TRUE(repair.force);
    const auto scan = OptionsFrom<ScanOptions>({"scan", "-d", "b.adx", "-p", "COM1", "--record", "c.xdl", "--force"});
    EXPECT_EQ(scan.record, "c.xdl");
    EXPECT_TRUE(scan.force);
}

TEST(LogArgumentsTest, CallsWrongUsageByItsCode) {
    for (const auto& args :
         std::vector<std::vector<std::string>>{{"info"},
                                               {"info", "a", "-d", "b"},
                                               {"decode", "a"},
                                               {"decode", "-d", "b"},
                                               {"decode", "-d", "b", "a", "--from", "x"},
                                               {"decode", "-d", "b", "a", "--from", "-1"},
                                               {"decode", "-d", "b", "a", "--from", "2", "--to", "1"},
                                               {"play", "-d", "b", "a", "--plain", "--json"},
                                               {"play", "-d", "b", "a", "--speed", "-1"},
                                               {"histogram", "-d", "b", "a", "--view", "most"},
                                               {"repair", "a"},
                                               {"scan", "-d", "a", "-p", "b", "--force"}}) {
        const auto parsed = ParseLogArguments(args);
        const ExitCode* const code = std::get_if<ExitCode>(&parsed);
        ASSERT_NE(code, nullptr) << testing::PrintToString(args);
        EXPECT_EQ(*code, kExitUsage) << testing::PrintToString(args);
    }
}

}  // namespace
}  // namespace corvex
