#include "tools/driver/ProgramStates.h"

#include "tools/driver/DialogAnswers.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

using Steps = std::function<void(Operator&)>;

// A command that comes as soon as the state before it is there.
Steps Then(Steps before, Command command) {
    return [=](Operator& person) {
        before(person);
        person.Window().Send(command);
    };
}

Steps AndLeft(Steps before, const char* text) {
    return [=](Operator& person) {
        before(person);
        person.WaitForLeft(text);
    };
}

Steps AndDialog(Steps before, const char* title) {
    return [=](Operator& person) {
        before(person);
        WaitForDialog(person.Process(), title);
    };
}

Steps AndTop(Steps before, const char* className) {
    return [=](Operator& person) {
        before(person);
        person.WaitFor(className, [&] { return FindTopWindow(person.Process(), className) != nullptr; });
    };
}

std::vector<ProgramState> MakeStates() {
    const Steps nothing = [](Operator&) {}, connect = &Operator::Connect, play = &Operator::Play;
    const Steps loaded = [](Operator& person) {
        person.WaitFor("definition", [&] { return person.Window().OutputHas("Loaded"); });
    };
    const Steps silent = [](Operator& person) { person.engines.Start({"--silent"}); };
    const Steps paced = [](Operator& person) { person.engines.Start({"--pace"}); };
    const Steps unplug = [](Operator& person) {
        person.Connect();
        person.engines.Unplug();
    };
    const Steps noPort = [](Operator& person) {
        person.engines.Start();
        person.engines.Unplug();
        person.Window().Send(kScan);
        person.WaitFor("refusal", [&] { return person.Window().OutputHas("Unable to open port"); });
    };
    const Steps dead = [](Operator& person) {
        person.Connect();
        person.engines.Unplug();
        person.WaitFor("the alarm", [&] {
            const std::string link = person.Window().LinkText();
            return link.starts_with("silent line") || link.starts_with("port takes no bytes") ||
                   link.starts_with("device vanished");
        });
    };
    const Steps explained = [=](Operator& person) {
        dead(person);
        ::PostMessageA(FindBelow(person.Window().Handle(), "QZRICHSTATIC", kLinkPanelId), WM_LBUTTONUP, 0, 0);
        WaitForDialog(person.Process(), "The line");
    };
    const Steps record = AndLeft(Then(connect, kRecord), "Log Recording");
    const Steps loadDuringScan = [](Operator& person) {
        person.Connect();
        person.Window().Send(kLoadDefinition);
        ChooseFile(person.Process(), "Select ADX...", person.File("harrier-8192.adx"));
    };
    const Steps playDuringScan = [](Operator& person) {
        person.Connect();
        person.Play();
    };
    return {
        {"splash", nothing, true},
        {"not-connected", loaded, true},
        {"connecting", AndLeft(Then(silent, kScan), "ALDL: Connecting..."), true},
        {"connected", connect, true},
        {"recording", record, true},
        {"playing", play, true},
        {"paused", AndLeft(Then(play, kPause), "Log Paused"), true},
        {"preferences", AndTop(Then(nothing, kPreferences), "QZPROPTREECONTAINER"), true},
        {"about", AndDialog(Then(nothing, kAbout), "About"), true},
        {"editor", AndDialog(Then(nothing, kEditDefinition), kEditorTitle), true},
        {"no-port", noPort},
        {"dead-line", dead},
        {"line-window", explained},
        {"recording with the scan ended", Then(record, kScan)},
        {"playing beside a scan", playDuringScan},
        {"unplugged", unplug},
        {"a port is being opened", Then(paced, kScan)},
        {"a scan is being stopped", Then(connect, kScan)},
        {"the open dialog", AndDialog(Then(nothing, kLoadDefinition), "Select ADX...")},
        {"the save dialog of a recording", AndDialog(Then(record, kStop), kSaveLogTitle)},
        {"a load waits for the scan to end", loadDuringScan},
        {"the About box during a scan", AndDialog(Then(connect, kAbout), "About")},
    };
}

}  // namespace

const std::vector<ProgramState>& AllProgramStates() {
    static const std::vector<ProgramState> states = MakeStates();
    return states;
}

}  // namespace corvex::test
