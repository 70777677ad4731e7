#include "controls/chart3d/Projection.h"

#include <cmath>

namespace corvex {

namespace {

constexpr Vector3D kEye{0.0F, 0.0F, -4.0F}, kTarget{0.0F, 0.0F, 0.0F}, kUp{0.0F, 1.0F, 0.0F};

Matrix3D Translation(const Vector3D& by) {
    return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, by[0], by[1], by[2], 1};
}

Matrix3D Scale(const Vector3D& by) {
    return {by[0], 0, 0, 0, 0, by[1], 0, 0, 0, 0, by[2], 0, 0, 0, 0, 1};
}

Matrix3D Yaw(float angle) {
    const float c = CosineOf(angle), s = SineOf(angle);
    return {c, 0, -s, 0, 0, 1, 0, 0, s, 0, c, 0, 0, 0, 0, 1};
}

Matrix3D Pitch(float angle) {
    const float c = CosineOf(angle), s = SineOf(angle);
    return {1, 0, 0, 0, 0, c, s, 0, 0, -s, c, 0, 0, 0, 0, 1};
}

Vector3D Negative(const Vector3D& v) {
    return {-v[0], -v[1], -v[2]};
}

Vector3D Difference(const Vector3D& a, const Vector3D& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Vector3D Cross(const Vector3D& a, const Vector3D& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

float Dot(const Vector3D& a, const Vector3D& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector3D Normalised(const Vector3D& v) {
    const float length = std::sqrt(Dot(v, v));
    return {v[0] / length, v[1] / length, v[2] / length};
}

Matrix3D LookAt(const Vector3D& eye, const Vector3D& target, const Vector3D& up) {
    const Vector3D z = Normalised(Difference(target, eye));
    const Vector3D x = Normalised(Cross(up, z));
    const Vector3D y = Cross(z, x);
    return {x[0],         y[0],         z[0],         0,  //
            x[1],         y[1],         z[1],         0,  //
            x[2],         y[2],         z[2],         0,  //
            -Dot(x, eye), -Dot(y, eye), -Dot(z, eye), 1};
}

Matrix3D Product(const Matrix3D& a, const Matrix3D& b) {
    Matrix3D product{};
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t col = 0; col < 4; ++col) {
            float sum = 0.0F;
            for (std::size_t i = 0; i < 4; ++i)
                sum += a[row * 4 + i] * b[i * 4 + col];
            product[row * 4 + col] = sum;
        }
    }
    return product;
}

// Turned and scaled about the pivot, seen from the eye, and put in its place.
Matrix3D TransformOf(const Chart3DSpace& space) {
    Matrix3D transform = Translation(Negative(space.pivot));
    for (const Matrix3D& next : {Scale(space.scale), Yaw(space.rotation[1]), Pitch(space.rotation[0]),
                                 Translation(space.pivot), LookAt(kEye, kTarget, kUp), Translation(space.translation)})
        transform = Product(transform, next);
    return transform;
}

}  // namespace

float CosineOf(float angle) {
    return static_cast<float>(std::cos(static_cast<double>(angle)));
}
float SineOf(float angle) {
    return static_cast<float>(std::sin(static_cast<double>(angle)));
}

float SpanOf(ChartRange range) {
    return range.maximum - range.minimum;
}

Projection::Projection(const Chart3DSpace& space)
    : ranges_(space.ranges),
      spans_{SpanOf(space.ranges[kXAxis]), SpanOf(space.ranges[kDepthAxis]), SpanOf(space.ranges[kVerticalAxis])},
      normalises_(space.normalises),
      boxSize_(space.boxSize),
      matrix_(TransformOf(space)) {}

ProjectedPoint Projection::Project(float x, float vertical, float depth) const {
    const auto inBox = [this](float value, Chart3DAxis axis) {
        if (!normalises_) return value;
        if (spans_[axis] == 0.0F) return 0.0F;
        return (value - ranges_[axis].minimum) * boxSize_ / spans_[axis];
    };
    const float a = inBox(x, kXAxis), b = inBox(HeightOf(vertical), kVerticalAxis), c = inBox(depth, kDepthAxis);
    const auto component = [&](std::size_t i) {
        return SaturatedPixel(
            static_cast<double>(a * matrix_[i] + b * matrix_[4 + i] + c * matrix_[8 + i] + matrix_[12 + i]));
    };
    return {{component(0), component(1)}, component(2)};
}

}  // namespace corvex
