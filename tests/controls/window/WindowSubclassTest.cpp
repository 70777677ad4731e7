#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "controls/window/WindowSubclass.h"

namespace corvex {
namespace {

constexpr UINT kSpeak = WM_APP, kEndWindow = WM_APP + 1, kStepBack = WM_APP + 2;

int alive = 0;
std::string order;

// Writes its letter for each kSpeak.
template <char letter>
class Listener final : public WindowSubclass {
public:
    explicit Listener(HWND window) : WindowSubclass(window) { ++alive; }
    ~Listener() override { --alive; }

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kSpeak) order += letter;
        if (message == kEndWindow) ::DestroyWindow(Window());
        if (message == kStepBack) Detach<Listener>(Window());
        if (message == kEndWindow || message == kStepBack) return alive;
        return Former(message, wParam, lParam);
    }
};

using A = Listener<'a'>;
using B = Listener<'b'>;

class WindowSubclassTest : public ::testing::Test {
protected:
    WindowSubclassTest() { order.clear(); }
    ~WindowSubclassTest() override {
        if (::IsWindow(window_) != FALSE) ::DestroyWindow(window_);
        EXPECT_EQ(alive, 0);
    }
    template <class Subclass>
    bool AttachTo(HWND window) {
        return Attach(std::make_unique<Subclass>(window));
    }
    std::string OrderOf(HWND window) {
        order.clear();
        ::SendMessageA(window, kSpeak, 0, 0);
        return order;
    }
    LONG_PTR Procedure() const { return ::GetWindowLongPtrA(window_, GWLP_WNDPROC); }

    const HWND window_ = ::CreateWindowExA(0, "EDIT", "text", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(WindowSubclassTest, ObjectHearsFirstAndGoesWithTheWindow) {
    ASSERT_TRUE(AttachTo<A>(window_));
    EXPECT_EQ(OrderOf(window_), "a");
    EXPECT_EQ(::GetWindowTextLengthA(window_), 4) << "the control's own";
    EXPECT_EQ(SubclassOf<A>(window_)->Window(), window_);
    EXPECT_EQ(SubclassOf<B>(window_), nullptr);
    ::DestroyWindow(window_);
    EXPECT_EQ(alive, 0);
}

TEST_F(WindowSubclassTest, OneOfEachClassMayStandBeforeAWindow) {
    ASSERT_TRUE(AttachTo<A>(window_));
    ASSERT_TRUE(AttachTo<B>(window_));
    EXPECT_FALSE(AttachTo<A>(window_));
    EXPECT_EQ(OrderOf(window_), "ba");
    EXPECT_EQ(alive, 2);
}

TEST_F(WindowSubclassTest, DetachGivesTheProcedureBackUnlessSomebodyStandsInFront) {
    const LONG_PTR own = Procedure();
    AttachTo<A>(window_);
    AttachTo<B>(window_);
    EXPECT_FALSE(Detach<A>(window_));
    EXPECT_EQ(OrderOf(window_), "ba");
    EXPECT_TRUE(Detach<B>(window_));
    EXPECT_TRUE(Detach<A>(window_));
    EXPECT_FALSE(Detach<A>(window_));
    EXPECT_EQ(Procedure(), own);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(OrderOf(window_), "");
}

TEST_F(WindowSubclassTest, ObjectWaitsForItsHandlerToReturn) {
    AttachTo<A>(window_);
    EXPECT_EQ(::SendMessageA(window_, kStepBack, 0, 0), 1);
    EXPECT_EQ(alive, 0);
    AttachTo<A>(window_);
    EXPECT_EQ(::SendMessageA(window_, kEndWindow, 0, 0), 1);
    EXPECT_FALSE(::IsWindow(window_));
    EXPECT_EQ(alive, 0);
}

TEST_F(WindowSubclassTest, WideWindowStaysWide) {
    const HWND wide = ::CreateWindowExW(0, L"EDIT", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(AttachTo<A>(wide));
    EXPECT_TRUE(::IsWindowUnicode(wide));
    ::SetWindowTextW(wide, L"\x03A9");
    wchar_t text[4] = L"";
    ::GetWindowTextW(wide, text, 4);
    EXPECT_EQ(text[0], L'\x03A9');
    ::DestroyWindow(wide);
}

TEST_F(WindowSubclassTest, WindowThatIsGoneTakesNone) {
    ::DestroyWindow(window_);
    EXPECT_FALSE(AttachTo<A>(window_));
    EXPECT_FALSE(Detach<A>(window_));
    EXPECT_EQ(SubclassOf<A>(nullptr), nullptr);
}

}  // namespace
}  // namespace corvex
