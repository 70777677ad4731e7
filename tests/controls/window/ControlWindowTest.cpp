#include <gtest/gtest.h>

#include <new>
#include <thread>

#include "controls/window/ControlWindow.h"
#include "platform/PrivateMessages.h"

namespace corvex {
namespace {

constexpr char kProbeClass[] = "CorvexProbe", kOtherClass[] = "CorvexOtherProbe";

enum ProbeMessage : UINT {
    PM_DESTROY = WM_APP,  // destroys the window, then uses the object
    PM_NESTED,            // the same from a handler within a handler
    PM_ADD,               // adds wParam; the sum is returned
};

struct Wishes {
    UINT refuse = 0;  // this message is answered with failure
    bool deletedWithinHandler = false;
    int alive = 0;
};

class Probe : public ControlWindow {
public:
    Probe(HWND window, void* wishes) : ControlWindow(window), wishes_(*static_cast<Wishes*>(wishes)) {
        ++wishes_.alive;
    }
    ~Probe() override { --wishes_.alive; }

    int Sum() const { return sum_; }

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        Wishes& wishes = wishes_;
        if (message == wishes.refuse) return message == WM_CREATE ? -1 : FALSE;
        switch (message) {
            case PM_NESTED:
                ::SendMessageA(Window(), PM_DESTROY, 0, 0);
                break;
            case PM_DESTROY:
                ::DestroyWindow(Window());
                break;
            case PM_ADD:
                return sum_ += static_cast<int>(wParam);
            default:
                return Default(message, wParam, lParam);
        }
        if (wishes.alive == 0) wishes.deletedWithinHandler = true;
        return ++sum_;
    }

    Wishes& wishes_;
    int sum_ = 0;
};

class OtherProbe : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override { return Default(message, wParam, lParam); }
};

LRESULT answerAfterTheLast = 0;

LRESULT CALLBACK SendsOnAfterTheLast(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = ControlProcedure<Probe>(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) answerAfterTheLast = ControlProcedure<Probe>(window, PM_ADD, 5, 0);
    return result;
}

class TooLarge : public OtherProbe {
public:
    explicit TooLarge(HWND window) : OtherProbe(window) { throw std::bad_alloc(); }
};

class ControlWindowTest : public ::testing::Test {
protected:
    ControlWindowTest() {
        ControlClass windowClass{};
        windowClass.name = kProbeClass;
        EXPECT_TRUE(RegisterControl<Probe>(instance_, windowClass));
    }

    HWND Create(const char* name = kProbeClass) {
        return ::CreateWindowExA(0, name, "", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, instance_, &wishes_);
    }

    const HINSTANCE instance_ = ::GetModuleHandleA(nullptr);
    Wishes wishes_;
};

TEST_F(ControlWindowTest, ObjectLivesAsLongAsItsWindow) {
    const HWND window = Create();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(wishes_.alive, 1);
    ASSERT_NE(ControlOf<Probe>(window), nullptr);
    EXPECT_EQ(ControlOf<Probe>(window)->Window(), window);
    ::DestroyWindow(window);
    EXPECT_EQ(wishes_.alive, 0);
    EXPECT_EQ(ControlOf<Probe>(window), nullptr);
}

TEST_F(ControlWindowTest, ObjectGoesWithItsParentsWindow) {
    const HWND parent = Create();
    const HWND child =
        ::CreateWindowExA(0, kProbeClass, "", WS_CHILD, 0, 0, 5, 5, parent, nullptr, instance_, &wishes_);
    ASSERT_NE(child, nullptr);
    ASSERT_EQ(wishes_.alive, 2);
    ::DestroyWindow(parent);
    EXPECT_EQ(wishes_.alive, 0);
}

TEST_F(ControlWindowTest, TwoWindowsKnowNothingOfEachOther) {
    const HWND first = Create(), second = Create();
    ::SendMessageA(first, PM_ADD, 5, 0);
    EXPECT_EQ(::SendMessageA(second, PM_ADD, 2, 0), 2);
    EXPECT_EQ(ControlOf<Probe>(first)->Sum(), 5);
    ::DestroyWindow(first);
    EXPECT_EQ(::SendMessageA(second, PM_ADD, 1, 0), 3);
    ::DestroyWindow(second);
}

