// A real parent for a control under test, which writes down what it is told, and a page that does as it is bidden.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex {

struct Notice {
    HWND from;
    UINT_PTR id;
    UINT code;
};

// A window of a class of the test's own whose messages pass through a function first.
class TestWindow {
public:
    // Returns true when the message is done with, `result` then counts.
    using Handler = std::function<bool(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)>;

    explicit TestWindow(DWORD style = WS_OVERLAPPEDWINDOW, HWND parent = nullptr);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    HWND Window() const { return window_; }
    bool Alive() const { return ::IsWindow(window_) != FALSE; }
    int Count(UINT message) const;

    Handler handler;
    std::vector<UINT> seen;  // every message

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND window_ = nullptr;
};

// The parent: WM_NOTIFY is written down and answered with `answer`.
class TestParent {
public:
    TestParent();

    HWND Window() const { return window_.Window(); }
    std::vector<UINT> Codes() const;
    int CountOf(UINT code) const;

    std::vector<Notice> notices;
    std::function<LRESULT(const Notice&)> answer;
    // What else it got and was asked to write down.
    std::vector<UINT> listenFor;
    struct Heard {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };
    std::vector<Heard> heard;

private:
    TestWindow window_;
};

// Works off the queue.
void Pump();
DWORD StyleOfWindow(HWND window);
bool HasShownStyle(HWND window);
std::string TextOfWindow(HWND window);
// In the client coordinates of its parent.
RECT PlaceOf(HWND window);

}  // namespace corvex
