// Reads the children of an ADXLISTVIEW, an ADXDASHBOARD and an ADXMONITOR.
#include "definition/ADXDashboard.h"
#include "definition/ADXListView.h"
#include "definition/ADXMonitor.h"
#include "files/adx/ObjectReader.h"

namespace corvex {
namespace {

constexpr ChildField<ADXListView> kListViewFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXListView::flags>},
    {"entrycount", [](ADXListView& view, const ADXElement& child) { view.SetEntryCount(child.Dec()); }},
};

constexpr ChildField<ADXDashboard> kDashboardFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXDashboard::flags>},
    {"entrycount", ReadNothing},
    {"ADXDGENTRY",
     [](ADXDashboard& dashboard, const ADXElement& child) {
         ADXDGENTRY entry;
         child.ReadDec("gaugetype", entry.gaugetype);
         child.ReadHex("flags", entry.flags);
         child.ReadHex("itemidhash", entry.itemidhash);
         child.ReadDec("left", entry.left);
         child.ReadDec("top", entry.top);
         child.ReadDec("right", entry.right);
         child.ReadDec("bottom", entry.bottom);
         dashboard.AddEntry(&entry);
     }},
};

constexpr ChildField<ADXMonitor> kMonitorFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXMonitor::flags>},
    {"entrycount", ReadNothing},
    {"ADXMONSERIES",
     [](ADXMonitor& monitor, const ADXElement& child) {
         ADXMONSERIES series;
         child.ReadHex("flags", series.flags);
         child.ReadDec("linewidth", series.linewidth);
         child.ReadDec("linetype", series.linetype);
         child.ReadHex("linecolor", series.linecolor);
         child.ReadHex("axiscolor", series.axiscolor);
         child.ReadHex("itemidhash", series.itemidhash);
         monitor.AddEntry(&series);
     }},
};

// Rows fill the slots that "entrycount" has made, by position; rows beyond them are dropped.
bool ReadListViewRow(ADXListView& view, const ADXElement& child, std::uint32_t row) {
    ADXLVENTRY entry;
    child.ReadDec("entrytype", entry.entrytype);
    child.ReadHex("flags", entry.flags);
    child.ReadHex("itemidhash", entry.itemidhash);
    const std::string_view title = child.Attribute("title");
    if (title.data() != nullptr) entry.title.Set(title.data(), title.size());
    child.ReadHex("color", entry.color);
    view.SetEntry(row, &entry);
    return true;
}

}  // namespace

bool ReadListViewChild(ADXObject& object, const ADXElement& child, ReadPosition& position) {
    if (child.Is("ADXLVENTRY")) return ReadListViewRow(static_cast<ADXListView&>(object), child, position.row++);
    return ReadField(kListViewFields, object, child);
}

bool ReadDashboardChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kDashboardFields, object, child);
}

bool ReadMonitorChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kMonitorFields, object, child);
}

}  // namespace corvex
