#include "definition/ADXHistogram.h"

#include <cmath>
#include <cstdio>

#include "definition/Truncation.h"
#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

int SetValue(ADXValue*& place, ADXObject* object) {
    auto* const value = As<ADXValue>(object);
    if (value == nullptr) return 0;
    place = value;
    return 1;
}

float ReadValue(ADXValue* value, const ADXDefinition& definition, PacketView packet, std::uint32_t commandhash) {
    if (value == nullptr) return 0.0F;
    return static_cast<float>(value->Compute(definition, value->BelongsTo(commandhash) ? packet : nullptr));
}

float Mean(const float* samples, std::uint32_t count) {
    float sum = 0.0F;
    for (std::uint32_t i = 0; i < count; ++i) {
        sum += samples[i];
    }
    return sum / static_cast<float>(count);
}

float Deviation(const float* samples, std::uint32_t count) {
    constexpr float kRoundingError = 0.002F;  // what a variance of equal samples may come to
    if (count == 1) return 0.0F;
    float sum = 0.0F;
    float squares = 0.0F;
    for (std::uint32_t i = 0; i < count; ++i) {
        sum += samples[i];
        squares += samples[i] * samples[i];
    }
    const auto n = static_cast<float>(count);
    const float variance = (squares - sum * sum / n) / (n - 1.0F);
    return variance <= kRoundingError ? 0.0F : std::sqrt(variance);
}

void WriteLink(XMLWriter& writer, const char* name, const ADXValue* value) {
    if (value != nullptr) WriteElementHex8(writer, name, value->GetIdHash());
}

}  // namespace

void ADXHistogram::Axis::Plan(std::uint32_t n, float from, float to) {
    if (n == 0 || from == to) return;
    divisions = n;
    low = from;
    high = to;
    stale = true;
}

const ADXLookupTable& ADXHistogram::Axis::Table() const {
    if (!stale) return table;
    stale = false;
    table.Reset();
    table.SetLookupMode(ADXLookupTable::kNearest);
    // One division has no step; every sample falls into it.
    const float step = divisions > 1 ? (high - low) / static_cast<float>(divisions - 1) : 0.0F;
    for (std::uint32_t i = 0; i < divisions; ++i) {
        table.AddEntry(step * static_cast<float>(i) + low, static_cast<float>(i));
    }
    return table;
}

void ADXHistogram::SetRows(std::uint32_t n) {
    const std::lock_guard guard(lock_);
    rows_ = n;
    ResizeGrids();
    yaxis_.Plan(GetRows(), ymin_, ymax_);
}

void ADXHistogram::SetCols(std::uint32_t n) {
    const std::lock_guard guard(lock_);
    cols_ = n;
    ResizeGrids();
    xaxis_.Plan(GetCols(), xmin_, xmax_);
}

void ADXHistogram::ResizeGrids() {
    history_.Resize(GetRows(), GetCols());
    stats_.Resize(GetRows(), GetCols());
}

void ADXHistogram::SetXMin(float v) {
    const std::lock_guard guard(lock_);
    xmin_ = v;
    xaxis_.Plan(GetCols(), xmin_, xmax_);
}

void ADXHistogram::SetXMax(float v) {
    const std::lock_guard guard(lock_);
    xmax_ = v;
    xaxis_.Plan(GetCols(), xmin_, xmax_);
}

void ADXHistogram::SetYMin(float v) {
    const std::lock_guard guard(lock_);
    ymin_ = v;
    yaxis_.Plan(GetRows(), ymin_, ymax_);
}

void ADXHistogram::SetYMax(float v) {
    const std::lock_guard guard(lock_);
    ymax_ = v;
    yaxis_.Plan(GetRows(), ymin_, ymax_);
}

const ADXLookupTable& ADXHistogram::XTable() const {
    const std::lock_guard guard(lock_);
    return xaxis_.Table();
}

const ADXLookupTable& ADXHistogram::YTable() const {
    const std::lock_guard guard(lock_);
    return yaxis_.Table();
}

void ADXHistogram::SetHistorySize(std::uint32_t n) {
    const std::lock_guard guard(lock_);
    history_.SetHistorySize(n);
}

std::uint32_t ADXHistogram::GetHistorySize() const {
    const std::lock_guard guard(lock_);
    return history_.HistorySize();
}

int ADXHistogram::SetX(ADXObject* object) {
    return SetValue(x_, object);
}

int ADXHistogram::SetY(ADXObject* object) {
    return SetValue(y_, object);
}

int ADXHistogram::SetZ(ADXObject* object) {
    return SetValue(z_, object);
}

