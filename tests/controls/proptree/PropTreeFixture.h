// A property tree with its parent, and how a user gets at it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/proptree/PropTreeContainer.h"
#include "tests/controls/window/ControlTestHelper.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

inline constexpr int kWide = 201, kTall = 202, kFramed = 203;

class PropTreeFixture : public ::testing::Test {
protected:
    PropTreeFixture() {
        PropTreeContainer::Register(Instance());
        ::MoveWindow(parent_.Window(), 100, 80, 700, 600, FALSE);
        Open();
    }
    ~PropTreeFixture() override {
        if (::IsWindow(window_)) ::DestroyWindow(window_);
    }

    static HINSTANCE Instance() { return ::GetModuleHandleA(nullptr); }
    void Open() { window_ = PropTreeContainer::create(parent_.Window(), Instance(), "Preferences", 150, 100); }
    HWND Add(int templateId, const char* title, const char* after = nullptr, const char* parent = nullptr) {
        return PropTreeContainer::addPage(window_, nullptr, Instance(), templateId, title, after, parent);
    }
    HWND Tree() const { return ::FindWindowExA(window_, nullptr, WC_TREEVIEWA, nullptr); }
    HWND Button(int id) const { return ::GetDlgItem(window_, id); }
    void Press(int id) { ::SendMessageA(Button(id), BM_CLICK, 0, 0); }

    HTREEITEM FirstRoot() const {
        return reinterpret_cast<HTREEITEM>(::SendMessageA(Tree(), TVM_GETNEXTITEM, TVGN_ROOT, 0));
    }
    std::string Shape() const { return TreeTitles(Tree()); }
    SIZE ClientSize() const { return {ClientOf(window_).right, ClientOf(window_).bottom}; }
    void Resize(int width, int height) {
        ::SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    }
    void Select(const char* title) { EXPECT_TRUE(PropTreeContainer::selectByTitle(window_, title)); }

    TestParent parent_;
    HWND window_ = nullptr;
};

}  // namespace corvex
