#include "apps/cli/HistogramText.h"

#include <cmath>
#include <iterator>
#include <vector>

#include "apps/cli/LogOptions.h"
#include "definition/ADXHistogram.h"
#include "export/CsvWriter.h"
#include "export/ItemReading.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// In the order in which the page offers them.
constexpr HistogramView kViews[] = {
    {"last", "Most Recent Sample", ADXHistogram::kLast},
    {"average", "History Average", ADXHistogram::kMeanKept},
    {"deviation", "History Std Deviation", ADXHistogram::kDeviationKept},
    {"count", "History Sample Count", ADXHistogram::kCountKept},
    {"average-total", "Running Average", ADXHistogram::kMeanTotal},
    {"count-total", "Running Sample Count", ADXHistogram::kCountTotal},
    {"minimum", "Running Minimum", ADXHistogram::kMinimum},
    {"maximum", "Running Maximum", ADXHistogram::kMaximum},
    {"range", "Running Range", ADXHistogram::kRange},
};
static_assert(std::size(kViews) == std::size(kHistogramViews));

// Empty for a division that the axis has no key for.
std::string KeyText(const ADXLookupTable& axis, std::uint32_t index) {
    float key = 0.0F;
    if (axis.GetEntry(index, &key, nullptr) == 0) return {};
    const auto number = static_cast<double>(key);
    return std::fmod(number, 1.0) == 0.0 ? Printf("%.0f", number) : Printf("%.3f", number);
}

std::string CellText(const ADXHistogram& histogram, const HistogramView& view, std::uint32_t row, std::uint32_t col) {
    char text[60] = {};
    histogram.GetCellValue(view.mode, row, col, text, sizeof text);
    return text;
}

std::string AxisText(const char* letter, const ADXValue* value, const char* where) {
    std::string text = std::string(letter) + ": ";
    if (value == nullptr) return text + "nothing, " + where;
    text += ShortNameOf(*value);
    const std::string units = UnitsOf(*value);
    if (!units.empty()) text += " (" + units + ")";
    return text + ", " + where;
}

// The heads of the columns, then each row with its head.
template <class Put, class End>
void ForEachCell(const ADXHistogram& histogram, const HistogramView& view, Put put, End end) {
    put(std::string());
    for (std::uint32_t col = 0; col < histogram.GetCols(); ++col)
        put(KeyText(histogram.XTable(), col));
    end();
    for (std::uint32_t row = 0; row < histogram.GetRows(); ++row) {
        put(KeyText(histogram.YTable(), row));
        for (std::uint32_t col = 0; col < histogram.GetCols(); ++col)
            put(CellText(histogram, view, row, col));
        end();
    }
}

std::string RightAligned(const std::vector<std::vector<std::string>>& rows) {
    std::size_t width = 0;
    for (const auto& row : rows) {
        for (const std::string& cell : row)
            width = cell.size() > width ? cell.size() : width;
    }
    std::string text;
    for (const auto& row : rows) {
        std::string line;
        for (const std::string& cell : row)
            line += PadLeft(cell, width) + "  ";
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

}  // namespace

const HistogramView* FindHistogramView(const std::string& name) {
    for (const HistogramView& view : kViews) {
        if (name == view.name) return &view;
    }
    return nullptr;
}

// An axis without a value leaves its "vs" out, and the last one keeps it: the page's title is built that way.
std::string HistogramTitle(const FedHistogram& fed) {
    std::string title = ShortNameOf(*fed.histogram) + " - ";
    if (const ADXValue* x = fed.histogram->GetX()) title += ShortNameOf(*x) + " vs ";
    if (const ADXValue* y = fed.histogram->GetY()) title += ShortNameOf(*y) + " vs ";
    if (const ADXValue* z = fed.histogram->GetZ()) title += ShortNameOf(*z);
    return title;
}

std::string HistogramTable(const FedHistogram& fed, const HistogramView& view) {
    const ADXHistogram& histogram = *fed.histogram;
    std::string text = HistogramTitle(fed) + '\n' + view.title;
    const bool counts = view.mode == ADXHistogram::kCountKept || view.mode == ADXHistogram::kCountTotal;
    const std::string units = histogram.GetZ() != nullptr && !counts ? UnitsOf(*histogram.GetZ()) : std::string();
    if (!units.empty()) text += " (" + units + ")";
    text += "; " + Counted(fed.samples, "sample") + Printf(", %u outside the grid\n", fed.nowhere);
    text += AxisText("x", histogram.GetX(), "across") + "; " + AxisText("y", histogram.GetY(), "down") + '\n';
    std::vector<std::vector<std::string>> rows(1);
    ForEachCell(
        histogram, view, [&](std::string cell) { rows.back().push_back(std::move(cell)); },
        [&] { rows.emplace_back(); });
    rows.pop_back();
    return text + RightAligned(rows);
}

void WriteHistogramCells(const FedHistogram& fed, const HistogramView& view, CsvWriter& csv) {
    ForEachCell(
        *fed.histogram, view, [&](const std::string& cell) { csv.Text(cell); }, [&] { csv.EndRow(); });
}

}  // namespace corvex
