// What a histogram says in words: on its page, and as a table for other programs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "definition/ADXHistogram.h"

namespace corvex {

// One of the figures that all cells can show.
struct HistogramStatistic {
    const char* name;   // on the command line
    const char* title;  // for people
    ADXHistogram::CellMode mode;
};

// In the order in which they are offered.
inline constexpr HistogramStatistic kHistogramStatistics[] = {
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

// Bytes that the text of any cell or key has room in, with its terminator.
inline constexpr std::size_t kHistogramTextRoom = 60;

// "Spark - Engine Speed vs Manifold Pressure vs Spark Advance", in the words of `nameOf`. An axis without a value
// leaves its "vs" out, and the last one keeps it.
template <class NameOf>
std::string HistogramTitle(const ADXHistogram& histogram, NameOf nameOf) {
    std::string title = nameOf(histogram) + " - ";
    if (const ADXValue* const x = histogram.GetX()) title += nameOf(*x) + " vs ";
    if (const ADXValue* const y = histogram.GetY()) title += nameOf(*y) + " vs ";
    if (const ADXValue* const z = histogram.GetZ()) title += nameOf(*z);
    return title;
}

// The key of an axis's division: a whole number as such, any other with three decimals.
std::string AxisKeyText(float key);
// The same of a division, empty for one that the axis has no key for.
std::string AxisKeyText(const ADXLookupTable& axis, std::uint32_t index);
// Empty for a cell that has no such figure.
std::string HistogramCellText(const ADXHistogram& histogram, int mode, std::uint32_t row, std::uint32_t col);

// Divisions counted from 0; the ends are one past the last.
struct HistogramPart {
    std::uint32_t firstRow, endRow, firstCol, endCol;
};
inline HistogramPart WholeOf(const ADXHistogram& histogram) {
    return {0, histogram.GetRows(), 0, histogram.GetCols()};
}

// The heads of the columns after an empty corner, then each row with its head: put(text) for each, and end() after a
// row.
template <class Put, class End>
void ForEachHistogramText(const ADXHistogram& histogram, int mode, const HistogramPart& part, Put put, End end) {
    put(std::string());
    for (std::uint32_t col = part.firstCol; col < part.endCol; ++col)
        put(AxisKeyText(histogram.XTable(), col));
    end();
    for (std::uint32_t row = part.firstRow; row < part.endRow; ++row) {
        put(AxisKeyText(histogram.YTable(), row));
        for (std::uint32_t col = part.firstCol; col < part.endCol; ++col)
            put(HistogramCellText(histogram, mode, row, col));
        end();
    }
}

// A part as a spreadsheet takes it from the clipboard: tabs between the fields, "\r\n" after each row.
std::string HistogramClipboardText(const ADXHistogram& histogram, int mode, const HistogramPart& part);

}  // namespace corvex
