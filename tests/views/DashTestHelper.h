// A dash page with a small definition, for the tests of what it shows.
#pragma once

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/statusgauge/StatusGauge.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXValue.h"
#include "tests/views/GaugeRecorder.h"
#include "tests/views/MenuDriver.h"
#include "tests/views/PageTestHelper.h"
#include "views/DashBindingModel.h"
#include "views/DashGauge.h"
#include "views/DashPage.h"
#include "views/PageResources.h"

namespace corvex::test {

class DashTest : public PageTest {
protected:
    static constexpr std::uint32_t kCommand = 0x1111, kOther = 0x2222;

    DashTest() { FillDefinition(); }

    // Byte 0 is the speed, byte 1 the load; bit 0 of byte 2 the fan, bit 1 the lamp.
    void FillDefinition() {
        speed = AddTitled<ADXValue>(session.definition, "SPEED", "Speed");
        speed->SetEquation("X", 1);
        speed->SetUnits("km/h", 4);
        load = AddTitled<ADXValue>(session.definition, "LOAD", "Load");
        load->SetEquation("X/2", 3);
        load->packetoffset = 1;
        fan = AddTitled<ADXBitmask>(session.definition, "FAN", "Fan");
        lamp = AddTitled<ADXBitmask>(session.definition, "LAMP", "Lamp");
        fan->packetoffset = lamp->packetoffset = 2;
        fan->operand = fan->result = 1;
        lamp->operand = lamp->result = 2;
        fan->SetTrueString("runs", 4);
        fan->SetFalseString("rests", 5);
        dashboard = AddTitled<ADXDashboard>(session.definition, "DASH", "Driving");
    }
    static ADXDGENTRY Entry(std::uint32_t gaugetype, ADXObject* item) {
        ADXDGENTRY entry;
        entry.gaugetype = gaugetype;
        entry.item = item;
        return entry;
    }
    void AddEntry(std::uint32_t gaugetype, ADXObject* item, ADXDashboard* to = nullptr) {
        const ADXDGENTRY entry = Entry(gaugetype, item);
        (to == nullptr ? dashboard : to)->AddEntry(&entry);
    }
    // The page on show with all that is in the definition.
    void Show() {
        CreateDashPage(session);
        RefreshDashPage(session);
        TabSheet::selectPage(sheet, 1);
        ShowFrame();
        ::UpdateWindow(frame);
    }
    void ShowOne(std::uint32_t gaugetype, ADXObject* item) { ShowAll({{gaugetype, item}}); }
    void ShowAll(const std::vector<std::pair<std::uint32_t, ADXObject*>>& entries) {
        for (const auto& [gaugetype, item] : entries)
            AddEntry(gaugetype, item);
        Show();
    }
    HWND DashWindow() const { return static_cast<HWND>(session.dashPage); }
    const DashPage& State() const { return *PageOf<DashPage>(DashWindow()); }
    HWND Gauge(std::size_t index) const { return State().Gauges().at(index); }
    void Update(const std::vector<std::uint8_t>& bytes, std::uint32_t command = kCommand) { Publish(bytes, command); }
    static int Needle(HWND gauge) { return static_cast<int>(::SendMessageA(gauge, AGM_GETVALUE, 0, 0)); }
    static float Digits(HWND gauge) {
        const float shown = DigitalReadoutSetValue(gauge, -1.0F);
        DigitalReadoutSetValue(gauge, shown);
        return shown;
    }
    // What a right click on it brings about.
    static void AskForMenu(HWND gauge) {
        ::SendMessageA(gauge, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(gauge), MAKELPARAM(40, 60));
    }
    // Opens the gauge's menu and presses these keys.
    void Press(HWND gauge, const std::vector<WPARAM>& keys, const std::function<void(HMENU)>& look = {}) {
        WorkMenu([gauge] { AskForMenu(gauge); }, keys, look);
    }
    // The keys for the n-th row of the first or the second submenu.
    static std::vector<WPARAM> KeysFor(int submenu, int row) {
        std::vector<WPARAM> keys(static_cast<std::size_t>(submenu) + 1, VK_DOWN);
        keys.push_back(VK_RIGHT);
        keys.insert(keys.end(), static_cast<std::size_t>(row), VK_DOWN);
        keys.push_back(VK_RETURN);
        return keys;
    }

    ADXValue *speed = nullptr, *load = nullptr;
    ADXBitmask *fan = nullptr, *lamp = nullptr;
    ADXDashboard* dashboard = nullptr;
};

}  // namespace corvex::test
