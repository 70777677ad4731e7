#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "apps/cli/Arguments.h"

namespace corvex {
namespace {

using Parsed = std::variant<Options, ExitCode>;

struct Outcome {
    Parsed parsed;
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
    Parsed parsed = ParseArguments(std::move(args), out, err);
    return {std::move(parsed), out.str(), err.str()};
}

TEST(ArgumentsTest, TakesAnEquationThatBeginsWithAMinus) {
    for (const auto& args : {std::vector<std::string>{"eval", "-X+1", "X=3"}, {"eval", "--", "-X+1", "X=3"}}) {
        const Outcome outcome = Parse(args);
        const auto* eval = outcome.As<EvalOptions>();
        ASSERT_NE(eval, nullptr) << outcome.err;
        EXPECT_EQ(eval->equation, "-X+1");
        ASSERT_EQ(eval->letters.size(), 1U);
        EXPECT_EQ(eval->letters[0], (std::pair<char, double>{'X', 3.0}));
    }
}

TEST(ArgumentsTest, TakesNumbersInEveryUsualForm) {
    const Outcome outcome = Parse({"eval", "X+Y+z+q", "X=-3.5", "Y=1e3", "z=+2", "q=.5"});
    const auto* eval = outcome.As<EvalOptions>();
    ASSERT_NE(eval, nullptr) << outcome.err;
    const std::vector<std::pair<char, double>> expected{{'X', -3.5}, {'Y', 1000.0}, {'z', 2.0}, {'q', 0.5}};
    EXPECT_EQ(eval->letters, expected);
}

TEST(ArgumentsTest, RefusesLettersThatAreNone) {
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
    EXPECT_EQ(Parse({"convert", "[a,b]", "{}"}).As<ConvertOptions>()->output, "{}");
    EXPECT_EQ(Parse({"decode", "-d", "d", "l", "--items", "[a,b]"}).As<DecodeOptions>()->items, "[a,b]");
    EXPECT_EQ(Parse({"histogram", "-d", "d", "l", "--view", "[last,count]"}).Code(), kExitUsage);
    EXPECT_EQ(Parse({"eval", "X", "[X=1,Y=2]"}).Code(), kExitUsage);
    EXPECT_EQ(Parse({"hash", "--", "-a"}).As<HashOptions>()->texts, std::vector<std::string>{"-a"});
}

TEST(ArgumentsTest, CallsWrongUsageByItsCode) {
    for (const auto& args : std::vector<std::vector<std::string>>{{},
                                                                  {"nothing"},
                                                                  {"check"},
                                                                  {"check", "a", "--what"},
                                                                  {"convert", "a"},
                                                                  {"hash"},
                                                                  {"scan", "--port", "COM1"},
                                                                  {"scan", "--definition", "a"},
                                                                  {"scan", "-d", "a", "-p", "b", "--simulate"},
                                                                  {"scan", "-d", "a", "-p", "b", "--plain", "--json"},
                                                                  {"scan", "-d", "a", "-p", "b", "--seconds", "0"},
                                                                  {"scan", "-d", "a", "-p", "b", "--silent"},
                                                                  {"scan", "-d", "a", "-p", "b", "--record", ""},
                                                                  {"scan", "-d", "a", "-p", "b", "--record="},
                                                                  {"scan", "-d", "a", "--simulate", "--replay", ""},
                                                                  {"decode", "-d", "a", "b", "-o", ""}}) {
        const Outcome outcome = Parse(args);
        EXPECT_EQ(outcome.Code(), kExitUsage) << testing::PrintToString(args);
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    }
}

TEST(ArgumentsTest, HelpsWithEachCommand) {
    for (const char* command :
         {"check", "list", "hash", "eval", "convert", "scan", "info", "decode", "play", "histogram", "repair"}) {
        const Outcome outcome = Parse({command, "--help"});
        EXPECT_EQ(outcome.Code(), kExitSuccess);
        EXPECT_NE(outcome.out.find(std::string("corvex-cli ") + command), std::string::npos) << outcome.out;
        EXPECT_EQ(outcome.err, "");
    }
    EXPECT_NE(Parse({"--help"}).out.find("scan"), std::string::npos);
}

TEST(ArgumentsTest, TellsItsVersion) {
    const Outcome outcome = Parse({"--version"});
    EXPECT_EQ(outcome.Code(), kExitSuccess);
    EXPECT_EQ(outcome.out.substr(0, 11), "corvex-cli ");
}

TEST(ArgumentsTest, PacesTheSimulatedEngineUnlessToldOtherwise) {
    EXPECT_TRUE(Parse({"scan", "-d", "a", "--simulate"}).As<ScanOptions>()->engine.pace);
    EXPECT_FALSE(Parse({"scan", "-d", "a", "--simulate", "--no-pace"}).As<ScanOptions>()->engine.pace);
    EXPECT_EQ(Parse({"scan", "-d", "a", "--simulate", "--seed", "7"}).As<ScanOptions>()->engine.seed, 7U);
}

}  // namespace
}  // namespace corvex
