#include "controls/datachart/DataChartSeries.h"

#include <algorithm>
#include <new>

#include "controls/datachart/DataChartModel.h"

namespace corvex {

bool DataChartSeries::addSample(float x, float y) {
    try {
        Append(x, y);
    } catch (const std::bad_alloc&) {
        return false;
    }
    if (xAxis_ == nullptr || yAxis_ == nullptr) return true;
    xAxis_->Follow(x);
    yAxis_->Follow(y);
    return true;
}

bool DataChartSeries::addSamples(const float* xs, const float* ys, std::uint32_t count, bool replace) {
    // Whatever may fail comes first; the room grows by halves, as with single samples.
    const std::size_t kept = replace ? 0 : samples_.size(), wanted = kept + count;
    try {
        if (wanted > samples_.capacity()) samples_.reserve(std::max(wanted, samples_.capacity() * 2));
    } catch (const std::bad_alloc&) {
        return false;
    }
    if (replace) Clear();
    if (replace && count != 0) {
        minX = maxX = xs[0];
        minY = maxY = ys[0];
    }
    for (std::uint32_t i = 0; i < count; ++i)
        Append(xs[i], ys[i]);
    return true;
}

void DataChartSeries::Append(float x, float y) {
    const bool falls = samples_.empty() ? x != x : !(x >= samples_.back().x);
    samples_.push_back({x, y});
    neverFell_ = neverFell_ && !falls;
    if (x < minX) minX = x;
    if (x > maxX) maxX = x;
    if (y < minY) minY = y;
    if (y > maxY) maxY = y;
}

void DataChartSeries::Clear() {
    samples_.clear();
    neverFell_ = true;
}

int DataChartSeries::setSample(float x, float y, std::uint32_t index) {
    return setX(x, index) & setY(y, index);
}

int DataChartSeries::getSample(float* x, float* y, std::uint32_t index) const {
    return getX(x, index) & getY(y, index);
}

int DataChartSeries::setX(float x, std::uint32_t index) {
    if (index >= samples_.size()) return 0;
    samples_[index].x = x;
    neverFell_ = false;
    return 1;
}

int DataChartSeries::getX(float* x, std::uint32_t index) const {
    if (index >= samples_.size()) return 0;
    *x = samples_[index].x;
    return 1;
}

int DataChartSeries::setY(float y, std::uint32_t index) {
    if (index >= samples_.size()) return 0;
    samples_[index].y = y;
    return 1;
}

int DataChartSeries::getY(float* y, std::uint32_t index) const {
    if (index >= samples_.size()) return 0;
    *y = samples_[index].y;
    return 1;
}

int DataChartSeries::deleteSample(std::uint32_t index) {
    if (index >= samples_.size()) return 0;
    samples_.erase(samples_.begin() + static_cast<std::ptrdiff_t>(index));
    neverFell_ = false;
    return 1;
}

int DataChartSeries::setXAxis(DataChartAxis* axis) {
    if (axis == nullptr || !IsHorizontal(axis->Position())) return 0;
    xAxis_ = axis;
    return 1;
}

int DataChartSeries::setYAxis(DataChartAxis* axis) {
    if (axis == nullptr || IsHorizontal(axis->Position())) return 0;
    yAxis_ = axis;
    return 1;
}

void DataChartSeries::setName(const char* text, std::uint32_t length) {
    if (text == nullptr) return name_.clear();
    name_.assign(text, length);
}

std::uint32_t DataChartSeries::getName(char* buffer, std::uint32_t capacity) const {
    return CopyChartText(name_, buffer, capacity);
}

// Of the samples after the first one.
std::size_t DataChartSeries::FirstVisible() const {
    if (!neverFell_) return 1;
    const auto isLeft = [min = xAxis_->Minimum()](const Sample& sample) { return sample.x < min; };
    return static_cast<std::size_t>(std::partition_point(samples_.begin() + 1, samples_.end(), isLeft) -
                                    samples_.begin());
}

void DataChartSeries::Walk(const std::function<void(int x, int y, bool isFirst)>& point) const {
    if (samples_.size() < 2 || xAxis_ == nullptr || yAxis_ == nullptr) return;
    const auto give = [&](const Sample& sample, bool isFirst) {
        point(xAxis_->PixelOf(sample.x), yAxis_->PixelOf(sample.y), isFirst);
    };
    const float min = xAxis_->Minimum(), max = xAxis_->Maximum();
    give(samples_.front(), true);
    for (std::size_t i = FirstVisible(); i < samples_.size() && !(samples_[i].x > max); ++i) {
        if (!(samples_[i].x < min)) give(samples_[i], false);
    }
}

}  // namespace corvex
