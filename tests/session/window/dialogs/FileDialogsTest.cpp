#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "session/window/FileDialogs.h"
#include "tests/session/window/dialogs/DialogOperator.h"
#include "tests/support/Eventually.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TextRecorder.h"

namespace corvex::test {
namespace {

constexpr int kNameCombo = 0x47C, kNameEdit = 0x480, kFilterCombo = 0x470;

HWND NameField(HWND dialog) {
    const HWND combo = ::GetDlgItem(dialog, kNameCombo);
    return combo != nullptr ? combo : ::GetDlgItem(dialog, kNameEdit);
}

class FileDialogsTest : public ::testing::Test {
protected:
    FileDialogsTest()
        : owner(::CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr, nullptr,
                                  nullptr)) {}
    ~FileDialogsTest() override { ::DestroyWindow(owner); }

    // Types the name and presses OK.
    static void Answer(HWND dialog, const std::string& name) {
        ASSERT_TRUE(Eventually([&] { return NameField(dialog) != nullptr; }));
        ::SendMessageA(NameField(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
        ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    }
    static void Cancel(HWND dialog) { ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); }
    // Answers the box that the dialog puts up.
    static void AnswerBox(const std::string& title, HWND dialog, int button) {
        const HWND box = WaitForDialog(title, dialog);
        EXPECT_NE(nullptr, box);
        ::PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }

    HWND owner;
    TestFolder folder;
};

TEST_F(FileDialogsTest, OpenAnswersTheNameOfAFile) {
    folder.Put("a.adx", "x");
    const DialogOperator user("Select ADX...", [&](HWND dialog) {
        EXPECT_FALSE(::IsWindowEnabled(owner));
        Answer(dialog, folder.Name("a.adx"));
    });
    EXPECT_EQ(folder.Name("a.adx"), AskOpenPath(owner, kLoadDefinitionPrompt));
    EXPECT_TRUE(::IsWindowEnabled(owner));
}

TEST_F(FileDialogsTest, CancelAnswersNothing) {
    {
        const DialogOperator user("Select ADX...", [](HWND dialog) { Cancel(dialog); });
        EXPECT_EQ(std::nullopt, AskOpenPath(owner, kLoadDefinitionPrompt));
    }
    const DialogOperator user("Choose file to save to...", [](HWND dialog) { Cancel(dialog); });
    EXPECT_EQ(std::nullopt, AskSavePath(owner, kSaveDefinitionPrompt));
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
        const DialogOperator user(each.title, [&](HWND dialog) {
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
    const DialogOperator user("Select/Create file to save...",
                              [&](HWND dialog) { Answer(dialog, folder.Name("drive")); });
    EXPECT_EQ(folder.Name("drive.xdl"), AskSavePath(owner, kSaveLogPrompt));
}

TEST_F(FileDialogsTest, SaveAsksBeforeANameInUseIsTaken) {
    folder.Put("a.adx", "x");
    const DialogOperator user("Choose file to save to...", [&](HWND dialog) {
        Answer(dialog, folder.Name("a.adx"));
        AnswerBox("Choose file to save to...", dialog, IDNO);
        Answer(dialog, folder.Name("b.adx"));
    });
    EXPECT_EQ(folder.Name("b.adx"), AskSavePath(owner, kSaveDefinitionPrompt));
    EXPECT_EQ("x", folder.Content("a.adx"));
    EXPECT_FALSE(folder.Has("b.adx"));
}

TEST_F(FileDialogsTest, SaveTakesANameInUseWhenTheUserSaysSo) {
    folder.Put("a.adx", "x");
    const DialogOperator user("Choose file to save to...", [&](HWND dialog) {
        Answer(dialog, folder.Name("a.adx"));
        AnswerBox("Choose file to save to...", dialog, IDYES);
    });
    EXPECT_EQ(folder.Name("a.adx"), AskSavePath(owner, kSaveDefinitionPrompt));
    EXPECT_EQ("x", folder.Content("a.adx"));
}

TEST_F(FileDialogsTest, LeavesTheCurrentFolderAloneWhereverTheUserLooks) {
    folder.Put("a.adx", "x");
    const auto before = std::filesystem::current_path();
    const DialogOperator user("Select ADX...", [&](HWND dialog) {
        ASSERT_TRUE(Eventually([&] { return NameField(dialog) != nullptr; }));
        const std::string place = folder.Path().string();
        ::SendMessageA(NameField(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(place.c_str()));
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);  // goes there, and has arrived when the answer comes
        Answer(dialog, "a.adx");
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
        const DialogOperator user("Choose file to save to...", [&](HWND dialog) { Answer(dialog, fitting(259)); });
        EXPECT_EQ(fitting(259), AskSavePath(owner, kSaveDefinitionPrompt, &debug));
        EXPECT_EQ("", text.Text());
    }
    const DialogOperator user("Choose file to save to...", [&](HWND dialog) { Answer(dialog, fitting(260)); });
    EXPECT_EQ(std::nullopt, AskSavePath(owner, kSaveDefinitionPrompt, &debug));
    EXPECT_EQ("The name is longer than 259 characters.", text.Text());
}

}  // namespace
}  // namespace corvex::test
