// A recording from its first sample to its playback.
#include "tests/program/ProgramTest.h"
#include "tools/driver/LogFiles.h"

namespace corvex::test {
namespace {

class Log : public ProgramTest {};

TEST_F(Log, IsRecordedSavedUnderANewNameAndPlayedBack) {
    Settle();
    Start();
    Connect();
    Window().Send(kRecord);
    ExpectLeft("Log Recording");
    ExpectBar({.stop = true});
    EXPECT_TRUE(Eventually([&] { return folder.Size("temp.xdl") > 400; })) << Window().Output();
    EXPECT_NE(Window().RightText().find("Errors: 0"), std::string::npos) << Window().RightText();
    Window().Press(kLogToolbarId, kStopButton);
    WaitForDialog(program->Id(), kSaveLogTitle);
    const std::string before = Window().Output();
    EXPECT_TRUE(Eventually([&] { return Window().Output() != before; })) << "the scan waits for the dialog";
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectOutput("Log saved to " + folder.Name("drive.xdl"));
    ExpectLeft("ALDL: Connected");
    ExpectBar({.play = true, .record = true, .load = true});
    EXPECT_FALSE(folder.Files().Has("temp.xdl"));
    const std::string log = folder.Files().Content("drive.xdl");
    const LogHeader header = HeaderOf(log);
    EXPECT_EQ(header.version, 3U);
    EXPECT_EQ(header.endMark, log.size() + 1);
    EXPECT_GE(header.sampleCount, 3U);

    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
    ExpectBar({.slider = true, .stop = true, .pause = true});
    EXPECT_EQ(Window().SliderEnd(), static_cast<int>(header.sampleCount));
    ExpectOutput("Playback stopped");
    ExpectLeft("ALDL: Not Connected");
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastxdlpath"), folder.Name("drive.xdl"));
}

}  // namespace
}  // namespace corvex::test
