#include "apps/cli/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <ostream>
#include <string_view>

#include "CorvexVersion.h"
#include "apps/cli/CommandNames.h"
#include "apps/cli/FileName.h"
#include "apps/cli/LogArguments.h"
#include "apps/cli/NumberRange.h"

namespace corvex {

namespace {

// An equation may begin with a minus sign, which would make it an option: whatever follows "eval" and is no request for
// help is marked as plain text.
void ProtectEquation(std::vector<std::string>& args) {
    if (args.size() < 2 || args[0] != "eval") return;
    const std::string& first = args[1];
    if (first != "--help" && first != "-h" && first != "--") args.insert(args.begin() + 1, "--");
}

// The parser has words of its own in front of which no argument is safe: of "[a,b]" it makes two, of "{}" none. Texts
// of any number are marked on their way through it; what looks like an option is told by its dash and stays.
constexpr char kTextMark = '\x01';

void ProtectTexts(std::vector<std::string>& args) {
    if (args.empty() || (args[0] != "hash" && args[0] != "eval")) return;
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (!args[i].starts_with('-')) args[i].insert(0, 1, kTextMark);
    }
}

// The same where files are named, any number of them: what is in brackets names the same file with its folder in front.
// A value of an option is never a list and stays.
void ProtectFiles(std::vector<std::string>& args) {
    if (args.empty() || (args[0] != "info" && args[0] != "decode" && args[0] != "repair")) return;
    constexpr std::string_view kFlags[] = {"--force", "--text", "--round", "--human", "--json"};
    for (std::size_t i = 1; i < args.size(); ++i) {
        const bool own = !args[i - 1].starts_with('-') || std::ranges::count(kFlags, args[i - 1]) != 0;
        if (own && args[i].starts_with('[') && args[i].ends_with(']')) args[i].insert(0, "./");
    }
}

std::string Unmarked(std::string text) {
    if (text.starts_with(kTextMark)) text.erase(0, 1);
    return text;
}

std::pair<char, double> ReadLetter(const std::string& text) {
    const auto letter = static_cast<unsigned char>(text.empty() ? '\0' : text[0] | 0x20);
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const char* begin = text.data() + std::min<std::size_t>(2, text.size());
    if (begin != end && *begin == '+') ++begin;
    const auto [rest, error] = std::from_chars(begin, end, number);
    if (letter < 'a' || letter > 'z' || text.size() < 3 || text[1] != '=' || error != std::errc() || rest != end)
        throw CLI::ValidationError(text, "a letter is given as LETTER=NUMBER, like X=3.5");
    return {text[0], number};
}

class ArgumentReader {
public:
    ArgumentReader() {
        app_.set_version_flag("--version", "corvex-cli " CORVEX_VERSION);
        // A path may begin with a slash on every system.
        app_.allow_windows_style_options(false);
        app_.require_subcommand(1);
        app_.footer("Exit codes: 0 success, 1 failure, 2 wrong usage. See corvex-cli COMMAND --help.");
        AddCheck();
        AddList();
        AddHash();
        AddEval();
        AddConvert();
        AddPorts();
        AddDoctor();
        AddScan();
        logs_.AddTo(app_);
    }

    CLI::App& App() { return app_; }

    // Empty when the first word is a command or an option.
    std::string StrangeCommand(const std::vector<std::string>& args) const {
        if (args.empty() || args[0].starts_with('-') || Has(args[0])) return {};
        std::string text = "no command " + args[0];
        const char* between = "; did you mean ";
        const std::vector<std::string> near = NearNames(args[0], Names());
        for (const std::string& name : near) {
            text += between + name;
            between = " or ";
        }
        return near.empty() ? text : text + '?';
    }

    // Where the help is for who wrote this.
    std::string HelpFor(const std::vector<std::string>& args) const {
        return " (see corvex-cli " + (!args.empty() && Has(args[0]) ? args[0] + ' ' : "") + "--help)";
    }

