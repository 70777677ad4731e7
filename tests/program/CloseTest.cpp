#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

constexpr int kCloses = 50;
constexpr unsigned kSeed = 20261121;

class Close : public ProgramTest {
protected:
    struct State {
        const char* name;
        std::function<void()> enter;
    };

    std::vector<State> States();
    void PlayLog() {
        Window().Send(kPlay);
        ExpectLeft("Log Playing");
    }
    void RecordScan() {
        Connect();
        Window().Send(kRecord);
        ExpectLeft("Log Recording");
    }
    void Open(Command command, const char* title) {
        Window().Send(command);
        WaitForDialog(program->Id(), title);
    }
    // Closes by the cross or by Exit and expects all to be in order afterwards.
    void CloseAndLook(const char* state, bool byExit);
};

std::vector<Close::State> Close::States() {
    return {
        {"the splash is up", [] {}},
        {"nothing runs", [this] { ExpectOutput("Loaded"); }},
        {"connecting to a silent engine",
         [this] {
             engines.Start({"--silent"});
             Window().Send(kScan);
             ExpectLeft("ALDL: Connecting...");
         }},
        {"connected", [this] { Connect(); }},
        {"recording", [this] { RecordScan(); }},
        {"recording with the scan ended",
         [this] {
             RecordScan();
             Window().Send(kScan);
         }},
        {"playing", [this] { PlayLog(); }},
        {"paused",
         [this] {
             PlayLog();
             Window().Send(kPause);
             ExpectLeft("Log Paused");
         }},
        {"playing beside a scan",
         [this] {
             Connect();
             PlayLog();
         }},
        {"unplugged",
         [this] {
             Connect();
             engines.Unplug();
         }},
        {"a port is being opened",
         [this] {
             engines.Start({"--pace"});
             Window().Send(kScan);
         }},
        {"a scan is being stopped",
         [this] {
             Connect();
             Window().Send(kScan);
         }},
        {"the open dialog", [this] { Open(kLoadDefinition, "Select ADX..."); }},
        {"the save dialog of a recording",
         [this] {
             RecordScan();
             Open(kStop, "Select/Create file to save...");
         }},
        {"a load waits for the scan to end",
         [this] {
             Connect();
             Window().Send(kLoadDefinition);
             ChooseFile(program->Id(), "Select ADX...", Definition());
         }},
        {"the About box during a scan",
         [this] {
             Connect();
             Open(kAbout, "About");
         }},
        {"the editor", [this] { Open(kEditDefinition, "Corvex Definition Editor"); }},
        {"Preferences",
         [this] {
             Window().Send(kPreferences);
             EXPECT_TRUE(Eventually([this] { return FindTopWindow(program->Id(), "QZPROPTREECONTAINER") != nullptr; }));
         }},
    };
}

void Close::CloseAndLook(const char* state, bool byExit) {
    const Timer timer;
    if (byExit) {
        Window().Send(kExit);
    } else {
        Window().Close();
    }
    EXPECT_EQ(program->WaitForExit(30000), std::optional<DWORD>(0)) << state;
    std::printf("%-32s gone after %.0f ms\n", state, timer.Milliseconds());
    program.reset();
    EXPECT_EQ(CountProcessesOf(folder.Program()), 0) << state;
    const std::map<std::string, std::string> settings = folder.Settings();
    const std::map<std::string, std::string> expected{{"lastadxpath", Definition()},
                                                      {"comport", TestPort()},
                                                      {"loadlastdef", "1"},
                                                      {"lastxdlpath", folder.Name("drive.xdl")},
                                                      {"winposx", "50"},
                                                      {"winposy", "40"},
                                                      {"winsizex", "800"},
                                                      {"winsizey", "600"}};
    EXPECT_EQ(settings, expected) << state;
}

TEST_F(Close, WorksAtAnyMoment) {
    folder.Files().Put("drive.xdl", MakeEvenLog(3, 100000));
    const std::vector<State> states = States();
    std::mt19937 random(kSeed);
    std::vector<std::size_t> order;
    while (order.size() < kCloses)
        order.push_back(order.size() < states.size() ? order.size() : random() % states.size());
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t index : order) {
        SCOPED_TRACE(states[index].name);
        // Without loadlastdef, which the program must have added at the end.
        Settle({{"lastxdlpath", folder.Name("drive.xdl")},
                {"winposx", "50"},
                {"winposy", "40"},
                {"winsizex", "800"},
                {"winsizey", "600"}});
        Start();
        states[index].enter();
        CloseAndLook(states[index].name, random() % 4 == 0);
        if (HasFailure()) return;
    }
}

TEST_F(Close, WorksWhenThePortWillNotOpen) {
    Settle({{"comport", "COM9"}});
    Start();
    Window().Send(kScan);
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("comport"), "COM9");
}

TEST_F(Close, IsSafeTwice) {
    Settle();
    Start();
    Connect();
    Window().Close();
    Window().Close();
    Window().Send(kExit);
    EXPECT_EQ(program->WaitForExit(30000), std::optional<DWORD>(0));
}

}  // namespace
}  // namespace corvex::test
