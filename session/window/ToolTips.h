// The words that come up over the toolbars' buttons.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// What a toolbar says about a command when the pointer rests on its button; null for any other.
const char* ToolTipOf(unsigned command);
// Answers a toolbar's question for it. False when the notification is another.
bool AnswerToolTip(NMHDR* header);

}  // namespace corvex