TEST_F(ControlWindowTest, WindowDestroyedFromInsideAHandlerKeepsTheObjectUntilTheOutermostReturns) {
    for (const auto& [message, handlers] : {std::pair{PM_DESTROY, 1}, {PM_NESTED, 2}}) {
        const HWND window = Create();
        EXPECT_EQ(::SendMessageA(window, message, 0, 0), handlers);
        EXPECT_FALSE(::IsWindow(window));
        EXPECT_FALSE(wishes_.deletedWithinHandler);
        EXPECT_EQ(wishes_.alive, 0);
    }
}

TEST_F(ControlWindowTest, HoldKeepsTheObjectOfAWindowThatGoes) {
    const HWND window = Create();
    Probe* const probe = ControlOf<Probe>(window);
    {
        const WindowHold hold(probe);
        ::DestroyWindow(window);
        EXPECT_EQ(wishes_.alive, 1);
        EXPECT_EQ(probe->Sum(), 0);
        EXPECT_EQ(ControlOf<Probe>(window), nullptr);
    }
    EXPECT_EQ(wishes_.alive, 0);
    const WindowHold nothing(nullptr);
}

TEST_F(ControlWindowTest, MessageAfterTheLastFindsNoObject) {
    const HWND window = Create();
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SendsOnAfterTheLast));
    answerAfterTheLast = -1;
    ::DestroyWindow(window);
    EXPECT_EQ(answerAfterTheLast, 0);
}

TEST_F(ControlWindowTest, WindowThatIsRefusedLeavesNoObject) {
    for (const UINT message : {UINT{WM_NCCREATE}, UINT{WM_CREATE}}) {
        wishes_.refuse = message;
        EXPECT_EQ(Create(), nullptr) << message;
        EXPECT_EQ(wishes_.alive, 0) << message;
    }
}

TEST_F(ControlWindowTest, WindowWithoutMemoryForItsObjectIsNotMade) {
    ControlClass windowClass{};
    windowClass.name = "CorvexTooLarge";
    ASSERT_TRUE(RegisterControl<TooLarge>(instance_, windowClass));
    EXPECT_EQ(Create(windowClass.name), nullptr);
}

TEST_F(ControlWindowTest, ObjectIsFoundAndDoesWorkInWindowsOfItsOwnClassAlone) {
    ControlClass windowClass{};
    windowClass.name = kOtherClass;
    ASSERT_TRUE(RegisterControl<OtherProbe>(instance_, windowClass));
    const HWND other = Create(kOtherClass), button = Create("BUTTON");
    EXPECT_NE(ControlOf<OtherProbe>(other), nullptr);
    for (const HWND odd : {other, button, HWND{}}) {
        EXPECT_EQ(ControlOf<Probe>(odd), nullptr);
        EXPECT_FALSE(CallOnOwner<Probe>(odd, [](Probe&) { FAIL(); }));
        ::DestroyWindow(odd);
    }
    const HWND window = Create();
    EXPECT_EQ(::SendMessageA(window, kMessageCarriedCall, 0, 0), 0);
    ::DestroyWindow(window);
}

TEST_F(ControlWindowTest, WorkIsDoneOnTheWindowsThreadAndWaitedFor) {
    const HWND window = Create();
    int sum = 0;
    DWORD thread = 0;
    std::thread worker([&] {
        EXPECT_TRUE(CallOnOwner<Probe>(window, [&](Probe& probe) {
            thread = ::GetCurrentThreadId();
            sum = static_cast<int>(::SendMessageA(probe.Window(), PM_ADD, 4, 0));
        }));
        ::PostMessageA(window, WM_NULL, 0, 0);
    });
    MSG message;
    ::GetMessageA(&message, nullptr, 0, 0);
    worker.join();
    EXPECT_EQ(sum, 4);
    EXPECT_EQ(thread, ::GetCurrentThreadId());
    EXPECT_TRUE(CallOnOwner<Probe>(window, [](Probe& probe) { ::DestroyWindow(probe.Window()); }));
    EXPECT_FALSE(CallOnOwner<Probe>(window, [](Probe&) { FAIL(); })) << "it is gone";
    EXPECT_EQ(wishes_.alive, 0);
}

}  // namespace
}  // namespace corvex
