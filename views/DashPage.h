// The "Dash" tab: one dashboard of the definition as a free layout of gauges.
#pragma once

#include <vector>

#include "definition/ADXDashboard.h"
#include "views/ChosenObject.h"
#include "views/DashGauge.h"
#include "views/DefinitionPage.h"
#include "views/ObjectMenu.h"

namespace corvex {

class DashPage final : public DefinitionPage {
public:
    explicit DashPage(SessionState& session);

    void Refresh();
    void Show(ADXDashboard* dashboard);

    // Everything is read before anything is drawn: drawing takes many times as long. Each gauge of the sample's command
    // and of no command is painted at once; without a packet it shows the last raw word.
    bool WantsSamples() const override;
    void Read(const PublishedSample& sample) override;
    void Draw() override;

    // On show; not owned.
    const ADXDashboard* Dashboard() const { return dashboard_; }
    // At position i the window of entry i, null for an entry of an unknown type.
    const std::vector<HWND>& Gauges() const { return gauges_; }
    // For the gauges, in client coordinates.
    const RECT& Area() const { return area_; }

private:
    void LayOut(int width, int height) override;
    void OnCommand(unsigned control, unsigned code, LPARAM lParam) override;
    void OnEnd() override;
    HWND MakeShownGauge(std::uint32_t index);
    void DestroyGauges();
    void ShowChosen();
    void OnGaugeMenu(unsigned control, POINT place);
    void Rebind(std::uint32_t index, ADXObject* item);

    ChosenObject<ADXDashboard> chosen_;
    ADXDashboard* dashboard_ = nullptr;
    RECT area_{};
    std::vector<HWND> gauges_;
    ObjectMenu menu_;
    std::vector<GaugeReading> readings_;  // of the sample read last
};

// Adds the page to session.tabSheet, with the first dashboard on show. Once. Main thread, like all below.
void CreateDashPage(SessionState& session);
// After every change of the definition, before a message is waited for: offers its dashboards, and shows the first.
void RefreshDashPage(SessionState& session);
// Makes the gauges anew and binds them; the caller has them laid out by WM_SIZE. None for a null dashboard.
void ShowDashboard(ADXDashboard* dashboard, HWND page);

}  // namespace corvex
