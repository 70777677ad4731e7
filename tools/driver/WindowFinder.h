// Looks at the windows of another process, as a person in front of the screen would.
#pragma once

#include <string>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex::test {

inline constexpr char kDialogClass[] = "#32770";

// Sends a message and waits for the answer. Throws std::runtime_error when the window gives none within ten seconds:
// a person would call that program frozen. 0 for a window that is gone.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// The text as the window tells it, cut at `capacity` - 1. Empty for a window that is gone.
std::string TextOf(HWND window, std::size_t capacity = 1024);
std::string ClassOf(HWND window);

// The process's visible windows without a parent.
std::vector<HWND> TopWindowsOf(DWORD process);
// Null when there is none. An empty class or title stands for any.
HWND FindTopWindow(DWORD process, const std::string& className, const std::string& title = {});
// The first below `parent`, at any depth, seen or not; id -1 stands for any.
HWND FindBelow(HWND parent, const std::string& className, int id = -1);
HWND FindBelow(HWND parent, int id);
// All of them, with their own children.
std::vector<HWND> AllBelow(HWND parent);

// Selects a row of a combo box and tells its parent, as a click on the row does. Throws std::runtime_error when there
// is no such row.
void SelectRow(HWND combo, int row);

}  // namespace corvex::test
