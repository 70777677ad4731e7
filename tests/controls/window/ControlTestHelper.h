// A real parent for a control under test, which writes down what it is told, and a page that does as it is bidden.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/controls/window/MessagePump.h"
#include "tests/controls/window/WindowSpy.h"

namespace corvex {

// A window of a class of the test's own, whose messages are written down and pass through a function first.
class TestWindow {
public:
    explicit TestWindow(DWORD style = WS_OVERLAPPEDWINDOW, HWND parent = nullptr);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    HWND Window() const { return window_; }
    bool Alive() const { return ::IsWindow(window_) != FALSE; }
    int Count(UINT message) const { return CountOf(heard, message); }

    WindowSpy::Handler handler;
    HeardMessages heard;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND window_ = nullptr;
};

struct Notice {
    HWND from;
    UINT_PTR id;
    UINT code;
};

// The parent: WM_NOTIFY is written down and answered with `answer`.
class TestParent {
public:
    TestParent();

    HWND Window() const { return window_.Window(); }
    HeardMessages Heard(UINT message) const { return Of(window_.heard, message); }
    std::vector<UINT> Codes() const;
    int CountOf(UINT code) const;

    std::vector<Notice> notices;
    std::function<LRESULT(const Notice&)> answer;

private:
    TestWindow window_;
};

template <class Pointer>
WPARAM W(Pointer* pointer) {
    return reinterpret_cast<WPARAM>(pointer);
}

template <class Pointer>
LPARAM L(Pointer* pointer) {
    return reinterpret_cast<LPARAM>(pointer);
}

DWORD StyleOfWindow(HWND window);
bool HasShownStyle(HWND window);
// Of any window, also one of another thread.
std::string TextOfWindow(HWND window);
std::string ClassNameOf(HWND window);
RECT ClientOf(HWND window);
SIZE SizeOf(HWND window);
// In the client coordinates of its parent.
RECT PlaceOf(HWND window);
LOGFONTA FontOf(HWND window);
// The titles in a tree view, each with its children in brackets: "General(Keys COM) Last".
std::string TreeTitles(HWND tree);

}  // namespace corvex

// For EXPECT_EQ.
inline bool operator==(const RECT& first, const RECT& second) {
    return ::EqualRect(&first, &second) != FALSE;
}
inline bool operator==(const SIZE& first, const SIZE& second) {
    return first.cx == second.cx && first.cy == second.cy;
}
