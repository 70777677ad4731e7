// The surface of the "Histograms" tab: one histogram's cells as heights in a 3-D chart, which the page drives.
#pragma once

#include <chrono>
#include <string>

#include "controls/chart3d/Chart3D.h"
#include "definition/HistogramFeed.h"

namespace corvex {

class ADXHistogram;

// Main thread.
class HistogramSurface {
public:
    // First of all. The chart outlives it; a null one shows nothing.
    void Begin(HWND chart);
    // All of it anew, as a `mode` of GetCellValue has it. Null for none. Painted soon.
    void Show(const ADXHistogram* histogram, const std::string& title, int mode) const;
    // That cell's height anew. Painted as soon as no sample waits, or when it has waited too long.
    void ShowCell(const ADXHistogram& histogram, HistogramCell cell, int mode);

private:
    using Clock = std::chrono::steady_clock;

    IQZChart3DPlot* Plot() const { return reinterpret_cast<IQZChart3DPlot*>(Send(CH3M_GETPLOT, 0, 0)); }
    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
        return ::SendMessageA(chart_, message, wParam, lParam);
    }
    void ShowAxes(const ADXHistogram& histogram) const;
    void ShowNothing() const;

    HWND chart_ = nullptr;
    Clock::time_point painted_{};  // when it last was not waiting to be
};

}  // namespace corvex
