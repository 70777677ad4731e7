#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>

#include "definition/ADXObject.h"
#include "tests/apps/cli/ToolRunner.h"
#include "tests/checking/CheckTestHelper.h"

namespace corvex {
namespace {

std::size_t LineCount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ProgramTest, PrintsHashesOneALine) {
    const ToolResult result = RunTool({"hash", "RPM", "A"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "0xCD0CD1DB\n0x86F344BB\n");
    EXPECT_EQ(result.err, "");
}

TEST(ProgramTest, HashesAnIdAsItWouldBeStored) {
    const ToolResult result = RunTool({"hash", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOPQ"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out.substr(0, 10), result.out.substr(11, 10));
    EXPECT_EQ(LineCount(result.err), 1U);
}

TEST(ProgramTest, EvaluatesEquations) {
    EXPECT_EQ(RunTool({"eval", "-X+1", "X=3"}).out, "-2\n");
    EXPECT_EQ(RunTool({"eval", "--", "-X+1", "X=3"}).out, "-2\n");
    EXPECT_EQ(RunTool({"eval", "(X*0.75)-40", "X=100"}).out, "35\n");
    EXPECT_EQ(RunTool({"eval", "X", "X=0.1234567"}).out, "0.123457\n");
    EXPECT_EQ(RunTool({"eval", "X/3", "X=1"}).out, "0.33333333333333331\n");
}

TEST(ProgramTest, SaysWhyAnEquationDoesNotParse) {
    const ToolResult result = RunTool({"eval", "(1+2"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "corvex-cli: \"(1+2\" does not parse: its parentheses are not balanced\n");
}

TEST(ProgramTest, TellsWhatMakesAResultDoubtful) {
    const ToolResult result = RunTool({"eval", "X*X", "X=3"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "0\n");
    EXPECT_NE(result.err.find("more than once"), std::string::npos);
    EXPECT_NE(RunTool({"eval", "5/X"}).err.find("divides by zero"), std::string::npos);
    EXPECT_EQ(RunTool({"eval", "X", "Y=1"}).code, 2);
}

TEST(ProgramTest, EndsWithTwoOnWrongUsage) {
    EXPECT_EQ(RunTool({}).code, 2);
    EXPECT_EQ(RunTool({"nonsense"}).code, 2);
    EXPECT_EQ(RunTool({"check"}).code, 2);
    EXPECT_EQ(RunTool({"--version"}).code, 0);
    EXPECT_EQ(RunTool({"scan", "--help"}).code, 0);
}

TEST(ProgramTest, GivesTheReadersOwnTextAndItsPlace) {
    const TempFile file("<ADXFORMAT version=\"0.50\" />\n<ADXHEADER x></ADXHEADER>");
    for (const char* command : {"check", "list"}) {
        const ToolResult result = RunTool({command, file.Path()});
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "corvex-cli: " + file.Path() + ":2:13: Expecting '=' character after attribute name\n");
    }
    EXPECT_EQ(RunTool({"convert", file.Path(), file.Path() + ".out"}).err,
              "corvex-cli: " + file.Path() + ":2:13: Expecting '=' character after attribute name\n");
}

TEST(ProgramTest, SaysWhatIsWrongWithAFileThatIsNoDefinition) {
    const TempFile old("<ADXFORMAT version=\"0.4\"/>");
    EXPECT_EQ(RunTool({"check", old.Path()}).err, "corvex-cli: " + old.Path() + ":1: File version is out of date.\n");
    const TempFile other("<html></html>");
    EXPECT_EQ(RunTool({"check", other.Path()}).err,
              "corvex-cli: " + other.Path() + ": not a definition: no ADXFORMAT element with a version\n");
    const TempFile empty("");
    EXPECT_EQ(RunTool({"check", empty.Path()}).err,
              "corvex-cli: " + empty.Path() +
                  ":1:0: Unrecognized encoding (parser does not support UTF-8 language encodings)\n");
    EXPECT_EQ(RunTool({"check", "no/such/file.adx"}).err, "corvex-cli: no/such/file.adx: Error opening file\n");
    EXPECT_EQ(RunTool({"check", "no/such/file.adx"}).code, 1);
}

TEST(ProgramTest, ReportsWithSuccessUnlessStrict) {
    const TempFile file(DefinitionWith(ValueText("RPM", "X*X")));
    const ToolResult result = RunTool({"check", file.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find(file.Path() + ":5: error: value \"RPM title\" (RPM): equation \"X*X\" uses the letter X "
                                            "more than once, so each use of it reads 0 [letter-twice]\n"),
              std::string::npos)
        << result.out;
    EXPECT_NE(result.out.find("\n1 error, 0 warnings, 0 notes\n"), std::string::npos);
    const ToolResult strict = RunTool({"check", "--strict", file.Path()});
    EXPECT_EQ(strict.code, 1);
    EXPECT_EQ(LineCount(strict.err), 1U);
}

TEST(ProgramTest, ReportsAsJson) {
    const TempFile file(DefinitionWith(ValueText("RPM", "X*X")));
    const ToolResult result = RunTool({"check", "--json", file.Path()});
    const auto report = nlohmann::json::parse(result.out);
    EXPECT_EQ(report["counts"]["values"], 1);
    EXPECT_EQ(report["errors"], 1);
    EXPECT_EQ(report["findings"][0]["kind"], "letter-twice");
    EXPECT_EQ(report["findings"][0]["line"], 5);
    EXPECT_EQ(report["header"]["monitorcmd"], "MONITOR");
}

TEST(ProgramTest, FindsTheExamplesSound) {
    for (const char* name : {"harrier-8192.adx", "merlin-160.adx", "osprey-multi.adx"}) {
        const ToolResult result = RunTool({"check", "--strict", Example(name)});
        EXPECT_EQ(result.code, 0) << result.out;
    }
}

TEST(ProgramTest, ListsADefinition) {
    const TempFile file(DefinitionWith(ValueText("RPM", "X*25", "<units>rpm</units>")));
    const ToolResult text = RunTool({"list", file.Path()});
    EXPECT_EQ(text.code, 0);
    EXPECT_NE(
        text.out.find("Values (1)\n  Id   Title      Units  Equation  Place                     Range     Alarms\n"
                      "  RPM  RPM title  rpm    X*25      any command 0x00, 8 bits  0 to 255\n"),
        std::string::npos)
        << text.out;
    const auto json = nlohmann::json::parse(RunTool({"list", "--json", file.Path()}).out);
    EXPECT_EQ(json["values"][0]["equation"], "X*25");
    EXPECT_EQ(json["sendcommands"][0]["bytes"], "F4 57");
    EXPECT_EQ(json["macros"][0]["nodes"][0]["command"], "POLL");
}

TEST(ProgramTest, ListsTextsThatAreNoUtf8) {
    const TempFile file(DefinitionWith(ValueText("T", "X",
                                                 "<units>\xB0"
                                                 "C</units>")));
    const auto json = nlohmann::json::parse(RunTool({"list", "--json", file.Path()}).out);
    EXPECT_EQ(json["values"][0]["units"],
              "\xC2\xB0"
              "C");
}

TEST(ProgramTest, ConvertsIntoAFileThatLoadsTheSame) {
    const TempFile out("");
    EXPECT_EQ(RunTool({"convert", Example("harrier-8192.adx"), out.Path()}).code, 0);
    EXPECT_EQ(RunTool({"list", "--json", out.Path()}).out,
              RunTool({"list", "--json", Example("harrier-8192.adx")}).out);
}

TEST(ProgramTest, ConvertsAFileInItsPlaceWhenForced) {
    const TempFile file(DefinitionWith(ValueText("RPM", "X*25")));
    const std::string before = RunTool({"list", "--json", file.Path()}).out;
    const ToolResult refused = RunTool({"convert", file.Path(), file.Path()});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.err, "corvex-cli: " + file.Path() + ": is what is read; --force replaces it\n");
    EXPECT_EQ(FileText(file.Path()).find("Written "), std::string::npos);
    EXPECT_EQ(RunTool({"convert", file.Path(), file.Path(), "--force"}).code, 0);
    EXPECT_NE(FileText(file.Path()).find("Written "), std::string::npos);
    EXPECT_EQ(RunTool({"list", "--json", file.Path()}).out, before);
}

TEST(ProgramTest, LeavesTheOutputAloneWhenTheInputIsBad) {
    const TempFile bad("<");
    const TempFile out("precious");
    EXPECT_EQ(RunTool({"convert", bad.Path(), out.Path()}).code, 1);
    EXPECT_EQ(FileText(out.Path()), "precious");
}

TEST(ProgramTest, ConvertsOverNoLog) {
    const std::string log = FileText(Example("harrier-8192.xdl"));
    const TempFile out(log, ".xdl");
    EXPECT_EQ(RunTool({"convert", Example("harrier-8192.adx"), out.Path()}).code, 1);
    EXPECT_EQ(FileText(out.Path()), log);
}

TEST(ProgramTest, LeavesTheOutputAloneWhenItWouldNotLoadAgain) {
    const TempFile in("<ADXFORMAT version=\"0.50\" /><ADXHEADER><author>&lt;b</author></ADXHEADER>");
    const TempFile out("precious");
    const ToolResult result = RunTool({"convert", in.Path(), out.Path()});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.err.find(": is not written, since it would not load again: "), std::string::npos) << result.err;
    EXPECT_EQ(FileText(out.Path()), "precious");
}

TEST(ProgramTest, SaysThatAFileCannotBeWritten) {
    const ToolResult result = RunTool({"convert", Example("merlin-160.adx"), "no/such/folder/out.adx"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: no/such/folder/out.adx: cannot be written\n");
}

TEST(ProgramTest, TellsThatASaveLosesSomething) {
    const TempFile file(
        DefinitionWith("<ADXCLISTENCHATTER id=\"C\" title=\"C\"><bytestring size=\"A\">1 2 3 4 5 6 7 8 9 A "
                       "</bytestring></ADXCLISTENCHATTER>\n"));
    const TempFile out("");
    const ToolResult result = RunTool({"convert", file.Path(), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.err.find("1 thing did not survive the save"), std::string::npos) << result.err;
}

TEST(ProgramTest, SaysThatAPortIsNotThere) {
    const ToolResult result = RunTool({"scan", "--port", "NOPORT9", "--definition", Example("harrier-8192.adx")});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(LineCount(result.err), 1U) << result.err;
    EXPECT_EQ(result.err.rfind("corvex-cli: NOPORT9: ", 0), 0U) << result.err;
    EXPECT_EQ(result.out, "");
}

}  // namespace
}  // namespace corvex
