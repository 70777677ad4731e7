// corvex-sim as a program, repeating logs.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string>

#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

struct SimulatorRun {
    int status = -1;
    std::string text;  // of both outputs
};

SimulatorRun RunSimulator(const std::string& arguments) {
    const std::string line = std::string("\"") + CORVEX_SIM + "\" " + arguments + " 2>&1";
    SimulatorRun outcome;
    std::FILE* const pipe = popen(line.c_str(), "r");
    if (pipe == nullptr) return outcome;
    std::array<char, 512> piece{};
    while (std::fgets(piece.data(), static_cast<int>(piece.size()), pipe) != nullptr)
        outcome.text += piece.data();
    outcome.status = pclose(pipe);
    return outcome;
}

TEST(ReplayProgramTest, RepeatsTheExample) {
    const SimulatorRun good = RunSimulator(test::ExamplePath("harrier-8192.adx") + " --replay " +
                                           test::ExamplePath("harrier-8192.xdl") + " --seconds 0.01");
    EXPECT_EQ(good.status, 0) << good.text;
    const SimulatorRun other = RunSimulator(test::ExamplePath("osprey-multi.adx") + " --replay " +
                                            test::ExamplePath("harrier-8192.xdl") + " --seconds 0.01");
    EXPECT_EQ(other.status, 1 << 8);
    EXPECT_NE(other.text.find(": holds no records of the definition's commands\n"), std::string::npos) << other.text;
}

// What it prints would else go out on the line.
TEST(ReplayProgramTest, HoldsStreamsThatAreClosed) {
    const std::string link = testing::TempDir() + "corvex_sim_" + std::to_string(getpid());
    const SimulatorRun streams = RunSimulator(test::ExamplePath("harrier-8192.adx") + " --seconds 60 --link " + link +
                                              " <&- >&- 2>&- & pid=$!; until [ -e " + link +
                                              " ] || ! kill -0 $pid; do :; done; cd /proc/$pid/fd; readlink 0 1 2; "
                                              "kill $pid; wait $pid; true");
    EXPECT_EQ(streams.text, "/dev/null\n/dev/null\n/dev/null\n");
}

}  // namespace
}  // namespace corvex
