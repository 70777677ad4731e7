#include <algorithm>
#include <functional>
#include <random>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

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
             Open(kStop, kSaveLogTitle);
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
        {"the editor", [this] { Open(kEditDefinition, kEditorTitle); }},
        {"Preferences",
         [this] {
             Window().Send(kPreferences);
             EXPECT_TRUE(Eventually([this] { return FindTopWindow(program->Id(), "QZPROPTREECONTAINER") != nullptr; }));
         }},
    };
}

// By the cross or by Exit; all is in order afterwards.
TEST_F(Close, WorksAtAnyMoment) {
    folder.Files().Put("drive.xdl", MakeEvenLog(3, 100000));
    const std::map<std::string, std::string> kept{{"lastxdlpath", folder.Name("drive.xdl")},
                                                  {"winposx", "50"},
                                                  {"winposy", "40"},
                                                  {"winsizex", "800"},
                                                  {"winsizey", "600"}};
    std::map<std::string, std::string> expected = kept;
    expected.insert({{"lastadxpath", Definition()}, {"comport", TestPort()}, {"loadlastdef", "1"}});
    const std::vector<State> states = States();
    std::mt19937 random(20261121);
    std::vector<std::size_t> order;
    while (order.size() < 50)
        order.push_back(order.size() < states.size() ? order.size() : random() % states.size());
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t index : order) {
        SCOPED_TRACE(states[index].name);
        Settle(kept);  // without loadlastdef, which the program must have added at the end
        Start();
        states[index].enter();
        if (random() % 4 == 0) {
            Window().Send(kExit);
        } else {
            Window().Close();
        }
        EXPECT_EQ(program->WaitForExit(kLongestEnd), std::optional<DWORD>(0));
        program.reset();
        EXPECT_EQ(CountProcessesOf(folder.Program()), 0);
        EXPECT_EQ(folder.Settings(), expected);
        if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace corvex::test
