// The main window with a definition whose dash and item list show every kind of thing.
#pragma once

#include <cstdio>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/tabsheet/TabSheet.h"
#include "definition/ADXDashboard.h"
#include "tests/session/window/main/MainWindowHelper.h"
#include "views/DashGauge.h"
#include "views/DashPage.h"
#include "views/PageResources.h"

namespace corvex::test {

class ViewsTest : public MainWindowTest {
protected:
    static constexpr int kDashTab = 1, kListTab = 2;

    static std::string Hash(const std::string& id) {
        char text[16];
        std::snprintf(text, sizeof text, "0x%08X", HashId(id.data(), static_cast<std::uint32_t>(id.size())));
        return text;
    }
    static std::string Value(const std::string& id, const std::string& command, int offset) {
        std::string text = "<ADXVALUE id=\"" + id + "\" idhash=\"" + Hash(id) + "\" title=\"" + id + "\">";
        text.append("<flags>0x0000000C</flags><parentcmdidhash>").append(command.empty() ? "0x0" : Hash(command));
        text.append("</parentcmdidhash><packetoffset>").append(std::to_string(offset));
        text.append("</packetoffset><range low=\"0\" high=\"255\" /><alarms low=\"10\" high=\"200\" />");
        text.append("<MATH equation=\"X\"><VAR varID=\"X\" type=\"native\" /></MATH></ADXVALUE>\n");
        return text;
    }
    static std::string Bit(const std::string& id, int offset) {
        std::string text = "<ADXBITMASK id=\"" + id + "\" idhash=\"" + Hash(id) + "\" title=\"" + id + "\">";
        text.append("<flags>0x0000000C</flags><truestring>on</truestring><falsestring>off</falsestring><packetoffset>");
        text.append(std::to_string(offset)).append("</packetoffset><operand>0x00000001</operand><bitop>AND</bitop>");
        text.append("<result>0x00000001</result></ADXBITMASK>\n");
        return text;
    }
    static std::string Gauge(int type, const std::string& id, int place) {
        return "<ADXDGENTRY gaugetype=\"" + std::to_string(type) + "\" itemidhash=\"" + Hash(id) + "\" left=\"" +
               std::to_string(25 * place) + "\" top=\"0\" right=\"" + std::to_string(25 * place + 25) +
               "\" bottom=\"60\" />";
    }
    static std::string Row(const std::string& id) {
        return "<ADXLVENTRY entrytype=\"0\" itemidhash=\"" + Hash(id) + "\" />";
    }
    // One dial alone, as its paints are dear. A and the bit are of every command, B is of the poll, C of another one.
    // The title is that of dash and list.
    static std::string Objects(const std::string& title) {
        std::string text = Value("A", "", 0) + Value("B", "POLL", 1) + Value("C", "OTHER", 0) + Bit("BIT", 1);
        text.append("<ADXDASHBOARD id=\"D1\" title=\"" + title + "\"><entrycount>4</entrycount>");
        text.append(Gauge(0, "A", 0) + Gauge(1, "B", 1) + Gauge(2, "BIT", 2) + Gauge(1, "C", 3));
        text.append("</ADXDASHBOARD>\n<ADXLISTVIEW id=\"L1\" title=\"" + title + "\"><entrycount>5</entrycount>");
        text.append("<ADXLVENTRY entrytype=\"1\" flags=\"0x00000001\" title=\"" + title + "\" color=\"00C04000\" />");
        text.append(Row("A") + Row("B") + Row("C") + Row("BIT")).append("</ADXLISTVIEW>\n");
        return text;
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
