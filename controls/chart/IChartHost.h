// What the behaviour of a chart with points asks of the window that it is the behaviour of.
#pragma once

namespace corvex {

// On the window's thread. All but PaintSoon and the pointer's let somebody else work, who may send the chart any
// message meanwhile.
class IChartHost {
public:
    virtual ~IChartHost() = default;
    // Everything, with erase: at once, or with the next paint.
    virtual void Repaint() = 0;
    virtual void PaintSoon() = 0;
    // Of the mouse.
    virtual void Capture() = 0;
    virtual void Release() = 0;
    // In turns, this one first.
    virtual void HidePointer() = 0;
    virtual void ShowPointer() = 0;
};

}  // namespace corvex
