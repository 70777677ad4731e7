#include "tests/controls/chart3d/Chart3DReference.h"

#include <cmath>

namespace corvex {

ReferencePlace ReferenceProject(const Chart3DSpace& space, const BoxPlace& place) {
    const auto inBox = [&](Chart3DAxis axis) -> double {
        const double minimum = space.ranges[axis].minimum, span = space.ranges[axis].maximum - minimum;
        if (!space.normalises) return place[axis];
        return span == 0.0 ? 0.0 : (place[axis] - minimum) * space.boxSize / span;
    };
    const double x = (inBox(kXAxis) - space.pivot[0]) * space.scale[0];
    const double y = (inBox(kVerticalAxis) - space.pivot[1]) * space.scale[1];
    const double z = (inBox(kDepthAxis) - space.pivot[2]) * space.scale[2];
    const double pitch = space.rotation[0], yaw = space.rotation[1];
    const double turned = z * std::cos(yaw) - x * std::sin(yaw), eye = -4.0;
    return {x * std::cos(yaw) + z * std::sin(yaw) + space.pivot[0] + space.translation[0],
            y * std::cos(pitch) - turned * std::sin(pitch) + space.pivot[1] + space.translation[1],
            y * std::sin(pitch) + turned * std::cos(pitch) + space.pivot[2] - eye + space.translation[2]};
}

double LevelDepth(Chart3DSpace space, const BoxPlace& place) {
    space.rotation[0] = 0.0F;
    return ReferenceProject(space, place).depth;
}

BoxPlace PlaceIn(const Chart3DSpace& space, const BoxPlace& part) {
    BoxPlace place;
    for (std::size_t axis = 0; axis < place.size(); ++axis)
        place[axis] = space.ranges[axis].minimum + part[axis] * SpanOf(space.ranges[axis]);
    return place;
}

bool IsCut(int pixel, double place) {
    constexpr double kDigits = 0.01;
    return pixel == std::trunc(place - kDigits) || pixel == std::trunc(place + kDigits);
}

bool IsCut(YUpPoint pixels, const ReferencePlace& place) {
    return IsCut(pixels.x, place.x) && IsCut(pixels.y, place.y);
}

float Between(std::mt19937& random, float minimum, float maximum) {
    return std::uniform_real_distribution<float>(minimum, maximum)(random);
}

Chart3DSpace RandomSpace(std::mt19937& random) {
    Chart3DSpace space;
    space.normalises = random() % 4 != 0;
    space.boxSize = Between(random, 100.0F, 300.0F);
    for (ChartRange& range : space.ranges) {
        range.minimum = Between(random, -100.0F, 100.0F);
        range.maximum = range.minimum + Between(random, 50.0F, 500.0F);
    }
    space.scale.fill(Between(random, 0.5F, 2.0F));
    for (std::size_t i = 0; i < 3; ++i) {
        space.translation[i] = Between(random, -200.0F, 200.0F);
        space.pivot[i] = Between(random, 0.0F, 200.0F);
    }
    const auto isEdgeOn = [](float angle) { return std::abs(std::sin(2.0F * angle)) < 0.04F; };
    do {
        space.rotation = {Between(random, -1.5F, 1.5F), Between(random, -10.0F, 10.0F), 0.0F};
    } while (isEdgeOn(space.rotation[0]) || isEdgeOn(space.rotation[1]));
    return space;
}

QZChart3DPlot& TestChart3D::AddPlot(int rows, int columns) {
    model.plots.push_back(std::make_unique<QZChart3DPlot>(*this));
    model.plots.back()->setGridSize(rows, columns);
    return *model.plots.back();
}

void TestChart3D::SpreadTicks(int count) {
    for (const Chart3DAxis axis : {kXAxis, kDepthAxis, kVerticalAxis})
        model.ticks[axis].Spread(count, model.space.ranges[axis], nullptr);
}

}  // namespace corvex
