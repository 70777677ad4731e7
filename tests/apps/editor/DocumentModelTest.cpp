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

class DocumentModelTest : public ::testing::Test {
protected:
    void Load(const std::string& path) { ASSERT_TRUE(document.Load(path, error)) << error; }
    void Load(const char* file, const std::string& content) { Load(folder.Put(file, content)); }
    void Save(const char* file) { ASSERT_TRUE(document.Save(folder.Name(file), error)) << error; }
    // As the program loads it.
    void ExpectSaved(const char* file, ADXDefinition& expected) const {
        ADXDefinition saved;
        ASSERT_EQ(saved.Load(folder.Name(file).c_str()), 1);
        EXPECT_EQ(FirstDifference(expected, saved), "");
    }

    const TestFolder folder;
    DocumentModel document;
    std::string error;
};

class ExamplesTest : public DocumentModelTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(ExamplesTest, LoseNothingWhenTheirHeaderIsEdited) {
    const std::string source = std::string(CORVEX_SOURCE_DIR "/examples/").append(GetParam());
    Load(source);
    HeaderModel header(document.Definition());
    HeaderFields fields = header.Fields();
    fields.author = "Somebody else";
    ASSERT_FALSE(header.Validate(fields));
    header.Apply(fields);
    Save("edited.adx");
    ADXDefinition expected;
    ASSERT_EQ(expected.Load(source.c_str()), 1);
    EXPECT_GT(expected.GetCount(), 10U);
    expected.SetAuthor("Somebody else", 13);
    ExpectSaved("edited.adx", expected);
}

INSTANTIATE_TEST_SUITE_P(Examples, ExamplesTest,
                         ::testing::Values("harrier-8192.adx", "merlin-160.adx", "osprey-multi.adx"));

TEST_F(DocumentModelTest, RandomDefinitionsAreFoundFitToSave) {
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

TEST_F(DocumentModelTest, KeepsCommandsThatNameNoObjectUntilTheNextLoad) {
    Load("ghost.adx", kGhostly);
    ASSERT_NE(document.Definition().connectcmd, nullptr);
    EXPECT_STREQ(document.Definition().connectcmd->Id(), "GHOST");
    EXPECT_EQ(document.Definition().connectcmd->GetType(), kTypeObject);
    EXPECT_EQ(document.Definition().monitorcmd, document.Definition().FindById("RUN"));
    EXPECT_EQ(document.Definition().GetCount(), 1U);

    Save("out.adx");
    const std::string saved = folder.Content("out.adx");
    for (const char* command : {"<connectcmd>GHOST<", "<monitorcmd>RUN<", "<disconnectcmd>WRAITH<"})
        EXPECT_NE(saved.find(command), std::string::npos) << saved;

    Load("plain.adx", "<ADXFORMAT version='0.50' /><ADXHEADER></ADXHEADER>");
    EXPECT_EQ(document.Definition().connectcmd, nullptr);
    EXPECT_EQ(document.Definition().disconnectcmd, nullptr);
    EXPECT_EQ(document.Definition().GetCount(), 0U);
}

TEST_F(DocumentModelTest, ANewDocumentIsSavedWithTheDefaults) {
    Save("new.adx");
    ADXDefinition loaded;
    ASSERT_EQ(loaded.Load(folder.Name("new.adx").c_str()), 1);
    EXPECT_EQ(loaded.GetCount(), 0U);
    EXPECT_EQ(loaded.baud, ADXDefinition::kDefaultBaud);
    EXPECT_EQ(loaded.connectcmd, nullptr);
}

TEST_F(DocumentModelTest, FilesThatAreNoDefinitionAreTold) {
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
    EXPECT_FALSE(document.Load(folder.Name("not there.adx"), error));
    EXPECT_NE(error, "");
}

// Every cut of a file loads or is refused with a reason, and what loads can be shown and saved or is refused too.
TEST_F(DocumentModelTest, AnyPartOfAFileIsSafe) {
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
TEST_F(DocumentModelTest, WhatWouldNotReadBackIsNotSavedAndLeavesTheFileAlone) {
    const std::string before =
        "<ADXFORMAT version='0.50' /><ADXHEADER></ADXHEADER><ADXVALUE id='A' title='A'><units>a &amp; b</units>"
        "</ADXVALUE>";
    Load("amp.adx", before);
    EXPECT_FALSE(document.Save(folder.Name("amp.adx"), error));
    EXPECT_NE(error.find("could not be read again"), std::string::npos) << error;
    EXPECT_EQ(folder.Content("amp.adx"), before);
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST_F(DocumentModelTest, AnUnsavableHeaderIsFoundEvenWithoutItsModelAndAFolderThatIsNotThere) {
    for (const char* text : {"a < b", "a &amp; b", "<b>bold</b>", "   "}) {
        DocumentModel document;
        document.Definition().SetAuthor(text, test::Length(text));
        std::string error;
        EXPECT_FALSE(document.Save(folder.Name("out.adx"), error)) << text;
        EXPECT_FALSE(folder.Has("out.adx")) << text;
    }
    EXPECT_FALSE(document.Save(folder.Name("no/such/folder/x.adx"), error));
    EXPECT_EQ(error, "The file could not be written.");
}

TEST_F(DocumentModelTest, ADefinitionBeyondTheFirstGuessOfItsSizeIsSavedWhole) {
    for (int i = 0; i < 2000; ++i)
        test::AddValue(document.Definition(), std::string("V").append(std::to_string(i)).c_str(), "x*2");
    Save("large.adx");
    EXPECT_GT(folder.Content("large.adx").size(), std::size_t{1} << 18);
    ExpectSaved("large.adx", document.Definition());
}

}  // namespace
}  // namespace corvex
