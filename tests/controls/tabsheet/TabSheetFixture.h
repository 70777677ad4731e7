// A tab sheet with its parent, and how a user gets at its tabs.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/tabsheet/TabSheet.h"
#include "tests/controls/window/ControlTestHelper.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

inline constexpr int kSheetId = 77;

class TabSheetFixture : public ::testing::Test {
protected:
    TabSheetFixture() {
        TabSheet::Register(::GetModuleHandleA(nullptr));
        sheet_ = MakeSheet(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN);
    }
    ~TabSheetFixture() override {
        if (::IsWindow(sheet_)) ::DestroyWindow(sheet_);
    }

    HWND MakeSheet(DWORD style) {
        HMENU const id = (style & WS_CHILD) != 0 ? reinterpret_cast<HMENU>(static_cast<INT_PTR>(kSheetId)) : nullptr;
        return ::CreateWindowExA(0, kTabSheetClass, "", style, 10, 20, 400, 300, parent_.Window(), id,
                                 ::GetModuleHandleA(nullptr), nullptr);
    }
    // The sheet as a frame of its own, owned by the parent.
    void MakeFrame() {
        ::DestroyWindow(sheet_);
        sheet_ = MakeSheet(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_VISIBLE | WS_CLIPCHILDREN);
        Pump();
        parent_.notices.clear();
    }
    TestWindow& AddPage(const char* title, int index = -1) {
        pages_.push_back(std::make_unique<TestWindow>());
        EXPECT_TRUE(TabSheet::addWindowPage(sheet_, pages_.back()->Window(), title, index));
        return *pages_.back();
    }
    // So many of the titles A, B, C and so on.
    template <std::size_t kCount>
    std::array<TestWindow*, kCount> AddPages() {
        std::array<TestWindow*, kCount> added{};
        for (std::size_t i = 0; i < kCount; ++i)
            added[i] = &AddPage(std::string(1, static_cast<char>('A' + i)).c_str());
        return added;
    }
    // On the first `message`, runs `action` and lets the message go no further.
    static void Once(TestWindow& window, UINT message, std::function<void()> action) {
        window.handler = [&window, message, action](UINT is, WPARAM, LPARAM) -> std::optional<LRESULT> {
            if (is != message) return std::nullopt;
            const auto run = action;
            window.handler = nullptr;
            run();
            return 0;
        };
    }
    HWND Tabs() const { return ::FindWindowExA(sheet_, nullptr, WC_TABCONTROLA, nullptr); }
    void ClickTab(int index) {
        RECT tab{};
        ::SendMessageA(Tabs(), TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
        const LPARAM middle = MAKELPARAM((tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2);
        ::SendMessageA(Tabs(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
        ::SendMessageA(Tabs(), WM_LBUTTONUP, 0, middle);
    }
    void DoubleClickCaption() { ::SendMessageA(sheet_, WM_NCLBUTTONDBLCLK, HTCAPTION, 0); }
    std::vector<std::string> Titles() const {
        std::vector<std::string> titles;
        for (int i = 0; i < TabSheet::pageCount(sheet_); ++i) {
            char title[200];
            TabSheet::getTitle(sheet_, i, title, sizeof title);
            titles.emplace_back(title);
        }
        return titles;
    }
    int Selected() const { return static_cast<int>(::SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0)); }
    // Where pages belong, in the tab control's coordinates.
    RECT PageArea() const {
        RECT area{};
        ::GetClientRect(Tabs(), &area);
        ::SendMessageA(Tabs(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
        return area;
    }
    bool IsFitted(HWND page) const { return PlaceOf(page) == PageArea(); }

    TestParent parent_;
    std::vector<std::unique_ptr<TestWindow>> pages_;
    HWND sheet_ = nullptr;
};

using Strings = std::vector<std::string>;

}  // namespace corvex
