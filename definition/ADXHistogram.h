// A grid fed by three values: x picks the column, y the row, z is recorded in that cell.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>

#include "definition/ADXLookupTable.h"
#include "definition/ADXObject.h"
#include "definition/ADXValue.h"
#include "definition/HistogramGrids.h"
#include "definition/PacketView.h"

namespace corvex {

// The one object of a definition that gathers data while a session runs. Cells are not saved.
//
// Threads: AddSample computes its values, so it belongs to the one thread that shows samples (see ADXValue); AddPoint
// may be called on any, and cells are read and cleared on the user-interface thread. Everything that touches the cells
// takes the lock, readers too, so that nobody sees half a cell. The axes change on the user-interface thread, under the
// lock as well.
class ADXHistogram : public ADXObject {
public:
    static constexpr std::uint32_t kNoDivision = 0xFFFF;  // where a number that is none falls on an axis
    static constexpr std::uint32_t kAxisLimit = 4096;  // rows or columns; the grid has no more, whatever is asked for

    enum CellMode : int {
        kLast = 0,
        kCountKept = 1,
        kMeanKept = 2,
        kDeviationKept = 3,
        kCountTotal = 7,
        kMeanTotal = 8,
        kMinimum = 9,
        kMaximum = 10,
        kRange = 11,
    };

    static constexpr std::uint32_t kType = kTypeHistogram;

    ADXHistogram() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    // Store, throw the cells away, rebuild the axis table concerned. What is asked for beyond the limit is saved as it
    // was asked for; the grid, the axis and the answers end at the limit.
    void SetRows(std::uint32_t n);
    void SetCols(std::uint32_t n);
    std::uint32_t GetRows() const { return WithinLimit(rows_); }
    std::uint32_t GetCols() const { return WithinLimit(cols_); }
    // Store and rebuild that axis's table. Keys are bin centres: the outermost bins lie on the limits themselves.
    void SetXMin(float v);
    void SetXMax(float v);
    void SetYMin(float v);
    void SetYMax(float v);
    float GetXMin() const { return xmin_; }
    float GetXMax() const { return xmax_; }
    float GetYMin() const { return ymin_; }
    float GetYMax() const { return ymax_; }
    // A range that has no width, or no divisions, leaves the last table in force; with none ever built it is empty and
    // every sample falls into division 0. A single division takes every sample.
    const ADXLookupTable& XTable() const;
    const ADXLookupTable& YTable() const;

    void SetHistorySize(std::uint32_t n);  // 0 does nothing; otherwise the history is thrown away
    std::uint32_t GetHistorySize() const;

    // 0 for null or an object that is no value, else 1.
    int SetX(ADXObject* object);
    int SetY(ADXObject* object);
    int SetZ(ADXObject* object);
    ADXValue* GetX() const { return x_; }
    ADXValue* GetY() const { return y_; }
    ADXValue* GetZ() const { return z_; }

    // Computes the three values from the packet and adds the point. Returns the cell, or -1 with a null packet.
    std::int32_t AddSample(const ADXDefinition& definition, PacketView packet, std::uint32_t commandhash);
    // Returns the column in the high 16 bits and the row in the low 16. What falls beside the grid is counted and
    // nowhere else kept.
    std::int32_t AddPoint(float x, float y, float z);
    void Clear();
    std::uint32_t GetTotalSampleCount() const;  // since the last clear

    // A figure or a key of an axis: with three decimals, or none when nothing is behind the point. The longest, of the
    // largest float, has 39 digits.
    static void PrintNumber(char* out, std::size_t size, double value);
    // The statistic of a cell, and its text. An empty text and 0.0 where the cell has no such value.
    double GetCellValue(int mode, std::uint32_t row, std::uint32_t col, char* out, std::size_t size) const;
    // 1 and the sample at `index` from the newest, or 0.
    int GetSample(std::uint32_t row, std::uint32_t col, std::uint32_t index, float* out) const;
    std::uint32_t GetSampleCount(std::uint32_t row, std::uint32_t col) const;

    // Whether samples of the command feed it.
    bool BelongsTo(std::uint32_t commandId) const { return BelongsToCommand(parentcmdidhash, commandId); }

    std::uint32_t xidhash = 0, yidhash = 0, zidhash = 0;
    std::uint32_t flags = 0;            // loaded and saved
    std::uint32_t parentcmdidhash = 0;  // the command that feeds this histogram; 0: any

private:
    // What a table is to be built from, and the table, built when it is first asked for: a file may name thousands of
    // axes that nobody ever looks at.
    struct Axis {
        void Plan(std::uint32_t n, float from, float to);
        const ADXLookupTable& Table() const;
        std::uint32_t DivisionOf(float number) const;

        std::uint32_t divisions = 0;
        float low = 0.0F, high = 0.0F;
        mutable bool stale = false;
        mutable ADXLookupTable table;
    };

    static std::uint32_t WithinLimit(std::uint32_t n) { return n < kAxisLimit ? n : kAxisLimit; }

    void ResizeGrids();
    bool HistoryValue(int mode, std::uint32_t row, std::uint32_t col, double* value) const;
    bool StatsValue(int mode, std::uint32_t row, std::uint32_t col, double* value) const;

    std::uint32_t rows_ = 0, cols_ = 0;  // as asked for
    float xmin_ = 0.0F, xmax_ = 0.0F, ymin_ = 0.0F, ymax_ = 0.0F;
    std::uint32_t samplecount_ = 0;
    HistogramHistoryGrid history_;
    HistogramStatsGrid stats_;
    Axis xaxis_, yaxis_;
    ADXValue* x_ = nullptr;  // not owned
    ADXValue* y_ = nullptr;
    ADXValue* z_ = nullptr;
    mutable std::mutex lock_;
};

}  // namespace corvex
