#include "tests/program/ViewsProgramTest.h"

#include "tests/program/driver/GaugePictures.h"

namespace corvex::test {

namespace {

constexpr std::size_t kReplySize = 24;

}  // namespace

void ViewsProgramTest::TearDown() {
    eyes_.reset();
    ProgramTest::TearDown();
}

AdxText ViewsProgramTest::Commands() {
    return AdxText()
        .Header("CONNECT", "MONITOR")
        .Send("POLL", kReplySize, {0xA0, 0x01})
        .Send("OTHER", kReplySize)
        .Silence("PAUSE", 20)
        .Macro("CONNECT", {"PAUSE"})
        .Macro("MONITOR", {"POLL"});
}

std::string ViewsProgramTest::Shown(const std::string& command) {
    return AdxParent(command) + AdxText::Alarms("10", "200") + AdxTag("units", "unit") +
           "<range low=\"0\" high=\"255\" />" + AdxTag("digcount", "1") + AdxTag("outputtype", "3");
}

std::string ViewsProgramTest::Lit() {
    return AdxParent("POLL") + AdxTag("flags", "0x00000004") + "<ALARMONSET color=\"0x0000C000\" />" +
           "<ALARMONNOTSET color=\"0x00000000\" />";
}

LoggedReply ViewsProgramTest::Poll(std::vector<std::uint8_t> bytes, std::uint32_t time) {
    bytes.resize(kReplySize);
    return {"POLL", bytes, time};
}

void ViewsProgramTest::StartWith(const std::string& definition) {
    Settle({{"lastadxpath", folder.Files().Put("own.adx", definition)}});
    Start();
    ExpectOutput("Loaded " + folder.Name("own.adx"));
}

void ViewsProgramTest::Scan(const std::vector<LoggedReply>& replies) {
    folder.Files().Put("served.xdl", MakeLog(replies));
    engines.Start({"--pace", "--replay", HostPath(folder.Name("served.xdl")), HostPath(folder.Name("own.adx"))});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
}

void ViewsProgramTest::StopScan() {
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
}

const Eyes& ViewsProgramTest::Look() {
    if (!eyes_) eyes_.emplace(Window().Handle());
    return *eyes_;
}

void ViewsProgramTest::ExpectNeedle(int gauge, int value) {
    EXPECT_TRUE(Eventually([&] { return Dash().Needle(gauge) == value; }))
        << "dial " << gauge << " shows " << Dash().Needle(gauge) << ", not " << value;
}

void ViewsProgramTest::ExpectLook(int gauge, const std::function<Picture(HWND)>& wanted, const std::string& what) {
    // Its size may be about to change.
    const auto isSo = [&] {
        HWND window = Dash().Gauge(gauge);
        return window != nullptr && Look().Of(window) == wanted(window);
    };
    EXPECT_TRUE(Eventually(isSo)) << "gauge " << gauge << " is not " << what;
}

void ViewsProgramTest::ExpectDial(int gauge, const std::string& title, const std::vector<float>& shown) {
    ExpectLook(
        gauge, [&](HWND size) { return DialPicture(size, title, shown); },
        "a dial of " + title + " at " + std::to_string(shown.back()));
}

void ViewsProgramTest::ExpectReadout(int gauge, const std::string& title, float value) {
    ExpectLook(
        gauge, [&](HWND size) { return ReadoutPicture(size, title, value); },
        "a readout of " + title + " at " + std::to_string(value));
}

void ViewsProgramTest::ExpectLamp(int gauge, const std::string& title, bool isOn) {
    ExpectLook(
        gauge, [&](HWND size) { return LampPicture(size, title, isOn); },
        "a lamp of " + title + (isOn ? " that is on" : " that is off"));
}

}  // namespace corvex::test
