// A 2-D chart on show, for the tests of its window.
#pragma once

#include <cstdio>
#include <cstring>
#include <utility>
#include <vector>

#include "controls/chart2d/Chart2D.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/chart/ChartWindowTest.h"

namespace corvex {

// Where a place of the origin's surroundings lies for the mouse, on 650 by 650 pixels.
inline LPARAM MouseAt(int x, int y) {
    return MAKELPARAM(325 + x, 650 - (325 + y));
}

struct ToldOf2D {
    ToldOf2D(UINT tellsCode, IQZChart2DSeries* tellsSeries, int tellsPoint)
        : code(tellsCode), series(tellsSeries), point(tellsPoint) {}
    explicit ToldOf2D(const Chart2DNotification& block) : ToldOf2D(block.header.code, block.series, block.point) {}
    UINT code;
    IQZChart2DSeries* series;
    int point;
    friend bool operator==(const ToldOf2D&, const ToldOf2D&) = default;
};
inline void PrintTo(const ToldOf2D& told, std::ostream* out) {
    *out << told.code << " " << told.series << " " << told.point;
}

// Of 650 by 650 pixels: a unit is a pixel. One series with points at -100 and 100 on both axes.
class Chart2DTest : public ChartWindowTest<Chart2DNotification, ToldOf2D> {
protected:
    Chart2DTest() : ChartWindowTest(RegisterOnce(), 650, 650) { series = AddSeries(); }
    static const char* RegisterOnce() {
        Chart2D::Register(::GetModuleHandleA(nullptr));
        return kChart2DClass;
    }
    IQZChart2DSeries* AddSeries() const {
        auto* const added = reinterpret_cast<IQZChart2DSeries*>(Send(CH2M_ADDSERIES, 99));
        for (const float place : {-100.0F, 100.0F})
            added->addPoint({place, place});
        return added;
    }
    std::pair<float, float> Ends(UINT message) const {
        float minimum = -77.0F, maximum = -77.0F;
        EXPECT_EQ(Send(message, W(&minimum), L(&maximum)), 0);
        EXPECT_EQ(Send(message), 0);
        return {minimum, maximum};
    }
    std::pair<float, float> PointAt(std::uint32_t index) const {
        Point2D point;
        series->getPoint(index, &point);
        return {point.x, point.y};
    }

    IQZChart2DSeries* series = nullptr;
};

}  // namespace corvex
