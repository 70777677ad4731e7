#include <gtest/gtest.h>

#include "session/base/VersionText.h"
#include "session/window/AboutBox.h"
#include "session/window/DialogResources.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/controls/window/PaintTestHelper.h"
#include "tests/support/TestFolder.h"
#include "tests/views/browser/DialogPerson.h"

namespace corvex::test {
namespace {

class AboutBoxTest : public ::testing::Test {
protected:
    AboutBoxTest() {
        session.instance = ::GetModuleHandleA(nullptr);
        session.mainWindow = main.Window();
    }
    // Opens it for somebody who does this there.
    void Show(std::function<void(HWND)> work) {
        const DialogPerson user({"About", IDC_ABOUT_VERSION}, std::move(work));
        ShowAboutBox(session);
        EXPECT_TRUE(::IsWindowEnabled(main.Window()));
    }

    SessionState session;
    TestWindow main{WS_POPUP | WS_VISIBLE};
};

TEST_F(AboutBoxTest, TellsTheVersionOfTheProgramsFile) {
    char version[64] = "";
    ASSERT_NE(0, GetVersionText(SystemProgramPlace().FileName(nullptr).c_str(), version, sizeof version));
    Show([&](HWND about) {
        EXPECT_EQ(version, DialogPerson::Text(about, IDC_ABOUT_VERSION));
        EXPECT_EQ(1012, IDC_ABOUT_VERSION);
        EXPECT_EQ("Corvex Version", TextOfWindow(::GetWindow(about, GW_CHILD)));
        EXPECT_FALSE(::IsWindowEnabled(main.Window()));
        EXPECT_EQ(main.Window(), ::GetWindow(about, GW_OWNER));
        SavePicture(about, "About");
        DialogPerson::Press(about, IDOK);
    });
}

TEST_F(AboutBoxTest, TellsNothingOfAFileWithoutAVersion) {
    FixedProgramPlace place;
    place.file = "no such file";
    const ScopedProgramPlace scoped(place);
    Show([](HWND about) {
        EXPECT_EQ("", DialogPerson::Text(about, IDC_ABOUT_VERSION));
        DialogPerson::Press(about, IDCANCEL);
    });
}

TEST_F(AboutBoxTest, TheCaptionsButtonClosesItToo) {
    Show([](HWND about) { ::SendMessageA(about, WM_CLOSE, 0, 0); });
}

}  // namespace
}  // namespace corvex::test
