#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"
#include "tests/program/driver/ReplyLines.h"

namespace corvex::test {
namespace {

// The definition is changed under a scan or a playback.
class DefinitionAtWork : public ProgramTest {
protected:
    void StartScan() {
        Settle();
        Start();
        Connect();
    }
    void StartPlayback() {
        folder.Files().Put("drive.xdl", MakeEvenLog(100, 50));
        Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
        Start();
        Window().Send(kPlay);
        ExpectLeft("Log Playing");
    }
    void Load() {
        Window().Send(kLoadDefinition);
        ChooseFile(program->Id(), "Select ADX...", Definition());
        ExpectLoadedLast(Definition());
    }
    void Import() {
        Window().Send(kImportDefinition);
        ChooseFile(program->Id(), "Select file to import...", folder.TakeExample("kestrel-legacy.ads"));
        // Once it is done there is no name any more.
        const auto isDone = [this] {
            Window().Send(kSpeed100);
            return Window().Title().find("ADX:   XDL:") != std::string::npos;
        };
        EXPECT_TRUE(Eventually(isDone)) << Window().Title();
    }
    void Edit() {
        Window().Send(kEditDefinition);
        HWND dialog = WaitForDialog(program->Id(), kEditorTitle);
        HWND author = nullptr;
        for (HWND window : AllBelow(dialog)) {
            if (ClassOf(window) == "Edit" && TextOf(window) == "The Corvex authors") author = window;
        }
        ASSERT_NE(author, nullptr);
        Ask(author, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Somebody else"));
        PressButton(dialog, IDOK);
        ExpectLoadedLast(Definition());
    }
    void ExpectScanWorks() {
        if (Window().LeftText() != "ALDL: Connected") {
            ExpectLeft("ALDL: Not Connected");
            Window().Send(kScan);
        }
        ExpectLeft("ALDL: Connected");
    }
};

TEST_F(DefinitionAtWork, IsLoadedAgainAndAgainDuringAScan) {
    StartScan();
    for (int i = 0; i < 4; ++i) {
        Load();
        ExpectScanWorks();
    }
}

TEST_F(DefinitionAtWork, IsImportedDuringAScan) {
    StartScan();
    Import();
    ExpectLeft("ALDL: Not Connected");
    Load();
    ExpectScanWorks();
}

TEST_F(DefinitionAtWork, IsEditedDuringAScan) {
    StartScan();
    Edit();
    ExpectScanWorks();
}

TEST_F(DefinitionAtWork, IsEditedDuringPlayback) {
    StartPlayback();
    Edit();
    ExpectLeft("ALDL: Not Connected");
}

TEST_F(DefinitionAtWork, IsLoadedDuringPlayback) {
    StartPlayback();
    Load();
    ExpectLeft("ALDL: Not Connected");
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
}

TEST_F(DefinitionAtWork, IsImportedDuringPlayback) {
    StartPlayback();
    Import();
    ExpectLeft("ALDL: Not Connected");
}

TEST_F(DefinitionAtWork, IsLoadedWhileALogIsPaused) {
    StartPlayback();
    Window().Send(kPause);
    ExpectLeft("Log Paused");
    Load();
    Resume();
    ExpectLeft("Log Playing");
}

TEST_F(DefinitionAtWork, IsLoadedDuringARecordingWhichIsSavedFirst) {
    StartScan();
    Window().Send(kRecord);
    ExpectLeft("Log Recording");
    Window().Send(kLoadDefinition);
    ChooseFile(program->Id(), "Select ADX...", Definition());
    ChooseFile(program->Id(), "Select/Create file to save...", folder.Name("drive.xdl"));
    ExpectOutput("Loaded " + Definition());
    EXPECT_TRUE(folder.Files().Has("drive.xdl"));
    ExpectScanWorks();
}

TEST_F(DefinitionAtWork, EndsARecordingThatIsBegunWhileItWaits) {
    Settle();
    // Its own delay keeps the end of the scan back for long enough.
    std::string text = folder.Files().Content("harrier-8192.adx");
    for (const std::string time : {"<totaltimeout>400<", "<totaltimeout>20<", "<replytimeout>200<"}) {
        const std::size_t at = text.find(time), digits = time.find('>') + 1;
        ASSERT_NE(at, std::string::npos);
        text.replace(at + digits, time.size() - 1 - digits, "5000");
    }
    folder.Files().Put("harrier-8192.adx", text);
    Start();
    engines.Start({"--silent"});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connecting...");
    Window().Send(kLoadDefinition);
    ChooseFile(program->Id(), "Select ADX...", Definition());
    Window().Send(kRecord);
    ChooseFile(program->Id(), "Select/Create file to save...", folder.Name("drive.xdl"));
    ExpectOutput("Loaded " + Definition());
    EXPECT_TRUE(folder.Files().Has("drive.xdl"));
    ExpectLeft("ALDL: Not Connected");
    ExpectBar({.play = true, .load = true});
}

}  // namespace
}  // namespace corvex::test
