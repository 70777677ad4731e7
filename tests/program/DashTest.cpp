#include "tests/program/ViewsProgramTest.h"
#include "tests/program/driver/GaugePictures.h"
#include "tests/program/driver/ReplyLines.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kForever = 1000000;  // ms; no test waits for it

LoggedReply Poll(std::vector<std::uint8_t> bytes, std::uint32_t time = 0) {
    return {"POLL", SmallDefinition::Reply(std::move(bytes)), time};
}

LoggedReply Other(std::vector<std::uint8_t> bytes, std::uint32_t time = 0) {
    return {"OTHER", SmallDefinition::Reply(std::move(bytes)), time};
}

// A dial, a readout and a lamp of the poll, one readout of the other command, and one of every command.
SmallDefinition WithFiveGauges(const std::vector<std::string>& connect = {"PAUSE"},
                               const std::vector<std::string>& monitor = {"POLL"}) {
    SmallDefinition definition(connect, monitor);
    definition.Trigger("CATCHUP", 0x10).Value("SPEED", "Speed", "POLL", 0).Value("LOAD", "Load", "POLL", 1, "X/2");
    definition.Bit("FAN", "Fan", "POLL", 2).Value("GEAR", "Gear", "OTHER", 0).Value("ANY", "Any", "", 0);
    return definition.Dashboard("Main", {{0, "SPEED"}, {1, "LOAD"}, {2, "FAN"}, {1, "GEAR"}, {1, "ANY"}});
}

class DashOnShow : public ViewsProgramTest {
protected:
    void ExpectShown(float speed, float load, bool fan, const std::vector<float>& speeds) {
        ExpectNeedle(0, static_cast<int>(speed));
        ExpectDial(0, "Speed", speeds);
        ExpectReadout(1, "Load", load);
        ExpectLamp(2, "Fan", fan);
    }
    // Of a monitor command that is a trigger and a pause.
    void ExpectRounds(std::size_t rounds) {
        const std::size_t lines = Window().OutputLines().size();
        EXPECT_TRUE(Eventually([&] { return Window().OutputLines().size() > lines + 4 * rounds; }));
    }
    // A reply of the example: the words that its first dashboard shows.
    static LoggedReply Block(std::uint16_t rpm, std::uint8_t speed, std::uint8_t battery, std::uint8_t lamps) {
        LoggedReply reply{"POLL", std::vector<std::uint8_t>(63), 0};
        reply.bytes[3] = static_cast<std::uint8_t>(rpm >> 8);
        reply.bytes[4] = static_cast<std::uint8_t>(rpm & 0xFFU);
        reply.bytes[3 + 0x09] = speed;
        reply.bytes[3 + 0x08] = battery;
        reply.bytes[3 + 0x38] = lamps;
        return reply;
    }
    void ExpectBattery(float volts) {
        const ReadoutWords words{"Battery Voltage", "V", 1, 11.5F, 15.2F};
        ExpectLook(
            3, [&](HWND size) { return ReadoutPicture(size, words, volts); }, std::to_string(volts) + " V");
    }
};

TEST_F(DashOnShow, OfTheExampleMovesDuringAScan) {
    Settle();
    Start();
    Window().ShowTab(kDashTab);
    // Half a minute of the line's time would be 360 replies; here each engine state lasts a second and a half.
    std::vector<LoggedReply> drive(18, Block(800 * 8, 0, 118, 0x01));
    drive.insert(drive.end(), 18, Block(3456 * 8, 120, 141, 0x00));
    Serve(drive, CORVEX_SOURCE_DIR "/examples/harrier-8192.adx");
    Window().Send(kScan);
    for (int round = 0; round < 2; ++round) {
        ExpectNeedle(0, 800);
        ExpectBattery(11.8F);
        ExpectLamp(6, "Check Engine Lamp", true);
        ExpectNeedle(0, 3456);
        ExpectNeedle(1, 120);
        ExpectBattery(14.1F);
        ExpectLamp(6, "Check Engine Lamp", false);
    }
    const DashView dash = Dash();
    EXPECT_EQ(dash.Title(0), "Engine Speed");
    EXPECT_EQ(dash.Title(1), "Vehicle Speed");
    EXPECT_EQ(dash.Dashboards(), (std::vector<std::string>{"Driving", "Fuel and Air", "Large Window"}));
}

TEST_F(DashOnShow, ShowsWhatTheEngineSends) {
    StartWith(WithFiveGauges());
    Window().ShowTab(kDashTab);
    ExpectShown(0.0F, 0.0F, false, {0.0F});
    Scan({Poll({120, 101, 1})});
    ExpectShown(120.0F, 50.5F, true, {0.0F, 120.0F});
    ExpectReadout(4, "Any", 120.0F);
    StopScan();
    Scan({Poll({7, 250, 0})});
    ExpectShown(7.0F, 125.0F, false, {0.0F, 120.0F, 7.0F});
    ExpectReadout(4, "Any", 7.0F);
    ExpectReadout(3, "Gear", 0.0F);
}

