// corvex-drive: works with Corvex.exe from outside. For ./dev run and tools/shoot.sh, which prepare the folder.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

#include "controls/window/CommonControls.h"
#include "tools/driver/DemoRun.h"
#include "tools/driver/LogFiles.h"
#include "tools/driver/ProgramStates.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr char kUsage[] =
    "usage: corvex-drive demo FOLDER PICTURES\n"
    "       corvex-drive shoot FOLDER PICTURES STATE[@SECONDS]|all WIDTH HEIGHT [TAB [ROW]]\n";

constexpr int kMonitorTab = 4;  // whose charts are empty at first

struct PictureTask {
    std::string folder;    // with a Corvex.exe
    std::string pictures;  // as the host names the folder
    int width = 650, height = 500;
    int tab = 0;
    int row = 0;        // of what the Dash or Item Lists tab can show, or quarters that a surface is turned by
    double moment = 0;  // seconds into the example's drive
};

// The example's drive, played to its end: tables and charts have something to show.
const ProgramState kPlayed{"played",
                           [](Operator& person) {
                               person.Window().Send(kSpeed400);
                               person.Play();
                               person.Watch(30.0);  // of forty seconds
                               person.WaitForPlaybackEnd();
                           },
                           true};

// The same with the histogram on show as a surface, which the row turns by so many quarters.
const ProgramState kSurface{"surface", kPlayed.enter, true};

constexpr double kDriveSeconds = 167.5;

// In the midst of the example's drive, at the moment told behind the name.
const ProgramState kDriven{"driven", [](Operator& person) { person.Play(); }, true};

// As the slider is dragged there. The charts get what came before.
void GoTo(const Operator& person, const PictureTask& task) {
    const CorvexWindow& window = person.Window();
    const double lead = task.tab == kMonitorTab ? 18.0 : 1.5;
    const HWND slider = window.Slider();
    const int place = static_cast<int>(window.SliderEnd() * (task.moment - lead) / kDriveSeconds);
    const auto tell = [slider](WORD action) {
        ::SendMessageA(::GetParent(slider), WM_HSCROLL, MAKEWPARAM(action, 0), reinterpret_cast<LPARAM>(slider));
    };
    tell(TB_THUMBTRACK);  // in hand, so that the log that plays does not move it meanwhile
    ::SendMessageA(slider, TBM_SETPOS, TRUE, place);
    tell(TB_ENDTRACK);
    person.Watch(lead);
}

bool IsPlayed(const ProgramState& state) {
    return &state == &kPlayed || &state == &kSurface || &state == &kDriven;
}

void ShowSurface(const CorvexWindow& window, int quarters) {
    constexpr int kGraphId = 1007, kChartId = 1006;
    constexpr int kStepsOfQuarter = 31;  // of 0.05 radians
    ::SendMessageA(FindBelow(window.Handle(), "Button", kGraphId), BM_CLICK, 0, 0);
    const HWND chart = FindBelow(window.Handle(), "3DCHART", kChartId);
    ::SendMessageA(chart, WM_KEYDOWN, VK_CONTROL, 0);
    for (int i = 0; i < quarters * kStepsOfQuarter; ++i)
        ::SendMessageA(chart, WM_KEYDOWN, VK_RIGHT, 0);
    ::SendMessageA(chart, WM_KEYUP, VK_CONTROL, 0);
}

void Prepare(const PictureTask& task, const ProgramState& state) {
    std::error_code none;
    for (const char* const name : {"\\Settings.dat", "\\temp.xdl"})  // the latter of a recording's picture
        std::filesystem::remove(task.folder + name, none);
    std::ofstream log(task.folder + "\\drive.xdl", std::ios::binary);
    if (IsPlayed(state)) {
        log << std::ifstream(CORVEX_SOURCE_DIR "/examples/harrier-8192.xdl", std::ios::binary).rdbuf();
    } else {
        log << MakeEvenLog(600, 100);
    }
    std::ofstream settings(task.folder + "\\Settings.dat");
    settings << "lastadxpath=" << task.folder << "\\harrier-8192.adx\nlastxdlpath=" << task.folder << "\\drive.xdl\n"
             << "winposx=" << (::GetSystemMetrics(SM_CXSCREEN) - task.width) / 2
             << "\nwinposy=" << (::GetSystemMetrics(SM_CYSCREEN) - task.height) / 2 << "\nwinsizex=" << task.width
             << "\nwinsizey=" << task.height << "\n";
}

// All that the program shows: a dialog may stand out of the main window.
RECT PlaceOf(const Operator& person) {
    RECT all = person.Window().Rectangle();
    for (HWND window : TopWindowsOf(person.Process())) {
        RECT one = {};
        ::GetWindowRect(window, &one);
        all = {std::min(all.left, one.left), std::min(all.top, one.top), std::max(all.right, one.right),
               std::max(all.bottom, one.bottom)};
    }
    return {std::max(all.left, 0L), std::max(all.top, 0L), all.right, all.bottom};
}

void ShowTab(const CorvexWindow& window, const PictureTask& task) {
    constexpr std::array kComboIds = {0, 1009, 1006, 0, 0};
    const int id = kComboIds.at(static_cast<std::size_t>(task.tab));
    if (id != 0) SelectRow(FindBelow(window.Handle(), "ComboBox", id), task.row);
    window.ShowTab(task.tab);
}

void Shoot(const ProgramState& state, const PictureTask& task) {
    Prepare(task, state);
    Operator person(task.folder);
    const std::string name = state.name;
    person.WaitFor("splash or its end",
                   [&] { return (FindTopWindow(person.Process(), "QZSPLASHT") != nullptr) == (name == "splash"); });
    ShowTab(person.Window(), task);
    state.enter(person);
    if (&state == &kDriven) GoTo(person, task);
    if (&state == &kSurface) ShowSurface(person.Window(), task.row);
    if (name == "connected" || name == "recording") person.Watch(task.tab == kMonitorTab ? 18.0 : 2.0);
    if (name == "playing") person.Watch(1.0);
    const std::string file = name + "-" + std::to_string(task.width) + ".png";
    person.engines.TakePicture(task.pictures + "/" + file, PlaceOf(person));
    person.Exit();
    std::printf("%s\n", file.c_str());
    std::fflush(stdout);
}

int Drive(int count, char** words) {
    const std::string command = count > 1 ? words[1] : "";
    if (command == "demo" && count == 4) {
        RunDemo(words[2], words[3]);
        return 0;
    }
    if (command != "shoot" || count < 7 || count > 9) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    PictureTask task{words[2],
                     words[3],
                     std::atoi(words[5]),
                     std::atoi(words[6]),
                     count > 7 ? std::atoi(words[7]) : 0,
                     count > 8 ? std::atoi(words[8]) : 0};
    std::string wanted = words[4];
    if (const std::size_t at = wanted.find('@'); at != std::string::npos) {
        task.moment = std::atof(wanted.c_str() + at + 1);
        wanted.resize(at);
    }
    for (const ProgramState* const state : {&kPlayed, &kSurface, &kDriven}) {
        if (wanted == state->name) Shoot(*state, task);
    }
    for (const ProgramState& state : AllProgramStates()) {
        if (wanted == "all" ? state.isShown : wanted == state.name) Shoot(state, task);
    }
    return 0;
}

}  // namespace

}  // namespace corvex::test

int main(int count, char** words) {
    try {
        return corvex::test::Drive(count, words);
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "corvex-drive: %s\n", error.what());
        return 1;
    }
}
