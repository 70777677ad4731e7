// What the behaviour of a 3-D chart asks of the window that it is the behaviour of.
#pragma once

#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

// On the window's thread. All but PaintSoon and the pointer's let somebody else work, who may send the chart any
// message meanwhile.
class IChart3DHost : public IChart3DLabels {
public:
    // Sends a notification to the parent; null, 0 and 0 where the code has no point.
    virtual void Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) = 0;
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
