#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

#include "apps/cli/Arguments.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

using test::Listed;
using Letters = std::vector<std::pair<char, double>>;

struct Outcome {
    std::variant<Options, ExitCode> parsed;
    std::string out, err;
    template <class T>
    const T* As() const {
        const Options* options = std::get_if<Options>(&parsed);
        return options == nullptr ? nullptr : std::get_if<T>(options);
    }
    int Code() const {
        const ExitCode* code = std::get_if<ExitCode>(&parsed);
        return code == nullptr ? -1 : *code;
    }
};

Outcome Parse(std::vector<std::string> args) {
    std::ostringstream out, err;
    auto parsed = ParseArguments(std::move(args), out, err);
    return {std::move(parsed), out.str(), err.str()};
}

// A command line that is written with blanks between its words.
std::vector<std::string> Split(const std::string& line) {
    std::istringstream words(line);
    return {std::istream_iterator<std::string>(words), {}};
}

// The options of a command line that is in order.
template <class T>
T OptionsFrom(const std::string& line) {
    const Outcome outcome = Parse(Split(line));
    const T* const options = outcome.As<T>();
    EXPECT_NE(options, nullptr) << outcome.err;
    return options == nullptr ? T() : *options;
}

TEST(ArgumentsTest, TakesEquationsAndNumbersInEveryUsualForm) {
    for (const char* line : {"eval -X+1 X=3", "eval -- -X+1 X=3"}) {
        const auto eval = OptionsFrom<EvalOptions>(line);
        EXPECT_EQ(eval.equation, "-X+1");
        EXPECT_EQ(eval.letters, (Letters{{'X', 3.0}}));
    }
    EXPECT_EQ(OptionsFrom<EvalOptions>("eval X+Y+z+q X=-3.5 Y=1e3 z=+2 q=.5").letters,
              (Letters{{'X', -3.5}, {'Y', 1000.0}, {'z', 2.0}, {'q', 0.5}}));
    for (const char* letter : {"X", "X=", "XY=1", "1=1", "X=1x", "=1", "X=++1"}) {
        const Outcome outcome = Parse({"eval", "X", letter});
        EXPECT_EQ(outcome.Code(), kExitUsage) << letter;
        EXPECT_NE(outcome.err, "") << letter;
    }
}

// Nothing is a list, a mark of a list's end or the name of a command where a text is asked for.
TEST(ArgumentsTest, TakesEveryTextAsItStands) {
    const std::vector<std::string> texts{"[a,b]", "[]", "{}", "", "%%", "check", "\x01[x]"};
    std::vector<std::string> args{"hash"};
    args.insert(args.end(), texts.begin(), texts.end());
    const Outcome hash = Parse(args);
    ASSERT_NE(hash.As<HashOptions>(), nullptr) << hash.err;
    EXPECT_EQ(hash.As<HashOptions>()->texts, texts);
    for (const std::string& text : texts) {
        const Outcome one = Parse({"hash", text});
        ASSERT_NE(one.As<HashOptions>(), nullptr) << one.err;
        EXPECT_EQ(one.As<HashOptions>()->texts, std::vector<std::string>{text});
        EXPECT_EQ(Parse({"eval", text}).As<EvalOptions>()->equation, text);
        EXPECT_EQ(Parse({"check", text}).As<CheckOptions>()->file, text);
        EXPECT_EQ(Parse({"info", "-d", text, "--human", text}).As<InfoOptions>()->definition, text);
    }
    EXPECT_EQ(OptionsFrom<ConvertOptions>("convert [a,b] {}").output, "{}");
    EXPECT_EQ(OptionsFrom<DecodeOptions>("decode -d d l --items [a,b]").items, "[a,b]");
    EXPECT_EQ(OptionsFrom<HashOptions>("hash -- -a").texts, std::vector<std::string>{"-a"});
}

TEST(ArgumentsTest, CallsWrongUsageByItsCode) {
    std::vector<std::vector<std::string>> lines{{},
                                                {"scan", "-d", "a", "-p", "b", "--record", ""},
                                                {"scan", "-d", "a", "--simulate", "--replay", ""},
                                                {"decode", "-d", "a", "b", "-o", ""}};
    std::istringstream wrong(
        "nothing;check;check a --what;convert a;hash;eval X [X=1,Y=2];info;info a --json --human;repair a;"
        "scan --port COM1;scan --definition a;scan -d a -p b --simulate;scan -d a -p b --plain --json;"
        "scan -d a -p b --seconds 0;scan -d a -p b --silent;scan -d a -p b --force;scan -d a -p b --record=;"
        "decode a;decode -d b;decode -d b a --from x;decode -d b a --from -1;decode -d b a --from 2 --to 1;"
        "play -d b a --plain --json;play -d b a --speed -1;histogram -d b a --view most;"
        "histogram -d b a --view [last,count];decode -d b a --from nan;decode -d b a --to -nan;play -d b a --speed nan;"
        "scan -d a -p b --seconds nan;scan -d a --simulate --drop nan;scan -d a --simulate --late 0.5;"
        "decode -d b a --time noon;decode -d b a --text --round;repair a b c");
    for (std::string line; std::getline(wrong, line, ';');)
        lines.push_back(Split(line));
    EXPECT_EQ(lines.size(), 39U);
    for (const auto& args : lines) {
        const Outcome outcome = Parse(args);
        EXPECT_EQ(outcome.Code(), kExitUsage) << testing::PrintToString(args);
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    }
}

