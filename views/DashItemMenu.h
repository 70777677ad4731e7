// The menu on a gauge, in which the user chooses another item for it.
#pragma once

#include "definition/ADXDashboard.h"
#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Shows the menu at a place of the screen and waits for a choice: any value, or, for all but an analog gauge, any
// bitmask; the present item is checked. Null when nothing was chosen.
//
// Messages are handled meanwhile, a load of a definition among them: then neither the entry nor what is returned is
// there any more, so the caller must know whether that has happened before it follows either. Main thread.
ADXObject* AskForItem(HWND page, const ADXDefinition& definition, const ADXDGENTRY& entry, POINT place);

}  // namespace corvex
