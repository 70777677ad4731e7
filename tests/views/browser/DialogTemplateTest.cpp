// A template in memory makes the dialog that it tells of.
#include <gtest/gtest.h>

#include <string>

#include "views/browser/DialogTemplate.h"

namespace corvex {
namespace {

INT_PTR CALLBACK Nothing(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

std::string TextOf(HWND window) {
    char text[64] = {};
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

// Texts of even and of odd length, as each item has to begin at a double word.
TEST(DialogTemplateTest, MakesTheControlsInTheirOrder) {
    DialogTemplate made(WS_POPUP | WS_CAPTION, {0, 0, 100, 50}, L"Title", 8, L"MS Shell Dlg");
    made.Add(7, WS_TABSTOP, {1, 2, 30, 10}, L"Button", L"odd");
    made.Add(8, WS_TABSTOP, {1, 14, 30, 10}, L"Edit", L"even");
    made.Add(IDOK, WS_TABSTOP, {1, 26, 30, 10}, L"Button", L"");
    const HWND dialog = ::CreateDialogIndirectParamA(::GetModuleHandleA(nullptr), made.Get(), nullptr, &Nothing, 0);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(dialog), "Title");
    EXPECT_EQ(TextOf(::GetDlgItem(dialog, 7)), "odd");
    EXPECT_EQ(TextOf(::GetDlgItem(dialog, 8)), "even");
    EXPECT_EQ(::GetNextDlgTabItem(dialog, ::GetDlgItem(dialog, 7), FALSE), ::GetDlgItem(dialog, 8));
    EXPECT_EQ(::GetNextDlgTabItem(dialog, ::GetDlgItem(dialog, 8), FALSE), ::GetDlgItem(dialog, IDOK));

    RECT units{0, 0, 30, 10}, place{};
    ::MapDialogRect(dialog, &units);
    ::GetWindowRect(::GetDlgItem(dialog, 7), &place);
    EXPECT_EQ(place.right - place.left, units.right);
    EXPECT_EQ(place.bottom - place.top, units.bottom);
    ::DestroyWindow(dialog);
}

}  // namespace
}  // namespace corvex
