// The main window with a definition whose dash and item list show every kind of thing.
#pragma once

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/tabsheet/TabSheet.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "tests/session/window/main/MainWindowHelper.h"
#include "views/DashGauge.h"
#include "views/DashPage.h"
#include "views/MonitorPage.h"
#include "views/PageResources.h"

namespace corvex::test {

class ViewsTest : public MainWindowTest {
protected:
    static constexpr int kDashTab = 1, kListTab = 2, kHistogramTab = 3, kMonitorTab = 4;

    // One dial alone, as its paints are dear. A and the bit are of every command, B is of the poll, C of another one.
    // The title is that of dash and list.
    static AdxText Objects(const std::string& title) {
        const std::string alarms = AdxText::Alarms("10", "200") + "<range low=\"0\" high=\"255\" />";
        return AdxText()
            .Value("A", 0, "X", alarms)
            .Value("B", 1, "X", alarms + AdxParent("POLL"))
            .Value("C", 0, "X", alarms + AdxParent("OTHER"))
            .Bit("BIT", 1, AdxTag("flags", "0x0000000C"))
            .Dashboard({"D1", title}, {{0, "A"}, {1, "B"}, {2, "BIT"}, {1, "C"}})
            .List({"L1", title}, {"#" + title, "A", "B", "C", "BIT"})
            .Object("ADXMONITOR", {"M1", title}, AdxTag("entrycount", "2") + Series("A") + Series("B"))
            .Object("ADXHISTOGRAM", {"H1", title},
                    AdxTag("rows", "2") + AdxTag("cols", "3") + AdxTag("xmax", "255") + AdxTag("ymax", "255") +
                        AdxTag("xidhash", AdxHash("A")) + AdxTag("yidhash", AdxHash("B")) +
                        AdxTag("zidhash", AdxHash("A")));
    }

    static std::string Series(const std::string& value) {
        return "<ADXMONSERIES itemidhash=\"" + AdxHash(value) + "\" />";
    }

    void StartShown() {
        UseDefinition(Objects("One"));
        Start();
        ::ShowWindow(window, SW_SHOWNOACTIVATE);
        ASSERT_EQ(4U, Dash().Gauges().size());
    }
    void Select(int tab) const { TabSheet::selectPage(AsWindow(session.tabSheet), tab); }
    const DashPage& Dash() const { return *PageOf<DashPage>(session.dashPage); }
    int Needle(std::size_t index) const {
        return static_cast<int>(::SendMessageA(Dash().Gauges().at(index), AGM_GETVALUE, 0, 0));
    }
    float Digits(std::size_t index) const {
        const HWND gauge = Dash().Gauges().at(index);
        const float shown = DigitalReadoutSetValue(gauge, -1.0F);
        DigitalReadoutSetValue(gauge, shown);
        return shown;
    }
    const MonitorPage& Monitors() const { return *PageOf<MonitorPage>(session.monitorPage); }
    HWND HistogramItem(int id) const { return ::GetDlgItem(AsWindow(session.histogramPage), id); }
    HWND Grid() const { return HistogramItem(IDC_HISTOGRAM_GRID); }
    HWND List() const { return ::GetDlgItem(AsWindow(session.listPage), IDC_LIST_VIEW); }
    std::string Cell(int row, int column) const {
        char text[300] = "";
        LVITEMA rowInfo{};
        rowInfo.iSubItem = column;
        rowInfo.pszText = text;
        rowInfo.cchTextMax = sizeof text;
        ::SendMessageA(List(), LVM_GETITEMTEXTA, static_cast<WPARAM>(row), L(&rowInfo));
        return text;
    }
};

}  // namespace corvex::test
