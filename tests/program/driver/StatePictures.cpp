#include "tests/program/driver/StatePictures.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <utility>

#include "tests/program/driver/DialogAnswers.h"
#include "tests/program/driver/LogFiles.h"
#include "tests/program/driver/Operator.h"
#include "tests/program/driver/WindowFinder.h"

namespace corvex::test {

namespace {

using Steps = std::function<void(Operator&)>;

void PlayLongLog(Operator& person) {
    person.Play();
    person.Watch(1.0);
}

void ShowSplashAlone(Operator& person) {
    person.WaitFor("splash", [&] { return FindTopWindow(person.Process(), "QZSPLASHT") != nullptr; });
}

// In the order of a session. Each enters a state that the picture is then taken of.
const std::vector<std::pair<std::string, Steps>>& AllStates() {
    static const std::vector<std::pair<std::string, Steps>> states{
        {"splash", &ShowSplashAlone},
        {"not-connected", [](Operator&) {}},
        {"connecting",
         [](Operator& person) {
             person.engines.Start({"--silent"});
             person.Window().Send(kScan);
             person.WaitForLeft("ALDL: Connecting...");
         }},
        {"connected",
         [](Operator& person) {
             person.Connect();
             person.Watch(2.0);
         }},
        {"recording",
         [](Operator& person) {
             person.Connect();
             person.StartRecording();
             person.Watch(2.0);
         }},
        {"playing", &PlayLongLog},
        {"paused",
         [](Operator& person) {
             PlayLongLog(person);
             person.Window().Send(kPause);
             person.WaitForLeft("Log Paused");
         }},
        {"preferences",
         [](Operator& person) {
             person.Window().Send(kPreferences);
             person.WaitFor("Preferences",
                            [&] { return FindTopWindow(person.Process(), "QZPROPTREECONTAINER") != nullptr; });
         }},
        {"about",
         [](Operator& person) {
             person.Window().Send(kAbout);
             WaitForDialog(person.Process(), "About");
         }},
        {"editor",
         [](Operator& person) {
             person.Window().Send(kEditDefinition);
             WaitForDialog(person.Process(), "Corvex Definition Editor");
         }},
    };
    return states;
}

void Prepare(const PictureTask& task) {
    std::error_code none;
    std::filesystem::remove(task.folder + "\\Settings.dat", none);
    const std::string log = MakeEvenLog(600, 100);
    std::ofstream(task.folder + "\\drive.xdl", std::ios::binary) << log;
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

}  // namespace

std::vector<std::string> PictureStates() {
    std::vector<std::string> names;
    for (const auto& [name, steps] : AllStates())
        names.push_back(name);
    return names;
}

void TakeStatePicture(const std::string& state, const PictureTask& task) {
    const auto& states = AllStates();
    const auto found = std::find_if(states.begin(), states.end(), [&](const auto& one) { return one.first == state; });
    if (found == states.end()) throw std::runtime_error("no state " + state);
    Prepare(task);
    Operator person(task.folder);
    if (state != "splash") {
        person.WaitFor("end of the splash", [&] { return FindTopWindow(person.Process(), "QZSPLASHT") == nullptr; });
    }
    ShowTab(person.Window(), task);
    found->second(person);
    person.engines.TakePicture(task.file, PlaceOf(person));
    person.Exit();
}

}  // namespace corvex::test
