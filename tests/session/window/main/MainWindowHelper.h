// The real main window in this process, hidden, on a scripted line, with a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/window/CommonControls.h"
#include "session/window/Desktop.h"
#include "session/window/MainWindow.h"
#include "session/window/ResourceIds.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/support/AdxText.h"
#include "tests/support/LogBytes.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/TestFolder.h"
#include "tests/support/VirtualClock.h"
#include "tests/views/browser/DialogPerson.h"

namespace corvex::test {

// Presses a button of the next dialog with this title, on a thread of its own, so that the call that shows it returns.
// What is to be looked at while it is open is looked at there.
class DialogAnswer {
public:
    DialogAnswer(
        const char* title, int button, std::function<void()> before = [] {})
        : person_({title, button}, [this, button, before = std::move(before)](HWND dialog) {
              text_ = DialogPerson::Text(dialog, kBoxText);
              before();
              came_ = true;
              DialogPerson::Press(dialog, button);
          }) {}
    bool Came() {
        return Pumps([&] { return came_.load(); });
    }
    std::string Text() const { return text_; }

private:
    std::atomic<bool> came_{false};
    std::string text_;
    const DialogPerson person_;  // goes first
};

class MainWindowTest : public testing::Test {
protected:
    ~MainWindowTest() override { Close(); }

    void Start() {
        SetDefaults(&session.settings);
        window = MainWindow::Create(desktop);
        ASSERT_NE(nullptr, window);
    }
    // As the user does; true when the window went.
    bool Close() {
        if (window == nullptr) return true;
        ::PostMessageA(window, WM_CLOSE, 0, 0);
        const bool gone = Pumps([&] { return ::IsWindow(window) == FALSE; });
        desktop.Drain();
        window = nullptr;
        MSG message;
        while (::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {
        }
        return gone;
    }
    LRESULT Command(unsigned id) { return ::SendMessageA(window, WM_COMMAND, id, 0); }

    // A definition with a command of two reply bytes in a macro that is the monitor command, and what else is given.
    std::string PutDefinition(const std::string& file, AdxText text = AdxText()) const {
        text.Header("", "MON").Send("POLL", 2, {0xA0}, AdxTag("replytimeout", "20")).Macro("MON", {"POLL"});
        folder.Put(file, text.Text());
        return folder.Name(file);
    }
    // A log of replies to that command, one for each time.
    std::string PutLog(const std::string& file, const std::vector<std::uint32_t>& times) const {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor({15}), static_cast<std::uint32_t>(times.size())).ItemCount(1);
        log.Item(HashId("POLL", 4), kTypeSendCommand, 2, 2, Bytes(15, 0xFF));
        for (std::size_t i = 0; i < times.size(); ++i)
            log.Record(0, times[i], {static_cast<std::uint8_t>(i), 0xEE});
        log.MarkEnd();
        folder.Put(file, {log.bytes.begin(), log.bytes.end()});
        return folder.Name(file);
    }
    // The start on such a definition, and what may follow.
    void StartWithDefinition() {
        UseDefinition();
        Start();
    }
    void StartConnected() {
        serial.Answer({0xA0}, {3, 4}, 5);
        StartWithDefinition();
        Connect();
    }
    void Connect() {
        Command(IDM_SCAN);
        ASSERT_TRUE(Pumps([&] { return session.connectionState == kConnected; }));
    }
    void Record() {
        Command(IDM_RECORD);
        ASSERT_TRUE(Pumps([&] { return session.log.header.sampleCount > 2; }));
    }
    // Of a log of its own with records at these times.
    void Play(const std::vector<std::uint32_t>& times = {0, 60000}) {
        session.settings.SetLastLog(PutLog("long.xdl", times));
        Command(IDM_PLAY);
        ASSERT_TRUE(Pumps([&] { return session.log.sampleIndex != 0; }));
    }
    void UseDefinition(const AdxText& objects = AdxText()) {
        const std::string path = PutDefinition("one.adx", objects);
        folder.Put("Settings.dat", "lastadxpath=" + path + "\n");
    }

    std::string Title() const { return TextOfWindow(window); }
    std::string LeftText() const { return TextOfWindow(AsWindow(desktop.session.statusLeft)); }
    std::string RightText() const { return TextOfWindow(AsWindow(desktop.session.statusRight)); }
    std::string Output() const { return TextOfWindow(AsWindow(desktop.session.outputEdit)); }
    bool Says(const std::string& text) const { return Output().find(text) != std::string::npos; }
    HWND Slider() const { return ::GetDlgItem(AsWindow(desktop.session.logBarDialog), IDC_LOG_SLIDER); }
    bool IsOn(int button) const {
        return ::SendMessageA(AsWindow(desktop.session.logBar), TB_ISBUTTONENABLED, static_cast<WPARAM>(button), 0) !=
               0;
    }
    // As a row of the table: slider, play, record, stop, pause, load.
    std::string Buttons() const {
        std::string row;
        row += ::IsWindowEnabled(Slider()) != 0 ? "S" : "-";
        for (const int id : {IDC_LOG_PLAY, IDC_LOG_RECORD, IDC_LOG_STOP, IDC_LOG_PAUSE, IDC_LOG_LOAD})
            row += IsOn(id) ? "x" : "-";
        return row;
    }
    bool Rests(std::uint32_t logState) {
        return Pumps([&] { return session.log.State() == logState && desktop.IsQuiet(); });
    }

    TestFolder folder;
    FixedProgramPlace place{folder};
    const ScopedProgramPlace placeScope{place};
    VirtualClock clock;
    ScriptedSerial serial{clock};
    Desktop desktop{::GetModuleHandleA(nullptr), serial};
    SessionState& session = desktop.session;
    HWND window = nullptr;
};

}  // namespace corvex::test
