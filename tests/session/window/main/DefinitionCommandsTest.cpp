#include <cstring>
#include <filesystem>

#include "tests/session/window/main/DefinitionCommandsHelper.h"
#include "tests/support/Eventually.h"

namespace corvex::test {
namespace {

TEST_F(DefinitionCommandsTest, LoadsTheLastOneAtStart) {
    StartWithDefinition();
    EXPECT_EQ("Loaded " + folder.Name("one.adx"), Output());
    EXPECT_EQ(2U, session.definition.GetCount());
    EXPECT_NE(std::string::npos, Title().find("one.adx"));
    EXPECT_EQ(0, ::SendMessageA(AsWindow(session.statusRight), WM_USER + 8, 0, 0)) << "the progress is put back";
}

TEST_F(DefinitionCommandsTest, LeavesTheLastOneWhenTheSettingsSaySo) {
    const std::string path = PutDefinition("one.adx");
    folder.Put("Settings.dat", "lastadxpath=" + path + "\nloadlastdef=0\n");
    Start();
    EXPECT_EQ("", Output());
    EXPECT_EQ(0U, session.definition.GetCount());
    EXPECT_EQ(path, Path());
}

TEST_F(DefinitionCommandsTest, ABrokenOneIsToldWithItsReason) {
    Start();
    EXPECT_EQ(0U, Output().find("FAILED to Load ")) << "a first start says that there is none";
    EXPECT_TRUE(Says("Choose one with File, Load Definition (Ctrl+L)"));
    Load(PutDefinition("one.adx"));
    LoadBroken();
    ADXDefinition other;
    char reason[ADXDefinition::kErrorSize] = {};
    ASSERT_EQ(0, other.Load(folder.Name("broken.adx").c_str(), reason));
    ASSERT_NE('\0', reason[0]);
    EXPECT_TRUE(Says("\r\nFAILED to Load " + folder.Name("broken.adx") + "\r\n" + reason));
    EXPECT_EQ(folder.Name("one.adx"), Path());
    folder.Put("percent.adx", "<ADXFORMAT version=\"0.50\" />\n<%n%s%n></%d>");
    Load(folder.Name("percent.adx"));
    EXPECT_TRUE(Says("FAILED to Load " + folder.Name("percent.adx"))) << "and the reason as it is";
}

TEST_F(DefinitionCommandsTest, APathIsCutWhereTheSettingsEnd) {
    Start();
    Load(std::string(400, 'x'));
    EXPECT_TRUE(Says("FAILED to Load xxx"));
    EXPECT_EQ("", Path());
}

TEST_F(DefinitionCommandsTest, AnImportForgetsTheNameButNotTheTitleEvenOneThatFails) {
    StartWithDefinition();
    const std::string title = Title();
    commands().ImportDefinition(folder.Name("none.ads"));
    EXPECT_TRUE(Says("FAILED to Import"));
    EXPECT_EQ("", Path());
    EXPECT_EQ(2U, session.definition.GetCount());
    Load(folder.Name("one.adx"));
    Import();
    EXPECT_GT(session.definition.GetCount(), 2U);
    EXPECT_EQ("", Path());
    EXPECT_EQ(title, Title());
}

TEST_F(DefinitionCommandsTest, AnImportOfNothingSaysSo) {
    StartWithDefinition();
    folder.Put("nothing.ads", "no block in it\r\n");
    commands().ImportDefinition(folder.Name("nothing.ads"));
    EXPECT_TRUE(Says("Nothing was imported: " + folder.Name("nothing.ads") + " holds nothing for a definition"));
    Import();
    EXPECT_FALSE(Says("kestrel-legacy.ads holds nothing"));
}

TEST_F(DefinitionCommandsTest, ASaveIsToldAndSoIsWhatKeepsItFromBeing) {
    StartWithDefinition();
    Command(IDM_SAVE_DEFINITION);
    EXPECT_TRUE(Says("Saved " + folder.Name("one.adx")));
    const std::string elsewhere = folder.Name("away\\one.adx");
    std::strcpy(session.settings.lastadxpath, elsewhere.c_str());
    Command(IDM_SAVE_DEFINITION);
    EXPECT_TRUE(Says("FAILED to Save " + elsewhere + "\r\nIts folder is not there."));
    std::filesystem::create_directory(folder.Name("away"));
    std::filesystem::create_directory(elsewhere);
    Command(IDM_SAVE_DEFINITION);
    EXPECT_TRUE(Says("FAILED to Save " + elsewhere + "\r\nIt is a folder."));
}

TEST_F(DefinitionCommandsTest, SaveWritesWhereItCameFrom) {
    StartWithDefinition();
    folder.Put("one.adx", "");
    Command(IDM_SAVE_DEFINITION);
    EXPECT_NE(std::string::npos, folder.Content("one.adx").find("ADXMACRO"));
}

TEST_F(DefinitionCommandsTest, ARestIsNotSavedOverAGoodFileUntilALoadSucceeds) {
    StartWithDefinition();
    LoadBroken();
    const std::string good = folder.Content("one.adx");
    ExpectAsksForAName(IDM_SAVE_DEFINITION);
    EXPECT_EQ(good, folder.Content("one.adx"));
    Load(folder.Name("one.adx"));
    Command(IDM_SAVE_DEFINITION);
    EXPECT_NE(good, folder.Content("one.adx"));
}

TEST_F(DefinitionCommandsTest, AnImportIsEditedInTheFileThatItIsSavedTo) {
    StartWithDefinition();
    UseEditor();
    Import();
    ExpectAsksForAName(IDM_EDIT_DEFINITION);
    EXPECT_TRUE(edited.empty());
    EXPECT_GT(session.definition.GetCount(), 2U);
}

TEST_F(DefinitionCommandsTest, TheOtherTwoPromptsHaveTheirTitles) {
    Start();
    for (const auto& [command, title] : {std::pair<unsigned, const char*>{IDM_LOAD_DEFINITION, "Select ADX..."},
                                         {IDM_IMPORT_DEFINITION, "Select file to import..."}}) {
        DialogAnswer answer(title, IDCANCEL);
        Command(command);
        EXPECT_TRUE(answer.Came());
    }
}

TEST_F(DefinitionCommandsTest, TheLastPacketGoesWithItsDefinition) {
    StartWithDefinition();
    const std::uint8_t bytes[] = {1, 2};
    const auto isKeptAfter = [&](const std::function<void()>& work) {
        session.StoreLastPacket(LastPacket::Of({bytes, 2}, 5));
        work();
        return session.CopyLastPacket().size == 2 && session.CopyLastPacket().command == 5;
    };
    EXPECT_TRUE(isKeptAfter([&] { commands().ImportDefinition(folder.Name("none.ads")); }));
    for (const auto& work : std::vector<std::function<void()>>{[&] { Load(folder.Name("one.adx")); },
                                                               [&] { LoadBroken(); }, [&] { Import(); }}) {
        EXPECT_FALSE(isKeptAfter(work));
        EXPECT_EQ(0U, session.CopyLastPacket().size);
        EXPECT_EQ(0U, session.CopyLastPacket().command);
    }
}

TEST_F(DefinitionCommandsTest, AFileThatSomebodyWritesIsNotRead) {
    UseDefinition();
    const std::string other = PutDefinition("other.adx");
    Start();
    {
        const std::ofstream writer(other, std::ios::app);
        Load(other);
        EXPECT_TRUE(Says("FAILED to Load " + other));
    }
    Load(other);
    EXPECT_TRUE(Says("Loaded " + other));
}

TEST_F(DefinitionCommandsTest, ALoadDuringAScanEndsItFirst) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    const std::string other = PutDefinition("other.adx");
    Load(other);
    EXPECT_FALSE(Says("Loaded " + other));  // the main thread has not waited for it
    ASSERT_TRUE(LoadsWithin(other));
    EXPECT_TRUE(desktop.IsQuiet());
    EXPECT_EQ(kNotConnected, session.connectionState);
    EXPECT_EQ(other, Path());
}

TEST_F(DefinitionCommandsTest, ALoadDuringARecordingOffersToSaveIt) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    ASSERT_NO_FATAL_FAILURE(Record());
    const std::string other = PutDefinition("other.adx");
    {
        DialogAnswer answer("Select/Create file to save...", IDCANCEL);
        Load(other);
        EXPECT_TRUE(answer.Came());
    }
    ASSERT_TRUE(LoadsWithin(other));
    EXPECT_TRUE(folder.Has("temp.xdl"));
}