TEST_F(DashOnShow, ColoursTheDigitsInAlarm) {
    StartWith(WithFiveGauges());
    Window().ShowTab(kDashTab);
    const auto count = [&](COLORREF colour) {
        const Picture picture = Look().Of(Dash().Gauge(4));
        return picture.Count({0, 0, picture.width, picture.height}, colour);
    };
    Scan({Poll({199})});
    ExpectReadout(4, "Any", 199.0F);
    EXPECT_EQ(count(0x0000FF), 0);
    StopScan();
    Scan({Poll({200})});
    EXPECT_TRUE(Eventually([&] { return count(0x0000FF) > 20; })) << "a limit counts from its own value on";
    StopScan();
    Scan({Poll({9})});
    EXPECT_TRUE(Eventually([&] { return count(0x0080FF) > 20; }));
    EXPECT_EQ(count(0x0000FF), 0);
}

TEST_F(DashOnShow, ShowsAPlayback) {
    StartWith(WithFiveGauges(), {Poll({80, 20, 1}), Poll({90, 30, 0}, kForever)});
    Window().ShowTab(kDashTab);
    Play();
    ExpectShown(80.0F, 10.0F, true, {0.0F, 80.0F});
    EXPECT_EQ(Window().LeftText(), "Log Playing");
}

TEST_F(DashOnShow, KeepsTheLastValuesOfAPlayback) {
    StartWith(WithFiveGauges(), {Poll({80, 20, 1}), Other({60}, 50), Poll({110, 30, 1}, 100)});
    Window().ShowTab(kDashTab);
    PlayToTheEnd();
    ExpectShown(110.0F, 15.0F, true, {0.0F, 80.0F, 110.0F});
    ExpectReadout(3, "Gear", 60.0F);
    ExpectReadout(4, "Any", 110.0F);
    Window().ShowTab(kListTab);
    Window().ShowTab(kDashTab);
    ExpectShown(110.0F, 15.0F, true, {0.0F, 80.0F, 110.0F});
}

TEST_F(DashOnShow, ShowsTheDriveThatWasRecorded) {
    StartWith(WithFiveGauges());
    Window().ShowTab(kDashTab);
    Scan({Poll({120, 101, 1})});
    Window().Send(kRecord);
    ExpectLeft("Log Recording");
    EXPECT_TRUE(Eventually([&] { return folder.Size("temp.xdl") > 400; }));
    Window().Send(kStop);
    ChooseFile(program->Id(), "Select/Create file to save...", folder.Name("drive.xdl"));
    ExpectOutput("Log saved to ");
    StopScan();
    Scan({Poll({7, 250, 0})});
    ExpectReadout(1, "Load", 125.0F);
    ExpectNeedle(0, 7);
    StopScan();
    PlayToTheEnd();
    ExpectShown(120.0F, 50.5F, true, {0.0F, 120.0F, 7.0F, 120.0F});
}

TEST_F(DashOnShow, KeepsWhatAnotherCommandSaidLast) {
    StartWith(WithFiveGauges({"OTHER"}, {"POLL"}));
    Window().ShowTab(kDashTab);
    Scan({Other({150}), Poll({77, 40, 1}), Poll({78, 40, 1})});
    for (const int speed : {77, 78, 77}) {
        ExpectNeedle(0, speed);
        ExpectReadout(3, "Gear", 150.0F);
    }
    ExpectReadout(4, "Any", 77.0F);
    ExpectReadout(4, "Any", 78.0F);
}

TEST_F(DashOnShow, CatchesUpAtATriggerWithTheLastWordsAndNoSample) {
    StartWith(WithFiveGauges({"OTHER", "POLL"}, {"CATCHUP", "PAUSE"}));
    Window().ShowTab(kListTab);
    Scan({Other({150}), Poll({77, 40, 1})});
    EXPECT_TRUE(Eventually([&] { return CountReplies(Window().OutputLines()).good == 2; }));
    ExpectRounds(3);
    EXPECT_EQ(Dash().Needle(0), 0) << "out of sight";
    Window().ShowTab(kDashTab);
    ExpectReadout(4, "Any", 77.0F);
    ExpectReadout(3, "Gear", 0.0F);
    ExpectShown(0.0F, 0.0F, false, {0.0F});
    ExpectRounds(50);
    EXPECT_EQ(CountReplies(Window().OutputLines()).All(), 2);
    EXPECT_TRUE(Window().RightText().ends_with("   Errors: 0")) << Window().RightText();
}

}  // namespace
}  // namespace corvex::test
