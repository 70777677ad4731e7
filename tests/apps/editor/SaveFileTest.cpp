// Where a definition is saved to: the file that it came from, or one that is asked for.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/apps/editor/EditorTestHelper.h"

namespace corvex::test {
namespace {

class SaveFileTest : public EditorTest {
protected:
    // A name in the folder, of this many characters with its path.
    std::string NameOfLength(std::size_t length) const {
        std::string name = folder_.Name("x");
        return name.append(length - name.size() - 4, 'x').append(".adx");
    }
    bool Loads(const std::string& name) const {
        ADXDefinition definition;
        return definition.Load(folder_.Name(name).c_str()) == 1;
    }
};

TEST_F(SaveFileTest, ANewDefinitionIsAskedForAName) {
    const std::filesystem::path before = std::filesystem::current_path();
    SetPath("");
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  EXPECT_EQ(DialogPerson::Text(dialog, IDC_FILE), "(a new definition)");
                  EXPECT_EQ(DialogPerson::Text(dialog, IDC_BAUD), "8192");
                  DialogPerson::Type(dialog, IDC_AUTHOR, "Somebody");
                  DialogPerson::Press(dialog, IDOK);
                  DialogPerson::AnswerFileDialog(kSaveTitle, folder_.Name("fresh"));
              }),
              1);
    EXPECT_EQ(Path(), folder_.Name("fresh.adx"));
    EXPECT_EQ(std::filesystem::current_path(), before);
    ADXDefinition saved;
    ASSERT_EQ(saved.Load(Path().c_str()), 1);
    EXPECT_STREQ(saved.Author().CStr(), "Somebody");
    EXPECT_EQ(saved.GetCount(), 0U);
}

TEST_F(SaveFileTest, SaveAsLeavesTheOldFileAndReturnsTheNewName) {
    Edit("old.adx", kSmallDefinition);
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  DialogPerson::Type(dialog, IDC_VERSION, "2.0");
                  DialogPerson::Press(dialog, IDC_SAVE_AS);
                  DialogPerson::AnswerFileDialog(kSaveTitle, folder_.Name("new.adx"));
              }),
              1);
    EXPECT_EQ(Path(), folder_.Name("new.adx"));
    EXPECT_EQ(folder_.Content("old.adx"), kSmallDefinition);
    EXPECT_NE(folder_.Content("new.adx").find("<userversion>2.0</userversion>"), std::string::npos);
}

TEST_F(SaveFileTest, AnotherFileIsReplacedOnlyWhenTheUserSaysSo) {
    SetPath("");
    folder_.Put("other.adx", "precious");
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  DialogPerson::Press(dialog, IDOK);
                  DialogPerson::AnswerFileDialog(kSaveTitle, folder_.Name("other.adx"));
                  EXPECT_NE(DialogPerson::AnswerBox(kSaveTitle, IDNO), "");
                  const HWND names = DialogPerson::Await({kSaveTitle, kNameBox});
                  DialogPerson::Press(names, IDCANCEL);
                  DialogPerson::AwaitEnd(names);
                  EXPECT_EQ(DialogPerson::Find(kHeaderDialog), dialog) << "who names no file has not saved";
                  EXPECT_TRUE(Eventually([=] { return ::IsWindowEnabled(dialog) != 0; }));
                  EXPECT_EQ(folder_.Content("other.adx"), "precious");
                  EXPECT_EQ(Path(), "");
                  EXPECT_EQ(path_[1], '\x7F');
                  DialogPerson::Press(dialog, IDOK);
                  DialogPerson::AnswerFileDialog(kSaveTitle, folder_.Name("other.adx"));
                  DialogPerson::AnswerBox(kSaveTitle, IDYES);
              }),
              1);
    EXPECT_TRUE(Loads("other.adx"));
}

TEST_F(SaveFileTest, APathMayFillItsBuffer) {
    const std::string name = NameOfLength(kPathSize - 1);
    SetPath(name);
    { std::ofstream(name, std::ios::binary) << kSmallDefinition; }
    EXPECT_EQ(RunAt([](HWND dialog) {
                  DialogPerson::Type(dialog, IDC_AUTHOR, "Far away");
                  DialogPerson::Press(dialog, IDOK);
              }),
              1);
    EXPECT_EQ(Path(), name);
    EXPECT_EQ(path_[kPathSize - 1], '\0');
    ADXDefinition saved;
    ASSERT_EQ(saved.Load(name.c_str()), 1);
    EXPECT_STREQ(saved.Author().CStr(), "Far away");
}

// The last character has no place; what remains is not the name of a file.
TEST_F(SaveFileTest, ABufferWithoutAnEndIsReadToItsEndAlone) {
    path_.fill('x');
    std::string text;
    EXPECT_EQ(Run([&] { text = DialogPerson::AnswerBox(kEditor, IDOK); }), 0);
    EXPECT_NE(text.find(std::string(kPathSize - 1, 'x')), std::string::npos);
    EXPECT_EQ(text.find(std::string(kPathSize, 'x')), std::string::npos);
    EXPECT_EQ(path_[kPathSize - 1], 'x');
}

TEST_F(SaveFileTest, ABrokenOrMissingDefinitionIsToldAndNotEdited) {
    Edit("broken.adx", "<OTHER/>");
    for (const char* const name : {"broken.adx", "missing.adx"}) {
        SetPath(folder_.Name(name));
        std::string text;
        EXPECT_EQ(Run([&] { text = DialogPerson::AnswerBox(kEditor, IDOK); }), 0);
        EXPECT_NE(text.find("could not be loaded"), std::string::npos) << text;
        EXPECT_NE(text.find(folder_.Name(name)), std::string::npos) << text;
        EXPECT_EQ(text.find("This is not a definition file.") != std::string::npos, folder_.Has(name)) << text;
        EXPECT_EQ(Path(), folder_.Name(name));
    }
    EXPECT_EQ(folder_.Content("broken.adx"), "<OTHER/>");
}

TEST_F(SaveFileTest, AFailedSaveIsToldAndKeepsTheDialog) {
    std::filesystem::create_directory(folder_.Path() / "gone");
    folder_.Put("gone/a.adx", kSmallDefinition);
    SetPath(folder_.Name("gone\\a.adx"));
    std::string text;
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  std::filesystem::remove_all(folder_.Path() / "gone");
                  DialogPerson::Type(dialog, IDC_AUTHOR, "Somebody");
                  DialogPerson::Press(dialog, IDOK);
                  text = DialogPerson::AnswerBox(kEditor, IDOK);
                  EXPECT_EQ(DialogPerson::Find(kHeaderDialog), dialog);
                  EXPECT_EQ(DialogPerson::Text(dialog, IDC_AUTHOR), "Somebody");
                  DialogPerson::Press(dialog, IDC_SAVE_AS);
                  DialogPerson::AnswerFileDialog(kSaveTitle, folder_.Name("rescued.adx"));
              }),
              1);
    EXPECT_NE(text.find("The file could not be written."), std::string::npos) << text;
    EXPECT_EQ(Path(), folder_.Name("rescued.adx"));
    EXPECT_TRUE(Loads("rescued.adx"));
}

}  // namespace
}  // namespace corvex::test
