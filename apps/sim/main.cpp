#include <atomic>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "apps/sim/LineDriver.h"
#include "apps/sim/RecordedReplies.h"
#include "apps/sim/SimArguments.h"
#include "apps/sim/SimLine.h"
#include "definition/ADXDefinition.h"
#include "platform/ConsoleStop.h"
#include "platform/StandardStreams.h"

namespace corvex {

namespace {

int Fail(const std::string& why) {
    std::fprintf(stderr, "corvex-sim: %s\n", why.c_str());
    return 1;
}

int Simulate(const SimArguments& arguments) {
    ADXDefinition definition;
    std::string error(ADXDefinition::kErrorSize, '\0');
    if (definition.Load(arguments.definition.c_str(), error.data()) == 0) {
        return Fail(arguments.definition + ": " + error.c_str());
    }
    SimOptions options = arguments.options;
    if (!arguments.replay.empty() && !LoadRecording(arguments.replay, definition, options, error)) return Fail(error);
    std::atomic<bool> stop{false};
    const ConsoleStop console([&stop] { stop = true; });
    const std::unique_ptr<ISimLine> line = arguments.port.empty()
                                               ? OpenTerminalLine(arguments.link, error)
                                               : OpenPortLine(arguments.port, definition.baud, error);
    if (!line) return Fail(error);
    LineDriver driver(*line, definition, options);
    // Whoever started the program waits for this line before opening the port.
    std::printf("%s\n", line->Name().c_str());
    std::fflush(stdout);
    driver.Run(stop);

    SimStats stats = driver.Stats();
    if (!arguments.stats) stats.pacedReplies = 0;
    std::fprintf(stderr, "%s\n", (arguments.json ? DescribeAsJson(stats) : Describe(stats)).c_str());
    return 0;
}

}  // namespace

}  // namespace corvex

int main(int argc, char** argv) {
    corvex::HoldStandardStreams();
    try {
        corvex::SimArguments arguments;
        int exitCode = 0;
        if (!corvex::ParseArguments(argc, argv, arguments, exitCode)) return exitCode;
        return corvex::Simulate(arguments);
    } catch (const std::exception& error) {
        return corvex::Fail(error.what());
    }
}
