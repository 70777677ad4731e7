#include "views/DashPage.h"

#include <algorithm>
#include <utility>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "views/DashBindingModel.h"
#include "views/DashLayoutModel.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

constexpr LONG kComboGap = 3;  // pixels between the combo box and the gauges
constexpr UINT kValuesId = 1, kBitmasksId = 2, kFirstItemId = 10;

// What it has kept of its picture is of another size.
void PlaceGauge(HWND gauge, const PixelArea& place) {
    const RECT before = RectInParent(gauge);
    const LONG width = place.right - place.left, height = place.bottom - place.top;
    ::SetWindowPos(gauge, nullptr, place.left, place.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    if (before.right - before.left != width || before.bottom - before.top != height)
        ::InvalidateRect(gauge, nullptr, FALSE);
}

// Any value, or, for all but an analog gauge, any bitmask; the present item is checked.
ObjectRows ItemRows(const ADXDefinition& definition, const ADXDGENTRY& entry) {
    const auto isPresent = [&entry](const ADXObject& object) { return &object == entry.item; };
    ObjectRows rows(kFirstItemId);
    rows.BeginSubmenu(kValuesId, "Values");
    rows.Add(definition, kTypeValue, isPresent);
    if (entry.gaugetype == kAnalogGaugeType) return rows;
    rows.BeginSubmenu(kBitmasksId, "Bitmasks");
    rows.Add(definition, kTypeBitmask, isPresent);
    return rows;
}

}  // namespace

DashPage::DashPage(SessionState& session)
    : DefinitionPage(session, &SessionState::dashPage, SampleViewKind::kDash, DialogFocus::kUntouched),
      chosen_(*this, IDC_DASH_COMBO, kTypeDashboard, &SessionState::currentDashboard) {}

void DashPage::LayOut(int, int) {
    RECT client{};
    ::GetClientRect(Window(), &client);
    const RECT combo = RectInParent(Item(IDC_DASH_COMBO));
    area_ = {client.left, client.top + combo.bottom + kComboGap, client.right, client.bottom};
    const PixelArea area{area_.left, area_.top, area_.right, area_.bottom};
    for (const HWND gauge : gauges_) {
        if (const ADXDGENTRY* const entry = EntryOf(gauge)) PlaceGauge(gauge, GaugePlace(*entry, area));
    }
}

// What an entry shows is bound before it is seen.
HWND DashPage::MakeShownGauge(std::uint32_t index) {
    const HWND gauge = MakeGauge(Window(), dashboard_->GetEntry(index), index);
    BindGauge(gauge, Definition());
    if (gauge != nullptr) ::ShowWindow(gauge, SW_SHOW);
    return gauge;
}

void DashPage::DestroyGauges() {
    for (const HWND gauge : std::exchange(gauges_, {})) {
        if (gauge != nullptr) ::DestroyWindow(gauge);
    }
}

void DashPage::Show(ADXDashboard* dashboard) {
    menu_.Drop();
    dashboard_ = dashboard;
    DestroyGauges();
    if (dashboard == nullptr) return;
    for (std::uint32_t i = 0; i < dashboard->GetEntryCount(); ++i)
        gauges_.push_back(MakeShownGauge(i));
}

void DashPage::ShowChosen() {
    Show(chosen_.Get());
    ::SendMessageA(Window(), WM_SIZE, 0, 0);
}

// The gauges go first of all, as they point at entries that are gone.
void DashPage::Refresh() {
    Show(nullptr);
    chosen_.Offer();
    ShowChosen();
}

// A readout becomes a lamp for a bitmask, and a lamp a readout for a value.
void DashPage::Rebind(std::uint32_t index, ADXObject* item) {
    ADXDGENTRY entry = *dashboard_->GetEntry(index);
    const bool isOtherKind = entry.item != nullptr && entry.item->GetType() != item->GetType();
    if (isOtherKind) entry.gaugetype = item->GetType() == kTypeValue ? kDigitalReadoutType : kStatusGaugeType;
    entry.item = item;
    entry.itemidhash = item->GetIdHash();
    dashboard_->SetEntry(index, &entry);
    Session().dashChanged = 1;

    HWND& gauge = gauges_[index];
    if (isOtherKind) {
        ::DestroyWindow(std::exchange(gauge, nullptr));
        gauge = MakeShownGauge(index);
        LayOut(0, 0);
    } else {
        BindGauge(gauge, Definition());
    }
    if (gauge == nullptr) return;
    ::InvalidateRect(gauge, nullptr, TRUE);
    ::UpdateWindow(gauge);
}

void DashPage::OnGaugeMenu(unsigned control, POINT place) {
    const std::uint32_t index = control - kFirstGaugeId;
    if (menu_.IsOpen() || chosen_.Get() == nullptr || index >= gauges_.size()) return;
    const ADXDGENTRY* const entry = EntryOf(gauges_[index]);
    if (entry == nullptr) return;
    const ObjectRows rows = ItemRows(Definition(), *entry);
    if (const auto choice = menu_.Ask(Window(), place, rows)) Rebind(index, choice->object);
}

void DashPage::OnCommand(unsigned control, unsigned code, LPARAM lParam) {
    const POINT place{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    if (control == IDC_DASH_COMBO && code == CBN_SELCHANGE) {
        chosen_.Take();
        ShowChosen();
    } else if (control >= kFirstGaugeId && (code == kAnalogGaugeMenuCode || code == kDigitalReadoutMenuCode)) {
        OnGaugeMenu(control, place);
    }
}

void DashPage::OnEnd() {
    menu_.Drop();
}

bool DashPage::WantsSamples() const {
    return ::IsWindowVisible(Window()) != FALSE;
}

void DashPage::Read(const PublishedSample& sample) {
    readings_.clear();
    for (const HWND gauge : gauges_) {
        if (const auto reading = ReadGauge(gauge, Definition(), sample.packet, sample.commandId))
            readings_.push_back(*reading);
    }
}

void DashPage::Draw() {
    std::for_each(readings_.begin(), readings_.end(), ShowReading);
}

void CreateDashPage(SessionState& session) {
    const HWND page = AddPage<DashPage>(session, IDD_DASH_PAGE, "Dash");
    if (page == nullptr) return;
    ShowDashboard(As<ADXDashboard>(session.definition.GetObject(kTypeDashboard, 0)), page);
    ::SendMessageA(page, WM_SIZE, 0, 0);
}

void RefreshDashPage(SessionState& session) {
    session.currentDashboard = nullptr;
    if (auto* const page = PageOf<DashPage>(session.dashPage)) page->Refresh();
}

void ShowDashboard(ADXDashboard* dashboard, HWND page) {
    if (auto* const dash = PageOf<DashPage>(page)) dash->Show(dashboard);
}

}  // namespace corvex
