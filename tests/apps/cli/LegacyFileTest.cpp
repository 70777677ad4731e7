#include <gtest/gtest.h>

#include "apps/cli/LegacyFile.h"
#include "tests/apps/cli/LogTestHelper.h"

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
    for (const char* name : {"old.ads", "folder/OLD.ADS", ".aDs"})
        EXPECT_TRUE(IsLegacyFile(name)) << name;
    for (const char* name : {"old.adx", "old.ads.adx", "ads", ""})
        EXPECT_FALSE(IsLegacyFile(name)) << name;
}

TEST(LegacyFile, SaysWhatWasLeftOut) {
    EXPECT_EQ(NotesOf(kHeader + kBit), "");
    EXPECT_EQ(NotesOf(kHeader + "{=6;=;=0;=1;=8;}"), "left out 1 dashboard");
    EXPECT_EQ(NotesOf(kHeader + "{=3;=;=0;=1;=8;}"), "left out 1 item of types without data");
    EXPECT_EQ(NotesOf(kHeader + kBit + kBit), "gave a new number to 1 item whose number was taken");
    EXPECT_EQ(NotesOf(kHeader + "{=2;=" + std::string(256, 'x') + ";=0;=1;=7;}"), "cut 1 field at 255 characters");
    EXPECT_EQ(NotesOf(kHeader + "{=5;=;=0;=1;=7;=2;=4294967295;}"),
              "cut 1 table that claimed to be larger than the file");
    EXPECT_EQ(NotesOf(kHeader + "{=5;=;=0;=1;=7;=2;=4;=4;=T;=;=;=4,1\n5,1\n;}"),
              "left out 2 table lines outside of the table");
    std::string commands = "{=1.2;=V;=T;=A;=E;=Y;=I;=M;=C;=8192;=0;=0;=12;", items = kHeader;
    for (int i = 0; i < 12; ++i)
        commands += "=N;=F4;=1;=0;=20;=3;=0;=0;=-1;";
    EXPECT_EQ(NotesOf(commands + "}"), "left out 2 commands beyond the tenth");
    for (int i = 0; i < 300; ++i)
        items += "{=2;=;=" + std::string(i < 40 ? "1" : "0") + ";=1;=" + std::to_string(i) + ";}";
    EXPECT_EQ(NotesOf(items), "the item list had no row for 5 items");
}

TEST(LegacyFile, SaysThatThereIsNoHeader) {
    EXPECT_EQ(NotesOf("not a definition"), "no header in it, so nothing was imported");
    EXPECT_EQ(NotesOf("{=0.9;=V;=T;}" + kBit), "its format version is below 1.0, so nothing was imported");
}

TEST(LegacyFile, ConvertsNothingIntoNothing) {
    for (const char* text : {"", "hello", "{=0.9;=V;=T;}", "{=1.2;}"}) {
        const TempFile in(text, ".ads"), out("precious");
        const ToolResult result = RunInside({"convert", in.Path(), out.Path()});
        EXPECT_EQ(result.code, 1) << text;
        EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
        EXPECT_TRUE(Has(result.err, "nothing"));
        EXPECT_EQ(ReadFile(out.Path()), "precious");
    }
}

TEST(LegacyFile, TheToolConvertsTheExampleIntoAGoodDefinition) {
    const TempFile out("", ".adx");
    const ToolResult result = RunInside({"convert", Example("kestrel-legacy.ads"), out.Path()});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "corvex-cli: " + Example("kestrel-legacy.ads") +
                              ": left out 1 dashboard; left out 2 items of types without data\n");
    const ToolResult check = RunInside({"check", "--strict", out.Path()});
    EXPECT_EQ(check.code, 0);
    EXPECT_TRUE(Has(check.out, "\n0 errors, 0 warnings"));
    for (const char* text : {"Engine Speed", "Intake Sensor", "Default View"})
        EXPECT_TRUE(Has(RunInside({"list", out.Path()}).out, text));
    const ToolResult missing = RunInside({"convert", "no/such/file.ads", out.Path(), "--force"});
    EXPECT_EQ(missing.code, 1);
    EXPECT_TRUE(Has(missing.err, "corvex-cli: no/such/file.ads: cannot be read: "));
    EXPECT_NE(ReadFile(out.Path()), "");
}

}  // namespace
}  // namespace corvex
