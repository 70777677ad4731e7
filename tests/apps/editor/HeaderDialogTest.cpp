// What somebody types reaches the file, and what is wrong does not.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/apps/editor/EditorTestHelper.h"
#include "tests/support/DefinitionCompare.h"

namespace corvex::test {
namespace {

std::string Choice(HWND dialog, int box, WPARAM row) {
    char text[256] = {};
    ::SendDlgItemMessageA(dialog, box, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text));
    return text;
}

std::string Chosen(HWND dialog, int box) {
    return Choice(dialog, box, static_cast<WPARAM>(::SendDlgItemMessageA(dialog, box, CB_GETCURSEL, 0, 0)));
}

// The control that has the keyboard; of a combo box the whole.
int Focused(HWND dialog) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(dialog, nullptr), &info);
    HWND window = info.hwndFocus;
    if (window != nullptr && ::GetParent(window) != dialog) window = ::GetParent(window);
    return ::GetDlgCtrlID(window);
}

class HeaderDialogTest : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        Edit("small.adx", kSmallDefinition);
    }
    std::string Saved() const { return folder_.Content("small.adx"); }
};

TEST_F(HeaderDialogTest, ShowsWhatTheFileHolds) {
    RunAt([&](HWND dialog) {
        EXPECT_EQ(DialogPerson::Text(dialog, IDC_FILE), folder_.Name("small.adx"));
        EXPECT_EQ(DialogPerson::Text(dialog, IDC_AUTHOR), "A. Nother");
        EXPECT_EQ(DialogPerson::Text(dialog, IDC_VERSION), "1.0");
        EXPECT_EQ(DialogPerson::Text(dialog, IDC_DESCRIPTION), "first\r\nsecond");
        EXPECT_EQ(DialogPerson::Text(dialog, IDC_BAUD), "8192");
        EXPECT_EQ(::IsDlgButtonChecked(dialog, IDC_ECHO), static_cast<UINT>(BST_UNCHECKED));
        EXPECT_EQ(Chosen(dialog, IDC_COMMAND), "GHOST (not in this definition)");
        EXPECT_EQ(Chosen(dialog, IDC_COMMAND_MONITOR), "Loop (LOOP)");
        EXPECT_EQ(Chosen(dialog, IDC_COMMAND_DISCONNECT), "(none)");
        EXPECT_EQ(Choice(dialog, IDC_COMMAND, 2), "Ring the bell (BELL)");
        EXPECT_EQ(::SendDlgItemMessageA(dialog, IDC_COMMAND_DISCONNECT, CB_GETCOUNT, 0, 0), 4);
        for (const auto& [control, limit] : {std::pair{IDC_AUTHOR, 59}, {IDC_VERSION, 19}, {IDC_DESCRIPTION, 1023}})
            EXPECT_EQ(::SendDlgItemMessageA(dialog, control, EM_GETLIMITTEXT, 0, 0), limit);
        for (const char* baud : {"160", "8192"}) {
            EXPECT_GE(::SendDlgItemMessageA(dialog, IDC_BAUD, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                            reinterpret_cast<LPARAM>(baud)),
                      0);
        }
        DialogPerson::Press(dialog, IDCANCEL);
    });
}

TEST_F(HeaderDialogTest, SavesWhatWasTypedAndChosen) {
    EXPECT_EQ(RunAt([](HWND dialog) {
                  DialogPerson::Type(dialog, IDC_AUTHOR, "Somebody");
                  DialogPerson::Type(dialog, IDC_VERSION, "");
                  DialogPerson::Type(dialog, IDC_DESCRIPTION, "one\r\ntwo\r\n");
                  DialogPerson::Type(dialog, IDC_BAUD, "160");
                  ::SendDlgItemMessageA(dialog, IDC_ECHO, BM_CLICK, 0, 0);
                  ::SendDlgItemMessageA(dialog, IDC_COMMAND, CB_SETCURSEL, 2, 0);
                  ::SendDlgItemMessageA(dialog, IDC_COMMAND_MONITOR, CB_SETCURSEL, 0, 0);
                  ::SendDlgItemMessageA(dialog, IDC_COMMAND_DISCONNECT, CB_SETCURSEL, 3, 0);
                  DialogPerson::Press(dialog, IDOK);
              }),
              1);
    EXPECT_EQ(Path(), folder_.Name("small.adx"));
    ADXDefinition saved;
    ASSERT_EQ(saved.Load(Path().c_str()), 1);
    EXPECT_STREQ(saved.Author().CStr(), "Somebody");
    EXPECT_FALSE(saved.UserVersion().IsSet());
    EXPECT_STREQ(saved.Desc().CStr(), "one\r\ntwo\r\n");
    EXPECT_EQ(saved.baud, 160U);
    EXPECT_EQ(saved.flags, 5U);
    EXPECT_EQ(saved.connectcmd, saved.FindById("BELL"));
    EXPECT_EQ(saved.monitorcmd, nullptr);
    EXPECT_EQ(saved.disconnectcmd, saved.FindById("ENDALL"));
    EXPECT_EQ(saved.GetCount(), 4U);
}

