#include "tests/program/LogFiles.h"
#include "tests/program/ProgramTest.h"
#include "tests/program/ReplyLines.h"

namespace corvex::test {
namespace {

constexpr char kEditor[] = "Corvex Definition Editor";

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
        HWND dialog = WaitForDialog(program->Id(), kEditor);
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

}  // namespace
}  // namespace corvex::test
