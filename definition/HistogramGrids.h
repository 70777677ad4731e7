// The cells of a histogram: recent samples, and running statistics over all of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace corvex {

// Cells by place, each made when it is first hit, so that a grid costs what it holds and not what it might: the size
// of a grid is whatever a definition's file says.
template <class Cell>
class SparseGrid {
public:
    void Resize(std::uint32_t rows, std::uint32_t cols) {
        rows_ = rows;
        cols_ = cols;
        Clear();
    }
    void Clear() { cells_.clear(); }

    // Null outside the grid.
    Cell* Make(std::uint32_t row, std::uint32_t col) { return IsInside(row, col) ? &cells_[Key(row, col)] : nullptr; }
    // Null when empty or outside.
    const Cell* Find(std::uint32_t row, std::uint32_t col) const {
        if (!IsInside(row, col)) return nullptr;
        const auto found = cells_.find(Key(row, col));
        return found != cells_.end() ? &found->second : nullptr;
    }

private:
    bool IsInside(std::uint32_t row, std::uint32_t col) const { return row < rows_ && col < cols_; }
    std::uint64_t Key(std::uint32_t row, std::uint32_t col) const { return std::uint64_t{row} * cols_ + col; }

    std::uint32_t rows_ = 0, cols_ = 0;
    std::unordered_map<std::uint64_t, Cell> cells_;
};

// Recent z values by cell, newest first.
//
// A cell that keeps more than ten samples loses its tenth when it passes ten: the eleventh place then holds 0.0. Pages
// show it so, and so does every program that reads these definitions.
class HistogramHistoryGrid {
public:
    static constexpr std::uint32_t kDefaultSize = 10;

    void Resize(std::uint32_t rows, std::uint32_t cols) { cells_.Resize(rows, cols); }  // throws all cells away
    void Clear() { cells_.Clear(); }
    void SetHistorySize(std::uint32_t n);  // frees all cells; 0 does nothing
    std::uint32_t HistorySize() const { return historysize_; }

    // A cell outside the grid is ignored.
    void Add(std::uint32_t row, std::uint32_t col, float z);
    // Samples kept; 0 for an empty cell or one outside the grid.
    std::uint32_t Count(std::uint32_t row, std::uint32_t col) const;
    // The samples, newest first; null when the cell has none.
    const float* Samples(std::uint32_t row, std::uint32_t col) const;

private:
    // Grows with its samples up to historysize, which a file may set to anything.
    using Cell = std::vector<float>;

    std::uint32_t historysize_ = kDefaultSize;
    SparseGrid<Cell> cells_;
};

struct HistogramCellStats {
    float min = 3.4028235E38F;
    float max = 1.1754944e-38F;  // the smallest normal float
    std::uint32_t count = 0;
    float mean = 0.0F;
};

class HistogramStatsGrid {
public:
    void Resize(std::uint32_t rows, std::uint32_t cols) { cells_.Resize(rows, cols); }  // throws all cells away
    void Clear() { cells_.Clear(); }
    // A cell outside the grid is ignored.
    void Add(std::uint32_t row, std::uint32_t col, float z);
    // Null when empty or outside.
    const HistogramCellStats* Cell(std::uint32_t row, std::uint32_t col) const { return cells_.Find(row, col); }

private:
    SparseGrid<HistogramCellStats> cells_;
};

}  // namespace corvex
