// Histograms as text tables and as comma-separated values.
#pragma once

#include <string>

#include "definition/HistogramFeed.h"
#include "export/HistogramCells.h"

namespace corvex {

class CsvWriter;

// Null for a name that is none.
const HistogramStatistic* FindHistogramView(const std::string& name);

// Title, axes, counts, and the cells: x across, y down, the axis keys as heads. A cell without a sample is empty.
std::string HistogramTable(const FedHistogram& fed, const HistogramStatistic& view);

// The cells alone, the keys of x as the first row, those of y as the first column; the corner is empty.
void WriteHistogramCells(const FedHistogram& fed, const HistogramStatistic& view, CsvWriter& csv);

// "Spark - Engine Speed vs Manifold Pressure vs Spark Advance".
std::string HistogramTitle(const FedHistogram& fed);

}  // namespace corvex
