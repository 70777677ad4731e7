#include "apps/sim/SimArguments.h"

#include <CLI/CLI.hpp>

#include "CorvexVersion.h"

namespace corvex {

namespace {

constexpr double kLongestSeconds = 1e9;

void AddFaults(CLI::App& app, SimOptions& options) {
    const auto probability = CLI::Range(0.0, 1.0);
    app.add_option("--drop", options.drop, "Probability that a reply does not come")->check(probability);
    app.add_option("--noise", options.noise, "Probability that one byte of a reply is changed or lost")
        ->check(probability);
    app.add_option("--faulty-replies", options.faultyReplies, "Drop and noise end after so many replies");
    app.add_option("--late", options.late, "Milliseconds that each reply starts late")->check(CLI::Range(0, 3600000));
    app.add_flag("--chatter", options.chatter, "Other modules talk on the line between polls");
    app.add_flag("--silent", options.silent, "The engine never says anything");
    app.add_option("--unplug-after", options.unplugAfter, "Seconds until the device vanishes")
        ->check(CLI::Range(0.0, kLongestSeconds));
}

}  // namespace

bool ParseArguments(int argc, const char* const* argv, SimArguments& arguments, int& exitCode) {
    CLI::App app{"Simulates the engine controller of a definition on a serial line. Ends with Ctrl+C.", "corvex-sim"};
    app.set_version_flag("--version", "corvex-sim " CORVEX_VERSION);
    app.add_option("DEFINITION", arguments.definition, "Definition file (.adx)")->required();
    CLI::Option* port =
        app.add_option("--port", arguments.port, "Serial port to answer on; without it a pseudo-terminal is made");
    app.add_option("--link", arguments.link, "Symbolic link to the pseudo-terminal, removed at the end")
        ->excludes(port);
    app.add_option("--seed", arguments.options.seed, "Makes a run repeatable")->capture_default_str();
    app.add_flag_callback(
        "--sweep", [&arguments] { arguments.options.motion = Motion::kSweep; },
        "Every value goes over its whole range, every flag is set and cleared, instead of a drive");
    app.add_option("--replay", arguments.replay,
                   "Answer with the replies of this log (.xdl), which begins anew at its end; what it has none of is "
                   "simulated");
    app.add_flag("--pace", arguments.options.pace, "Bytes take their time at the definition's baud");
    app.add_flag("--echo", arguments.options.echo,
                 "The line gives every byte back to its sender; a definition that counts on it has it anyway");
    app.add_option("--seconds", arguments.options.seconds, "Ends by itself after this time")
        ->check(CLI::Range(0.0, kLongestSeconds));
    AddFaults(app, arguments.options);
    app.add_flag("--stats", arguments.stats, "Adds pacing figures to the counts printed at the end");
    app.add_flag("--json", arguments.json, "Prints the counts as JSON");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        exitCode = app.exit(error) == 0 ? 0 : 2;
        return false;
    }
    return true;
}

}  // namespace corvex
