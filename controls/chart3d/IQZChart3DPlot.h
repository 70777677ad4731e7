// One surface of a 3-D chart, as its page has it.
#pragma once

#include "controls/chart3d/Chart3DTerms.h"

namespace corvex {

// The chart makes it (CH3M_ADDPLOT), owns it and deletes it. On the thread of the chart's window. A row or column out
// of range is refused: nothing changes, and where there is a result it is 0. `redraw` has the chart painted soon, not
// at once.
class IQZChart3DPlot {
public:
    // Flags 0x14, nothing selected, radius 3, type 1, line colour 0, selected colour 0xFF0000, face colour 0x0000FF,
    // width 1.
    virtual void reset() = 0;
    virtual void setName(const char* text) = 0;  // at most 64 bytes; null is ignored
    // The length, at most 64, whatever the buffer holds of it, which ends with a 0; null only measures.
    virtual std::uint32_t getName(char* buffer, std::uint32_t capacity) const = 0;
    // Of Plot3DFlag. 0 clears all of them, and the selection.
    virtual void setFlags(std::uint32_t bits, int redraw) = 0;
    virtual std::uint32_t getFlags() const = 0;
    virtual int testFlag(std::uint32_t mask) const = 0;  // 1 if any bit of it is set
    // Without kPlotPick or kPlotBand the selection goes too.
    virtual void clearFlags(std::uint32_t bits, int redraw) = 0;
    virtual int setColor(std::uint32_t index, std::uint32_t colour) = 0;  // 1; 0 for an index not of Plot3DColour
    virtual std::int32_t getColor(std::uint32_t index) const = 0;         // -1 for one
    virtual void setType(std::uint32_t type) = 0;                         // of Plot3DType
    virtual std::uint32_t getType() const = 0;
    virtual void setLineWidth(std::uint8_t width) = 0;  // pixels
    virtual std::uint8_t getLineWidth() const = 0;
    // Keeps the points of the overlap and zeroes the rest. Nothing changes for a negative size and for want of memory.
    virtual void setGridSize(int rows, int columns) = 0;
    virtual void getGridSize(int* rows, int* columns) const = 0;  // either may be null
    // All four words, and so whether it is selected. What follows the data does so at once, and the parent hears of it.
    virtual void setPoint(int row, int column, const Point3D& point, int redraw) = 0;
    virtual int getPoint(int row, int column, Point3D* point) const = 0;  // 1
    virtual void setPointRadius(std::uint16_t radius) = 0;                // pixels
    virtual std::uint16_t getPointRadius() const = 0;
    virtual void clearSelection(int redraw) = 0;
    virtual int getSelectedCount() const = 0;
    virtual int selectPoint(int row, int column, int selected, int redraw) = 0;  // 1 if redraw was given
    // Every point, row by row from `points`, as setPoint has one: but what follows the data does so once.
    virtual void setPoints(const Point3D* points, int redraw) = 0;

protected:
    ~IQZChart3DPlot() = default;
};

}  // namespace corvex
