// What the behaviour of a 3-D chart asks of the window that it is the behaviour of.
#pragma once

#include "controls/chart/IChartHost.h"
#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

class IChart3DHost : public IChart3DLabels, public IChartHost {
public:
    // Sends a notification to the parent; null, 0 and 0 where the code has no point.
    virtual void Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) = 0;
};

}  // namespace corvex
