#include "apps/cli/LogArguments.h"

#include <CLI/CLI.hpp>
#include <iterator>
#include <map>

#include "apps/cli/FileName.h"
#include "apps/cli/NumberRange.h"

namespace corvex {

namespace {

// As a log's times, which end at 2^32 milliseconds, and beyond.
CLI::Validator Seconds() {
    return NumberRange(0.0, kLongestSeconds);
}

void AddDefinition(CLI::App& command, std::string& definition) {
    command.add_option("--definition,-d", definition, "The definition (.adx) that the log was recorded with")
        ->required();
}

void AddLog(CLI::App& command, std::string& log) {
    command.add_option("LOG", log, "The log (.xdl); never written to")->required();
}

// Taken from the option itself: a target would get nothing of a name like {}.
CLI::Option* AddLogs(CLI::App& command, std::vector<std::string>& logs, const std::string& text) {
    CLI::Option* const option = command.add_option("LOG", text)->expected(1, -1)->allow_extra_args()->required();
    command.parse_complete_callback([option, &logs] { logs = option->results(); });
    return option;
}

const std::map<std::string, LogTimes>& NamedTimes() {
    static const std::map<std::string, LogTimes> kNames{{"absolute", LogTimes::kAbsolute}, {"zero", LogTimes::kZero}};
    return kNames;
}

constexpr const char* kItemsText = "Only items whose title or id matches, like \"*temp*,RPM\"; may be given again";

}  // namespace

void AddItems(CLI::App& command, std::string& items, const char* what) {
    command.add_option("--items", items, what)->multi_option_policy(CLI::MultiOptionPolicy::Join);
}

void LogArguments::AddTo(CLI::App& app) {
    AddInfo(app);
    AddDecode(app);
    AddPlay(app);
    AddHistogram(app);
    AddRepair(app);
}

std::optional<Options> LogArguments::Chosen(const std::string& name) const {
    if (name == "info") return info_;
    if (name == "decode") return decode_;
    if (name == "play") return play_;
    if (name == "histogram") return histogram_;
    if (name == "repair") return repair_;
    return std::nullopt;
}

void LogArguments::AddInfo(CLI::App& app) {
    CLI::App& command = *app.add_subcommand("info", "Tell what a log holds");
    AddLogs(command, info_.logs, "The logs (.xdl); never written to");
    CLI::Option* human =
        command.add_flag("--human", info_.human, "Duration, rates and gaps in words (default on a terminal)");
    command.add_flag("--json", info_.json, "As JSON (default elsewhere)")->excludes(human);
    command.add_option("--definition,-d", info_.definition, "The definition (.adx) that names the commands");
}

void LogArguments::AddDecode(CLI::App& app) {
    CLI::App& command = *app.add_subcommand("decode", "Write a log's values as CSV, one row for each record");
    AddDefinition(command, decode_.definition);
    AddLogs(command, decode_.logs, "The logs (.xdl); never written to");
    command.add_option("--output,-o", decode_.output, "The file to write; - is standard output (default)")
        ->check(FileName());
    CLI::Option* const database = command
                                      .add_option_function<std::string>(
                                          "--sqlite",
                                          [this](const std::string& name) {
                                              decode_.output = name;
                                              decode_.database = true;
                                          },
                                          "Write a SQLite database in place of CSV: a table for each command")
                                      ->check(FileName())
                                      ->excludes("--output");
    command.add_flag("--force", decode_.force, "Replace an output that is a log, or one of the files read");
    CLI::Option* text = command.add_flag("--text", decode_.text, "Values and bits as the program shows them");
    command.add_flag("--round", decode_.round, "Numbers with as many digits as the program shows")->excludes(text);
    command
        .add_option_function<std::string>(
            "--time", [this](const std::string& name) { decode_.time = NamedTimes().at(name); },
            "absolute: date and time of day; zero: seconds since the first row")
        ->check(CLI::IsMember(NamedTimes()));
    for (const char* form : {"--text", "--round", "--time"})
        database->excludes(form);
    AddItems(command, decode_.items, kItemsText);
    command.add_option("--from", decode_.from, "Only records from this second of the log on")->check(Seconds());
    command.add_option("--to", decode_.to, "Only records up to this second of the log")->check(Seconds());
    command.footer(
        "A pattern counts for the whole title or id, in either case of letters: * stands for any characters, ? for "
        "one.");
    command.callback([this] {
        if (decode_.to < decode_.from) throw CLI::ValidationError("--to", "ends before --from");
    });
}

void LogArguments::AddPlay(CLI::App& app) {
    CLI::App& command = *app.add_subcommand("play", "Play a log and show its values as a scan does");
    AddDefinition(command, play_.definition);
    AddLog(command, play_.log);
    command.add_option("--speed", play_.speed, "Factor on recorded time; 0 plays as fast as it goes")
        ->check(NumberRange(0.0, kLongestSeconds));
    AddItems(command, play_.items, kItemsText);
    command.add_option("--from", play_.from, "Start at this second of the log")->check(Seconds());
    CLI::Option* plain = command.add_flag("--plain", play_.plain, "One line for each reply, no live table");
    command.add_flag("--json", play_.json, "One JSON object in a line for each reply")->excludes(plain);
    command.add_flag("--verbose,-v", play_.verbose, "The text log on standard error");
    command.footer("Without a terminal, lines as with --plain are written. Ctrl+C ends the playback.");
}

void LogArguments::AddHistogram(CLI::App& app) {
    CLI::App& command = *app.add_subcommand("histogram", "Fill a definition's histograms from a log");
    AddDefinition(command, histogram_.definition);
    AddLog(command, histogram_.log);
    command.add_option("--id", histogram_.id, "Only the histogram of this id");
    AddItems(command, histogram_.items, "Only histograms whose title or id matches, like \"spark*,FUEL\"");
    const std::vector<std::string> views(std::begin(kHistogramViews), std::end(kHistogramViews));
    // One word each time, or the log's name behind it would be taken for a view.
    command.add_option("--view", histogram_.views, "What each cell shows; may be given more than once")
        ->allow_extra_args(false)
        ->check(CLI::IsMember(views));
    command.add_flag("--csv", histogram_.csv, "As CSV, not as a table");
    command.footer("As CSV, several histograms or views are told apart by a row in front of each that names it.");
}

void LogArguments::AddRepair(CLI::App& app) {
    CLI::App& command = *app.add_subcommand("repair", "Copy every whole record of a damaged log into a finished one");
    AddLogs(command, repair_.inputs,
            "The log (.xdl), never written to, and the log to write; with --out-dir all are read")
        ->option_text("LOG OUT | LOG ... --out-dir DIR");
    command.add_option("--out-dir", repair_.folder, "Write each log's finished one here, under its own name")
        ->check(FileName());
    command.add_flag("--force", repair_.force, "Replace an OUT that holds something");
    command.footer("What is written takes its place only when it is whole.");
    command.callback([this] {
        if (!repair_.folder.empty()) return;
        if (repair_.inputs.size() != 2)
            throw CLI::ValidationError("repair", "a log and the log to write are asked for, or --out-dir DIR");
        repair_.output = repair_.inputs.back();
        repair_.inputs.pop_back();
    });
}

}  // namespace corvex
