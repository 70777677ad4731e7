// The mouse on a chart with points: a gesture lasts from a button down to its end, and picks, drags or draws a rubber
// band meanwhile.
#pragma once

#include "controls/chart/ChartHand.h"
#include "controls/chart/IChartHost.h"

namespace corvex {

// Places are the pointer's, in the chart's y-up space, and may lie outside of the client while the mouse is captured.
class ChartMouse {
public:
    ChartMouse(ChartHand& hand, IChartHost& host) : hand_(hand), host_(host) {}
    virtual ~ChartMouse() = default;
    ChartMouse(const ChartMouse&) = delete;
    ChartMouse& operator=(const ChartMouse&) = delete;

    void OnDown(YUpPoint place, ChartModifiers held);
    void OnDoubleClick(YUpPoint place, ChartModifiers held);
    // What it does is decided anew each time, by the modifiers of that moment.
    void OnMove(YUpPoint place);
    // The button is up.
    void OnUp() { End(true); }
    // The same for whoever takes the capture. Nothing without a gesture.
    void EndGesture() { End(false); }
    virtual void ClearSelection() = 0;

protected:
    // The rubber band can select something.
    virtual bool HasBand() const = 0;
    // A click there, in the gesture with that number: who is told of a point, or paints, may end it or begin another.
    virtual void Pick(YUpPoint place, bool control, std::uint32_t gesture) = 0;
    // The selected points by so many pixels; and what is in a rubber band selected, and nothing else.
    virtual void Drag(int across, int up) = 0;
    virtual void SelectIn(const YUpBox& box) = 0;
    // A move with control, shift or both held.
    virtual void MoveHeld(int across, int up) = 0;
    // Tells the parent; whether the points have been on their way until the button came up.
    virtual void DragHasEnded(bool wasDropped) = 0;

    bool IsLatest(std::uint32_t gesture) const { return gestures_ == gesture; }
    void BeginDrag() { gesture_.isDragging = true; }
    // Until the end of the gesture.
    void HidePointer();

private:
    struct Gesture {
        bool isDown = false, isDragging = false, isBanding = false, hidesPointer = false;
        YUpPoint start, last;
    };

    void End(bool isReleased);

    ChartHand& hand_;
    IChartHost& host_;
    Gesture gesture_;
    std::uint32_t gestures_ = 0;  // ended until now
};

}  // namespace corvex
