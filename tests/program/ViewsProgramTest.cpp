#include "tests/program/ViewsProgramTest.h"

#include "tests/program/GaugePictures.h"
#include "tests/program/HostPath.h"

namespace corvex::test {

void ViewsProgramTest::TearDown() {
    eyes_.reset();
    ProgramTest::TearDown();
}

std::string ViewsProgramTest::Put(const std::string& file, const SmallDefinition& definition) const {
    folder.Files().Put(file, definition.Text());
    return folder.Name(file);
}

void ViewsProgramTest::StartWith(const SmallDefinition& definition, const std::vector<LoggedReply>& log) {
    std::map<std::string, std::string> settings{{"lastadxpath", Put("own.adx", definition)}};
    if (!log.empty()) {
        folder.Files().Put("drive.xdl", MakeReplyLog(log));
        settings["lastxdlpath"] = folder.Name("drive.xdl");
    }
    Settle(settings);
    Start();
    ExpectOutput("Loaded " + folder.Name("own.adx"));
}

void ViewsProgramTest::Serve(const std::vector<LoggedReply>& replies, const std::string& definition) {
    folder.Files().Put("served.xdl", MakeReplyLog(replies));
    const std::string adx = definition.empty() ? HostPath(folder.Name("own.adx")) : definition;
    engines.Start({"--pace", "--replay", HostPath(folder.Name("served.xdl")), adx});
}

void ViewsProgramTest::Scan(const std::vector<LoggedReply>& replies) {
    Serve(replies);
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
}

void ViewsProgramTest::StopScan() {
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
}

void ViewsProgramTest::Play() {
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
}

void ViewsProgramTest::ExpectPlayedToTheEnd() {
    ExpectOutput("Playback stopped");
    ExpectLeft("ALDL: Not Connected");
}

void ViewsProgramTest::Load(const std::string& path) {
    Window().Send(kLoadDefinition);
    ChooseFile(program->Id(), "Select ADX...", path);
    const auto isLoaded = [&] {
        const std::vector<std::string> lines = Window().OutputLines();
        return !lines.empty() && lines.back() == "Loaded " + path;
    };
    EXPECT_TRUE(Eventually(isLoaded)) << Window().Output();
}

const Eyes& ViewsProgramTest::Look() {
    if (!eyes_) eyes_.emplace(Window().Handle());
    return *eyes_;
}

void ViewsProgramTest::ExpectNeedle(int gauge, int value) {
    EXPECT_TRUE(Eventually([&] { return Dash().Needle(gauge) == value; }))
        << "dial " << gauge << " shows " << Dash().Needle(gauge) << ", not " << value;
}

void ViewsProgramTest::ExpectDial(int gauge, const std::string& title, const std::vector<float>& shown) {
    const Picture wanted = DialPicture(Dash().Gauge(gauge), title, shown);
    EXPECT_TRUE(Eventually([&] { return Look().Of(Dash().Gauge(gauge)) == wanted; }))
        << "dial " << gauge << " is not " << title << " at " << shown.back() << " but " << Dash().Title(gauge) << " at "
        << Dash().Needle(gauge);
}

void ViewsProgramTest::ExpectReadout(int gauge, const std::string& title, float value) {
    const Picture wanted = ReadoutPicture(Dash().Gauge(gauge), title, value);
    EXPECT_TRUE(Eventually([&] { return Look().Of(Dash().Gauge(gauge)) == wanted; }))
        << "gauge " << gauge << " is not a readout of " << title << " at " << value;
}

void ViewsProgramTest::ExpectLamp(int gauge, const std::string& title, bool isOn) {
    const Picture wanted = LampPicture(Dash().Gauge(gauge), title, isOn);
    EXPECT_TRUE(Eventually([&] { return Look().Of(Dash().Gauge(gauge)) == wanted; }))
        << "gauge " << gauge << " is not a lamp of " << title << " that is " << (isOn ? "on" : "off");
}

void ViewsProgramTest::ExpectRows(const std::vector<std::string>& rows) {
    EXPECT_TRUE(Eventually([&] { return Lists().Rows() == rows; }));
    EXPECT_EQ(Lists().Rows(), rows);
}

}  // namespace corvex::test
