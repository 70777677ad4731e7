// What the behaviour of a 2-D chart asks of the window that it is the behaviour of.
#pragma once

#include "controls/chart/IChartHost.h"
#include "controls/chart2d/Chart2DModel.h"

namespace corvex {

class IChart2DHost : public IChart2DLabels, public IChartHost {
public:
    // Sends a notification to the parent; null and 0 where the code has no point.
    virtual void Tell(Chart2DCode code, QZChart2DSeries* series, int index) = 0;
    // Of the mouse, to a place in the client; nothing for one outside.
    virtual void PlacePointer(YUpPoint place) = 0;
};

}  // namespace corvex
