#include "controls/chart3d/Chart3DMessages.h"

#include <algorithm>

#include "controls/chart/BoundedText.h"
#include "controls/chart/ChartBlocks.h"

namespace corvex {

namespace {

// Each operation hands on what it does not know.
class Chart3DAnswerer {
public:
    Chart3DAnswerer(Chart3DMachine& machine, Chart3DWindowHost& host, WPARAM wParam, LPARAM lParam)
        : machine_(machine), host_(host), wParam_(wParam), lParam_(lParam) {}
    LRESULT OnMessage(UINT message);

private:
    LRESULT OnPlotMessage(UINT message);
    LRESULT OnSpaceMessage(UINT message);
    LRESULT OnRangeMessage(UINT message);
    LRESULT OnAxisMessage(UINT message);
    void SetVector(void (Chart3DMachine::*set)(const Vector3D&, bool));
    LRESULT GetVector(const Vector3D& vector) const;

    bool Redraws() const { return lParam_ != 0; }
    template <class Value>
    Value* First() const {
        return reinterpret_cast<Value*>(wParam_);
    }
    template <class Value>
    Value* Second() const {
        return reinterpret_cast<Value*>(lParam_);
    }

    Chart3DMachine& machine_;
    Chart3DModel& chart_ = machine_.chart;
    Chart3DWindowHost& host_;
    const WPARAM wParam_;
    const LPARAM lParam_;
};

// The messages of an axis follow each other by axis.
Chart3DAxis AxisOf(UINT message, UINT first, UINT each = 1) {
    return static_cast<Chart3DAxis>((message - first) / each);
}

LRESULT Chart3DAnswerer::OnMessage(UINT message) {
    const auto bits = static_cast<std::uint32_t>(wParam_);
    switch (message) {
        case CH3M_SETSTYLE:
            machine_.SetStyle(bits, Redraws());
            return 0;
        case CH3M_GETSTYLE:
            return static_cast<LRESULT>(chart_.style);
        case CH3M_CLEARSTYLE:
            machine_.ClearStyle(bits, Redraws());
            return 0;
        case CH3M_REPAINT:
            host_.Repaint();
            return 0;
        case CH3M_SETCOLOR:
            machine_.SetColour(bits, static_cast<std::uint32_t>(lParam_));
            return 0;
        case CH3M_GETCOLOR:
            return static_cast<LRESULT>(machine_.Colour(bits));
        case CH3M_SETSUBTITLE:
            machine_.SetSubtitle(BoundedText(Second<const char>(), Chart3DModel::kSubtitleLength));
            return 0;
        case CH3M_SETLABELCALLBACK:
            host_.callback = reinterpret_cast<Chart3DLabelCallback>(lParam_);
            machine_.ranges.RebuildTicks();
            return 0;
        default:
            return OnPlotMessage(message);
    }
}

LRESULT Chart3DAnswerer::OnPlotMessage(UINT message) {
    const auto asResult = [](IQZChart3DPlot* plot) { return reinterpret_cast<LRESULT>(plot); };
    switch (message) {
        case CH3M_ADDPLOT:
            return asResult(machine_.AddPlot(wParam_, Redraws()));
        case CH3M_DELETEPLOT:
            return machine_.DeletePlot(First<IQZChart3DPlot>(), Redraws()) ? 1 : 0;
        case CH3M_GETPLOTCOUNT:
            return static_cast<LRESULT>(chart_.plots.size());
        case CH3M_GETPLOT:
            return wParam_ < chart_.plots.size() ? asResult(chart_.plots[wParam_].get()) : 0;
        case CH3M_CLEARSELECTION:
            machine_.ClearSelection(lParam_ == 1);
            return 0;
        default:
            return OnSpaceMessage(message);
    }
}

LRESULT Chart3DAnswerer::OnSpaceMessage(UINT message) {
    const Chart3DSpace& space = chart_.space;
    switch (message) {
        case CH3M_SETBOXSIZE:
            if (lParam_ != 0) machine_.SetBoxSize(*Second<float>());
            return 0;
        case CH3M_GETBOXSIZE:
            WriteTo(Second<float>(), space.boxSize);
            return 0;
        case CH3M_SETROTATION:
            SetVector(&Chart3DMachine::SetRotation);
            return 0;
        case CH3M_GETROTATION:
            return GetVector(space.rotation);
        case CH3M_SETTRANSLATION:
            SetVector(&Chart3DMachine::SetTranslation);
            return 0;
        case CH3M_GETTRANSLATION:
            return GetVector(space.translation);
        case CH3M_SETSCALE:
            if (wParam_ != 0) machine_.SetScale(*First<float>(), Redraws());
            return 0;
        case CH3M_GETSCALE:
            WriteTo(First<float>(), space.scale[0]);
            return 0;
        default:
            return OnRangeMessage(message);
    }
}

LRESULT Chart3DAnswerer::OnRangeMessage(UINT message) {
    switch (message) {
        case CH3M_SETXRANGE:
        case CH3M_SETDEPTHRANGE:
        case CH3M_SETVERTRANGE:
            machine_.SetRange(AxisOf(message, CH3M_SETXRANGE, 2), First<float>(), Second<float>());
            return 0;
        case CH3M_GETXRANGE:
        case CH3M_GETDEPTHRANGE:
        case CH3M_GETVERTRANGE:
            GetEnds(chart_.space.ranges[AxisOf(message, CH3M_GETXRANGE, 2)], First<float>(), Second<float>());
            return 0;
        case CH3M_SETXLIMITS:
        case CH3M_SETDEPTHLIMITS:
        case CH3M_SETVERTLIMITS:
            machine_.SetLimits(AxisOf(message, CH3M_SETXLIMITS, 2), First<float>(), Second<float>());
            return 0;
        case CH3M_GETXLIMITS:
        case CH3M_GETDEPTHLIMITS:
        case CH3M_GETVERTLIMITS:
            GetEnds(machine_.mouse.limits[AxisOf(message, CH3M_GETXLIMITS, 2)], First<float>(), Second<float>());
            return 0;
        default:
            return OnAxisMessage(message);
    }
}

LRESULT Chart3DAnswerer::OnAxisMessage(UINT message) {
    switch (message) {
        case CH3M_SETXTITLE:
        case CH3M_SETDEPTHTITLE:
        case CH3M_SETVERTTITLE: {
            const auto length = std::min(static_cast<std::size_t>(lParam_), Chart3DModel::kAxisTitleLength);
            machine_.SetAxisTitle(AxisOf(message, CH3M_SETXTITLE), BoundedText(First<const char>(), length));
            return 0;
        }
        case CH3M_SETXTICKCOUNT:
        case CH3M_SETDEPTHTICKCOUNT:
        case CH3M_SETVERTTICKCOUNT:
            chart_.ticks[AxisOf(message, CH3M_SETXTICKCOUNT)].SetCount(static_cast<std::size_t>(lParam_));
            return 0;
        case CH3M_GETXTICKCOUNT:
        case CH3M_GETDEPTHTICKCOUNT:
        case CH3M_GETVERTTICKCOUNT:
            return static_cast<LRESULT>(chart_.ticks[AxisOf(message, CH3M_GETXTICKCOUNT)].Count());
        case CH3M_SETXTICK:
        case CH3M_SETDEPTHTICK:
        case CH3M_SETVERTTICK:
            return StoreTick(chart_.ticks[AxisOf(message, CH3M_SETXTICK)], Second<const TickBlock>());
        case CH3M_GETXTICK:
        case CH3M_GETDEPTHTICK:
        case CH3M_GETVERTTICK:
            return FillTick(chart_.ticks[AxisOf(message, CH3M_GETXTICK)], wParam_, Second<TickBlock>());
        default:
            return 0;
    }
}

void Chart3DAnswerer::SetVector(void (Chart3DMachine::*set)(const Vector3D&, bool)) {
    if (wParam_ == 0) return;
    Vector3D vector;
    std::copy_n(First<const float>(), vector.size(), vector.begin());
    (machine_.*set)(vector, Redraws());
}

LRESULT Chart3DAnswerer::GetVector(const Vector3D& vector) const {
    if (wParam_ != 0) std::ranges::copy(vector, First<float>());
    return 0;
}

}  // namespace

LRESULT AnswerChart3DMessage(Chart3DMachine& machine, Chart3DWindowHost& host, UINT message, WPARAM wParam,
                             LPARAM lParam) {
    return Chart3DAnswerer(machine, host, wParam, lParam).OnMessage(message);
}

}  // namespace corvex
