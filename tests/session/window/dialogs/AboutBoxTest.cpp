#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/base/VersionText.h"
#include "session/window/AboutBox.h"
#include "session/window/DialogResources.h"
#include "tests/session/window/dialogs/DialogOperator.h"
#include "tests/support/TestFolder.h"
#include "tests/views/WindowPicture.h"

namespace corvex::test {
namespace {

class AboutBoxTest : public ::testing::Test {
protected:
    AboutBoxTest() {
        main = ::CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr, nullptr,
                                 nullptr);
        session.instance = ::GetModuleHandleA(nullptr);
        session.mainWindow = main;
    }
    ~AboutBoxTest() override { ::DestroyWindow(main); }

    SessionState session;
    HWND main;
};

TEST_F(AboutBoxTest, TellsTheVersionOfTheProgramsFile) {
    char version[64] = "";
    ASSERT_NE(0, GetVersionText(SystemProgramPlace().FileName(nullptr).c_str(), version, sizeof version));
    const DialogOperator user("About", [&](HWND about) {
        EXPECT_EQ(version, TextOf(::GetDlgItem(about, IDC_ABOUT_VERSION)));
        EXPECT_EQ(1012, IDC_ABOUT_VERSION);
        EXPECT_EQ("Corvex Version", TextOf(::GetWindow(about, GW_CHILD)));
        EXPECT_FALSE(::IsWindowEnabled(main));
        EXPECT_EQ(main, ::GetWindow(about, GW_OWNER));
        Press(about, IDOK);
    });
    ShowAboutBox(session);
    EXPECT_TRUE(::IsWindowEnabled(main));
}

TEST_F(AboutBoxTest, TellsNothingOfAFileWithoutAVersion) {
    FixedProgramPlace place;
    place.file = "no such file";
    const ScopedProgramPlace scoped(place);
    const DialogOperator user("About", [](HWND about) {
        EXPECT_EQ("", TextOf(::GetDlgItem(about, IDC_ABOUT_VERSION)));
        Press(about, IDOK);
    });
    ShowAboutBox(session);
}

TEST_F(AboutBoxTest, CancelAndTheCaptionsButtonCloseItToo) {
    {
        const DialogOperator user("About", [](HWND about) { Press(about, IDCANCEL); });
        ShowAboutBox(session);
    }
    const DialogOperator user("About", [](HWND about) { ::SendMessageA(about, WM_CLOSE, 0, 0); });
    ShowAboutBox(session);
    EXPECT_TRUE(::IsWindowEnabled(main));
}

TEST_F(AboutBoxTest, HasRoomForItsTexts) {
    const DialogOperator user("About", [](HWND about) {
        SavePicture(about, "About");
        Press(about, IDOK);
    });
    ShowAboutBox(session);
}

}  // namespace
}  // namespace corvex::test
