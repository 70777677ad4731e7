#include "definition/HistogramGrids.h"

#include <algorithm>

namespace corvex {
namespace {

// Set aside at a cell's first hit; covers the default history without a second allocation.
constexpr std::uint32_t kReserved = 16;

}  // namespace

void HistogramHistoryGrid::SetHistorySize(std::uint32_t n) {
    if (n == 0) return;
    cells_.Clear();
    historysize_ = n;
}

void HistogramHistoryGrid::Add(std::uint32_t row, std::uint32_t col, float z) {
    Cell* cell = cells_.Make(row, col);
    if (cell == nullptr) return;
    if (cell->empty()) cell->reserve(std::min(historysize_, kReserved));
    const auto count = static_cast<std::uint32_t>(cell->size());
    if (count < historysize_) cell->push_back(0.0F);
    // How many samples move up by one place. Ten is the literal that wants a cell of ten to lose its last one, and it
    // holds for a longer history too.
    std::uint32_t moved = std::min(count, historysize_ - 1);
    if (count == kDefaultSize) moved = std::min(moved, kDefaultSize - 1);
    std::copy_backward(cell->begin(), cell->begin() + moved, cell->begin() + moved + 1);
    cell->front() = z;
}

std::uint32_t HistogramHistoryGrid::Count(std::uint32_t row, std::uint32_t col) const {
    const Cell* cell = cells_.Find(row, col);
    return cell != nullptr ? static_cast<std::uint32_t>(cell->size()) : 0;
}

const float* HistogramHistoryGrid::Samples(std::uint32_t row, std::uint32_t col) const {
    const Cell* cell = cells_.Find(row, col);
    return cell != nullptr ? cell->data() : nullptr;
}

void HistogramStatsGrid::Add(std::uint32_t row, std::uint32_t col, float z) {
    HistogramCellStats* cell = cells_.Make(row, col);
    if (cell == nullptr) return;
    // One test with two branches: a first sample above zero sets the maximum alone, and the minimum shows its start
    // value until a lower sample comes.
    if (z > cell->max) {
        cell->max = z;
    } else if (z < cell->min) {
        cell->min = z;
    }
    const auto count = static_cast<float>(cell->count);
    cell->mean = (count * cell->mean + z) / (count + 1.0F);
    ++cell->count;
}

}  // namespace corvex