TEST_F(HeaderDialogTest, SavesWhatNobodyTouchedAsItWas) {
    std::string odd = kSmallDefinition;
    std::string author = "A.\nNother\r\n\t";  // two lines where the control has one
    for (unsigned byte = 0x80; byte < 0xA0; ++byte)
        author += static_cast<char>(byte);  // not all of them are characters
    odd.replace(odd.find("A. Nother"), 9, author);
    Edit("small.adx", odd);
    ADXDefinition before, after;
    ASSERT_EQ(before.Load(Path().c_str()), 1);
    EXPECT_EQ(RunAt([](HWND dialog) { DialogPerson::Press(dialog, IDOK); }), 1);
    ASSERT_EQ(after.Load(Path().c_str()), 1);
    EXPECT_EQ(FirstDifference(before, after), "");
    EXPECT_EQ(after.Author().CStr(), author);
    EXPECT_STREQ(after.Desc().CStr(), "first\nsecond");
    EXPECT_NE(Saved().find("<connectcmd>GHOST</connectcmd>"), std::string::npos);
}

TEST_F(HeaderDialogTest, CancelWithoutChangesJustCloses) {
    EXPECT_EQ(RunAt([](HWND dialog) { DialogPerson::Press(dialog, IDCANCEL); }), 0);
    EXPECT_EQ(RunAt([](HWND dialog) { ::PostMessageA(dialog, WM_CLOSE, 0, 0); }), 0);
    EXPECT_EQ(Saved(), kSmallDefinition);
}

TEST_F(HeaderDialogTest, CancelWithChangesAsksAndMayBeTakenBack) {
    EXPECT_EQ(RunAt([](HWND dialog) {
                  ::SendDlgItemMessageA(dialog, IDC_COMMAND_MONITOR, CB_SETCURSEL, 0, 0);
                  DialogPerson::Press(dialog, IDCANCEL);
                  EXPECT_EQ(DialogPerson::AnswerBox(kEditor, IDNO),
                            "The changes have not been saved. Leave the editor without them?");
                  EXPECT_EQ(DialogPerson::Find(kHeaderDialog), dialog);
                  EXPECT_EQ(Chosen(dialog, IDC_COMMAND_MONITOR), "(none)");
                  DialogPerson::Press(dialog, IDCANCEL);
                  DialogPerson::AnswerBox(kEditor, IDYES);
              }),
              0);
    EXPECT_EQ(Saved(), kSmallDefinition);
}

TEST_F(HeaderDialogTest, NamesTheFieldThatIsWrongGoesThereAndSavesOnceItIsMended) {
    const struct {
        int control;
        const char *wrong, *begin, *right;
    } fields[] = {{IDC_BAUD, "fast", "Baud rate: ", "10400"},
                  {IDC_AUTHOR, "A <b>", "Author: ", "A"},
                  {IDC_VERSION, "12345678901234567890", "Version: 20 characters", "1"},
                  {IDC_DESCRIPTION, "this & that", "Description: ", "this"}};
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  for (const auto& field : fields) {
                      DialogPerson::Type(dialog, field.control, field.wrong);
                      DialogPerson::Press(dialog, IDOK);
                      EXPECT_EQ(DialogPerson::AnswerBox(kEditor, IDOK).find(field.begin), 0U) << field.begin;
                      EXPECT_TRUE(Eventually([&] { return Focused(dialog) == field.control; })) << Focused(dialog);
                      EXPECT_EQ(Saved(), kSmallDefinition);
                      DialogPerson::Type(dialog, field.control, field.right);
                  }
                  DialogPerson::Press(dialog, IDOK);
              }),
              1);
    EXPECT_NE(Saved().find("<baud>10400</baud>"), std::string::npos);
}

TEST_F(HeaderDialogTest, TheItemBrowserChoosesACommand) {
    const DialogLook browser = {"ADX Item Browser", 1001};
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  DialogPerson::Press(dialog, IDC_BROWSE_DISCONNECT);
                  const HWND items = DialogPerson::Await(browser);
                  EXPECT_FALSE(::IsWindowEnabled(dialog));
                  const HWND list = ::GetDlgItem(items, 1001);
                  ::SetFocus(list);
                  ::SendMessageA(list, WM_KEYDOWN, VK_END, 0);
                  DialogPerson::Press(items, IDOK);
                  DialogPerson::AwaitEnd(items);
                  EXPECT_TRUE(Eventually([=] { return Chosen(dialog, IDC_COMMAND_DISCONNECT) == "End (ENDALL)"; }));
                  DialogPerson::Press(dialog, IDC_BROWSE);
                  DialogPerson::Press(DialogPerson::Await(browser), IDCANCEL);
                  EXPECT_TRUE(Eventually([=] { return ::IsWindowEnabled(dialog) != 0; }));
                  EXPECT_EQ(Chosen(dialog, IDC_COMMAND), "GHOST (not in this definition)");
                  DialogPerson::Press(dialog, IDOK);
              }),
              1);
    EXPECT_NE(Saved().find("<disconnectcmd>ENDALL</disconnectcmd>"), std::string::npos);
}

}  // namespace
}  // namespace corvex::test
