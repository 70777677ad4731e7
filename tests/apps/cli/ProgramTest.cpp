#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "apps/cli/Commands.h"
#include "definition/ADXObject.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

using test::Listed;

nlohmann::json JsonOf(const Words& args) {
    return nlohmann::json::parse(RunInside(args).out);
}

// Ends with 1, prints nothing and says this.
void ExpectFails(const Words& args, const std::string& err) {
    const ToolResult result = RunInside(args);
    EXPECT_EQ(result.code, 1) << testing::PrintToString(args);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "corvex-cli: " + err + "\n");
}

TEST(ProgramTest, EndsWithTheCodeAndTheTextsOfItsCommands) {
    const ToolResult good = RunTool({"eval", "--", "-X+1", "X=3"}), failed = RunTool({"eval", "(1+2"});
    EXPECT_EQ(Listed(good.code, good.out, good.err), "0 -2\n ");
    EXPECT_EQ(Listed(failed.code, failed.out, failed.err),
              "1  corvex-cli: \"(1+2\" does not parse: its parentheses are not balanced\n");
    EXPECT_EQ(RunTool({}).code, 2);
    EXPECT_EQ(RunTool({"--version"}).code, 0);
}

TEST(ProgramTest, HashesIdsAsTheyWouldBeStored) {
    EXPECT_EQ(RunInside({"hash", "RPM", "A"}).out, "0xCD0CD1DB\n0x86F344BB\n");
    const ToolResult longer = RunInside({"hash", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOPQ"});
    EXPECT_EQ(longer.code, 0);
    EXPECT_EQ(longer.out.substr(0, 10), longer.out.substr(11, 10));
    EXPECT_EQ(LinesOf(longer.err).size(), 1U);
}

TEST(ProgramTest, EvaluatesEquationsAndTellsWhatMakesAResultDoubtful) {
    const struct {
        Words args;
        const char *out, *err;
    } rows[] = {{{"X/3", "X=1"}, "0.33333333333333331\n", ""},
                {{"X*X", "X=3"}, "0\n", "more than once"},
                {{"5/X"}, "0\n", "divides by zero"}};
    for (const auto& row : rows) {
        Words args{"eval"};
        args.insert(args.end(), row.args.begin(), row.args.end());
        const ToolResult result = RunInside(args);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.out, row.out);
        EXPECT_TRUE(Has(result.err, row.err));
    }
    EXPECT_EQ(RunInside({"eval", "X", "Y=1"}).code, 2);
}

TEST(ProgramTest, SaysWhatIsWrongWithAFileThatIsNoDefinition) {
    const TempFile old("<ADXFORMAT version=\"0.4\"/>"), other("<html></html>"), empty("");
    const TempFile bad("<ADXFORMAT version=\"0.50\" />\n<ADXHEADER x></ADXHEADER>"), out("precious");
    const std::string text = bad.Path() + ":2:13: Expecting '=' character after attribute name";
    ExpectFails({"check", bad.Path()}, text);
    ExpectFails({"list", bad.Path()}, text);
    ExpectFails({"convert", bad.Path(), out.Path()}, text);
    EXPECT_EQ(ReadFile(out.Path()), "precious");
    ExpectFails({"check", old.Path()}, old.Path() + ":1: File version is out of date.");
    ExpectFails({"check", other.Path()}, other.Path() + ": not a definition: no ADXFORMAT element with a version");
    ExpectFails({"check", empty.Path()},
                empty.Path() + ":1:0: Unrecognized encoding (parser does not support UTF-8 language encodings)");
    ExpectFails({"check", Example("kestrel-legacy.ads")},
                Example("kestrel-legacy.ads") + ": a legacy definition; corvex-cli convert " +
                    Example("kestrel-legacy.ads") + " NEW.adx makes one that can be used");
    ExpectFails({"check", "no/such/file.adx"}, "no/such/file.adx: Error opening file");
}

TEST(ProgramTest, ChecksWithSuccessUnlessStrict) {
    const TempFile file(DefinitionWith(ValueText("RPM", "X*X")));
    const ToolResult result = RunInside({"check", file.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(Has(result.out, file.Path() +
                                    ":5: error: value \"RPM title\" (RPM): equation \"X*X\" uses the letter X more "
                                    "than once, so each use of it reads 0 [letter-twice]\n"));
    EXPECT_TRUE(Has(result.out, "\n1 error, 0 warnings, 0 notes\n"));
    const ToolResult strict = RunInside({"check", "--strict", file.Path()});
    EXPECT_EQ(strict.code, 1);
    EXPECT_EQ(LinesOf(strict.err).size(), 1U);
    const auto report = JsonOf({"check", "--json", file.Path()});
    const auto& finding = report["findings"][0];
    EXPECT_EQ(Listed(report["counts"]["values"], report["errors"], finding["kind"], finding["line"],
                     report["header"]["monitorcmd"]),
              "1 1 \"letter-twice\" 5 \"MONITOR\"");
    for (const char* name : kExamples) {
        const ToolResult example = RunInside({"check", "--strict", Example(name)});
        EXPECT_EQ(example.code, 0) << example.out;
    }
}

TEST(ProgramTest, ListsADefinition) {
    const TempFile file(DefinitionWith(ValueText("RPM", "X*25", "<units>\xB0/s</units>")));
    const ToolResult text = RunInside({"list", file.Path()});
    EXPECT_EQ(text.code, 0);
    EXPECT_TRUE(Has(text.out,
                    "Values (1)\n  Id   Title      Units  Equation  Place                     Range     Alarms\n"
                    "  RPM  RPM title  \xC2\xB0/s    X*25      any command 0x00, 8 bits  0 to 255\n"));
    const auto json = JsonOf({"list", "--json", file.Path()});
    const auto& value = json["values"][0];
    EXPECT_EQ(Listed(value["equation"], value["units"], json["sendcommands"][0]["bytes"],
                     json["macros"][0]["nodes"][0]["command"]),
              "\"X*25\" \"\xC2\xB0/s\" \"F4 57\" \"POLL\"");
}

TEST(ProgramTest, ConvertsIntoAFileThatLoadsTheSame) {
    const TempFile out(""), file(ReadFile(Example("harrier-8192.adx")));
    const auto before = JsonOf({"list", "--json", file.Path()});
    EXPECT_EQ(RunInside({"convert", file.Path(), out.Path()}).code, 0);
    EXPECT_EQ(JsonOf({"list", "--json", out.Path()}), before);
    ExpectFails({"convert", file.Path(), file.Path()}, file.Path() + ": is what is read; --force replaces it");
    EXPECT_EQ(ReadFile(file.Path()), ReadFile(Example("harrier-8192.adx")));
    EXPECT_EQ(RunInside({"convert", file.Path(), file.Path(), "--force"}).code, 0);
    EXPECT_NE(ReadFile(file.Path()), ReadFile(Example("harrier-8192.adx")));
    EXPECT_EQ(JsonOf({"list", "--json", file.Path()}), before);
    ExpectFails({"convert", file.Path(), "no/such/folder/out.adx"},
                "no/such/folder/out.adx: cannot be written: its folder is not there");
}

TEST(ProgramTest, LeavesTheOutputAloneWhenItWouldNotLoadAgain) {
    const TempFile in("<ADXFORMAT version=\"0.50\" /><ADXHEADER><author>&lt;b</author></ADXHEADER>"), out("precious");
    const ToolResult result = RunInside({"convert", in.Path(), out.Path()});
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(Has(result.err, ": is not written, since it would not load again: "));
    EXPECT_EQ(ReadFile(out.Path()), "precious");
}

TEST(ProgramTest, ConvertSaysWhatItDropsAndWritesNothingForNothing) {
    const TempFile out("precious"), hollow("<ADXFORMAT version=\"0.50\" />\n<!-- nothing -->");
    ExpectFails({"convert", hollow.Path(), out.Path()},
                hollow.Path() + ": there is no header and no object in it, so nothing is written");
    EXPECT_EQ(ReadFile(out.Path()), "precious");
    const TempFile in("<!-- Written 1 --><!-- mine --><!-- <!-- too -->" +
                      DefinitionWith("<ADXODD><bar /></ADXODD>" + ValueText("RPM", "X", "<foo>1</foo><foo>2</foo>")));
    const ToolResult result = RunInside({"convert", in.Path(), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "corvex-cli: " + in.Path() +
                              ": left out 2 comments and 4 elements that mean nothing: <ADXODD>, <bar>, <foo>\n");
    EXPECT_EQ(RunInside({"convert", out.Path(), out.Path(), "--force"}).err, "");
}

TEST(ProgramTest, TellsThatASaveLosesSomething) {
    const TempFile out(""), file(DefinitionWith("<ADXCLISTENCHATTER id=\"C\" title=\"C\"><bytestring size=\"A\">1 2 3 "
                                                "4 5 6 7 8 9 A </bytestring></ADXCLISTENCHATTER>\n"));
    const ToolResult result = RunInside({"convert", file.Path(), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(Has(result.err, "1 thing did not survive the save"));
}

TEST(ProgramTest, ListsPorts) {
    struct FakePorts : IPortList {
        std::vector<SerialPortEntry> Ports() override { return ports; }
        std::vector<SerialPortEntry> ports;
    } list;
    std::ostringstream none, err, text, json;
    EXPECT_EQ(RunPorts({false}, none, err, list), 0);
    EXPECT_EQ(none.str(), "");
    EXPECT_TRUE(Has(err.str(), "no serial port"));
    list.ports = {{"/dev/ttyS0", "", ""}, {"/dev/ttyUSB0", "Maker \xB5 Cable, 1234:abcd", "/dev/serial/by-id/x"}};
    RunPorts({false}, text, err, list);
    EXPECT_EQ(text.str(),
              "/dev/ttyS0    -\n/dev/ttyUSB0  Maker \xC2\xB5 Cable, 1234:abcd\n              /dev/serial/by-id/x\n");
    RunPorts({true}, json, err, list);
    EXPECT_EQ(nlohmann::json::parse(json.str())[1]["name"], "/dev/ttyUSB0");
    EXPECT_EQ(RunInside({"ports", "--json"}).code, 0);  // whatever this machine has
}

TEST(ProgramTest, SaysThatAPortIsNotThere) {
    const ToolResult result = RunInside({"scan", "--port", "NOPORT9", "--definition", Example("harrier-8192.adx")});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
    EXPECT_EQ(result.err.rfind("corvex-cli: NOPORT9: ", 0), 0U) << result.err;
    EXPECT_EQ(result.out, "");
}

}  // namespace
}  // namespace corvex
