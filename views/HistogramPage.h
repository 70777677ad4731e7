// The "Histograms" tab: one histogram of the definition as a table of cells or as a surface.
#pragma once

#include "session/SessionState.h"

namespace corvex {

// Adds the page to session.tabSheet. Once. Main thread, like the next.
void CreateHistogramPage(SessionState& session);
// After every change of the definition, before a message is waited for: offers its histograms and shows the first. The
// statistic on show stays.
void RefreshHistogramPage(SessionState& session);

}  // namespace corvex
