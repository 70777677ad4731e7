// A dashboard that was changed is not dropped without a question.
#include "tests/session/window/main/DefinitionCommandsHelper.h"

namespace corvex::test {
namespace {

constexpr char kQuestion[] = "Corvex";

class DashQuestionTest : public DefinitionCommandsTest {
protected:
    // The window closes without a question.
    ~DashQuestionTest() override { session.dashChanged = 0; }
    void StartChanged() {
        UseDefinition();
        serial.Answer({0xA0}, {3, 4}, 5);
        Start();
        UseEditor(1);
        session.dashChanged = 1;
        other = PutDefinition("other.adx");
    }
    // Does what asks, and answers.
    template <class Work>
    void Answer(int button, Work work) {
        DialogAnswer answer(kQuestion, button);
        work();
        EXPECT_TRUE(answer.Came());
        EXPECT_NE(std::string::npos, answer.Text().find("dashboard"));
    }
    // Whether the window is still there, once all is said.
    bool Stays() {
        Pump();
        return desktop.IsQuiet() && ::IsWindow(window) != FALSE;
    }
    LRESULT EndSession(LPARAM reason) { return ::SendMessageA(window, WM_QUERYENDSESSION, 0, reason); }
    std::string other;
};

TEST_F(DashQuestionTest, CancelledALoadAnImportAnEditAndANewOneLeaveAllAsItIs) {
    StartChanged();
    ASSERT_NO_FATAL_FAILURE(Connect());
    Command(IDM_RECORD);
    Answer(IDCANCEL, [&] { Load(other); });
    Answer(IDCANCEL, [&] { Import(); });
    Answer(IDCANCEL, [&] { Command(IDM_EDIT_DEFINITION); });
    Answer(IDCANCEL, [&] { Command(IDM_NEW_DEFINITION); });
    EXPECT_EQ(1U, session.dashChanged);
    EXPECT_TRUE(edited.empty());
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ(kConnected, session.connectionState);
    EXPECT_EQ(folder.Name("one.adx"), session.settings.lastadxpath);
}

TEST_F(DashQuestionTest, MonitorsThatWereChangedAreAskedAboutToo) {
    StartChanged();
    session.monitorsChanged = 1;
    Answer(IDCANCEL, [&] { Load(other); });  // about both
    session.dashChanged = 0;
    DialogAnswer answer(kQuestion, IDNO);
    Load(other);
    EXPECT_TRUE(answer.Came());
    EXPECT_EQ("The monitors were changed. Save the definition first?", answer.Text());
    EXPECT_EQ(0U, session.monitorsChanged);
}

TEST_F(DashQuestionTest, NoDropsItOnce) {
    StartChanged();
    const std::string good = folder.Content("one.adx");
    Answer(IDNO, [&] { Load(other); });
    EXPECT_TRUE(Says("Loaded " + other));
    EXPECT_EQ(good, folder.Content("one.adx"));
    Load(folder.Name("one.adx"));  // asks nothing
    session.dashChanged = 1;
    Answer(IDNO, [&] { Command(IDM_EDIT_DEFINITION); });  // and not again for the load of what was edited
    EXPECT_EQ(1U, edited.size());
    session.dashChanged = 1;
    Answer(IDNO, [&] { Import(); });
    EXPECT_EQ(0U, session.dashChanged);
}

TEST_F(DashQuestionTest, YesSavesItFirst) {
    StartChanged();
    const std::string before = folder.Content("one.adx");
    Answer(IDYES, [&] { Load(other); });
    EXPECT_NE(before, folder.Content("one.adx"));
    EXPECT_TRUE(Says("Loaded " + other));
    EXPECT_EQ(0U, session.dashChanged);
}

TEST_F(DashQuestionTest, YesIsSaveAsAfterAFailedLoad) {
    StartChanged();
    session.dashChanged = 0;
    LoadBroken();
    session.dashChanged = 1;
    const std::string before = folder.Content("one.adx");
    DialogAnswer name("Choose file to save to...", IDCANCEL);
    Answer(IDYES, [&] { Load(other); });
    EXPECT_TRUE(name.Came());
    EXPECT_FALSE(Says("Loaded " + other));
    EXPECT_EQ(before, folder.Content("one.adx"));
    EXPECT_EQ(1U, session.dashChanged);
}

TEST_F(DashQuestionTest, ASaveThatFailsDropsNothing) {
    StartChanged();
    std::filesystem::remove(folder.Name("one.adx"));
    std::filesystem::create_directory(folder.Name("one.adx"));
    Answer(IDYES, [&] { Load(other); });
    EXPECT_TRUE(Says("FAILED to Save"));
    EXPECT_FALSE(Says("Loaded " + other));
    EXPECT_EQ(1U, session.dashChanged);
}

TEST_F(DashQuestionTest, AChangeWhileALoadWaitsIsAskedAboutToo) {
    StartChanged();
    session.dashChanged = 0;
    ASSERT_NO_FATAL_FAILURE(Connect());
    Load(other);
    session.dashChanged = 1;
    Answer(IDYES, [&] { EXPECT_TRUE(Pumps([&] { return Says("Loaded " + other); })); });
    EXPECT_EQ(0U, session.dashChanged);
}

TEST_F(DashQuestionTest, AskedOnceWhenTheWindowIsClosed) {
    StartChanged();
    DialogAnswer answer(kQuestion, IDCANCEL, [&] {
        ::SendMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_EQ(FALSE, EndSession(0));
        HWND const first = ::FindWindowA(MAKEINTRESOURCEA(32770), kQuestion);
        EXPECT_EQ(nullptr, ::FindWindowExA(nullptr, first, MAKEINTRESOURCEA(32770), kQuestion));
    });
    Command(IDM_EXIT);
    EXPECT_TRUE(answer.Came());
    EXPECT_TRUE(Stays());
    EXPECT_EQ(1U, session.dashChanged);
    Answer(IDNO, [&] { ::SendMessageA(window, WM_CLOSE, 0, 0); });
    EXPECT_TRUE(Close());  // asks no more
}

TEST_F(DashQuestionTest, TheEndOfTheSessionAsksUnlessItIsUrgent) {
    StartChanged();
    EXPECT_EQ(TRUE, EndSession(static_cast<LPARAM>(ENDSESSION_CRITICAL)));
    Answer(IDCANCEL, [&] { EXPECT_EQ(FALSE, EndSession(0)); });
    Answer(IDYES, [&] { EXPECT_EQ(TRUE, EndSession(0)); });
    EXPECT_EQ(TRUE, EndSession(0));
}

}  // namespace
}  // namespace corvex::test
