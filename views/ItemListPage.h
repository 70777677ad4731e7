// The "Item Lists" tab: one list view of the definition as a table of live values and titles.
#pragma once

#include "session/SessionState.h"

namespace corvex {

// Adds the page to session.tabSheet. Once. Main thread, like the next.
void CreateItemListPage(SessionState& session);
// After every change of the definition, before a message is waited for: offers its lists, and shows the first.
void RefreshItemListPage(SessionState& session);

}  // namespace corvex
