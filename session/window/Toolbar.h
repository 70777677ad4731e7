// Toolbars of pictures.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

struct ToolButton {
    int image;
    int command;
};

// A flat toolbar whose buttons send their commands, and their questions for a tooltip, to `parent`. `images` is an
// image list that outlives it. Main thread.
HWND MakeToolbar(HWND parent, HINSTANCE instance, int id, void* images, const ToolButton* buttons, int count);

}  // namespace corvex
