#include "tests/program/driver/DashView.h"

#include <array>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/statusgauge/StatusGauge.h"
#include "tools/driver/RemoteMemory.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr int kDashComboId = 1009, kFirstGaugeId = 10000;

// In wide letters: asked for in bytes, Wine hands the wide ones over to another process and calls them bytes.
std::string RowText(HWND combo, WPARAM row) {
    constexpr UINT kPatience = 10000;  // ms
    std::array<wchar_t, 300> text = {};
    ::SendMessageTimeoutW(combo, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL, kPatience,
                          nullptr);
    std::string bytes;
    for (const wchar_t letter : text) {
        if (letter == L'\0') break;
        bytes.push_back(static_cast<char>(letter));
    }
    return bytes;
}

bool IsGauge(const std::string& className) {
    return className == kAnalogGaugeClass || className == kDigitalReadoutClass || className == kStatusGaugeClass;
}

}  // namespace

std::vector<std::string> ComboRows(HWND combo) {
    std::vector<std::string> rows;
    const LRESULT count = Ask(combo, CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        rows.push_back(RowText(combo, static_cast<WPARAM>(i)));
    }
    return rows;
}

HWND DashView::Combo() const {
    return FindBelow(window_, "ComboBox", kDashComboId);
}

HWND DashView::Page() const {
    return ::GetParent(Combo());
}

int DashView::Chosen() const {
    return static_cast<int>(Ask(Combo(), CB_GETCURSEL));
}

void DashView::ChooseNext() const {
    ::PostMessageA(Combo(), WM_KEYDOWN, VK_DOWN, 1);
    ::PostMessageA(Combo(), WM_KEYUP, VK_DOWN, 1);
}

HWND DashView::Gauge(int index) const {
    return ::GetDlgItem(Page(), kFirstGaugeId + index);
}

int DashView::GaugeCount() const {
    int count = 0;
    for (HWND window : AllBelow(Page()))
        count += IsGauge(ClassOf(window)) ? 1 : 0;
    return count;
}

std::string DashView::Title(int index) const {
    const std::string name = ClassOf(Gauge(index));
    if (name == kAnalogGaugeClass) return AskText(Gauge(index), AGM_GETTITLE);
    return name == kStatusGaugeClass ? AskText(Gauge(index), SGM_GETTITLE) : std::string();
}

int DashView::Needle(int index) const {
    return static_cast<int>(Ask(Gauge(index), AGM_GETVALUE));
}

}  // namespace corvex::test
