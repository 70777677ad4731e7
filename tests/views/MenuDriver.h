// Works popup menus as a user does, by keys, while the thread that shows them is held by them.
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex::test {

inline constexpr UINT kGetPopupMenu = 0x01E1;  // asks a popup menu's window for the menu

// Waits on a thread of its own for the next popup menu of this process, 10 seconds at most, has `look` see it on that
// thread, and then presses the keys, of which the last one chooses a row. Without keys it closes the menu.
class MenuDriver {
public:
    explicit MenuDriver(std::vector<WPARAM> keys, std::function<void(HMENU)> look = {});
    ~MenuDriver();
    MenuDriver(const MenuDriver&) = delete;
    MenuDriver& operator=(const MenuDriver&) = delete;

    // Waits for the thread's end.
    bool Came();

private:
    void Run();

    const std::vector<WPARAM> keys_;
    const std::function<void(HMENU)> look_;
    bool came_ = false;
    std::thread thread_;
};

// Asks for a menu until one has come and has been worked so. The tests of other programs share the desktop, and a
// window of theirs that comes to the front may end a menu before it is seen: three times at most.
void WorkMenu(const std::function<void()>& ask, const std::vector<WPARAM>& keys,
              const std::function<void(HMENU)>& look = {});

// Waits until no popup menu of this process is open, 10 seconds at most. Not on the thread that shows it.
bool MenuCloses();

// Has the thread that made it do things, in the middle of whatever it is doing, a menu included.
class MainThread {
public:
    MainThread();
    ~MainThread();
    MainThread(const MainThread&) = delete;
    MainThread& operator=(const MainThread&) = delete;
    // Comes back when it is done. Any thread.
    void Run(const std::function<void()>& work) const;

private:
    HWND window_;
};

// One line for each row, those of submenus after their own: "1 Values", "10 Speed", "11* Load" for a checked one.
std::vector<std::string> RowsOf(HMENU menu);

}  // namespace corvex::test
