// The main window of a running Corvex.exe, seen from another process.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "platform/WindowsApi.h"
#include "tools/driver/ProgramIds.h"

namespace corvex::test {

struct BarStates {
    bool slider = false, play = false, record = false, stop = false, pause = false, load = false;
    bool operator==(const BarStates&) const = default;
};
void PrintTo(const BarStates& states, std::ostream* out);

// Everything is asked of the windows anew each time.
class CorvexWindow {
public:
    // Waits until the window of the process is on show. Throws std::runtime_error when it does not come.
    static CorvexWindow WaitFor(DWORD process);

    HWND Handle() const { return window_; }

    // As a menu item does. Returns at once; the command may open a dialog.
    void Send(Command command) const;
    // As a person presses a button of one of the tool bars; nothing happens when it is off.
    void Press(int toolbar, int button) const;
    // As a click on the cross in the corner does. Returns at once.
    void Close() const;

    std::string Title() const;
    std::string LeftText() const;
    std::string RightText() const;
    std::string LogText() const;
    std::string LinkText() const;
    // What the Output tab shows.
    std::string Output() const;
    std::vector<std::string> OutputLines() const;
    bool OutputHas(const std::string& part) const { return Output().find(part) != std::string::npos; }

    BarStates Bar() const;
    int SliderPosition() const;
    int SliderEnd() const;
    HWND Slider() const;

    HWND Tabs() const;  // the tab control
    void ShowTab(int index) const;
    RECT Rectangle() const;

private:
    explicit CorvexWindow(HWND window) : window_(window) {}
    HWND Panel(const char* className) const;
    HWND window_;
};

}  // namespace corvex::test
