#include "views/MonitorPage.h"

#include <cstring>
#include <iterator>
#include <string>
#include <utility>

#include "definition/ADXValue.h"
#include "views/MonitorScrollModel.h"
#include "views/MonitorTimeModel.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

constexpr float kFirstSpan = 20.0F;  // seconds
constexpr char kTimeTitle[] = "Time (M:S)";
constexpr char kEmptyTitle[] = "Right-click to add series";
constexpr std::uint32_t kChartTitleLength = 150, kAxisUnitsLength = 150, kMenuUnitsLength = 50;
constexpr UINT kFirstSeriesRow = 1;
// Of the series that the user adds, one after the other; 0x00BBGGRR.
constexpr std::uint32_t kSeriesColours[] = {0x0000FF, 0x009600, 0xFF0000, 0xFF8080, 0xC8C800,
                                            0x0080FF, 0x800080, 0x008080, 0xFF00FF, 0x808040};

std::uint32_t CountIn(const MonitorChart& chart, UINT message) {
    return static_cast<std::uint32_t>(::SendMessageA(chart.window, message, 0, 0));
}

DataChartSeries* SeriesOf(const MonitorChart& chart, std::uint32_t index) {
    return reinterpret_cast<DataChartSeries*>(::SendMessageA(chart.window, DCM_GETSERIES, index, 0));
}

DataChartAxis* AxisOf(const MonitorChart& chart, std::uint32_t index) {
    return reinterpret_cast<DataChartAxis*>(::SendMessageA(chart.window, DCM_GETAXIS, index, 0));
}

DataChartAxis* AddAxis(const MonitorChart& chart) {
    return reinterpret_cast<DataChartAxis*>(::SendMessageA(chart.window, DCM_ADDAXIS, 0, 0));
}

void Send(const MonitorChart& chart, UINT message) {
    ::SendMessageA(chart.window, message, 0, 0);
}

void SetTitleOf(DataChartAxis& axis, const char* title) {
    axis.setTitle(title, static_cast<std::uint32_t>(std::strlen(title)));
}

DataChartAxis* MakeTimeAxis(const MonitorChart& chart) {
    DataChartAxis* const axis = AddAxis(chart);
    if (axis == nullptr) return nullptr;
    axis->setRange(0.0F, kFirstSpan);
    axis->setLimits(0.0F, kFirstSpan);
    axis->setPosition(AxisPosition::kBottom);
    SetTitleOf(*axis, kTimeTitle);
    axis->formatter = &FormatMonitorTime;
    axis->flags = kAxisAutoScroll | kAxisFormatter | kAxisMarker;
    return axis;
}

// -1 for none.
int EntryOf(const ADXMonitor& monitor, const ADXObject* item) {
    for (std::uint32_t i = 0; i < monitor.GetEntryCount(); ++i) {
        if (monitor.GetEntry(i)->item == item) return static_cast<int>(i);
    }
    return -1;
}

// Its own alone: the walk that clears a chart may leave others.
void DeleteAxis(const MonitorChart& chart, const DataChartAxis* axis) {
    for (std::uint32_t i = 0; axis != nullptr && i < CountIn(chart, DCM_GETAXISCOUNT); ++i) {
        if (AxisOf(chart, i) != axis) continue;
        ::SendMessageA(chart.window, DCM_DELETEAXIS, i, 0);
        return;
    }
}

}  // namespace

MonitorPage::MonitorPage(SessionState& session)
    : DefinitionPage(session, &SessionState::monitorPage, SampleViewKind::kMonitors, DialogFocus::kFirstControl) {}

// Stacks the charts, each over the whole width.
void MonitorPage::LayOut(int, int) {
    if (charts_.empty()) return;
    RECT client{};
    ::GetClientRect(Window(), &client);
    const int height = static_cast<int>(client.bottom) / static_cast<int>(charts_.size());
    for (int top = 0; const MonitorChart& chart : charts_) {
        ::SetWindowPos(chart.window, nullptr, 0, top, client.right, height, SWP_NOZORDER);
        top += height;
    }
}

void MonitorPage::Refresh() {
    menu_.Drop();
    for (const MonitorChart& chart : std::exchange(charts_, {}))
        ::DestroyWindow(chart.window);
    for (const auto& object : Definition().Objects()) {
        if (auto* const monitor = As<ADXMonitor>(object.get())) MakeChart(*monitor);
    }
    Session().views.Announce();
    ShowScrollBar();
}

void MonitorPage::MakeChart(ADXMonitor& monitor) {
    const auto id = kFirstChartId + static_cast<INT_PTR>(charts_.size());
    MonitorChart chart{
        .window = ::CreateWindowExA(0, kDataChartClass, kEmptyTitle, WS_CHILD | WS_VISIBLE, 0, 0, 100, 100, Window(),
                                    reinterpret_cast<HMENU>(id), static_cast<HINSTANCE>(Session().instance), nullptr),
        .monitor = &monitor};
    if (chart.window == nullptr) return;
    chart.timeAxis = MakeTimeAxis(chart);
    charts_.push_back(chart);
    LayOut(0, 0);
    FillChart(chart);
}

