#include "views/Pages.h"

#include "views/DashPage.h"
#include "views/HistogramPage.h"
#include "views/ItemListPage.h"
#include "views/MonitorPage.h"

namespace corvex {

void CreatePages(SessionState& session) {
    CreateDashPage(session);
    CreateItemListPage(session);
    CreateHistogramPage(session);
    CreateMonitorPage(session);
}

void RefreshPages(SessionState& session) {
    RefreshDashPage(session);
    RefreshItemListPage(session);
    RefreshHistogramPage(session);
    RefreshMonitorPage(session);
}

}  // namespace corvex
