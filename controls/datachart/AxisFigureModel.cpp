#include "controls/datachart/AxisFigureModel.h"

namespace corvex {

namespace {

// The numbers of one side, for an axis with this offset and thickness.
struct Side {
    const DataChartAxis& axis;
    const ChartArea& plot = axis.plot;
    const int offset = axis.offset, thickness = axis.thickness;

    ChartLine Line() const;
    ChartPoint TitlePlace(ChartTextSize text) const;
    ChartLine Mark(int pixel) const;
    ChartPoint LabelPlace(int pixel, ChartTextSize text) const;
};

ChartLine Side::Line() const {
    switch (axis.Position()) {
        case AxisPosition::kLeft:
            return {{plot.left - offset - 2, plot.bottom}, {plot.left - offset - 2, plot.top}};
        case AxisPosition::kRight:
            return {{plot.right + offset + 1, plot.bottom}, {plot.right + offset + 1, plot.top}};
        case AxisPosition::kTop:
            return {{plot.left, plot.top - offset - 2}, {plot.right, plot.top - offset - 2}};
        case AxisPosition::kBottom:
            break;
    }
    return {{plot.left, plot.bottom + offset + 1}, {plot.right, plot.bottom + offset + 1}};
}

ChartPoint Side::TitlePlace(ChartTextSize text) const {
    const int middle = plot.left + (plot.right - plot.left) / 2 - text.width / 2;
    const int turnedMiddle = plot.top + (plot.bottom - plot.top) / 2 + text.width / 2;
    switch (axis.Position()) {
        case AxisPosition::kLeft:
            return {plot.left - offset - thickness + text.height / 2, turnedMiddle};
        case AxisPosition::kRight:
            return {plot.right + offset + thickness - text.height, turnedMiddle};
        case AxisPosition::kTop:
            return {middle, plot.top - offset - thickness + text.height};
        case AxisPosition::kBottom:
            break;
    }
    return {middle, plot.bottom + offset + thickness - text.height - 4};
}

ChartLine Side::Mark(int pixel) const {
    switch (axis.Position()) {
        case AxisPosition::kLeft:
            return {{plot.left - offset - 2, pixel}, {plot.left - offset - 7, pixel}};
        case AxisPosition::kRight:
            return {{plot.right + offset + 1, pixel}, {plot.right + offset + 6, pixel}};
        case AxisPosition::kTop:
            return {{pixel, plot.top - offset - 2}, {pixel, plot.top - offset - 7}};
        case AxisPosition::kBottom:
            break;
    }
    return {{pixel, plot.bottom + offset + 1}, {pixel, plot.bottom + offset + 6}};
}

ChartPoint Side::LabelPlace(int pixel, ChartTextSize text) const {
    switch (axis.Position()) {
        case AxisPosition::kLeft:
            return {plot.left - text.width - offset - 8, pixel - text.height / 2};
        case AxisPosition::kRight:
            return {plot.right + offset + 10, pixel - text.height / 2};
        case AxisPosition::kTop:
            return {pixel - text.width / 2, plot.top - offset - 8};
        case AxisPosition::kBottom:
            break;
    }
    return {pixel - text.width / 2, plot.bottom + offset + 7};
}

}  // namespace

AxisFigure FigureOf(const DataChartAxis& axis, const IChartTextMeasure& measure, void* chart) {
    const Side side{axis};
    const bool isTop = axis.Position() == AxisPosition::kTop;
    AxisFigure figure{axis.textColour, axis.lineColour, {}, side.Line(), {}};
    const std::string title = axis.Title().substr(0, DataChartModel::kDrawnAxisTitleLength);
    if (!title.empty()) {
        const ChartFont font = IsHorizontal(axis.Position()) ? ChartFont::kAxisTitle : ChartFont::kAxisTitleTurned;
        figure.title = ChartText{title, font, side.TitlePlace(measure.Measure(font, title)), isTop};
    }
    for (const float value : axis.Ticks()) {
        const int pixel = axis.PixelOf(value);
        const std::string label = axis.LabelOf(value, chart);
        const ChartPoint place = side.LabelPlace(pixel, measure.Measure(ChartFont::kLabel, label));
        figure.ticks.push_back({side.Mark(pixel), {label, ChartFont::kLabel, place, isTop}});
    }
    return figure;
}

}  // namespace corvex
