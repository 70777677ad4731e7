// The mouse on a 3-D chart: clicks, and the gestures that turn, shift, scale, drag points or draw a rubber band.
#pragma once

#include "controls/chart/ChartMouse.h"
#include "controls/chart3d/Chart3DRanges.h"
#include "controls/chart3d/Chart3DSelection.h"

namespace corvex {

class Chart3DMouse final : public ChartMouse {
public:
    Chart3DMouse(Chart3DModel& chart, IChart3DHost& host, Chart3DRanges& ranges)
        : ChartMouse(chart, host), chart_(chart), host_(host), ranges_(ranges) {}

    void ClearSelection() override { selection_.Clear(); }

    // How far the selected points are dragged.
    std::array<ChartRange, kChart3DAxisCount> limits;

private:
    bool HasBand() const override;
    void Pick(YUpPoint place, bool control, std::uint32_t gesture) override;
    void Drag(int across, int up) override;
    void SelectIn(const YUpBox& box) override { selection_.SelectIn(box); }
    void MoveHeld(int across, int up) override;
    void DragHasEnded(bool) override { host_.Tell(kDragHasEnded, nullptr, 0, 0); }
    void Turn(int across, int up);
    void Shift(int across, int up);
    void Scale(int up);

    Chart3DModel& chart_;
    IChart3DHost& host_;
    Chart3DRanges& ranges_;
    Chart3DSelection selection_{chart_, host_};
};

}  // namespace corvex