TEST(ArgumentsTest, SaysWhatWasMeantAndWhereTheHelpIs) {
    const std::pair<const char*, const char*> rows[] = {
        {"foo", "no command foo (see corvex-cli --help)"},
        {"chekc a", "no command chekc; did you mean check? (see corvex-cli --help)"},
        {"histo", "no command histo; did you mean histogram? (see corvex-cli --help)"},
        {"paly", "no command paly; did you mean play? (see corvex-cli --help)"},
        {"decode", "--definition is required (see corvex-cli decode --help)"},
        {"play -d b a --speed nan",
         "--speed: a number from 0 to 1000000000 is asked for, not nan (see corvex-cli play --help)"}};
    for (const auto& [line, text] : rows)
        EXPECT_EQ(Parse(Split(line)).err, std::string("corvex-cli: ") + text + '\n');
}

TEST(ArgumentsTest, HelpsWithEachCommandAndTellsItsVersion) {
    for (const char* command : {"check", "list", "hash", "eval", "convert", "doctor", "ports", "scan", "info", "decode",
                                "play", "histogram", "repair"}) {
        const Outcome outcome = Parse({command, "--help"});
        EXPECT_EQ(outcome.Code(), kExitSuccess);
        EXPECT_NE(outcome.out.find(std::string("corvex-cli ") + command), std::string::npos) << outcome.out;
        EXPECT_EQ(outcome.err, "");
    }
    EXPECT_NE(Parse({"--help"}).out.find("scan"), std::string::npos);
    const Outcome version = Parse({"--version"});
    EXPECT_EQ(version.Code(), kExitSuccess);
    EXPECT_EQ(version.out.substr(0, 11), "corvex-cli ");
}

TEST(ArgumentsTest, ReadsScanAndRepair) {
    EXPECT_TRUE(OptionsFrom<ScanOptions>("scan -d a --simulate").engine.pace);
    const auto unpaced = OptionsFrom<ScanOptions>("scan -d a --simulate --no-pace --seed 7");
    EXPECT_EQ(Listed(unpaced.engine.pace, unpaced.engine.seed), "0 7");
    const auto scan = OptionsFrom<ScanOptions>("scan -d b.adx -p COM1 --record c.xdl --force");
    EXPECT_EQ(Listed(scan.record, scan.force), "c.xdl 1");
    const auto repair = OptionsFrom<RepairOptions>("repair a.xdl b.xdl --force");
    EXPECT_EQ(Listed(repair.inputs[0], repair.output, repair.force), "a.xdl b.xdl 1");
}

TEST(ArgumentsTest, ReadsInfo) {
    const auto plain = OptionsFrom<InfoOptions>("info a.xdl");
    EXPECT_EQ(Listed(plain.logs[0], plain.human, plain.definition), "a.xdl 0 ");
    const auto human = OptionsFrom<InfoOptions>("info a.xdl --human -d b.adx");
    EXPECT_EQ(Listed(human.logs[0], human.human, human.definition), "a.xdl 1 b.adx");
}

TEST(ArgumentsTest, ReadsDecode) {
    const auto plain = OptionsFrom<DecodeOptions>("decode -d b.adx a.xdl");
    EXPECT_EQ(Listed(plain.logs[0], plain.definition, plain.output, plain.from, plain.to), "a.xdl b.adx - 0 inf");
    const auto full =
        OptionsFrom<DecodeOptions>("decode -d b.adx a.xdl -o c.csv --text --items *rpm* --from 1.5 --to 2");
    const auto many = OptionsFrom<DecodeOptions>("decode a [b] -d d --items A,B --items C --time zero --round c");
    EXPECT_EQ(many.logs, (std::vector<std::string>{"a", "./[b]", "c"}));
    EXPECT_EQ(Listed(many.items, many.round, many.time == LogTimes::kZero), "A,B\nC 1 1");
    EXPECT_EQ(OptionsFrom<RepairOptions>("repair a b c --out-dir d").inputs.size(), 3U);
    EXPECT_EQ(Listed(full.output, full.text, full.items, full.from, full.to), "c.csv 1 *rpm* 1.5 2");
}

TEST(ArgumentsTest, ReadsPlayAndHistogram) {
    EXPECT_EQ(OptionsFrom<PlayOptions>("play -d b.adx a.xdl").speed, 1.0);
    const auto play = OptionsFrom<PlayOptions>("play -d b.adx a.xdl --speed 4 --from 9 --json -v");
    EXPECT_EQ(Listed(play.speed, play.from, play.json, play.verbose), "4 9 1 1");
    const auto histogram =
        OptionsFrom<HistogramOptions>("histogram -d b.adx --id H --view count --view average-total a.xdl --csv");
    EXPECT_EQ(Listed(histogram.log, histogram.id, histogram.csv), "a.xdl H 1");
    EXPECT_EQ(histogram.views, (std::vector<std::string>{"count", "average-total"}));
}

}  // namespace
}  // namespace corvex
