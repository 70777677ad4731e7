// The "Monitors" tab: every monitor of the definition as a strip chart, one under the other.
#pragma once

#include <vector>

#include "controls/datachart/DataChart.h"
#include "definition/ADXMonitor.h"
#include "views/DefinitionPage.h"
#include "views/ObjectMenu.h"

namespace corvex {

// One strip chart and what it shows. A chart's control id is its position and kFirstChartId.
struct MonitorChart {
    HWND window = nullptr;
    ADXMonitor* monitor = nullptr;      // not owned
    DataChartAxis* timeAxis = nullptr;  // the chart's; every series' x axis
    bool isToPaint = false;             // a sample came for one of its series
};

inline constexpr int kFirstChartId = 9000;

// What session.monitorState points at, as long as its window is there.
class MonitorPage final : public DefinitionPage {
public:
    explicit MonitorPage(SessionState& session);

    void Refresh();
    void ClearSamples();
    void SetTime(double seconds);

    // While there is a series, whichever tab is in front: what is not read now is never drawn.
    bool WantsSamples() const override;
    void Read(const PublishedSample& sample) override;
    void Draw() override;

    // In definition order, from top to bottom; the page's children.
    const std::vector<MonitorChart>& Charts() const { return charts_; }

private:
    void OnInit() override { Session().monitorState = this; }
    void LayOut(int width, int height) override;
    void OnCommand(unsigned control, unsigned code, LPARAM lParam) override;
    void OnScroll(unsigned code) override;
    void OnEnd() override;

    void MakeChart(ADXMonitor& monitor);
    void FillChart(const MonitorChart& chart);
    void AddSeries(const MonitorChart& chart, const ADXMONSERIES& entry, std::uint32_t unitsLength);
    void ReadChart(MonitorChart& chart, const PublishedSample& sample);
    void OnChartMenu(std::size_t index, POINT place);
    void AddFromMenu(const MonitorChart& chart, ADXObject* item);
    void RemoveFromMenu(const MonitorChart& chart, const ADXObject* item);
    const DataChartAxis* ScrolledAxis() const;
    void ShowScrollBar();

    std::vector<MonitorChart> charts_;
    ObjectMenu menu_;
    bool toldOfMemory_ = false;  // since the samples were cleared
};

// Adds the page to session.tabSheet. Once. Main thread, like all below.
void CreateMonitorPage(SessionState& session);
// After every change of the definition, before a message is waited for: the charts go and new ones come.
void RefreshMonitorPage(SessionState& session);
// Moves the playback cursor of every chart.
void SetMonitorsTime(SessionState& session, double seconds);
// A scan or a playback begins: its samples find empty charts, whose time begins at 0.
void ClearMonitors(SessionState& session);

}  // namespace corvex
