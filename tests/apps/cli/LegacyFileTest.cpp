#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "apps/cli/LegacyFile.h"
#include "tests/apps/cli/ToolRunner.h"
#include "tests/checking/CheckTestHelper.h"

namespace corvex {
namespace {

const std::string kHeader = "{=1.2;=V;=T;=A;=E;=Y;=I;=M;=C;=8192;=0;=0;=0;}\n";
const std::string kBit = "{=2;=;=0;=1;=7;=1;=1;=3;=Lamp;=0;=0;=On;=Off;}\n";

std::string NotesOf(const std::string& text) {
    AdsReader reader;
    reader.ReadMemory(text.data(), text.size());
    return ImportNotes(reader);
}

TEST(LegacyFile, IsKnownByItsExtensionInLettersOfEitherCase) {
    EXPECT_TRUE(IsLegacyFile("old.ads"));
    EXPECT_TRUE(IsLegacyFile("folder/OLD.ADS"));
    EXPECT_TRUE(IsLegacyFile(".aDs"));
    EXPECT_FALSE(IsLegacyFile("old.adx"));
    EXPECT_FALSE(IsLegacyFile("old.ads.adx"));
    EXPECT_FALSE(IsLegacyFile("ads"));
    EXPECT_FALSE(IsLegacyFile(""));
}

TEST(LegacyFile, HasNothingToSayOfAFileThatComesAlongWhole) {
    EXPECT_EQ(NotesOf(kHeader + kBit), "");
}

TEST(LegacyFile, SaysWhatWasLeftOut) {
    EXPECT_EQ(NotesOf(kHeader + "{=6;=;=0;=1;=8;}"), "left out 1 dashboard");
    EXPECT_EQ(NotesOf(kHeader + "{=3;=;=0;=1;=8;}"), "left out 1 item of types without data");
    EXPECT_EQ(NotesOf(kHeader + kBit + kBit), "gave a new number to 1 item whose number was taken");
    EXPECT_EQ(NotesOf(kHeader + "{=2;=" + std::string(256, 'x') + ";=0;=1;=7;}"), "cut 1 field at 255 characters");
    EXPECT_EQ(NotesOf(kHeader + "{=5;=;=0;=1;=7;=2;=4294967295;}"),
              "cut 1 table that claimed to be larger than the file");
    EXPECT_EQ(NotesOf(kHeader + "{=5;=;=0;=1;=7;=2;=4;=4;=T;=;=;=4,1\n5,1\n;}"),
              "left out 2 table lines outside of the table");
}

TEST(LegacyFile, JoinsWhatItHasToSay) {
    EXPECT_EQ(NotesOf(kHeader + kBit + kBit + "{=6;=;=0;=1;=8;}"),
              "left out 1 dashboard; gave a new number to 1 item whose number was taken");
}

TEST(LegacyFile, CountsCommandsBeyondTheTenth) {
    std::string text = "{=1.2;=V;=T;=A;=E;=Y;=I;=M;=C;=8192;=0;=0;=12;";
    for (int i = 0; i < 12; ++i)
        text += "=N;=F4;=1;=0;=20;=3;=0;=0;=-1;";
    EXPECT_EQ(NotesOf(text + "}"), "left out 2 commands beyond the tenth");
}

TEST(LegacyFile, CountsTheItemsThatHaveNoRow) {
    std::string text = kHeader;
    for (int i = 0; i < 300; ++i)
        text += "{=2;=;=" + std::string(i < 40 ? "1" : "0") + ";=1;=" + std::to_string(i) + ";}";
    EXPECT_EQ(NotesOf(text), "the item list had no row for 5 items");
}

TEST(LegacyFile, SaysThatThereIsNoHeader) {
    EXPECT_EQ(NotesOf("not a definition"), "no header in it, so nothing was imported");
    EXPECT_EQ(NotesOf("{=0.9;=V;=T;}" + kBit), "its format version is below 1.0, so nothing was imported");
}

TEST(LegacyFile, TheToolConvertsTheExampleIntoAGoodDefinition) {
    const TempFile out("");
    const ToolResult result = RunTool({"convert", Example("kestrel-legacy.ads"), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "corvex-cli: " + Example("kestrel-legacy.ads") +
                              ": left out 1 dashboard; left out 2 items of types without data\n");
    const ToolResult check = RunTool({"check", "--strict", out.Path()});
    EXPECT_EQ(check.code, 0);
    EXPECT_NE(check.out.find("\n0 errors, 0 warnings"), std::string::npos) << check.out;
    const std::string list = RunTool({"list", out.Path()}).out;
    EXPECT_NE(list.find("Engine Speed"), std::string::npos) << list;
    EXPECT_NE(list.find("Intake Sensor"), std::string::npos) << list;
    EXPECT_NE(list.find("Default View"), std::string::npos) << list;
}

TEST(LegacyFile, TheToolTakesAnExtensionInCapitals) {
    const TempFile in(kHeader + kBit, ".ADS");
    const TempFile out("");
    const ToolResult result = RunTool({"convert", in.Path(), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_NE(RunTool({"list", out.Path()}).out.find("Lamp"), std::string::npos);
}

TEST(LegacyFile, TheToolFailsOnAFileThatCannotBeRead) {
    const TempFile out("precious");
    const ToolResult result = RunTool({"convert", "no/such/file.ads", out.Path()});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: no/such/file.ads: cannot be read\n");
    std::ifstream kept(out.Path());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), "precious");
}

TEST(LegacyFile, TheToolConvertsAFileWithoutAHeaderIntoAnEmptyDefinition) {
    const TempFile in("", ".ads");
    const TempFile out("");
    const ToolResult result = RunTool({"convert", in.Path(), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "corvex-cli: " + in.Path() + ": no header in it, so nothing was imported\n");
}

}  // namespace
}  // namespace corvex