std::int32_t ADXHistogram::AddSample(const ADXDefinition& definition, PacketView packet, std::uint32_t commandhash) {
    if (!packet) return -1;
    const float x = ReadValue(x_, definition, packet, commandhash);
    const float y = ReadValue(y_, definition, packet, commandhash);
    const float z = ReadValue(z_, definition, packet, commandhash);
    return AddPoint(x, y, z);
}

// Outputs are whole numbers below kAxisLimit.
std::uint32_t ADXHistogram::Axis::DivisionOf(float number) const {
    if (std::isnan(number)) return kNoDivision;
    return static_cast<std::uint32_t>(TruncateToInt32(Table().Convert(number)));
}

std::int32_t ADXHistogram::AddPoint(float x, float y, float z) {
    const std::lock_guard guard(lock_);
    const std::uint32_t row = yaxis_.DivisionOf(y), col = xaxis_.DivisionOf(x);
    history_.Add(row, col, z);
    stats_.Add(row, col, z);
    ++samplecount_;
    return static_cast<std::int32_t>(col << 16 | (row & 0xFFFF));
}

void ADXHistogram::Clear() {
    const std::lock_guard guard(lock_);
    history_.Clear();
    stats_.Clear();
    samplecount_ = 0;
}

std::uint32_t ADXHistogram::GetTotalSampleCount() const {
    const std::lock_guard guard(lock_);
    return samplecount_;
}

// The sum takes the sign off a zero.
void ADXHistogram::PrintNumber(char* out, std::size_t size, double value) {
    std::snprintf(out, size, std::fmod(value, 1.0) == 0.0 ? "%.0f" : "%.3f", value + 0.0);
}

double ADXHistogram::GetCellValue(int mode, std::uint32_t row, std::uint32_t col, char* out, std::size_t size) const {
    if (out != nullptr && size != 0) *out = '\0';
    const std::lock_guard guard(lock_);
    double value = 0.0;
    if (!HistoryValue(mode, row, col, &value) && !StatsValue(mode, row, col, &value)) return 0.0;
    if (out != nullptr && size != 0) PrintNumber(out, size, value);
    return value;
}

bool ADXHistogram::HistoryValue(int mode, std::uint32_t row, std::uint32_t col, double* value) const {
    const std::uint32_t count = history_.Count(row, col);
    if (count == 0) return false;
    const float* samples = history_.Samples(row, col);
    switch (mode) {
        case kLast:
            *value = samples[0];
            return true;
        case kCountKept:
            *value = count;
            return true;
        case kMeanKept:
            *value = Mean(samples, count);
            return true;
        case kDeviationKept:
            *value = Deviation(samples, count);
            return true;
        default:
            return false;
    }
}

bool ADXHistogram::StatsValue(int mode, std::uint32_t row, std::uint32_t col, double* value) const {
    const HistogramCellStats* cell = stats_.Cell(row, col);
    if (cell == nullptr) return false;
    switch (mode) {
        case kCountTotal:
            *value = cell->count;
            return true;
        case kMeanTotal:
            *value = cell->mean;
            return true;
        case kMinimum:
            *value = cell->min;
            return true;
        case kMaximum:
            *value = cell->max;
            return true;
        case kRange:
            *value = static_cast<float>(cell->max - cell->min);
            return true;
        default:
            return false;
    }
}

int ADXHistogram::GetSample(std::uint32_t row, std::uint32_t col, std::uint32_t index, float* out) const {
    const std::lock_guard guard(lock_);
    if (out == nullptr || index >= history_.Count(row, col)) return 0;
    *out = history_.Samples(row, col)[index];
    return 1;
}

std::uint32_t ADXHistogram::GetSampleCount(std::uint32_t row, std::uint32_t col) const {
    const std::lock_guard guard(lock_);
    return history_.Count(row, col);
}

int ADXHistogram::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXHISTOGRAM");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementHex8UnlessZero(*writer, "parentcmdidhash", parentcmdidhash);
    WriteElementDec(*writer, "rows", rows_);
    WriteElementDec(*writer, "cols", cols_);
    writer->WriteElementFloat("xmin", xmin_);
    writer->WriteElementFloat("xmax", xmax_);
    writer->WriteElementFloat("ymin", ymin_);
    writer->WriteElementFloat("ymax", ymax_);
    WriteElementDec(*writer, "historysize", GetHistorySize());
    WriteLink(*writer, "xidhash", x_);
    WriteLink(*writer, "yidhash", y_);
    WriteLink(*writer, "zidhash", z_);
    writer->EndElement();
    return 1;
}

}  // namespace corvex
