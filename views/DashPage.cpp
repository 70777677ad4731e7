#include "views/DashPage.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/tabsheet/TabSheet.h"
#include "views/DashBindingModel.h"
#include "views/DashGauge.h"
#include "views/DashItemMenu.h"
#include "views/DashLayoutModel.h"
#include "views/PageCombo.h"
#include "views/PageDialog.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

constexpr LONG kComboGap = 3;  // pixels between the combo box and the gauges

// What it has kept of its picture is of another size.
void PlaceGauge(HWND gauge, const PixelArea& place) {
    const RECT before = RectInParent(gauge);
    const LONG width = place.right - place.left, height = place.bottom - place.top;
    ::SetWindowPos(gauge, nullptr, place.left, place.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    if (before.right - before.left != width || before.bottom - before.top != height)
        ::InvalidateRect(gauge, nullptr, FALSE);
}

void LayOutDash(DashPage& state) {
    RECT client{};
    ::GetClientRect(state.window, &client);
    const RECT combo = RectInParent(::GetDlgItem(state.window, IDC_DASH_COMBO));
    state.area = {client.left, client.top + combo.bottom + kComboGap, client.right, client.bottom};
    const PixelArea area{state.area.left, state.area.top, state.area.right, state.area.bottom};
    for (const HWND gauge : state.gauges) {
        if (const ADXDGENTRY* const entry = EntryOf(gauge)) PlaceGauge(gauge, GaugePlace(*entry, area));
    }
}

// What an entry shows is bound before it is seen.
HWND ShowGauge(const DashPage& state, std::uint32_t index) {
    const HWND gauge = MakeGauge(state.window, state.dashboard->GetEntry(index), index);
    BindGauge(gauge, state.session->definition);
    if (gauge != nullptr) ::ShowWindow(gauge, SW_SHOW);
    return gauge;
}

void DestroyGauges(DashPage& state) {
    for (const HWND gauge : std::exchange(state.gauges, {})) {
        if (gauge != nullptr) ::DestroyWindow(gauge);
    }
}

// A readout becomes a lamp for a bitmask, and a lamp a readout for a value.
void Rebind(DashPage& state, std::uint32_t index, ADXObject* item) {
    ADXDGENTRY entry = *state.dashboard->GetEntry(index);
    const bool isOtherKind = entry.item != nullptr && entry.item->GetType() != item->GetType();
    if (isOtherKind) entry.gaugetype = item->GetType() == kTypeValue ? kDigitalReadoutType : kStatusGaugeType;
    entry.item = item;
    entry.itemidhash = item->GetIdHash();
    state.dashboard->SetEntry(index, &entry);
    state.session->dashChanged = 1;

    HWND& gauge = state.gauges[index];
    if (isOtherKind) {
        ::DestroyWindow(std::exchange(gauge, nullptr));
        gauge = ShowGauge(state, index);
        LayOutDash(state);
    } else {
        BindGauge(gauge, state.session->definition);
    }
    if (gauge == nullptr) return;
    ::InvalidateRect(gauge, nullptr, TRUE);
    ::UpdateWindow(gauge);
}

// A menu that is open offers what is going, and holds the thread until it is closed.
void CloseMenu(const DashPage& state) {
    if (state.menuIsOpen) ::EndMenu();
}

// While the menu is open everything may happen, be it a load that leaves nothing of what was looked at before, or the
// end of the page.
void OnGaugeMenu(HWND page, unsigned control, POINT place) {
    DashPage& before = *DashPageOf(page);
    const std::uint32_t index = control - kFirstGaugeId;
    if (before.menuIsOpen || before.session->currentDashboard == nullptr || index >= before.gauges.size()) return;
    const ADXDGENTRY* const entry = EntryOf(before.gauges[index]);
    if (entry == nullptr) return;
    const unsigned shown = before.shown;
    before.menuIsOpen = true;
    ADXObject* const item = AskForItem(page, before.session->definition, *entry, place);

    DashPage* const state = DashPageOf(page);
    if (state == nullptr) return;
    state->menuIsOpen = false;
    if (item == nullptr || state->shown != shown) return;
    Rebind(*state, index, item);
}

void ShowChosenDashboard(SessionState& session, HWND page) {
    const HWND combo = ::GetDlgItem(page, IDC_DASH_COMBO);
    session.currentDashboard = static_cast<ADXDashboard*>(SelectedObject(combo, session.definition, kTypeDashboard));
    ShowDashboard(session.currentDashboard, page);
    ::SendMessageA(page, WM_SIZE, 0, 0);
}

void OnDashCommand(DashPage& state, WPARAM wParam, LPARAM lParam) {
    const unsigned control = LOWORD(wParam), code = HIWORD(wParam);
    const POINT place{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    if (control == IDC_DASH_COMBO && code == CBN_SELCHANGE) {
        ShowChosenDashboard(*state.session, state.window);
    } else if (control >= kFirstGaugeId && (code == kAnalogGaugeMenuCode || code == kDigitalReadoutMenuCode)) {
        OnGaugeMenu(state.window, control, place);
    }
}

void BeginDash(HWND page, LPARAM session) {
    auto state = std::make_unique<DashPage>();
    state->window = page;
    state->session = reinterpret_cast<SessionState*>(session);
    state->session->views.Register(SampleViewKind::kDash, state.get());
    ::SetWindowLongPtrA(page, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(state.release()));
}

void EndDash(HWND page) {
    const std::unique_ptr<DashPage> state(DashPageOf(page));
    ::SetWindowLongPtrA(page, GWLP_USERDATA, 0);
    if (state == nullptr) return;
    CloseMenu(*state);
    state->session->views.Register(SampleViewKind::kDash, nullptr);
    state->session->dashPage = nullptr;
}

INT_PTR CALLBACK DashProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        BeginDash(page, lParam);
        return FALSE;
    }
    DashPage* const state = DashPageOf(page);
    if (state == nullptr) return FALSE;
    switch (message) {
        case WM_SIZE:
            LayOutDash(*state);
            return TRUE;
        case WM_COMMAND:
            OnDashCommand(*state, wParam, lParam);
            return TRUE;
        case WM_WINDOWPOSCHANGED:
            state->session->views.Announce();  // it may have been shown or hidden
            return FALSE;
        case WM_ERASEBKGND:
            return DialogResult(page, 1);
        case WM_PAINT:
            PaintPageGround(page);
            return TRUE;
        case WM_DESTROY:
            EndDash(page);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void CreateDashPage(SessionState& session) {
    const HWND page = TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), &DashProcedure,
                                              static_cast<HINSTANCE>(session.instance), IDD_DASH_PAGE, "Dash", -1,
                                              reinterpret_cast<LPARAM>(&session), false);
    session.dashPage = page;
    if (page == nullptr) return;
    ShowDashboard(static_cast<ADXDashboard*>(session.definition.GetObject(kTypeDashboard, 0)), page);
    ::SendMessageA(page, WM_SIZE, 0, 0);
}