void MonitorPage::FillChart(const MonitorChart& chart) {
    Send(chart, DCM_CLEARSERIES);
    // By the count as it was while the list shrinks, so that some stay: a chart is filled once, and has none then.
    const std::uint32_t axes = CountIn(chart, DCM_GETAXISCOUNT);
    for (std::uint32_t i = 1; i < axes; ++i)
        ::SendMessageA(chart.window, DCM_DELETEAXIS, i, 0);
    char title[kChartTitleLength + 1];
    chart.monitor->GetTitle(title, sizeof title);
    ::SetWindowTextA(chart.window, title);
    for (std::uint32_t i = 0; i < chart.monitor->GetEntryCount(); ++i)
        AddSeries(chart, *chart.monitor->GetEntry(i), kAxisUnitsLength);
    Send(chart, DCM_RELAYOUT);
}

// The axes alternate between the sides.
void MonitorPage::AddSeries(const MonitorChart& chart, const ADXMONSERIES& entry, std::uint32_t unitsLength) {
    const ADXValue* const value = As<ADXValue>(entry.item);
    DataChartAxis* const axis = value == nullptr ? nullptr : AddAxis(chart);
    if (axis == nullptr) return;
    axis->setLimits(value->rangelow, value->rangehigh);
    axis->setRange(value->rangelow, value->rangehigh);
    axis->setPosition(CountIn(chart, DCM_GETSERIESCOUNT) % 2 == 0 ? AxisPosition::kLeft : AxisPosition::kRight);
    std::string units(unitsLength + 1, '\0');
    value->GetUnits(units.data(), static_cast<std::uint32_t>(units.size()));
    SetTitleOf(*axis, units.c_str());
    axis->textColour = axis->lineColour = entry.axiscolor;
    auto* const series = reinterpret_cast<DataChartSeries*>(::SendMessageA(chart.window, DCM_ADDSERIES, 0, 0));
    if (series == nullptr) return DeleteAxis(chart, axis);
    series->setXAxis(chart.timeAxis);
    series->setYAxis(axis);
    series->colour = entry.linecolor;
    series->lineWidth = entry.linewidth;
    series->lineType = entry.linetype;
    Send(chart, DCM_RELAYOUT);
}

bool MonitorPage::WantsSamples() const {
    for (const MonitorChart& chart : charts_) {
        if (CountIn(chart, DCM_GETSERIESCOUNT) != 0) return true;
    }
    return false;
}

void MonitorPage::Read(const PublishedSample& sample) {
    for (MonitorChart& chart : charts_)
        ReadChart(chart, sample);
}

// A chart is painted once for a sample, by letter once for each series: the picture is the same at the end.
void MonitorPage::ReadChart(MonitorChart& chart, const PublishedSample& sample) {
    for (std::uint32_t i = 0; i < chart.monitor->GetEntryCount(); ++i) {
        const ADXMONSERIES& entry = *chart.monitor->GetEntry(i);
        DataChartSeries* const series = SeriesOf(chart, i);
        if (entry.item == nullptr || series == nullptr) continue;
        chart.isToPaint = true;
        ADXValue* const value = As<ADXValue>(entry.item);
        if (value == nullptr || !value->BelongsTo(sample.commandId)) continue;
        const auto number = static_cast<float>(value->Compute(Definition(), sample.packet, 0, 0));
        if (series->addSample(static_cast<float>(sample.t), number) || std::exchange(toldOfMemory_, true)) continue;
        DebugOutput::Print(&Session().debug, "Not enough memory for the monitors: samples are missing in them");
    }
}

void MonitorPage::Draw() {
    for (MonitorChart& chart : charts_) {
        if (std::exchange(chart.isToPaint, false)) Send(chart, DCM_REPAINT);
    }
    ShowScrollBar();
}

// Of the first chart that has a series.
const DataChartAxis* MonitorPage::ScrolledAxis() const {
    for (const MonitorChart& chart : charts_) {
        if (SeriesOf(chart, 0) != nullptr) return chart.timeAxis;
    }
    return nullptr;
}

void MonitorPage::ShowScrollBar() {
    const DataChartAxis* const axis = ScrolledAxis();
    if (axis == nullptr && !charts_.empty()) return;
    const MonitorTimes times =
        axis == nullptr ? MonitorTimes{}
                        : MonitorTimes{axis->Minimum(), axis->Maximum(), axis->LowLimit(), axis->HighLimit()};
    const bool isNeeded = NeedsMonitorScroll(times);
    ::ShowScrollBar(Window(), SB_HORZ, isNeeded ? TRUE : FALSE);
    if (!isNeeded) return;
    const MonitorScroll scroll = MonitorScrollOf(times);
    SCROLLINFO bar{};
    bar.cbSize = sizeof bar;
    bar.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    bar.nMax = scroll.maximum;
    bar.nPage = static_cast<UINT>(scroll.page);
    bar.nPos = scroll.position;
    ::SetScrollInfo(Window(), SB_HORZ, &bar, TRUE);
}

