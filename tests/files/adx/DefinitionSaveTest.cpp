#include <gtest/gtest.h>

#include <regex>

#include "definition/ADXCTrigger.h"
#include "files/adx/DefinitionSave.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

constexpr LocalTime kTime = {2031, 2, 6, 3, 4, 5, 6, 789};

constexpr const char* kSavedHeader =
    "<ADXHEADER>\r\n"
    "    <flags>0x01</flags>\r\n"
    "    <objectcount>3</objectcount>\r\n"
    "    <userversion>1 & 2</userversion>\r\n"
    "    <author>Me < you</author>\r\n"
    "    <desc>\"About\"</desc>\r\n"
    "    <baud>160</baud>\r\n"
    "    <connectcmd>C</connectcmd>\r\n"
    "    <monitorcmd>M&</monitorcmd>\r\n"
    "    <disconnectcmd>ABCDEFGHIJKLMNO</disconnectcmd>\r\n"
    "</ADXHEADER>\r\n"
    "<ADXCTRIGGER id=\"M&amp;\"";

// Ids and texts of the header stand as they are stored, escaped by nothing.
void FillHeader(ADXDefinition& definition) {
    definition.monitorcmd = test::Add<ADXCTrigger>(definition, "M&");
    definition.connectcmd = test::Add<ADXCTrigger>(definition, "C");
    definition.disconnectcmd = test::Add<ADXCTrigger>(definition, "ABCDEFGHIJKLMNO");
    definition.flags = 1;
    definition.baud = 160;
    definition.SetUserVersion("1 & 2", 5);
    definition.SetAuthor("Me < you", 8);
    definition.SetDesc("\"About\"", 7);
}

TEST(DefinitionSave, WritesRootAndTimeInFrontOfTheHeader) {
    ADXDefinition definition;
    FillHeader(definition);
    char memory[4000];
    XMLWriter writer;
    ASSERT_EQ(writer.OpenMemory(memory, sizeof memory), 1);
    WriteDefinition(definition, writer, kTime);
    const std::string text(memory, writer.MemoryLength());
    EXPECT_TRUE(
        text.starts_with("<ADXFORMAT version=\"0.50\" />\n\n<!-- Written 02/03/2031 04:05:06 -->\n<ADXHEADER>"));
}

TEST(DefinitionSave, SavesTheHeaderLetterForLetterWithTheTimeOfDay) {
    ADXDefinition definition;
    FillHeader(definition);
    const std::regex time(
        "^<ADXFORMAT version=\"0.50\" />\r\n\r\n"
        "<!-- Written \\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d:\\d\\d -->\r\n");
    std::smatch found;
    const std::string text = SaveText(definition);
    ASSERT_TRUE(std::regex_search(text, found, time));
    EXPECT_EQ(found.suffix().str().substr(0, std::string(kSavedHeader).size()), kSavedHeader);
}

TEST(DefinitionSave, AnEmptyDefinitionHasRootAndHeader) {
    const std::string text = SaveText(ADXDefinition());
    EXPECT_EQ(text.substr(text.find("<ADXHEADER>")),
              "<ADXHEADER>\r\n    <flags>0x00</flags>\r\n    <objectcount>0</objectcount>\r\n    <baud>8192</baud>\r\n"
              "</ADXHEADER>\r\n");
}

TEST(DefinitionSave, ProgressCountsTheObjectsAndAFileThatCannotBeOpenedIsAFailure) {
    ADXDefinition definition;
    test::Add<ADXCTrigger>(definition, "A");
    test::Add<ADXCTrigger>(definition, "B");
    const test::TestFolder folder;
    ProgressRecorder progress;
    EXPECT_EQ(definition.Save(folder.Name("a.adx").c_str(), &progress), 1);
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"range 2", "step", "step", "position 0"}));
    EXPECT_EQ(definition.Save("/no/such/folder/file.adx"), 0);
}

}  // namespace
}  // namespace corvex
