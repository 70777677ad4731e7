#include "tests/views/browser/DialogPerson.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/Clock.h"
#include "tests/support/Eventually.h"

namespace corvex::test {
namespace {

struct Search {
    const DialogLook* look;  // null for any dialog
    HWND found = nullptr;
};

BOOL CALLBACK Compare(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    char name[32] = {};
    ::GetClassNameA(window, name, sizeof name);
    if (process != ::GetCurrentProcessId() || std::strcmp(name, "#32770") != 0 || !::IsWindowVisible(window))
        return TRUE;
    if (search.look != nullptr) {
        char title[128] = {};
        ::GetWindowTextA(window, title, sizeof title);
        if (std::strcmp(title, search.look->title) != 0) return TRUE;
        if (search.look->control != 0 && ::GetDlgItem(window, search.look->control) == nullptr) return TRUE;
    }
    search.found = window;
    return FALSE;
}

HWND Look(const DialogLook* look) {
    Search search{look};
    ::EnumWindows(&Compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// A box is agreed to, whatever it asks, and anything else is given up.
void Dismiss(HWND dialog) {
    if (::GetDlgItem(dialog, kBoxText) == nullptr) return DialogPerson::Press(dialog, IDCANCEL);
    DialogPerson::Press(dialog, IDYES);
    DialogPerson::Press(dialog, IDOK);
}

}  // namespace

DialogPerson::DialogPerson(std::function<void()> acts)
    : thread_([this, acts = std::move(acts)] {
          acts();
          IClock& clock = SystemClock();
          std::int64_t patience = clock.Counter() + 10 * clock.Frequency();
          Eventually([&] {
              if (over_) return true;
              if (clock.Counter() < patience) return false;
              patience += clock.Frequency() / 2;
              if (const HWND left = Look(nullptr)) {
                  ADD_FAILURE() << "a dialog was left open: " << Text(left, kBoxText);
                  Dismiss(left);
              }
              return false;
          });
      }) {}

DialogPerson::DialogPerson(DialogLook look, std::function<void(HWND)> acts)
    : DialogPerson([look, acts = std::move(acts)] {
          if (const HWND dialog = Await(look)) acts(dialog);
      }) {}

DialogPerson::~DialogPerson() {
    over_ = true;
    thread_.join();
}

HWND DialogPerson::Find(const DialogLook& look) {
    return Look(&look);
}

HWND DialogPerson::Await(const DialogLook& look) {
    HWND found = nullptr;
    Eventually([&] { return (found = Look(&look)) != nullptr; });
    EXPECT_NE(found, nullptr) << "no dialog " << look.title << " with control " << look.control;
    return found;
}

void DialogPerson::AwaitEnd(HWND dialog) {
    EXPECT_TRUE(Eventually([=] { return !::IsWindow(dialog) || !::IsWindowVisible(dialog); }));
}

void DialogPerson::Press(HWND dialog, int button) {
    ::PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
}

std::string DialogPerson::Text(HWND dialog, int control) {
    char text[4096] = {};
    ::SendDlgItemMessageA(dialog, control, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

void DialogPerson::Type(HWND dialog, int control, const std::string& text) {
    ::SendDlgItemMessageA(dialog, control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::string DialogPerson::AnswerBox(const char* title, int button) {
    const HWND box = Await({title, kBoxText});
    if (box == nullptr) return {};
    const std::string text = Text(box, kBoxText);
    Press(box, button);
    AwaitEnd(box);
    return text;
}

void DialogPerson::AnswerFileDialog(const char* title, const std::string& name) {
    const HWND dialog = Await({title, kNameBox});
    if (dialog == nullptr) return;
    Type(dialog, kNameBox, name);
    Press(dialog, IDOK);
    EXPECT_TRUE(Eventually([=] { return !::IsWindow(dialog) || !::IsWindowEnabled(dialog); }));
}

}  // namespace corvex::test
