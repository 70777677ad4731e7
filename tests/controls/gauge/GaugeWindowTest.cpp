#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "controls/gauge/GaugeWindow.h"

namespace corvex {
namespace {

struct Heard {
    WPARAM wParam;
    LPARAM lParam;
};

struct Parent {
    std::vector<Heard> commands;
    std::vector<UINT> childMessages;
};
Parent* parent = nullptr;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (parent != nullptr && message == WM_COMMAND) parent->commands.push_back({wParam, lParam});
    if (parent != nullptr && ::GetParent(window) != nullptr) parent->childMessages.push_back(message);
    return ::DefWindowProcA(window, message, wParam, lParam);
}

class GaugeWindowTest : public ::testing::Test {
protected:
    GaugeWindowTest() {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = &Procedure;
        windowClass.hInstance = ::GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "CorvexGaugeProbe";
        ::RegisterClassA(&windowClass);
        top_ = ::CreateWindowExA(0, "CorvexGaugeProbe", "", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr,
                                 windowClass.hInstance, nullptr);
        child_ =
            ::CreateWindowExA(0, "CorvexGaugeProbe", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, top_,
                              reinterpret_cast<HMENU>(static_cast<UINT_PTR>(0x12345)), windowClass.hInstance, nullptr);
        ::UpdateWindow(child_);
        parent = &told_;
    }
    ~GaugeWindowTest() override {
        parent = nullptr;
        ::DestroyWindow(top_);
    }

    Parent told_;
    HWND top_ = nullptr, child_ = nullptr;
};

TEST_F(GaugeWindowTest, MenuGoesToTheParentWithCodeAndIdOfSixteenBits) {
    EXPECT_EQ(ForwardContextMenu(child_, 1574, 0x00200010), 0);
    ASSERT_EQ(told_.commands.size(), 1u);
    EXPECT_EQ(told_.commands[0].wParam, WPARAM{(1574u << 16) | 0x2345u});
    EXPECT_EQ(told_.commands[0].lParam, 0x00200010);
}

TEST_F(GaugeWindowTest, RepaintErasesAndPaintsAtOnce) {
    RepaintGauge(child_);
    const std::vector<UINT>& seen = told_.childMessages;
    EXPECT_NE(std::find(seen.begin(), seen.end(), UINT{WM_PAINT}), seen.end());
    EXPECT_NE(std::find(seen.begin(), seen.end(), UINT{WM_ERASEBKGND}), seen.end());
}

}  // namespace
}  // namespace corvex
