// The recording among the examples goes with its definition.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

class ExampleLogTest : public ::testing::Test {
protected:
    const std::string log = Example("harrier-8192.xdl");
    const std::string definition = Example("harrier-8192.adx");
};

TEST_F(ExampleLogTest, IsAFinishedLogOfADrive) {
    const auto info = nlohmann::json::parse(RunInside({"info", log}).out);
    EXPECT_EQ(info["records"], 1912);
    EXPECT_EQ(info["sampleCount"], 1912);
    EXPECT_EQ(info["endMark"], std::filesystem::file_size(log) + 1);
    EXPECT_EQ(info["result"], 7);
    EXPECT_LT(std::filesystem::file_size(log), 150000U);
}

TEST_F(ExampleLogTest, PlaysAsItIsDecoded) {
    const ToolResult played = RunInside({"play", "-d", definition, log, "--speed", "0", "--json"});
    const ToolResult decoded = RunInside({"decode", "-d", definition, log, "--items", "RPM"});
    EXPECT_EQ(played.code, 0);
    EXPECT_EQ(played.err + decoded.err, "");
    std::istringstream lines(played.out), rows(decoded.out);
    std::string line, row;
    std::getline(rows, row);
    int count = 0;
    while (std::getline(rows, row) && std::getline(lines, line)) {
        const auto sample = nlohmann::json::parse(line);
        const std::size_t comma = row.find(',');
        ASSERT_EQ(sample["t"].get<double>(), std::stod(row.substr(0, comma)));
        ASSERT_EQ(sample["values"]["RPM"].get<double>(), std::stod(row.substr(comma + 1)));
        ++count;
    }
    EXPECT_EQ(count, 1912);
}

TEST_F(ExampleLogTest, FillsTheHistograms) {
    for (const char* id : {"HISTBLM", "HISTKNK"})
        EXPECT_TRUE(Has(RunInside({"histogram", "-d", definition, log, "--id", id}).out,
                        "; 1912 samples, 0 outside the grid\n"));
}

}  // namespace
}  // namespace corvex
