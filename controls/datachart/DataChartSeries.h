// One line of a strip chart: samples in the order in which they came, against two axes of the chart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "controls/datachart/DataChartAxis.h"

namespace corvex {

// Belongs to its chart, on whose thread alone it is used. Every sample since the last clear is kept.
class DataChartSeries {
public:
    // Appends, widens the bounds, and has both axes follow; without both, none. False, and the series as it was, for
    // want of memory.
    bool addSample(float x, float y);
    // Appends pairs without any scrolling. `replace` empties the series first and begins the bounds with the first
    // pair. False, and the series as it was, for want of memory.
    bool addSamples(const float* xs, const float* ys, std::uint32_t count, bool replace);
    void Clear();  // the samples; the bounds stay

    // All these give 1, or 0 for an index that is not below the count. They change no bounds and never scroll.
    int setSample(float x, float y, std::uint32_t index);
    int getSample(float* x, float* y, std::uint32_t index) const;
    int setX(float x, std::uint32_t index);
    int getX(float* x, std::uint32_t index) const;
    int setY(float y, std::uint32_t index);
    int getY(float* y, std::uint32_t index) const;
    int deleteSample(std::uint32_t index);
    std::size_t Count() const { return samples_.size(); }

    // 1 when the axis was taken; 0 for none and for one on the wrong sides, and the old one stays. Not owned.
    int setXAxis(DataChartAxis* axis);
    int setYAxis(DataChartAxis* axis);
    DataChartAxis* XAxis() const { return xAxis_; }
    DataChartAxis* YAxis() const { return yAxis_; }

    void setName(const char* text, std::uint32_t length);
    std::uint32_t getName(char* buffer, std::uint32_t capacity) const;

    // A line from the first sample, which is given first wherever it lies, by way of every visible one: samples left of
    // the visible range are passed over, the first one beyond it ends the line. Nothing is given without two samples
    // and both axes.
    //
    // By letter every sample is looked at. The line is the same, but while x has never fallen the first visible sample
    // is searched for, so that a paint does not grow dearer with the history behind it.
    void Walk(const std::function<void(int x, int y, bool isFirst)>& point) const;

    std::uint8_t lineWidth = 1, lineType = 0;  // of a pen
    std::uint32_t colour = 0;                  // 0x00BBGGRR

    // The maxima begin just above zero, so that negative samples alone leave them there; nothing is scaled by these.
    float minX = kLargest, maxX = kSmallest, minY = kLargest, maxY = kSmallest;

private:
    static constexpr float kLargest = 3.4028235e38F, kSmallest = 1.1754944e-38F;
    struct Sample {
        float x, y;
    };
    void Append(float x, float y);
    std::size_t FirstVisible() const;

    std::string name_;
    std::vector<Sample> samples_;
    bool neverFell_ = true;  // x, nor was it NaN
    DataChartAxis *xAxis_ = nullptr, *yAxis_ = nullptr;
};

}  // namespace corvex