TEST_F(DefinitionCommandsTest, TwoLoadsInARowComeInTheirOrder) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    const std::string first = PutDefinition("first.adx"), second = PutDefinition("second.adx");
    Load(first);
    Load(second);
    ASSERT_TRUE(LoadsWithin(second));
    EXPECT_LT(Output().find("Loaded " + first), Output().find("Loaded " + second));
    EXPECT_EQ(second, Path());
}

TEST_F(DefinitionCommandsTest, APlaybackBegunWhileALoadWaitsEndsToo) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    session.settings.SetLastLog(PutLog("long.xdl", {0, 60000}));
    const std::string other = PutDefinition("other.adx");
    Load(other);
    Command(IDM_PLAY);
    EXPECT_EQ(kLogPlaying, session.log.State());
    ASSERT_TRUE(LoadsWithin(other));
    EXPECT_FALSE(session.log.IsPlaying());
}

TEST_F(DefinitionCommandsTest, ALoadLeavesAPausedLogWhereItStands) {
    StartWithDefinition();
    // The pause drops the record that is waited for, and there must be one behind it.
    ASSERT_NO_FATAL_FAILURE(Play({0, 60000, 120000}));
    Command(IDM_PAUSE);
    ASSERT_TRUE(Rests(kLogReady));
    const std::string other = PutDefinition("other.adx");
    Load(other);
    ASSERT_TRUE(LoadsWithin(other));
    EXPECT_EQ(kLogReady, session.log.State());
    Command(IDM_PLAY);
    EXPECT_TRUE(Pumps([&] { return session.log.State() == kLogPlaying; }));
}

TEST_F(DefinitionCommandsTest, ARecordingBegunWhileALoadWaitsIsOfferedForSavingToo) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    const std::string other = PutDefinition("other.adx");
    Load(other);
    Command(IDM_RECORD);
    ASSERT_EQ(kLogRecording, session.log.State());
    // The timer goes on while the dialog is open, and the load waits for its answer.
    static std::atomic<int> ticks;
    ticks = 0;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { ++ticks; });
    bool early = true;
    DialogAnswer answer("Select/Create file to save...", IDCANCEL, [&] {
        const int from = ticks;
        EXPECT_TRUE(Eventually([&] { return ticks >= from + 10; }));
        early = Says("Loaded " + other);
    });
    EXPECT_TRUE(LoadsWithin(other));
    ::KillTimer(nullptr, timer);
    EXPECT_TRUE(answer.Came());
    EXPECT_FALSE(early);
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_TRUE(folder.Has("temp.xdl"));
}

}  // namespace
}  // namespace corvex::test
