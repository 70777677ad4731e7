#include "apps/cli/HistogramText.h"

#include <iterator>
#include <vector>

#include "apps/cli/LogOptions.h"
#include "export/CsvWriter.h"
#include "export/ItemReading.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

static_assert(std::size(kHistogramStatistics) == std::size(kHistogramViews));

std::string AxisText(const char* letter, const ADXValue* value, const char* where) {
    std::string text = std::string(letter) + ": ";
    if (value == nullptr) return text + "nothing, " + where;
    text += ShortNameOf(*value);
    const std::string units = UnitsOf(*value);
    if (!units.empty()) text += " (" + units + ")";
    return text + ", " + where;
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

const HistogramStatistic* FindHistogramView(const std::string& name) {
    for (const HistogramStatistic& view : kHistogramStatistics) {
        if (name == view.name) return &view;
    }
    return nullptr;
}

std::string HistogramTitle(const FedHistogram& fed) {
    return HistogramTitle(*fed.histogram, &ShortNameOf);
}

std::string HistogramTable(const FedHistogram& fed, const HistogramStatistic& view) {
    const ADXHistogram& histogram = *fed.histogram;
    std::string text = HistogramTitle(fed) + '\n' + view.title;
    const bool counts = view.mode == ADXHistogram::kCountKept || view.mode == ADXHistogram::kCountTotal;
    const std::string units = histogram.GetZ() != nullptr && !counts ? UnitsOf(*histogram.GetZ()) : std::string();
    if (!units.empty()) text += " (" + units + ")";
    text += "; " + Counted(fed.samples, "sample") + Printf(", %u outside the grid\n", fed.nowhere);
    text += AxisText("x", histogram.GetX(), "across") + "; " + AxisText("y", histogram.GetY(), "down") + '\n';
    std::vector<std::vector<std::string>> rows(1);
    ForEachHistogramText(
        histogram, view.mode, WholeOf(histogram), [&](std::string cell) { rows.back().push_back(std::move(cell)); },
        [&] { rows.emplace_back(); });
    rows.pop_back();
    return text + RightAligned(rows);
}

void WriteHistogramCells(const FedHistogram& fed, const HistogramStatistic& view, CsvWriter& csv) {
    const ADXHistogram& histogram = *fed.histogram;
    ForEachHistogramText(
        histogram, view.mode, WholeOf(histogram), [&](const std::string& cell) { csv.Text(cell); },
        [&] { csv.EndRow(); });
}

}  // namespace corvex