// While the thumb is held the charts stand still; they follow the samples again when it is let go.
void MonitorPage::OnScroll(unsigned code) {
    SCROLLINFO bar{};
    bar.cbSize = sizeof bar;
    bar.fMask = SIF_ALL;
    ::GetScrollInfo(Window(), SB_HORZ, &bar);
    bar.nPos = bar.nTrackPos;
    bar.fMask = SIF_POS;
    ::SetScrollInfo(Window(), SB_HORZ, &bar, FALSE);
    bar.fMask = SIF_ALL;
    ::GetScrollInfo(Window(), SB_HORZ, &bar);
    const float begin = MonitorTimeAt(bar.nPos);
    for (const MonitorChart& chart : charts_) {
        DataChartAxis* const axis = chart.timeAxis;
        if (axis == nullptr) continue;
        if (code == SB_ENDSCROLL) axis->flags |= kAxisAutoScroll;
        if (code == SB_THUMBTRACK) axis->flags &= ~std::uint32_t{kAxisAutoScroll};
        axis->setRange(begin, begin + (axis->Maximum() - axis->Minimum()));
        Send(chart, DCM_RELAYOUT);
    }
}

void MonitorPage::OnCommand(unsigned control, unsigned code, LPARAM lParam) {
    const std::size_t index = control - static_cast<unsigned>(kFirstChartId);
    const POINT place{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    if (index < charts_.size() && code == kDataChartMenuCode) OnChartMenu(index, place);
}

void MonitorPage::OnChartMenu(std::size_t index, POINT place) {
    const ADXMonitor& monitor = *charts_[index].monitor;
    ObjectRows rows(kFirstSeriesRow);
    rows.Add(Definition(), kTypeValue, [&](const ADXObject& object) { return EntryOf(monitor, &object) >= 0; });
    const auto choice = menu_.Ask(Window(), place, rows);
    if (!choice) return;
    if (choice->wasChecked) {
        RemoveFromMenu(charts_[index], choice->object);
    } else {
        AddFromMenu(charts_[index], choice->object);
    }
    Session().monitorsChanged = 1;
    Session().views.Announce();
}

void MonitorPage::AddFromMenu(const MonitorChart& chart, ADXObject* item) {
    ADXMonitor& monitor = *chart.monitor;
    if (EntryOf(monitor, item) >= 0) return;
    const std::uint32_t colour = kSeriesColours[monitor.GetEntryCount() % std::size(kSeriesColours)];
    const ADXMONSERIES entry{.linecolor = colour, .axiscolor = colour, .item = item, .itemidhash = item->GetIdHash()};
    monitor.AddEntry(&entry);
    if (EntryOf(monitor, item) < 0) {
        DebugOutput::Print(&Session().debug, "A monitor holds %u series at most", ADXMonitor::kLimit);
        return;
    }
    AddSeries(chart, entry, kMenuUnitsLength);
    Send(chart, DCM_RELAYOUT);
}

void MonitorPage::RemoveFromMenu(const MonitorChart& chart, const ADXObject* item) {
    const int index = EntryOf(*chart.monitor, item);
    if (index < 0) return;
    const auto entry = static_cast<std::uint32_t>(index);
    chart.monitor->RemoveEntry(entry);
    const DataChartSeries* const series = SeriesOf(chart, entry);
    const DataChartAxis* const axis = series == nullptr ? nullptr : series->YAxis();
    ::SendMessageA(chart.window, DCM_DELETESERIES, entry, 0);
    DeleteAxis(chart, axis);
    Send(chart, DCM_RELAYOUT);
}

void MonitorPage::SetTime(double seconds) {
    for (const MonitorChart& chart : charts_) {
        if (chart.timeAxis != nullptr) chart.timeAxis->marker = static_cast<float>(seconds);
        Send(chart, DCM_REPAINT);
    }
}

// The width of the window of time stays while the time begins anew.
void MonitorPage::ClearSamples() {
    toldOfMemory_ = false;
    for (const MonitorChart& chart : charts_) {
        Send(chart, DCM_CLEARSAMPLES);
        if (DataChartAxis* const axis = chart.timeAxis) {
            const float width = axis->Maximum() - axis->Minimum();
            axis->setLimits(0.0F, width);
            axis->setRange(0.0F, width);
        }
        Send(chart, DCM_RELAYOUT);
    }
}

void MonitorPage::OnEnd() {
    menu_.Drop();
    charts_.clear();  // their windows go with the page's
    Session().monitorState = nullptr;
}

void CreateMonitorPage(SessionState& session) {
    AddPage<MonitorPage>(session, IDD_MONITOR_PAGE, "Monitors");
    RefreshMonitorPage(session);
}

void RefreshMonitorPage(SessionState& session) {
    if (auto* const page = PageOf<MonitorPage>(session.monitorPage)) page->Refresh();
}

void SetMonitorsTime(SessionState& session, double seconds) {
    if (auto* const page = PageOf<MonitorPage>(session.monitorPage)) page->SetTime(seconds);
}

void ClearMonitors(SessionState& session) {
    if (auto* const page = PageOf<MonitorPage>(session.monitorPage)) page->ClearSamples();
}

}  // namespace corvex