    Options Chosen() {
        const std::string name = app_.get_subcommands().front()->get_name();
        if (name == "check") return check_;
        if (name == "list") return list_;
        if (name == "hash") return ChosenHash();
        if (name == "convert") return convert_;
        if (name == "ports") return ports_;
        if (name == "doctor") return doctor_;
        if (name == "scan") return scan_;
        if (const auto log = logs_.Chosen(name)) return *log;
        return ChosenEval();
    }

private:
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const CLI::App* const command : app_.get_subcommands(nullptr))
            names.push_back(command->get_name());
        return names;
    }
    bool Has(const std::string& name) const { return std::ranges::count(Names(), name) != 0; }

    HashOptions ChosenHash() const {
        HashOptions chosen;
        std::ranges::transform(hash_.texts, std::back_inserter(chosen.texts), Unmarked);
        return chosen;
    }

    EvalOptions ChosenEval() const {
        EvalOptions chosen{Unmarked(eval_.equation), {}};
        for (const std::string& text : letters_)
            chosen.letters.push_back(ReadLetter(Unmarked(text)));
        return chosen;
    }

    void AddCheck() {
        CLI::App& command = *app_.add_subcommand("check", "Load a definition and report what its author must know");
        command.add_option("FILE", check_.file, "The definition (.adx)")->required();
        command.add_flag("--json", check_.json, "Report as JSON");
        command.add_flag("--strict", check_.strict, "Fail (exit 1) when there are errors or warnings");
        command.footer("A definition that loads is a success, whatever is found in it; see --strict.");
    }

    void AddList() {
        CLI::App& command = *app_.add_subcommand("list", "List commands, values, bitmasks, tables and views");
        command.add_option("FILE", list_.file, "The definition (.adx)")->required();
        command.add_flag("--json", list_.json, "List as JSON");
    }

    void AddHash() {
        CLI::App& command = *app_.add_subcommand("hash", "Print the hash of each id text");
        command.add_option("TEXT", hash_.texts, "An id; its first 15 characters count")->required();
    }

    void AddEval() {
        CLI::App& command = *app_.add_subcommand("eval", "Evaluate an equation");
        command.add_option("EQUATION", eval_.equation, "The equation; it may begin with a minus sign")->required();
        command.add_option("LETTER", letters_, "Numbers for its letters; a letter not given is 0")
            ->option_text("LETTER=NUMBER ...");
        command.footer("Letters carry six decimals. # is the power, ^ the exclusive or.");
    }

    void AddConvert() {
        CLI::App& command = *app_.add_subcommand("convert", "Load a definition and save it in the present form");
        command.add_option("IN", convert_.input, "The definition to read (.adx, or a legacy .ads)")->required();
        command.add_option("OUT", convert_.output, "The definition to write; replaced only when all is written")
            ->required();
        command.add_flag("--force", convert_.force, "Replace an OUT that is IN itself, or a log");
    }

    void AddPorts() {
        CLI::App& command = *app_.add_subcommand("ports", "List the serial ports and what hangs on them");
        command.add_flag("--json", ports_.json, "List as JSON");
        command.footer("No port is opened for it, so one that is in use is listed like the others.");
    }

    void AddDoctor() {
        CLI::App& command = *app_.add_subcommand("doctor", "Find out what is the matter with a line");
        command.add_option("--definition,-d", doctor_.definition, "The definition (.adx)")->required();
        command.add_option("--port,-p", doctor_.port, "The serial port, like COM1 or /dev/ttyUSB0")->required();
        command.add_option("--seconds", doctor_.seconds, "How long to look (default: 5)")
            ->check(NumberRange(0.1, kLongestSeconds));
        command.add_flag("--json", doctor_.json, "Report as JSON");
        command.footer(
            "Listens first, then asks for the first command that a scan polls. Exit codes: 0 good, 1 trouble, 2 wrong "
            "usage.");
    }

    void AddScan() {
        CLI::App& command = *app_.add_subcommand("scan", "Run the scan of a definition and show its values");
        command.add_option("--definition,-d", scan_.definition, "The definition (.adx)")->required();
        CLI::Option* port = command.add_option("--port,-p", scan_.port, "The serial port, like COM1 or /dev/ttyUSB0");
        command.add_option("--seconds", scan_.seconds, "Stop after so many seconds")
            ->check(NumberRange(0.001, kLongestSeconds));
        AddItems(command, scan_.items, "Only items whose title or id matches, like \"*temp*,RPM\"; may be given again");
        command.add_flag("--once", scan_.once, "Stop when every polled command has answered once");
        CLI::Option* plain = command.add_flag("--plain", scan_.plain, "One line for each reply, no live table");
        command.add_flag("--json", scan_.json, "One JSON object in a line for each reply")->excludes(plain);
        command.add_flag("--verbose,-v", scan_.verbose, "The text log on standard error");
        CLI::Option* record =
            command.add_option("--record", scan_.record, "Record every good reply into this log (.xdl)")
                ->check(FileName());
        command.add_flag("--force", scan_.force, "Replace a log that holds something")->needs(record);
        command.add_flag_callback(
            "--no-reconnect", [this] { scan_.reconnect = false; }, "End when the device vanishes; do not wait for it");
        CLI::Option* simulate =
            command.add_flag("--simulate", scan_.simulate, "A simulated engine in place of a port (Linux only)");
        simulate->excludes(port);
        AddFaults(command, *simulate);
        command.footer(
            "Without a terminal, lines as with --plain are written. Ctrl+C stops the scan and runs the disconnect "
            "command.");
        command.callback([this] {
            if (!scan_.simulate && scan_.port.empty()) throw CLI::RequiredError("--port or --simulate");
        });
    }

    void AddFaults(CLI::App& command, CLI::Option& simulate) {
        const std::string group = "The simulated engine";
        simulate.group(group);
        const auto with = [&](CLI::Option* option) { option->needs(&simulate)->group(group); };
        SimOptions& engine = scan_.engine;
        const auto probability = NumberRange(0.0, 1.0);
        with(command.add_option("--seed", engine.seed, "Makes a run repeatable"));
        with(command.add_option("--replay", scan_.replay, "Answer with the replies of this log (.xdl)")
                 ->check(FileName()));
        with(command.add_flag("--pace,!--no-pace", engine.pace, "Bytes come at the definition's baud (default)"));
        with(command.add_flag("--echo", engine.echo, "The line gives every byte back to its sender"));
        with(command.add_option("--drop", engine.drop, "Probability that a reply does not come")->check(probability));
        with(command.add_option("--noise", engine.noise, "Probability that one byte of a reply is changed or lost")
                 ->check(probability));
        with(command.add_option("--late", engine.late, "Milliseconds that each reply starts late")
                 ->check(NumberRange(0, 3600000)));
        with(command.add_flag("--chatter", engine.chatter, "Other modules talk on the line between polls"));
        with(command.add_flag("--silent", engine.silent, "The engine never says anything"));
        with(command.add_option("--unplug-after", engine.unplugAfter, "Seconds until the device vanishes")
                 ->check(NumberRange(0.0, kLongestSeconds)));
    }

    CLI::App app_{"Reads, checks and runs definitions of engine controllers.", "corvex-cli"};
    CheckOptions check_;
    ListOptions list_;
    HashOptions hash_;
    EvalOptions eval_;
    ConvertOptions convert_;
    DoctorOptions doctor_;
    PortsOptions ports_;
    ScanOptions scan_;
    std::vector<std::string> letters_;
    LogArguments logs_;
};

}  // namespace

std::variant<Options, ExitCode> ParseArguments(std::vector<std::string> args, std::ostream& out, std::ostream& err) {
    ArgumentReader reader;
    const std::string help = reader.HelpFor(args), strange = reader.StrangeCommand(args);
    if (!strange.empty()) {
        err << "corvex-cli: " << strange << help << '\n';
        return kExitUsage;
    }
    ProtectEquation(args);
    ProtectTexts(args);
    ProtectFiles(args);
    std::reverse(args.begin(), args.end());  // as the parser takes a list
    try {
        reader.App().parse(args);
        return reader.Chosen();
    } catch (const CLI::Success& request) {
        reader.App().exit(request, out, err);
        return kExitSuccess;
    } catch (const CLI::Error& error) {
        err << "corvex-cli: " << error.what() << help << '\n';
        return kExitUsage;
    }
}

}  // namespace corvex
