// A chart on show, and what its parent is told: what the tests of all charts with points stand on.
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "tests/controls/chart/ChartStorm.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {

// Texts without an end, behind which nothing may be read.
class EdgeOfMemory {
public:
    EdgeOfMemory() {
        SYSTEM_INFO system{};
        ::GetSystemInfo(&system);
        size_ = system.dwPageSize;
        pages_ = static_cast<char*>(::VirtualAlloc(nullptr, 2 * size_, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
        DWORD former = 0;
        ::VirtualProtect(pages_ + size_, size_, PAGE_NOACCESS, &former);
        std::memset(pages_, 'x', size_);
    }
    ~EdgeOfMemory() { ::VirtualFree(pages_, 0, MEM_RELEASE); }
    EdgeOfMemory(const EdgeOfMemory&) = delete;
    EdgeOfMemory& operator=(const EdgeOfMemory&) = delete;

    char* Last(std::size_t length) const { return pages_ + size_ - length; }

private:
    std::size_t size_ = 0;
    char* pages_ = nullptr;
};

// `Block` is the chart's notification, and `Told` what a test wants of it, made by Told(block).
template <class Block, class Told>
class ChartWindowTest : public ::testing::Test {
protected:
    ChartWindowTest(const char* className, int width, int height) : shown(className, width, height, 7) {
        shown.Parent().handler = [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == WM_NOTIFY) OnNotify(wParam, *reinterpret_cast<const Block*>(lParam));
            return std::nullopt;
        };
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return shown.Send(message, wParam, lParam);
    }
    static int Cursor() {
        ::ShowCursor(TRUE);
        return ::ShowCursor(FALSE);
    }
    // The mouse and the keys, in any order.
    void SendInput(ChartStorm& storm) {
        const UINT mouse[] = {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_MOUSEMOVE,
                              WM_MOUSEMOVE,   WM_LBUTTONUP,     WM_CAPTURECHANGED};
        const UINT keys[] = {VK_SHIFT, VK_CONTROL, VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN, 0xDB, 0xDD};
        const auto far = [&] { return storm.Once(4) ? storm.Next(0x10000) : storm.Next(300); };
        const UINT number = mouse[storm.Next(std::size(mouse))];
        if (storm.Once(3)) {
            Send(storm.Once(2) ? WM_KEYDOWN : WM_KEYUP, keys[storm.Next(std::size(keys))]);
        } else if (number == WM_CAPTURECHANGED) {
            Send(number);
        } else {
            Send(number, static_cast<WPARAM>(storm.Next(16)), MAKELPARAM(far(), far()));
        }
    }

    ShownControl shown;
    const HWND window = shown.Window();
    std::vector<Told> told;
    std::function<void()> onTold;

private:
    void OnNotify(WPARAM id, const Block& block) {
        EXPECT_EQ(id, 7U);
        EXPECT_EQ(block.header.idFrom, 7U);
        EXPECT_EQ(block.header.hwndFrom, window);
        told.push_back(Told(block));
        if (onTold) onTold();
    }
};

}  // namespace corvex
