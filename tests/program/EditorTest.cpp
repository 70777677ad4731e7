#include "tests/program/ProgramTest.h"

namespace corvex::test {
namespace {

class Editor : public ProgramTest {};

TEST_F(Editor, SavesWhatWasEditedAndTheProgramLoadsIt) {
    Settle();
    Start();
    ExpectOutput("Loaded ");
    const std::size_t before = Window().OutputLines().size();
    Window().Send(kEditDefinition);
    HWND dialog = WaitForDialog(program->Id(), kEditorTitle);
    EXPECT_FALSE(::IsWindowEnabled(Window().Handle()));
    // The field that holds the author now.
    HWND author = nullptr;
    for (HWND window : AllBelow(dialog)) {
        if (ClassOf(window) == "Edit" && TextOf(window) == "The Corvex authors") author = window;
    }
    ASSERT_NE(author, nullptr);
    Ask(author, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Somebody else"));
    PressButton(dialog, IDOK);
    const std::string loaded = "Loaded " + Definition();
    EXPECT_TRUE(Eventually([&] {
        const std::vector<std::string> lines = Window().OutputLines();
        return lines.size() > before && lines.back() == loaded;
    })) << Window().Output();
    EXPECT_NE(folder.Files().Content("harrier-8192.adx").find("<author>Somebody else</author>"), std::string::npos);
}

TEST_F(Editor, LeavesTheFileAloneWhenCancelled) {
    Settle();
    Start();
    ExpectOutput("Loaded ");
    const std::string content = folder.Files().Content("harrier-8192.adx");
    Window().Send(kEditDefinition);
    CancelDialog(program->Id(), kEditorTitle);
    EXPECT_TRUE(Eventually([&] { return ::IsWindowEnabled(Window().Handle()) != FALSE; }));
    EXPECT_EQ(folder.Files().Content("harrier-8192.adx"), content);
    EXPECT_EQ(Window().OutputLines().size(), 1U);
}

TEST_F(Editor, AsksForTheNameOfANewDefinition) {
    Settle();
    Start();
    Window().Send(kNewDefinition);
    HWND dialog = WaitForDialog(program->Id(), kEditorTitle);
    ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    // Whatever it calls the box in which it asks.
    HWND asking = nullptr;
    ASSERT_TRUE(Eventually([&] {
        for (HWND window : TopWindowsOf(program->Id())) {
            if (window != dialog && ClassOf(window) == kDialogClass) asking = window;
        }
        return asking != nullptr;
    }));
    ChooseFile(program->Id(), TextOf(asking), folder.Name("new.adx"));
    ExpectOutput("Loaded " + folder.Name("new.adx"));
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), folder.Name("new.adx"));
}

}  // namespace
}  // namespace corvex::test
