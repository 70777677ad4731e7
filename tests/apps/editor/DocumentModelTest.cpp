// A document goes to a file and back without loss, and never over a file that it would break.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "apps/editor/DocumentModel.h"
#include "apps/editor/HeaderModel.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/DefinitionGenerator.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

using test::TestFolder;

constexpr char kGhostly[] =
    "<ADXFORMAT version='0.50' />\r\n<ADXHEADER><flags>0x06</flags><baud>8192</baud><connectcmd>GHOST</connectcmd>"
    "<monitorcmd>RUN</monitorcmd><disconnectcmd>WRAITH</disconnectcmd></ADXHEADER>"
    "<ADXMACRO id='RUN' title='Run'/>";

// What a file holds behind the comment with its time.
std::string WithoutTime(std::string text) {
    const std::size_t begin = text.find("<!--");
    const std::size_t end = text.find("-->");
    if (begin != std::string::npos && end != std::string::npos) text.erase(begin, end + 3 - begin);
    return text;
}

std::string Source(const char* name) {
    return std::string(CORVEX_SOURCE_DIR "/examples/").append(name);
}

class ExamplesTest : public ::testing::TestWithParam<const char*> {};

TEST_P(ExamplesTest, LoseNothingWhenTheirHeaderIsEdited) {
    const TestFolder folder;
    std::string error;
    DocumentModel document;
    ASSERT_TRUE(document.Load(Source(GetParam()), error)) << error;
    HeaderModel header(document.Definition());
    HeaderFields fields = header.Fields();
    fields.author = "Somebody else";
    ASSERT_FALSE(header.Validate(fields));
    header.Apply(fields);
    ASSERT_TRUE(document.Save(folder.Name("edited.adx"), error)) << error;

    ADXDefinition expected, edited;
    ASSERT_EQ(expected.Load(Source(GetParam()).c_str()), 1);
    expected.SetAuthor("Somebody else", 13);
    ASSERT_EQ(edited.Load(folder.Name("edited.adx").c_str()), 1);
    EXPECT_EQ(FirstDifference(expected, edited), "");
    EXPECT_GT(edited.GetCount(), 10U);
}

INSTANTIATE_TEST_SUITE_P(Examples, ExamplesTest,
                         ::testing::Values("harrier-8192.adx", "merlin-160.adx", "osprey-multi.adx"));

TEST(DocumentModelTest, RandomDefinitionsAreFoundFitToSave) {
    const TestFolder folder;
    for (std::uint32_t seed = 0; seed < 40; ++seed) {
        ADXDefinition original;
        GenerateDefinition(seed, original);
        ASSERT_EQ(original.Save(folder.Name("in.adx").c_str()), 1);
        DocumentModel document;
        std::string error;
        ASSERT_TRUE(document.Load(folder.Name("in.adx"), error)) << "seed " << seed << ": " << error;
        ASSERT_TRUE(document.Save(folder.Name("out.adx"), error)) << "seed " << seed << ": " << error;
        ASSERT_EQ(WithoutTime(folder.Content("in.adx")), WithoutTime(folder.Content("out.adx"))) << "seed " << seed;
    }
}

TEST(DocumentModelTest, KeepsCommandsThatNameNoObjectUntilTheNextLoad) {
    const TestFolder folder;
    folder.Put("ghost.adx", kGhostly);
    DocumentModel document;
    std::string error;
    ASSERT_TRUE(document.Load(folder.Name("ghost.adx"), error)) << error;
    ASSERT_NE(document.Definition().connectcmd, nullptr);
    EXPECT_STREQ(document.Definition().connectcmd->Id(), "GHOST");
    EXPECT_EQ(document.Definition().connectcmd->GetType(), kTypeObject);
    EXPECT_EQ(document.Definition().monitorcmd, document.Definition().FindById("RUN"));
    EXPECT_EQ(document.Definition().GetCount(), 1U);

    ASSERT_TRUE(document.Save(folder.Name("out.adx"), error)) << error;
    const std::string saved = folder.Content("out.adx");
    for (const char* command : {"<connectcmd>GHOST<", "<monitorcmd>RUN<", "<disconnectcmd>WRAITH<"})
        EXPECT_NE(saved.find(command), std::string::npos) << saved;

    folder.Put("plain.adx", "<ADXFORMAT version='0.50' /><ADXHEADER></ADXHEADER>");
    ASSERT_TRUE(document.Load(folder.Name("plain.adx"), error));
    EXPECT_EQ(document.Definition().connectcmd, nullptr);
    EXPECT_EQ(document.Definition().disconnectcmd, nullptr);
    EXPECT_EQ(document.Definition().GetCount(), 0U);
}

