// One series of points on a 2-D chart, as its page has it.
#pragma once

#include "controls/chart2d/Chart2DTerms.h"

namespace corvex {

// The chart makes it (CH2M_ADDSERIES), owns it and deletes it. On the thread of the chart's window. An index out of
// range is refused: nothing changes, and the result is 0. `redraw` has the chart painted soon, not at once. What
// changes points changes the ranges that follow the data at once, and the parent hears of it.
class IQZChart2DSeries {
public:
    // Flags 0x4B, radius 5, line and point colour 0, selected colour 0x0000FF, a solid pen of 1 pixel, no name.
    virtual void reset() = 0;
    virtual void setName(const char* text) = 0;  // at most 64 bytes; null is ignored
    // The length, at most 64, whatever the buffer holds of it, which ends with a 0; null only measures.
    virtual std::uint32_t getName(char* buffer, std::uint32_t capacity) const = 0;
    virtual void setFlags(std::uint32_t bits, int redraw) = 0;  // of Series2DFlag to add; 0 clears all of them
    virtual std::uint32_t getFlags() const = 0;
    virtual int testFlag(std::uint32_t mask) const = 0;  // 1 if any bit of it is set
    virtual void clearFlags(std::uint32_t bits, int redraw) = 0;
    virtual int setColor(std::uint32_t index, std::uint32_t colour) = 0;     // 1; 0 for an index not of Series2DColour
    virtual std::int32_t getColor(std::uint32_t index) const = 0;            // -1 for one
    virtual void clear() = 0;                                                // of all points; has the chart painted
    virtual void addPoint(const Point2D& point) = 0;                         // nothing for want of memory
    virtual int insertPoint(const Point2D& point, std::uint32_t index) = 0;  // 1; before that point
    virtual int deletePoint(std::uint32_t index) = 0;                        // 1
    // All four words, and so whether it is selected.
    virtual int setPoint(std::uint32_t index, const Point2D& point, int redraw) = 0;  // 1
    virtual int getPoint(std::uint32_t index, Point2D* point) const = 0;              // 1
    // The count goes up or down by one whether or not the point was selected before, but not below 0: pages keep their
    // own books by it.
    virtual int selectPoint(std::uint32_t index, int selected, int redraw) = 0;  // 1
    virtual void clearSelection(int redraw) = 0;
    virtual int getSelectedCount() const = 0;
    virtual int getPointCount() const = 0;
    virtual void setPointRadius(std::uint16_t radius) = 0;  // pixels
    virtual std::uint16_t getPointRadius() const = 0;
    virtual void setPenWidth(std::uint8_t width) = 0;  // pixels
    virtual std::uint8_t getPenWidth() const = 0;

protected:
    virtual ~IQZChart2DSeries() = default;
};

}  // namespace corvex
