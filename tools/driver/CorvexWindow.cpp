#include "tools/driver/CorvexWindow.h"

#include <commctrl.h>

#include <stdexcept>

#include "tests/support/Eventually.h"
#include "tools/driver/RemoteMemory.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr char kMainClass[] = "CORVEX";

HWND ToolbarOf(HWND window, int id) {
    return FindBelow(window, TOOLBARCLASSNAMEA, id);
}

}  // namespace

void PrintTo(const BarStates& states, std::ostream* out) {
    *out << "slider " << states.slider << " play " << states.play << " record " << states.record << " stop "
         << states.stop << " pause " << states.pause << " load " << states.load;
}

CorvexWindow CorvexWindow::WaitFor(DWORD process) {
    HWND window = nullptr;
    const auto isThere = [&] {
        window = FindTopWindow(process, kMainClass);
        return window != nullptr;
    };
    if (!Eventually(isThere)) throw std::runtime_error("no main window");
    return CorvexWindow(window);
}

void CorvexWindow::Send(Command command) const {
    ::PostMessageA(window_, WM_COMMAND, MAKEWPARAM(command, 0), 0);
}

void CorvexWindow::Press(int toolbar, int button) const {
    HWND bar = ToolbarOf(window_, toolbar);
    const RECT place = AskRectangle(bar, TB_GETRECT, static_cast<WPARAM>(button));
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ::PostMessageA(bar, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    ::PostMessageA(bar, WM_LBUTTONUP, 0, middle);
}

void CorvexWindow::Close() const {
    ::PostMessageA(window_, WM_CLOSE, 0, 0);
}

std::string CorvexWindow::Title() const {
    return TextOf(window_);
}

HWND CorvexWindow::Panel(const char* className) const {
    return FindBelow(window_, className);
}

std::string CorvexWindow::LeftText() const {
    return TextOf(Panel("QZRICHSTATIC"));
}

std::string CorvexWindow::RightText() const {
    return TextOf(Panel("QZTEXTPROGRESS"));
}

std::string CorvexWindow::LogText() const {
    return TextOf(FindBelow(window_, "QZRICHSTATIC", kLogPanelId));
}

std::string CorvexWindow::LinkText() const {
    return TextOf(FindBelow(window_, "QZRICHSTATIC", kLinkPanelId));
}

std::string CorvexWindow::Output() const {
    HWND edit = FindBelow(window_, WC_EDITA, kOutputId);
    return TextOf(edit, static_cast<std::size_t>(Ask(edit, WM_GETTEXTLENGTH)) + 4096);
}

std::vector<std::string> CorvexWindow::OutputLines() const {
    std::vector<std::string> lines;
    std::string rest = Output();
    for (std::size_t end = rest.find("\r\n"); end != std::string::npos; end = rest.find("\r\n")) {
        lines.push_back(rest.substr(0, end));
        rest.erase(0, end + 2);
    }
    if (!rest.empty()) lines.push_back(rest);
    return lines;
}

BarStates CorvexWindow::Bar() const {
    HWND bar = ToolbarOf(window_, kLogToolbarId);
    const auto isOn = [bar](int button) {
        return (Ask(bar, TB_GETSTATE, static_cast<WPARAM>(button)) & TBSTATE_ENABLED) != 0;
    };
    return {::IsWindowEnabled(Slider()) != FALSE,
            isOn(kPlayButton),
            isOn(kRecordButton),
            isOn(kStopButton),
            isOn(kPauseButton),
            isOn(kLoadButton)};
}

HWND CorvexWindow::Slider() const {
    return FindBelow(window_, TRACKBAR_CLASSA, kSliderId);
}

int CorvexWindow::SliderPosition() const {
    return static_cast<int>(Ask(Slider(), TBM_GETPOS));
}

int CorvexWindow::SliderEnd() const {
    return static_cast<int>(Ask(Slider(), TBM_GETRANGEMAX));
}

HWND CorvexWindow::Tabs() const {
    return FindBelow(Panel("QZTABSHEET"), WC_TABCONTROLA);
}

void CorvexWindow::ShowTab(int index) const {
    Ask(Tabs(), TCM_SETCURFOCUS, static_cast<WPARAM>(index));
}

RECT CorvexWindow::Rectangle() const {
    RECT rectangle = {};
    ::GetWindowRect(window_, &rectangle);
    return rectangle;
}

}  // namespace corvex::test