TEST(DocumentModelTest, ANewDocumentIsSavedWithTheDefaults) {
    const TestFolder folder;
    const DocumentModel document;
    std::string error;
    ASSERT_TRUE(document.Save(folder.Name("new.adx"), error)) << error;
    ADXDefinition loaded;
    ASSERT_EQ(loaded.Load(folder.Name("new.adx").c_str()), 1);
    EXPECT_EQ(loaded.GetCount(), 0U);
    EXPECT_EQ(loaded.baud, ADXDefinition::kDefaultBaud);
    EXPECT_EQ(loaded.connectcmd, nullptr);
}

TEST(DocumentModelTest, FilesThatAreNoDefinitionAreTold) {
    const TestFolder folder;
    const auto refusal = [&](const char* content) {
        folder.Put("bad.adx", content);
        DocumentModel document;
        std::string error;
        EXPECT_FALSE(document.Load(folder.Name("bad.adx"), error)) << content;
        return error;
    };
    EXPECT_EQ(refusal("<ADXFORMAT version='0.4' />"), "File version is out of date.");
    EXPECT_EQ(refusal("<OTHER/>"), "This is not a definition file.");
    for (const char* content : {"", "no markup at all", "<ADXFORMAT version='0.50' /><ADXHEADER",
                                "<ADXFORMAT version='0.50' /><ADXHEADER><author>a &bad; b</author>"})
        EXPECT_NE(refusal(content), "") << content;
    DocumentModel document;
    std::string error;
    EXPECT_FALSE(document.Load(folder.Name("not there.adx"), error));
    EXPECT_NE(error, "");
}

// Every cut of a file loads or is refused with a reason, and what loads can be shown and saved or is refused too.
TEST(DocumentModelTest, AnyPartOfAFileIsSafe) {
    const TestFolder folder;
    const std::string whole = kGhostly;
    int loaded = 0;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        folder.Put("cut.adx", whole.substr(0, length));
        DocumentModel document;
        std::string error;
        if (!document.Load(folder.Name("cut.adx"), error)) {
            ASSERT_NE(error, "") << length;
            continue;
        }
        ++loaded;
        HeaderModel header(document.Definition());
        header.Apply(header.Fields());
        EXPECT_TRUE(document.Save(folder.Name("out.adx"), error)) << length << ": " << error;
    }
    EXPECT_GT(loaded, 1);
    EXPECT_LT(loaded, static_cast<int>(whole.size()));
}

// A unit of "&" comes from a file by an entity, and would leave as a bare one.
TEST(DocumentModelTest, WhatWouldNotReadBackIsNotSavedAndLeavesTheFileAlone) {
    const TestFolder folder;
    const std::string before =
        "<ADXFORMAT version='0.50' /><ADXHEADER></ADXHEADER><ADXVALUE id='A' title='A'><units>a &amp; b</units>"
        "</ADXVALUE>";
    folder.Put("amp.adx", before);
    DocumentModel document;
    std::string error;
    ASSERT_TRUE(document.Load(folder.Name("amp.adx"), error)) << error;
    EXPECT_FALSE(document.Save(folder.Name("amp.adx"), error));
    EXPECT_NE(error.find("could not be read again"), std::string::npos) << error;
    EXPECT_EQ(folder.Content("amp.adx"), before);
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(DocumentModelTest, AnUnsavableHeaderIsFoundEvenWithoutItsModel) {
    const TestFolder folder;
    for (const char* text : {"a < b", "a &amp; b", "<b>bold</b>", "   "}) {
        DocumentModel document;
        document.Definition().SetAuthor(text, test::Length(text));
        std::string error;
        EXPECT_FALSE(document.Save(folder.Name("out.adx"), error)) << text;
        EXPECT_FALSE(folder.Has("out.adx")) << text;
    }
}

TEST(DocumentModelTest, AFolderThatIsNotThereIsAnError) {
    const TestFolder folder;
    const DocumentModel document;
    std::string error;
    EXPECT_FALSE(document.Save(folder.Name("no/such/folder/x.adx"), error));
    EXPECT_EQ(error, "The file could not be written.");
}

TEST(DocumentModelTest, ADefinitionBeyondTheFirstGuessOfItsSizeIsSavedWhole) {
    const TestFolder folder;
    DocumentModel document;
    for (int i = 0; i < 2000; ++i)
        test::AddValue(document.Definition(), std::string("V").append(std::to_string(i)).c_str(), "x*2");
    std::string error;
    ASSERT_TRUE(document.Save(folder.Name("large.adx"), error)) << error;
    EXPECT_GT(folder.Content("large.adx").size(), std::size_t{1} << 18);
    ADXDefinition loaded;
    ASSERT_EQ(loaded.Load(folder.Name("large.adx").c_str()), 1);
    EXPECT_EQ(FirstDifference(document.Definition(), loaded), "");
}

}  // namespace
}  // namespace corvex
