// The mouse on a 3-D chart: clicks, and the gestures that turn, shift, scale, drag points or draw a rubber band.
#pragma once

#include "controls/chart3d/Chart3DRanges.h"
#include "controls/chart3d/Chart3DSelection.h"

namespace corvex {

// Places are the pointer's, in the chart's y-up space, and may lie outside of the client while the mouse is captured.
class Chart3DMouse {
public:
    Chart3DMouse(Chart3DModel& chart, IChart3DHost& host, Chart3DRanges& ranges)
        : chart_(chart), host_(host), ranges_(ranges) {}

    void OnDown(YUpPoint place, Chart3DModifiers held);
    void OnDoubleClick(YUpPoint place, Chart3DModifiers held);
    // What it does is decided anew each time, by the modifiers of that moment.
    void OnMove(YUpPoint place);
    // The button is up, or the capture is lost: the same for both. Nothing without a gesture.
    void EndGesture();
    void ClearSelection() { selection_.Clear(); }

    // How far the selected points are dragged.
    std::array<ChartRange, kChart3DAxisCount> limits;

private:
    // What lasts from a button down to its end.
    struct Gesture {
        bool isDown = false, isDragging = false, isBanding = false, hidesPointer = false;
        YUpPoint start, last;
    };

    void PickPoints(YUpPoint place, bool control, std::uint32_t own);
    void HidePointer();
    void Turn(int across, int up);
    void Shift(int across, int up);
    void Scale(int up);
    void Drag(int up);
    void DrawBand(YUpPoint corner);

    Chart3DModel& chart_;
    IChart3DHost& host_;
    Chart3DRanges& ranges_;
    Chart3DSelection selection_{chart_, host_};
    Gesture gesture_;
    std::uint32_t gestures_ = 0;  // ended until now
};

}  // namespace corvex
