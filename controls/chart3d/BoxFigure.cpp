#include "controls/chart3d/BoxFigure.h"

#include <cmath>
#include <limits>

#include "controls/chart/LabelThinning.h"

namespace corvex {

namespace {

constexpr int kLabelGap = 4;

// The sides of the box that are drawn, and the labels that the floor or the ceiling leaves on it.
class BoxDrawing {
public:
    BoxDrawing(const Chart3DModel& chart, const Projection& projection, const ITickTextMeasure& measure)
        : chart_(chart), projection_(projection), measure_(measure) {}

    std::array<FaceFigure, 3> Faces();

private:
    void AddLevelTicks(FaceFigure& figure);
    void AddWallTicks(FaceFigure& figure);
    // One line for each tick of the axis, on the face, from end to end of the axis `along`.
    void AddTicks(FaceFigure& figure, Chart3DAxis axis, Chart3DAxis along, LabelThinning labels);
    float Behind(Chart3DAxis axis) const { return EndOf(chart_.space.ranges[axis], behind_[axis]); }
    float InFront(Chart3DAxis axis) const { return EndOf(chart_.space.ranges[axis], !behind_[axis]); }

    const Chart3DModel& chart_;
    const Projection& projection_;
    const ITickTextMeasure& measure_;
    std::array<bool, kChart3DAxisCount> behind_{};  // of each axis, whether its maximum is
    // Of the labels on the floor or the ceiling, the one nearest to the wall across their axis.
    struct FootLabel {
        float distance = std::numeric_limits<float>::infinity();
        std::optional<YUpBox> box;
    };
    std::array<FootLabel, kChart3DAxisCount> footLabels_;
};

std::array<FaceFigure, 3> BoxDrawing::Faces() {
    const auto& rotation = chart_.space.rotation;
    const std::array<BoxFace, 3> faces = FacesBehind(rotation[0], rotation[1]);
    for (const BoxFace face : faces)
        behind_[PlaneOf(face).axis] = PlaneOf(face).isMaximum;

    std::array<FaceFigure, 3> figures;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        FaceFigure& figure = figures[i];
        figure.face = faces[i];
        figure.corners = CornersOf(faces[i], chart_.space, projection_);
        if (!chart_.Has(kChart3DTickLines)) continue;
        if (PlaneOf(faces[i]).axis == kVerticalAxis)
            AddLevelTicks(figure);
        else
            AddWallTicks(figure);
    }
    return figures;
}

void BoxDrawing::AddLevelTicks(FaceFigure& figure) {
    AddTicks(figure, kXAxis, kDepthAxis, LabelThinning());
    AddTicks(figure, kDepthAxis, kXAxis, LabelThinning());
}

void BoxDrawing::AddWallTicks(FaceFigure& figure) {
    // The labels stand over the end of the level's row across.
    const Chart3DAxis across = PlaneOf(figure.face).axis;
    AddTicks(figure, kVerticalAxis, across == kXAxis ? kDepthAxis : kXAxis, LabelThinning(footLabels_[across].box));
}

void BoxDrawing::AddTicks(FaceFigure& figure, Chart3DAxis axis, Chart3DAxis along, LabelThinning labels) {
    BoxPlace behind, inFront;
    behind[PlaneOf(figure.face).axis] = inFront[PlaneOf(figure.face).axis] = Behind(PlaneOf(figure.face).axis);
    behind[along] = Behind(along);
    inFront[along] = InFront(along);
    for (const TickEntry& tick : chart_.ticks[axis].All()) {
        behind[axis] = inFront[axis] = tick.value;
        TickLine line{SeenAt(behind, projection_), SeenAt(inFront, projection_), axis, std::nullopt};
        const bool isRight = line.to.x >= line.from.x;
        const TickLabel label{tick.label,
                              {line.to.x + (isRight ? kLabelGap : -kLabelGap), line.to.y},
                              isRight ? TextSide::kRight : TextSide::kLeft};
        if (!label.text.empty() && labels.Takes(LabelBox(label.at, label.side, measure_.Measure(label.text)))) {
            line.label = label;
            const float distance = std::abs(tick.value - Behind(axis));
            if (distance < footLabels_[axis].distance) footLabels_[axis] = {distance, labels.Last()};
        }
        figure.ticks.push_back(std::move(line));
    }
}

}  // namespace

std::array<FaceFigure, 3> FacesOf(const Chart3DModel& chart, const Projection& projection,
                                  const ITickTextMeasure& measure) {
    return BoxDrawing(chart, projection, measure).Faces();
}

}  // namespace corvex
