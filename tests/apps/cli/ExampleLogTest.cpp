// The recording among the examples goes with its definition.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

class ExampleLogTest : public ::testing::Test {
protected:
    // What the command says of the log by its definition.
    static std::string Run(const char* command, const Words& more) {
        Words args{command, "-d", Example("harrier-8192.adx"), Example("harrier-8192.xdl")};
        args.insert(args.end(), more.begin(), more.end());
        const ToolResult result = RunInside(args);
        EXPECT_EQ(result.err, "");
        return result.out;
    }
};

TEST_F(ExampleLogTest, IsAFinishedLogOfADrive) {
    const std::string log = Example("harrier-8192.xdl");
    const auto info = nlohmann::json::parse(RunInside({"info", log}).out);
    EXPECT_EQ(info["records"], 1997);
    EXPECT_EQ(info["sampleCount"], 1997);
    EXPECT_EQ(info["endMark"], std::filesystem::file_size(log) + 1);
    EXPECT_LT(std::filesystem::file_size(log), 150000U);
}

TEST_F(ExampleLogTest, PlaysAsItIsDecodedAndFillsTheHistograms) {
    const Words played = LinesOf(Run("play", {"--speed", "0", "--json"}));
    const Words rows = LinesOf(Run("decode", {"--items", "RPM"}));
    ASSERT_EQ(rows.size(), 1998U);
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const auto sample = nlohmann::json::parse(played.at(i - 1));
        const std::size_t comma = rows[i].find(',');
        ASSERT_EQ(sample["t"].get<double>(), std::stod(rows[i].substr(0, comma)));
        ASSERT_EQ(sample["values"]["RPM"].get<double>(), std::stod(rows[i].substr(comma + 1)));
    }
    for (const char* id : {"HISTBLM", "HISTKNK"})
        EXPECT_TRUE(Has(Run("histogram", {"--id", id}), "; 1997 samples, 0 outside the grid\n"));
}

TEST_F(ExampleLogTest, HoldsAWholeDriveWithItsEvents) {
    const auto column = [](const char* id) {
        std::vector<double> numbers;
        const Words rows = LinesOf(Run("decode", {"--items", id}));
        for (std::size_t i = 1; i < rows.size(); ++i)
            numbers.push_back(std::stod(rows[i].substr(rows[i].find(',') + 1)));
        return numbers;
    };
    const auto runTime = column("RUNT"), coolant = column("CLT"), voltage = column("BATT"), knock = column("KRET");
    EXPECT_EQ(runTime.front(), 0);
    EXPECT_EQ(runTime.back(), 163);
    EXPECT_TRUE(std::ranges::is_sorted(runTime));
    EXPECT_LT(coolant.front(), 45);
    EXPECT_GT(coolant.back(), 85);
    EXPECT_LT(std::ranges::min(voltage), 10.5);
    EXPECT_GT(std::ranges::max(knock), 6);
    EXPECT_EQ(std::ranges::max(column("FAULTS")), 1);
    EXPECT_GT(std::ranges::max(column("VSS")), 120);
}

}  // namespace
}  // namespace corvex
