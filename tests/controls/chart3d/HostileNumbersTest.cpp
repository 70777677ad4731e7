#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "controls/chart3d/BoxFigure.h"
#include "controls/chart3d/SurfaceFigure.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

using Limits = std::numeric_limits<float>;

// Any number may come in a message. Whatever is drawn stays within the edges, and nothing is undefined on the way.
TEST(HostileNumbersTest, AllPlacesStayWithinTheEdges) {
    std::mt19937 random(14);
    const auto any = [&random]() -> float {
        constexpr float kOdd[] = {0.0F,
                                  -0.0F,
                                  1.0F,
                                  -1.0F,
                                  255.0F,
                                  Limits::min(),
                                  Limits::lowest(),
                                  Limits::max(),
                                  Limits::infinity(),
                                  1e20F,
                                  -Limits::infinity(),
                                  Limits::quiet_NaN(),
                                  Limits::denorm_min()};
        const std::size_t i = random() % (std::size(kOdd) + 4);
        return i < std::size(kOdd) ? kOdd[i] : Between(random, -300.0F, 300.0F);
    };
    for (int round = 0; round < 3000; ++round) {
        TestChart3D chart;
        Chart3DSpace& space = chart.model.space;
        for (ChartRange& range : space.ranges) {
            range.minimum = any();
            range.maximum = random() % 3 == 0 ? range.minimum : any();
        }
        if (random() % 2 == 0) chart.model.style &= ~kChart3DNormalise;
        if (random() % 2 == 0) space.boxSize = any();
        for (Vector3D* const vector : {&space.scale, &space.translation, &space.rotation, &space.pivot}) {
            for (float& value : *vector) {
                if (random() % 3 == 0) value = any();
            }
        }
        chart.SpreadTicks(5);
        chart.model.ticks[kXAxis].Set(2, any(), "any");
        QZChart3DPlot& plot = chart.AddPlot(3, 3);
        for (int i = 0; i < 9; ++i)
            plot.setPoint(i / 3, i % 3, {any(), any(), any(), 0}, 0);
        plot.setType(random() % 2);
        if (const auto range = RampRangeOf(chart.model, plot)) {
            ASSERT_TRUE(std::isfinite(range->minimum) && std::isfinite(range->maximum));
            plot.ramp.setRange(range->minimum, range->maximum);
        }

        std::vector<YUpPoint> places;
        const Projection projection = chart.model.Seen();
        SurfaceFigure(plot, projection).ForEachQuad([&](const SurfaceQuad& quad) {
            places.insert(places.end(), quad.corners.begin(), quad.corners.end());
            ASSERT_NE(plot.ramp.map(quad.height), 0u) << "no colour between blue and red is black";
        });
        ASSERT_EQ(places.size(), 16u);
        for (const FaceFigure& face : FacesOf(chart.model, projection, SixPixelMeasure())) {
            places.insert(places.end(), face.corners.begin(), face.corners.end());
            for (const TickLine& line : face.ticks)
                places.insert(places.end(), {line.from, line.to});
        }
        for (const AxisTitle& title : AxisTitlesOf(chart.model, projection))
            places.push_back(title.at);
        for (const YUpPoint place : places)
            ASSERT_LE(std::max(std::abs(place.x), std::abs(place.y)), 1 << 26);
    }
}

}  // namespace
}  // namespace corvex
