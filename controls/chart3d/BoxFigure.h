// The three faces of the box that are behind the data, with their tick lines and labels.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "controls/chart3d/AxisTitles.h"
#include "controls/chart3d/BoxFaces.h"
#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

struct TickLabel {
    std::string text;
    YUpPoint at;  // 4 pixels beyond the line's end: the text begins or ends there, its middle level with it
    TextSide side = TextSide::kRight;
};

struct TickLine {
    YUpPoint from, to;  // `to` is the end with the label
    Chart3DAxis axis = kXAxis;
    std::optional<TickLabel> label;  // none that would lie on another
};

struct FaceFigure {
    BoxFace face = BoxFace::kFloor;
    std::array<YUpPoint, 4> corners;
    std::vector<TickLine> ticks;  // none without kChart3DTickLines
};

// The faces in the order in which they are drawn; each one's ticks come before its outline.
std::array<FaceFigure, 3> FacesOf(const Chart3DModel& chart, const Projection& projection,
                                  const ITickTextMeasure& measure);

}  // namespace corvex
