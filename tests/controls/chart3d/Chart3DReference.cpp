#include "tests/controls/chart3d/Chart3DReference.h"

#include <cmath>

namespace corvex {

namespace {

using Matrix = std::array<std::array<double, 4>, 4>;

Matrix Identity() {
    return {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
}

Matrix Shift(double x, double y, double z) {
    Matrix result = Identity();
    result[3] = {x, y, z, 1};
    return result;
}

std::array<double, 4> Times(const std::array<double, 4>& row, const Matrix& matrix) {
    std::array<double, 4> result{};
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 4; ++j)
            result[j] += row[i] * matrix[i][j];
    }
    return result;
}

double InBox(const Chart3DSpace& space, Chart3DAxis axis, double value) {
    const double minimum = space.ranges[axis].minimum, maximum = space.ranges[axis].maximum;
    if (!space.normalises) return value;
    return maximum == minimum ? 0.0 : (value - minimum) * space.boxSize / (maximum - minimum);
}

}  // namespace

ReferencePlace ReferenceProject(const Chart3DSpace& space, double x, double vertical, double depth) {
    const double pitch = space.rotation[0], yaw = space.rotation[1];
    Matrix scale = Identity(), turn = Identity(), tilt = Identity();
    for (std::size_t i = 0; i < 3; ++i)
        scale[i][i] = space.scale[i];
    turn[0] = {std::cos(yaw), 0, -std::sin(yaw), 0};
    turn[2] = {std::sin(yaw), 0, std::cos(yaw), 0};
    tilt[1] = {0, std::cos(pitch), std::sin(pitch), 0};
    tilt[2] = {0, -std::sin(pitch), std::cos(pitch), 0};
    const Vector3D& pivot = space.pivot;
    const Vector3D& shift = space.translation;
    const double eye = -4.0;  // on the third axis, looking along it
    std::array<double, 4> row{InBox(space, kXAxis, x), InBox(space, kVerticalAxis, vertical),
                              InBox(space, kDepthAxis, depth), 1.0};
    for (const Matrix& next :
         {Shift(-pivot[0], -pivot[1], -pivot[2]), scale, turn, tilt, Shift(pivot[0], pivot[1], pivot[2]),
          Shift(0, 0, -eye), Shift(shift[0], shift[1], shift[2])})
        row = Times(row, next);
    return {row[0], row[1], row[2]};
}

bool IsCut(int pixel, double place) {
    constexpr double kDigits = 0.01;
    return pixel == std::trunc(place - kDigits) || pixel == std::trunc(place + kDigits);
}

bool IsCut(YUpPoint pixels, const ReferencePlace& place) {
    return IsCut(pixels.x, place.x) && IsCut(pixels.y, place.y);
}

double LevelDepth(Chart3DSpace space, double x, double vertical, double depth) {
    space.rotation[0] = 0.0F;
    return ReferenceProject(space, x, vertical, depth).depth;
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
