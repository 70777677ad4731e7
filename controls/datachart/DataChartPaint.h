// Draws a strip chart: what stands still once for each layout, series and markers at each paint.
#pragma once

#include "controls/datachart/DataChartModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// The fonts of one layout, and how large texts are in them on this context, which outlives it.
class DataChartFonts final : public IChartTextMeasure {
public:
    explicit DataChartFonts(HDC dc);
    ChartTextSize Measure(ChartFont font, std::string_view text) const override;
    // The context's own for kOfContext.
    HFONT Get(ChartFont font) const;

private:
    const HDC dc_;
    const OwnedFont title_, turned_, upright_, label_;
};

// The whole client: ground, title, axes and the empty plot.
void PaintChartBackground(HDC dc, const ChartBackground& background, const DataChartModel& model,
                          const DataChartFonts& fonts);

// The series in their order and then the axes' markers, nothing of which leaves the plot. On the background.
void PaintChartLines(HDC dc, const DataChartModel& model, const ChartArea& plot);

}  // namespace corvex
