#include "tests/views/MenuDriver.h"

#include <gtest/gtest.h>

#include <chrono>

namespace corvex::test {

namespace {

constexpr char kCallClass[] = "CorvexTestCall";

template <class Predicate>
bool Polls(Predicate isSo) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::yield();
    }
    return true;
}

HWND OpenMenu() {
    HWND window = nullptr;
    while ((window = ::FindWindowExA(nullptr, window, "#32768", nullptr)) != nullptr) {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process == ::GetCurrentProcessId() && ::IsWindowVisible(window) != FALSE) return window;
    }
    return nullptr;
}

LRESULT CALLBACK CallProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_APP) return ::DefWindowProcA(window, message, wParam, lParam);
    (*reinterpret_cast<const std::function<void()>*>(lParam))();
    return 0;
}

}  // namespace

MenuDriver::MenuDriver(std::vector<WPARAM> keys, std::function<void(HMENU)> look)
    : keys_(std::move(keys)), look_(std::move(look)), thread_([this] { Run(); }) {}

MenuDriver::~MenuDriver() {
    if (thread_.joinable()) thread_.join();
}

bool MenuDriver::Came() {
    if (thread_.joinable()) thread_.join();
    return came_;
}

void MenuDriver::Run() {
    HWND window = nullptr;
    came_ = Polls([&] { return (window = OpenMenu()) != nullptr; });
    if (!came_) return;
    if (look_) look_(reinterpret_cast<HMENU>(::SendMessageA(window, kGetPopupMenu, 0, 0)));
    for (const WPARAM key : keys_)
        ::PostMessageA(window, WM_KEYDOWN, key, 1);
    // The character that Enter makes would come after keys that are posted already.
    if (!keys_.empty() && MenuCloses()) return;
    // Each closes one level.
    for (int i = 0; i < 3; ++i)
        ::PostMessageA(window, WM_KEYDOWN, VK_ESCAPE, 1);
    MenuCloses();
}

void WorkMenu(const std::function<void()>& ask, const std::vector<WPARAM>& keys,
              const std::function<void(HMENU)>& look) {
    bool came = false;
    for (int i = 0; i < 3 && !came; ++i) {
        MenuDriver driver(keys, look);
        ask();
        came = driver.Came();
    }
    EXPECT_TRUE(came);
}

bool MenuCloses() {
    return Polls([] { return OpenMenu() == nullptr; });
}

MainThread::MainThread() {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = &CallProcedure;
    windowClass.hInstance = ::GetModuleHandleA(nullptr);
    windowClass.lpszClassName = kCallClass;
    ::RegisterClassA(&windowClass);
    window_ =
        ::CreateWindowExA(0, kCallClass, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, windowClass.hInstance, nullptr);
}

MainThread::~MainThread() {
    ::DestroyWindow(window_);
}

void MainThread::Run(const std::function<void()>& work) const {
    ::SendMessageA(window_, WM_APP, 0, reinterpret_cast<LPARAM>(&work));
    // A menu looks whether it is to end after each message of its own queue.
    ::PostMessageA(window_, WM_NULL, 0, 0);
}

std::vector<std::string> RowsOf(HMENU menu) {
    std::vector<std::string> rows;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        char label[400] = "";
        MENUITEMINFOA row{};
        row.cbSize = sizeof row;
        row.fMask = MIIM_ID | MIIM_STATE | MIIM_STRING | MIIM_SUBMENU;
        row.dwTypeData = label;
        row.cch = sizeof label;
        ::GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &row);
        rows.push_back(std::to_string(row.wID) + ((row.fState & MFS_CHECKED) != 0 ? "* " : " ") + label);
        if (row.hSubMenu == nullptr) continue;
        for (const std::string& below : RowsOf(row.hSubMenu))
            rows.push_back(below);
    }
    return rows;
}

}  // namespace corvex::test
