// A scan of the tool whose simulated adapter is unplugged, and plugged in again or not.
#include <gtest/gtest.h>

#include <filesystem>
#include <future>
#include <nlohmann/json.hpp>

#include "apps/sim/SimulatorSession.h"
#include "definition/ADXDefinition.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/Eventually.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

class OutageProgramTest : public ::testing::Test {
protected:
    OutageProgramTest() {
        char error[ADXDefinition::kErrorSize] = {};
        EXPECT_NE(definition_.Load(Example("harrier-8192.adx").c_str(), error), 0) << error;
        PlugIn();
    }
    void PlugIn() {
        std::string error;
        SimOptions paced;
        paced.pace = true;
        engine_.Start(definition_, paced, OpenTerminalLine(link, error));
    }
    // Scans and records, and pulls the plug once something is in the log.
    std::future<ToolResult> ScanUntilUnplugged(Words more, const std::string& before = "") {
        std::filesystem::remove(log);
        more.insert(more.begin(), {"scan", "-p", link, "-d", Example("harrier-8192.adx"), "--record", log});
        auto scan = std::async(std::launch::async, [more, before] { return RunTool(more, before); });
        EXPECT_TRUE(test::Eventually([this] { return Records() > 5; }));
        engine_.Stop();
        return scan;
    }
    int Records() const {
        const ToolResult info = RunInside({"info", "--json", log});
        return info.code == 0 ? nlohmann::json::parse(info.out)["records"].get<int>() : 0;
    }
    std::string Line(const std::string& text) const { return "corvex-cli: " + link + ": " + text + '\n'; }

    const test::TestFolder folder;
    const std::string link = folder.Name("line"), log = folder.Name("drive.xdl");

private:
    ADXDefinition definition_;
    SimulatorSession engine_;
};

TEST_F(OutageProgramTest, AScanGoesOnWhenTheDeviceIsBack) {
    auto scan = ScanUntilUnplugged({"--seconds", "6", "--json"});
    const int before = Records();
    PlugIn();
    const ToolResult result = scan.get();
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err.find(Line("port has vanished; waiting for it to come back") + Line("port is back")), 0U);
    const auto summary = nlohmann::json::parse(LinesOf(result.out).back())["summary"];
    EXPECT_EQ(summary["outages"], 1);
    EXPECT_EQ(summary["errors"], 1);
    EXPECT_EQ(summary["replies"], Records());
    EXPECT_GT(Records(), before + 5);
}

// Its time counts on meanwhile, and Ctrl+C ends the wait.
TEST_F(OutageProgramTest, AScanThatEndsBeforeTheDeviceIsBackHasLostIt) {
    for (const bool byTime : {true, false}) {
        auto scan = byTime ? ScanUntilUnplugged({"--plain", "--seconds", "4"})
                           : ScanUntilUnplugged({"--plain"}, "timeout --foreground --preserve-status -s INT 4 ");
        const ToolResult result = scan.get();
        EXPECT_EQ(result.code, 1);
        EXPECT_TRUE(Has(result.err, Line("port has vanished and did not come back")));
        EXPECT_TRUE(Has(LinesOf(result.out)[LinesOf(result.out).size() - 2], "; 1 outage"));
        PlugIn();
    }
}

TEST_F(OutageProgramTest, AScriptNeedNotWaitForIt) {
    const ToolResult result = ScanUntilUnplugged({"--plain", "--no-reconnect"}).get();
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, Line("port has vanished"));
}

}  // namespace
}  // namespace corvex
