// Somebody who sits at the dialogs that a test opens: presses, types and reads on a thread of its own, while the test's
// thread is inside the modal call.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "platform/WindowsApi.h"

namespace corvex::test {

// A dialog by what is in it, as the boxes of a program bear the same title; without a control by its title alone.
struct DialogLook {
    const char* title;
    int control = 0;
};
inline constexpr int kBoxText = 0xFFFF;  // of a message box
inline constexpr int kNameBox = 0x47C;   // of a file dialog

class DialogPerson {
public:
    // Begins to act at once. Dialogs that are still open long after the acts are over are closed, so that a failed test
    // ends.
    explicit DialogPerson(std::function<void()> acts);
    // Waits for a dialog and acts there; not at all when it never comes.
    DialogPerson(DialogLook look, std::function<void(HWND)> acts);
    // Waits for the acts. To be built before the modal call and to go after it.
    ~DialogPerson();
    DialogPerson(const DialogPerson&) = delete;
    DialogPerson& operator=(const DialogPerson&) = delete;

    // For the acts. Windows of this process only.

    // The dialog once it is there and visible; null, and a failure of the test, when it never comes.
    static HWND Await(const DialogLook& look);
    // Whether it is there now.
    static HWND Find(const DialogLook& look);
    // A failure when it stays.
    static void AwaitEnd(HWND dialog);
    // Presses a button without waiting for what that leads to.
    static void Press(HWND dialog, int button);
    // Waits until the window has taken what was sent to it so far.
    static std::string Text(HWND dialog, int control);
    static void Type(HWND dialog, int control, const std::string& text);
    // Reads a message box and presses its button.
    static std::string AnswerBox(const char* title, int button);
    // Gives a file dialog a name, and waits until it has taken it or asks back.
    static void AnswerFileDialog(const char* title, const std::string& name);

private:
    std::atomic<bool> over_{false};
    std::thread thread_;
};

}  // namespace corvex::test
