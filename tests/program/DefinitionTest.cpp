#include "tests/program/ProgramTest.h"

namespace corvex::test {
namespace {

class DefinitionFile : public ProgramTest {};

TEST_F(DefinitionFile, IsLoadedByTheOpenDialogAndTheNextTimeByItself) {
    Settle({{"loadlastdef", "0"}});
    Start();
    EXPECT_EQ(Window().Output(), "");
    const std::string path = folder.TakeExample("osprey-multi.adx");
    Window().Send(kLoadDefinition);
    ChooseFile(program->Id(), "Select ADX...", path);
    ExpectLoadedLast(path);
    const std::string title = TitleOf(folder.ShortName("osprey-multi.adx"));
    EXPECT_TRUE(Eventually([&] { return Window().Title() == title; })) << Window().Title();
    CloseProgram();
    Settle({{"lastadxpath", folder.Settings().at("lastadxpath")}});
    Start();
    EXPECT_EQ(Window().OutputLines(), std::vector<std::string>{"Loaded " + path});
}

TEST_F(DefinitionFile, IsEditedDuringAScanAndLoadedWhenThatHasEnded) {
    Settle();
    Start();
    Connect();
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
    ExpectLoadedLast(Definition());
    EXPECT_NE(folder.Files().Content("harrier-8192.adx").find("<author>Somebody else</author>"), std::string::npos);
    ExpectLeft("ALDL: Not Connected");
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
}

}  // namespace
}  // namespace corvex::test
