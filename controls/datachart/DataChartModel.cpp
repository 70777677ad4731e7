#include "controls/datachart/DataChartModel.h"

#include <algorithm>
#include <new>

#include "controls/datachart/AxisFigureModel.h"

namespace corvex {

namespace {

constexpr int kInset = 3, kTitleTop = 2, kUnderTitle = 4;
constexpr int kTickAndGap = 8, kUnderAxisTitle = 2, kUnderLabels = 3, kBesideLabels = 2;
constexpr char kLabelSample[] = "1790";

// Null for want of memory.
template <class Object, class... Arguments>
Object* Grow(std::vector<std::unique_ptr<Object>>& objects, Arguments&... arguments) try {
    return objects.emplace_back(std::make_unique<Object>(arguments...)).get();
} catch (const std::bad_alloc&) {
    return nullptr;
}

template <class Object>
Object* At(const std::vector<std::unique_ptr<Object>>& objects, std::size_t index) {
    return index < objects.size() ? objects[index].get() : nullptr;
}

}  // namespace

std::uint32_t CopyChartText(std::string_view text, char* buffer, std::uint32_t capacity) {
    if (buffer == nullptr || capacity == 0) return 0;
    const std::size_t length = text.copy(buffer, capacity - 1);
    buffer[length] = '\0';
    return static_cast<std::uint32_t>(length);
}

DataChartSeries* DataChartModel::AddSeries() {
    return Grow(series_);
}

DataChartAxis* DataChartModel::AddAxis() {
    return Grow(axes_, *this);
}

DataChartSeries* DataChartModel::Series(std::size_t index) const {
    return At(series_, index);
}

DataChartAxis* DataChartModel::Axis(std::size_t index) const {
    return At(axes_, index);
}

void DataChartModel::DeleteSeries(std::size_t index) {
    if (index < series_.size()) series_.erase(series_.begin() + static_cast<std::ptrdiff_t>(index));
}

bool DataChartModel::DeleteAxis(std::size_t index) {
    const DataChartAxis* const axis = Axis(index);
    if (axis == nullptr) return true;
    for (const auto& series : series_) {
        if (series->XAxis() == axis || series->YAxis() == axis) return false;
    }
    axes_.erase(axes_.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

void DataChartModel::ClearSamples() {
    for (const auto& series : series_)
        series->Clear();
}

void DataChartModel::ClearAxes() {
    series_.clear();
    axes_.clear();
}

void DataChartModel::MarkLayoutDue() {
    if (isLayoutDue_) {
        for (const auto& axis : axes_)
            axis->CalculateTicks();
    }
    isLayoutDue_ = true;
}

void DataChartModel::MeasureAxis(DataChartAxis& axis, const IChartTextMeasure& measure) const {
    const auto size = [&measure](std::string_view text) { return measure.Measure(ChartFont::kOfContext, text); };
    int band = kTickAndGap;
    const std::string_view title = std::string_view(axis.Title()).substr(0, kTitleLength);
    if (!title.empty()) band += size(title).height + kUnderAxisTitle;
    if (IsHorizontal(axis.Position())) {
        band += size(kLabelSample).height + kUnderLabels;
    } else {
        band += size(axis.LongestLimit()).width + kBesideLabels;
    }
    axis.thickness = static_cast<std::uint8_t>(band);
}

// The first axis of a side hugs the plot.
ChartArea DataChartModel::StackAxes(ChartArea plot, const IChartTextMeasure& measure) {
    int used[4] = {};
    int* const edges[] = {&plot.left, &plot.right, &plot.top, &plot.bottom};
    for (const auto& axis : axes_) {
        MeasureAxis(*axis, measure);
        const auto side = static_cast<std::size_t>(axis->Position());
        const bool movesUp = axis->Position() == AxisPosition::kLeft || axis->Position() == AxisPosition::kTop;
        *edges[side] += movesUp ? axis->thickness : -axis->thickness;
        axis->offset = used[side];
        used[side] += axis->thickness;
    }
    return plot;
}

std::optional<ChartBackground> DataChartModel::LayOut(int width, int height, const IChartTextMeasure& measure,
                                                      void* chart) {
    isLayoutDue_ = false;
    if (width <= 0 || height <= 0) return {};
    ChartBackground background{.client = {0, 0, width, height}, .title = {}, .axes = {}, .plot = {}};
    ChartArea plot{kInset, kInset, width - kInset, height - kInset};
    if (!title_.empty()) {
        const ChartTextSize size = measure.Measure(ChartFont::kTitle, title_);
        background.title = ChartText{title_, ChartFont::kTitle, {width / 2 - size.width / 2, kTitleTop}, false};
        plot.top += size.height + kUnderTitle;
    }
    plot = StackAxes(plot, measure);
    background.plot = plot;
    for (const auto& axis : axes_) {
        axis->plot = plot;
        axis->CalculateTicks();
        background.axes.push_back(FigureOf(*axis, measure, chart));
    }
    return background;
}

std::optional<ChartLine> DataChartModel::MarkerOf(const DataChartAxis& axis) {
    const bool isVisible = axis.marker >= axis.Minimum() && axis.marker <= axis.Maximum();
    if (!axis.Has(kAxisMarker) || !isVisible) return {};
    const int pixel = axis.PixelOf(axis.marker);
    if (IsHorizontal(axis.Position())) return ChartLine{{pixel, axis.plot.bottom}, {pixel, axis.plot.top}};
    return ChartLine{{axis.plot.left, pixel}, {axis.plot.right, pixel}};
}

}  // namespace corvex