void RefreshDashPage(SessionState& session) {
    const HWND page = static_cast<HWND>(session.dashPage);
    session.currentDashboard = nullptr;
    if (page == nullptr) return;
    // First of all, as the gauges point at entries that are gone.
    ShowDashboard(nullptr, page);
    FillPageCombo(::GetDlgItem(page, IDC_DASH_COMBO), session.definition, kTypeDashboard);
    ShowChosenDashboard(session, page);
}

void ShowDashboard(ADXDashboard* dashboard, HWND page) {
    DashPage* const state = DashPageOf(page);
    if (state == nullptr) return;
    ++state->shown;
    CloseMenu(*state);
    state->dashboard = dashboard;
    DestroyGauges(*state);
    if (dashboard == nullptr) return;
    for (std::uint32_t i = 0; i < dashboard->GetEntryCount(); ++i)
        state->gauges.push_back(ShowGauge(*state, i));
}

bool DashPage::WantsSamples() const {
    return ::IsWindowVisible(window) != FALSE;
}

void DashPage::Read(const PublishedSample& sample) {
    readings.clear();
    for (const HWND gauge : gauges) {
        if (const auto reading = ReadGauge(gauge, session->definition, sample.packet, sample.commandId))
            readings.push_back(*reading);
    }
}

void DashPage::Draw() {
    std::for_each(readings.begin(), readings.end(), ShowReading);
}

DashPage* DashPageOf(HWND page) {
    const auto procedure = ::GetWindowLongPtrA(page, DWLP_DLGPROC);
    if (procedure != reinterpret_cast<LONG_PTR>(&DashProcedure)) return nullptr;
    return reinterpret_cast<DashPage*>(::GetWindowLongPtrA(page, GWLP_USERDATA));
}

}  // namespace corvex
