#include "tests/program/ProgramTest.h"

namespace corvex::test {
namespace {

constexpr int kTreeOk = 1000, kTreeCancel = 1001;

class Dialogs : public ProgramTest {
protected:
    void OpenPreferences() {
        Window().Send(kPreferences);
        const auto isOpen = [this] {
            preferences = FindTopWindow(program->Id(), "QZPROPTREECONTAINER", "Preferences");
            return preferences != nullptr && !::IsWindowEnabled(Window().Handle());
        };
        ASSERT_TRUE(Eventually(isOpen));
    }
    // The field of the page on show.
    HWND PortDigit() const {
        for (HWND window : AllBelow(preferences)) {
            if (ClassOf(window) == "Edit" && ::IsWindowVisible(window)) return window;
        }
        return nullptr;
    }
    void PressAndExpectGone(int button) {
        ::PostMessageA(preferences, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(preferences, button)));
        EXPECT_TRUE(Eventually([this] { return !::IsWindow(preferences); }));
        EXPECT_TRUE(Eventually([this] { return ::IsWindowEnabled(Window().Handle()) != FALSE; }));
    }
    HWND preferences = nullptr;
};

TEST_F(Dialogs, AboutTellsTheVersionAndGoes) {
    Settle();
    Start();
    for (const int button : {IDOK, IDCANCEL}) {
        Window().Send(kAbout);
        HWND about = WaitForDialog(program->Id(), "About");
        EXPECT_FALSE(::IsWindowEnabled(Window().Handle()));
        EXPECT_NE(FindBelow(about, "Static"), nullptr);
        const std::string version = TextOf(FindBelow(about, kVersionId));
        EXPECT_EQ(version.find_first_not_of("0123456789."), std::string::npos) << version;
        EXPECT_GE(version.size(), 12U) << version;
        PressButton(about, button);
    }
}

TEST_F(Dialogs, PreferencesChangeTheDigitOfThePort) {
    Settle();
    Start();
    OpenPreferences();
    EXPECT_EQ(TextOf(PortDigit()), TestPort().substr(3));
    Ask(PortDigit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("7"));
    PressAndExpectGone(kTreeOk);
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("comport"), "COM7");
}

TEST_F(Dialogs, CancelledPreferencesChangeNothing) {
    Settle();
    Start();
    OpenPreferences();
    Ask(PortDigit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("7"));
    PressAndExpectGone(kTreeCancel);
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("comport"), TestPort());
}

TEST_F(Dialogs, AMenuItemOfNothingDoesNothing) {
    Settle();
    Start();
    const std::string before = Window().Title();
    Window().Send(kSpeedCustom);
    Window().Send(kSpeed200);
    EXPECT_TRUE(Eventually([&] { return Window().Title().find("(Speed: 200%)") != std::string::npos; }));
    Window().Send(kSpeed100);
    EXPECT_TRUE(Eventually([&] { return Window().Title() == before; }));
}

TEST_F(Dialogs, ExitEndsTheProgram) {
    Settle();
    Start();
    Window().Send(kExit);
    EXPECT_EQ(program->WaitForExit(30000), std::optional<DWORD>(0));
}

}  // namespace
}  // namespace corvex::test
