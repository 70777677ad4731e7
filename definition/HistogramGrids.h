// The cells of a histogram: recent samples, and running statistics over all of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace corvex {

// Recent z values by cell, newest first. A cell is allocated when it is first hit.
class HistogramHistoryGrid {
public:
    static constexpr std::uint32_t kDefaultSize = 10;

    void Resize(std::uint32_t rows, std::uint32_t cols);  // throws all cells away
    void Clear();
    void SetHistorySize(std::uint32_t n);  // frees all cells; 0 does nothing
    std::uint32_t HistorySize() const { return historysize_; }

    // A cell outside the grid is ignored.
    void Add(std::uint32_t row, std::uint32_t col, float z);
    // Samples kept; 0 for an empty cell or one outside the grid.
    std::uint32_t Count(std::uint32_t row, std::uint32_t col) const;
    bool HasCell(std::uint32_t row, std::uint32_t col) const;
    // The samples, newest first; null when the cell has none.
    const float* Samples(std::uint32_t row, std::uint32_t col) const;

private:
    const std::unique_ptr<float[]>* Cell(std::uint32_t row, std::uint32_t col) const;

    std::uint32_t rows_ = 0, cols_ = 0;
    std::uint32_t historysize_ = kDefaultSize;
    std::vector<std::unique_ptr<float[]>> cells_;  // element 0 is the number of samples kept
};

struct HistogramCellStats {
    float min = 3.4028235e38F;
    float max = 1.1754944e-38F;  // the smallest normal float
    std::uint32_t count = 0;
    float mean = 0.0F;
};

class HistogramStatsGrid {
public:
    void Resize(std::uint32_t rows, std::uint32_t cols);  // throws all cells away
    void Clear();
    // A cell outside the grid is ignored.
    void Add(std::uint32_t row, std::uint32_t col, float z);
    const HistogramCellStats* Cell(std::uint32_t row, std::uint32_t col) const;  // null when empty or outside

private:
    std::uint32_t rows_ = 0, cols_ = 0;
    std::vector<std::unique_ptr<HistogramCellStats>> cells_;
};

}  // namespace corvex
