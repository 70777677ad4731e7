// The mouse on a 2-D chart.
#pragma once

#include "controls/chart/ChartMouse.h"
#include "controls/chart2d/Chart2DRanges.h"
#include "controls/chart2d/Chart2DSelection.h"

namespace corvex {

class Chart2DMouse final : public ChartMouse {
public:
    Chart2DMouse(Chart2DModel& chart, IChart2DHost& host, Chart2DRanges& ranges)
        : ChartMouse(chart, host), chart_(chart), host_(host), ranges_(ranges) {}

    void ClearSelection() override { selection_.Clear(); }

private:
    bool HasBand() const override;
    void Pick(YUpPoint place, bool control, std::uint32_t gesture) override;
    void Drag(int across, int up) override;
    void SelectIn(const YUpBox& box) override { selection_.SelectIn(box); }
    // A flat chart is not turned, shifted or scaled.
    void MoveHeld(int, int) override {}
    void DragHasEnded(bool wasDropped) override;

    Chart2DModel& chart_;
    IChart2DHost& host_;
    Chart2DRanges& ranges_;
    Chart2DSelection selection_{chart_, host_};
};

}  // namespace corvex
