// Works modal dialogs from a thread of its own, as the user does while the program waits.
#pragma once

#include <functional>
#include <string>
#include <thread>

#include "platform/WindowsApi.h"

namespace corvex::test {

// The visible dialog of this process with that title that is not `former`, waited for; null when none comes.
HWND WaitForDialog(const std::string& title, HWND former = nullptr);

// Of any control, also one of another thread.
std::string TextOf(HWND window);

// Waits for the dialog and works it. Ends, with a failed expectation, when the dialog stays away. The dialog is
// operated by messages; whoever built this waits for the thread at its end.
class DialogOperator {
public:
    DialogOperator(const std::string& title, std::function<void(HWND)> work);

private:
    std::jthread thread_;
};

// Presses a button of the dialog by its number.
void Press(HWND dialog, int id);

}  // namespace corvex::test
