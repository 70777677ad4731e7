// Histograms as text tables and as comma-separated values.
#pragma once

#include <string>

#include "definition/HistogramFeed.h"

namespace corvex {

class CsvWriter;

// What each cell shows.
struct HistogramView {
    const char* name;   // on the command line
    const char* title;  // for people
    int mode;           // an ADXHistogram::CellMode
};

// Null for a name that is none.
const HistogramView* FindHistogramView(const std::string& name);

// Title, axes, counts, and the cells: x across, y down, the axis keys as heads. A cell without a sample is empty.
std::string HistogramTable(const FedHistogram& fed, const HistogramView& view);

// The cells alone, the keys of x as the first row, those of y as the first column; the corner is empty.
void WriteHistogramCells(const FedHistogram& fed, const HistogramView& view, CsvWriter& csv);

// "Spark - Engine Speed vs Manifold Pressure vs Spark Advance", as the histogram's page has it.
std::string HistogramTitle(const FedHistogram& fed);

}  // namespace corvex
