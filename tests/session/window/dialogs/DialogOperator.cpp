#include "tests/session/window/dialogs/DialogOperator.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/Eventually.h"

namespace corvex::test {

namespace {

struct Search {
    std::string title;
    HWND former, found;
};

BOOL CALLBACK Look(HWND window, LPARAM search) {
    auto& wanted = *reinterpret_cast<Search*>(search);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    char name[32] = "";
    ::GetClassNameA(window, name, sizeof name);
    if (process != ::GetCurrentProcessId() || std::string(name) != "#32770" || window == wanted.former) return TRUE;
    if (::IsWindowVisible(window) == FALSE || TextOf(window) != wanted.title) return TRUE;
    wanted.found = window;
    return FALSE;
}

}  // namespace

HWND WaitForDialog(const std::string& title, HWND former) {
    Search search{title, former, nullptr};
    Eventually([&] {
        ::EnumWindows(&Look, reinterpret_cast<LPARAM>(&search));
        return search.found != nullptr;
    });
    return search.found;
}

std::string TextOf(HWND window) {
    char text[1024] = "";
    ::SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

DialogOperator::DialogOperator(const std::string& title, std::function<void(HWND)> work)
    : thread_([title, work = std::move(work)] {
          const HWND dialog = WaitForDialog(title);
          EXPECT_NE(nullptr, dialog) << "no dialog " << title;
          if (dialog != nullptr) work(dialog);
      }) {}

void Press(HWND dialog, int id) {
    ::SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(MAKEWPARAM(id, BN_CLICKED)),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

}  // namespace corvex::test
