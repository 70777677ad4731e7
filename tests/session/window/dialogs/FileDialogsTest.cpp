#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "session/window/FileDialogs.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/support/Eventually.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TextRecorder.h"
#include "tests/views/browser/DialogPerson.h"

namespace corvex::test {
namespace {

constexpr int kFilterCombo = 0x470;
constexpr char kOpen[] = "Select ADX...", kSave[] = "Choose file to save to...";

class FileDialogsTest : public ::testing::Test {
protected:
    // Somebody who answers the dialog with a name, and the box that it puts up then with a button.
    static std::function<void()> Name(const char* title, const std::string& name, int button = 0) {
        return [=] {
            DialogPerson::AnswerFileDialog(title, name);
            if (button != 0) DialogPerson::AnswerBox(title, button);
        };
    }
    static void Cancel(HWND dialog) { DialogPerson::Press(dialog, IDCANCEL); }

    TestWindow parent{WS_POPUP | WS_VISIBLE};
    const HWND owner = parent.Window();
    TestFolder folder;
};

TEST_F(FileDialogsTest, OpenAnswersTheNameOfAFile) {
    folder.Put("a.adx", "x");
    const DialogPerson user([&] {
        EXPECT_NE(nullptr, DialogPerson::Await({kOpen, kNameBox}));
        EXPECT_FALSE(::IsWindowEnabled(owner));
        Name(kOpen, folder.Name("a.adx"))();
    });
    EXPECT_EQ(folder.Name("a.adx"), AskOpenPath(owner, kLoadDefinitionPrompt));
    EXPECT_TRUE(::IsWindowEnabled(owner));
}

TEST_F(FileDialogsTest, CancelOfASaveAnswersNothing) {
    const DialogPerson user({kSave}, &Cancel);
    EXPECT_EQ(std::nullopt, AskSavePath(owner, kSaveDefinitionPrompt));
}

TEST_F(FileDialogsTest, OffersTheNameThatIsSuggested) {
    FilePrompt prompt = kSaveLogPrompt;
    prompt.suggested = "harrier-2026-11-20-143205.xdl";
    const DialogPerson user({prompt.title, kNameBox}, [&](HWND dialog) {
        EXPECT_TRUE(Eventually([&] {
            return DialogPerson::Text(dialog, kNameBox).find("harrier-2026-11-20-143205") != std::string::npos;
        })) << DialogPerson::Text(dialog, kNameBox);
        Cancel(dialog);
    });
    EXPECT_EQ(std::nullopt, AskSavePath(owner, prompt));
}

TEST_F(FileDialogsTest, OffersOneKindOfFile) {
    const struct {
        const FilePrompt& prompt;
        const char *title, *filter;
    } expected[] = {{kLoadDefinitionPrompt, "Select ADX...", "ADX Files (*.adx)"},
                    {kSaveDefinitionPrompt, "Choose file to save to...", "ADX Files (*.adx)"},
                    {kImportDefinitionPrompt, "Select file to import...", "ADS Files (*.ads)"},
                    {kOpenLogPrompt, "Select datalog...", "Datalog (XDL) Files (*.xdl)"},
                    {kSaveLogPrompt, "Select/Create file to save...", "Datalog (XDL) Files (*.xdl)"}};
    for (const auto& each : expected) {
        const DialogPerson user({each.title}, [&](HWND dialog) {
            const HWND filter = ::GetDlgItem(dialog, kFilterCombo);
            EXPECT_TRUE(Eventually([&] { return ::SendMessageA(filter, CB_GETCOUNT, 0, 0) > 0; }));
            EXPECT_EQ(1, ::SendMessageA(filter, CB_GETCOUNT, 0, 0));
            char text[128] = "";
            ::SendMessageA(filter, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
            EXPECT_STREQ(each.filter, text);
            Cancel(dialog);
        });
        EXPECT_EQ(std::nullopt, AskOpenPath(owner, each.prompt));
    }
}

TEST_F(FileDialogsTest, PutsTheExtensionBehindANameThatHasNone) {
    const DialogPerson user(Name("Select/Create file to save...", folder.Name("drive")));
    EXPECT_EQ(folder.Name("drive.xdl"), AskSavePath(owner, kSaveLogPrompt));
}

TEST_F(FileDialogsTest, SaveTakesANameInUseOnlyWhenTheUserSaysSo) {
    folder.Put("a.adx", "x");
    {
        const DialogPerson user([&] {
            Name(kSave, folder.Name("a.adx"), IDNO)();
            Name(kSave, folder.Name("b.adx"))();
        });
        EXPECT_EQ(folder.Name("b.adx"), AskSavePath(owner, kSaveDefinitionPrompt));
    }
    const DialogPerson user(Name(kSave, folder.Name("a.adx"), IDYES));
    EXPECT_EQ(folder.Name("a.adx"), AskSavePath(owner, kSaveDefinitionPrompt));
    EXPECT_EQ("x", folder.Content("a.adx"));
    EXPECT_FALSE(folder.Has("b.adx"));
}

TEST_F(FileDialogsTest, LeavesTheCurrentFolderAloneWhereverTheUserLooks) {
    folder.Put("a.adx", "x");
    const auto before = std::filesystem::current_path();
    const DialogPerson user({kOpen, kNameBox}, [&](HWND dialog) {
        DialogPerson::Type(dialog, kNameBox, folder.Path().string());
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);  // goes there, and has arrived when the answer comes
        Name(kOpen, "a.adx")();
    });
    EXPECT_EQ(folder.Name("a.adx"), AskOpenPath(owner, kLoadDefinitionPrompt));
    EXPECT_EQ(before, std::filesystem::current_path());
}

TEST_F(FileDialogsTest, ANameThatIsTooLongIsToldAndNotCut) {
    const auto fitting = [&](std::size_t length) {
        return folder.Name(std::string(length - folder.Name("").size() - 4, 'n').append(".adx"));
    };
    TextRecorder text;
    DebugOutput debug;
    debug.edit = &text;
    {
        const DialogPerson user(Name(kSave, fitting(259)));
        EXPECT_EQ(fitting(259), AskSavePath(owner, kSaveDefinitionPrompt, &debug));
        EXPECT_EQ("", text.Text());
    }
    const DialogPerson user(Name(kSave, fitting(260)));
    EXPECT_EQ(std::nullopt, AskSavePath(owner, kSaveDefinitionPrompt, &debug));
    EXPECT_EQ("The name is longer than 259 characters.", text.Text());
}

}  // namespace
}  // namespace corvex::test
