// A control on show in a parent that writes down what it is told.
#pragma once

#include <atomic>
#include <set>
#include <vector>

#include "tests/controls/window/ControlTestHelper.h"

namespace corvex {

class ShownGauge {
public:
    struct Command {
        WPARAM wParam;
        LPARAM lParam;
    };

    ShownGauge(const char* className, int width, int height, int id = 7);
    ~ShownGauge();
    ShownGauge(const ShownGauge&) = delete;
    ShownGauge& operator=(const ShownGauge&) = delete;

    HWND Window() const { return window_; }
    TestWindow& Parent() { return parent_; }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Resize(int width, int height) const;
    // Fills the client with a colour that no gauge has, and tells whether any of it is left.
    void Mark() const;
    bool HasMark() const;
    // Of all pixels.
    std::set<COLORREF> Colours() const;

    // How many paints that work has caused by the time it returns.
    template <class Work>
    int PaintsIn(const Work& work) {
        const int before = paints_;
        work();
        return paints_ - before;
    }

    std::vector<Command> commands;     // that reached the parent
    std::vector<DWORD> threadsOfWork;  // on which messages of the WM_APP range arrived

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    TestWindow parent_{WS_POPUP | WS_VISIBLE};
    HWND window_ = nullptr;
    WNDPROC former_ = nullptr;
    std::atomic<int> paints_{0};
};

}  // namespace corvex
