// What a 3-D chart's behaviour asks for, done with its window.
#pragma once

#include "controls/chart/ChartWindowHost.h"
#include "controls/chart3d/Chart3D.h"
#include "controls/chart3d/Chart3DHost.h"

namespace corvex {

class Chart3DWindowHost final : public ChartWindowHost<IChart3DHost> {
public:
    using ChartWindowHost::ChartWindowHost;

    void Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) override;
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot, int row,
                                       int column) override;

    Chart3DLabelCallback callback = nullptr;
};

}  // namespace corvex
