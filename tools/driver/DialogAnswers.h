// Answers the dialogs that another process shows.
#pragma once

#include <string>

#include "platform/WindowsApi.h"

namespace corvex::test {

// Titles that several tests wait for.
inline constexpr char kEditorTitle[] = "Corvex Definition Editor";
inline constexpr char kSaveLogTitle[] = "Select/Create file to save...";

// Each waits for its dialog with a long deadline, and throws std::runtime_error when it does not come or does not go.

// The visible dialog with this title.
HWND WaitForDialog(DWORD process, const std::string& title);
// Presses a button and waits until the dialog is gone.
void PressButton(HWND dialog, int id);

// Types a name into a file dialog and presses its button. What it asks back (to overwrite, to create) is answered with
// yes.
void ChooseFile(DWORD process, const std::string& title, const std::string& path);
void CancelDialog(DWORD process, const std::string& title);

// Closes a message box by its OK and returns what it said.
std::string CloseBox(DWORD process, const std::string& title);

}  // namespace corvex::test
