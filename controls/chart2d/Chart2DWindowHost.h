// What a 2-D chart's behaviour asks for, done with its window.
#pragma once

#include "controls/chart/ChartWindowHost.h"
#include "controls/chart2d/Chart2D.h"
#include "controls/chart2d/Chart2DHost.h"

namespace corvex {

class Chart2DWindowHost final : public ChartWindowHost<IChart2DHost> {
public:
    using ChartWindowHost::ChartWindowHost;

    void Tell(Chart2DCode code, QZChart2DSeries* series, int index) override;
    void PlacePointer(YUpPoint place) override;
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point2D& point, QZChart2DSeries* series,
                                       int index) override;

    Chart2DLabelCallback callback = nullptr;
};

}  // namespace corvex
