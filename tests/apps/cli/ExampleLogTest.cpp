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

TEST_F(ExampleLogTest, IsAFinishedLogOfAboutNinetySeconds) {
    const auto info = nlohmann::json::parse(RunInside({"info", log}).out);
    EXPECT_EQ(info["records"], 1079);
    EXPECT_EQ(info["sampleCount"], 1079);
    EXPECT_EQ(info["endMark"], std::filesystem::file_size(log) + 1);
    EXPECT_EQ(info["result"], 7);
    EXPECT_LT(std::filesystem::file_size(log), 100000U);
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
    EXPECT_EQ(count, 1079);
}

TEST_F(ExampleLogTest, FillsTheHistograms) {
    for (const char* id : {"HISTBLM", "HISTKNK"}) {
        const ToolResult result =
            RunInside({"histogram", "-d", definition, log, "--csv", "--id", id, "--view", "count-total"});
        EXPECT_EQ(result.code, 0) << result.err;
        std::istringstream rows(result.out);
        std::string row;
        std::getline(rows, row);
        unsigned long samples = 0;
        int cells = 0;
        while (std::getline(rows, row)) {
            std::istringstream fields(row);
            std::string field;
            std::getline(fields, field, ',');
            while (std::getline(fields, field, ',')) {
                if (!field.empty()) ++cells;
                samples += field.empty() ? 0 : std::stoul(field);
            }
        }
        EXPECT_EQ(samples, 1079U);
        EXPECT_GT(cells, 10);
    }
}

}  // namespace
}  // namespace corvex
