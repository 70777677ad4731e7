// The real main window in this process, hidden, on a scripted line, with a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "controls/window/CommonControls.h"
#include "session/window/Desktop.h"
#include "session/window/MainWindow.h"
#include "session/window/ResourceIds.h"
#include "tests/support/LogBytes.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/TestFolder.h"
#include "tests/support/VirtualClock.h"

namespace corvex::test {

// Handles what is posted by now.
inline void HandleMessages() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0)
        ::DispatchMessageA(&message);
}

// Handles messages until it is so, for 30 seconds at most.
template <class Predicate>
bool Pumps(Predicate isSo) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > deadline) return isSo();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
        HandleMessages();
    }
    return true;
}

inline std::string TextOf(HWND window) {
    std::string text(65536, '\0');
    const auto length = ::SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

// Presses a button of the next dialog with this title, on a thread of its own, so that the call that shows it returns.
// What is to be looked at while it is open is looked at there.
class DialogAnswer {
public:
    DialogAnswer(
        std::string title, int button, std::function<void()> before = [] {})
        : thread_(
              [this, title = std::move(title), button, before = std::move(before)] { Run(title, button, before); }) {}
    ~DialogAnswer() { thread_.join(); }
    bool Came() {
        thread_.join();
        thread_ = std::thread([] {});
        return came_;
    }
    std::string Text() const { return text_; }

private:
    void Run(const std::string& title, int button, const std::function<void()>& before) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        HWND dialog = nullptr;
        while (dialog == nullptr && std::chrono::steady_clock::now() < deadline) {
            dialog = ::FindWindowA(MAKEINTRESOURCEA(32770), title.c_str());
            if (dialog != nullptr && ::GetDlgItem(dialog, button) == nullptr) dialog = nullptr;
            std::this_thread::yield();
        }
        if (dialog == nullptr) return;
        text_ = TextOf(::GetDlgItem(dialog, 0xFFFF));  // the words of a message box
        came_ = true;
        before();
        ::SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }
    bool came_ = false;
    std::string text_;
    std::thread thread_;
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
    std::string PutDefinition(const std::string& file, const std::string& objects = {}) const {
        std::string text =
            "<ADXFORMAT version=\"0.50\" "
            "/>\n<ADXHEADER><flags>0x00</flags><objectcount>2</objectcount><baud>8192</baud>"
            "<monitorcmd>MON</monitorcmd></ADXHEADER>\n"
            "<ADXCSENDCOMMAND id=\"POLL\" title=\"Poll\" flags=\"0x00000001\"><bytestring size=\"0x1\">0xA0 "
            "</bytestring>"
            "<replysize>2</replysize><replytimeout>20</replytimeout><packetoffset>0</packetoffset>"
            "<packetsize>2</packetsize></ADXCSENDCOMMAND>\n"
            "<ADXMACRO id=\"MON\" title=\"Monitor\" repeatcount=\"1\"><NODE commandID=\"POLL\" repeatcount=\"1\" />"
            "</ADXMACRO>\n";
        text += objects;
        folder.Put(file, text);
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
    void UseDefinition(const std::string& objects = {}) {
        const std::string path = PutDefinition("one.adx", objects);
        folder.Put("Settings.dat", "lastadxpath=" + path + "\n");
    }

    std::string Title() const { return TextOf(window); }
    std::string LeftText() const { return TextOf(AsWindow(desktop.session.statusLeft)); }
    std::string RightText() const { return TextOf(AsWindow(desktop.session.statusRight)); }
    std::string Output() const { return TextOf(AsWindow(desktop.session.outputEdit)); }
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
