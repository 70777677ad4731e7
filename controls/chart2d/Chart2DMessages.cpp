#include "controls/chart2d/Chart2DMessages.h"

#include <algorithm>

#include "controls/chart/BoundedText.h"
#include "controls/chart/ChartBlocks.h"

namespace corvex {

namespace {

// Each operation hands on what it does not know.
class Chart2DAnswerer {
public:
    Chart2DAnswerer(Chart2DMachine& machine, Chart2DWindowHost& host, WPARAM wParam, LPARAM lParam)
        : machine_(machine), host_(host), wParam_(wParam), lParam_(lParam) {}
    LRESULT OnMessage(UINT message);

private:
    LRESULT OnSeriesMessage(UINT message);
    LRESULT OnRangeMessage(UINT message);
    LRESULT OnTextMessage(UINT message);
    LRESULT OnTickMessage(UINT message);
    LRESULT AddSeries() { return reinterpret_cast<LRESULT>(As(machine_.AddSeries(wParam_, Redraws()))); }

    // What a page has of a series is its interface.
    static IQZChart2DSeries* As(QZChart2DSeries* series) { return series; }
    bool Redraws() const { return lParam_ != 0; }
    template <class Value>
    Value* First() const {
        return reinterpret_cast<Value*>(wParam_);
    }
    template <class Value>
    Value* Second() const {
        return reinterpret_cast<Value*>(lParam_);
    }

    Chart2DMachine& machine_;
    Chart2DModel& chart_ = machine_.chart;
    Chart2DWindowHost& host_;
    const WPARAM wParam_;
    const LPARAM lParam_;
};

LRESULT Chart2DAnswerer::OnMessage(UINT message) {
    const auto bits = static_cast<std::uint32_t>(wParam_);
    switch (message) {
        case CH2M_SETSTYLE:
            machine_.SetStyle(bits, Redraws());
            return 0;
        case CH2M_GETSTYLE:
            return static_cast<LRESULT>(chart_.style);
        case CH2M_CLEARSTYLE:
            machine_.ClearStyle(bits, Redraws());
            return 0;
        case CH2M_REPAINT:
            host_.Repaint();
            return 0;
        case CH2M_SETCOLOR:
            machine_.SetColour(bits, static_cast<std::uint32_t>(lParam_));
            return 1;
        case CH2M_GETCOLOR:
            return static_cast<LRESULT>(machine_.Colour(bits));
        case CH2M_SETLABELCALLBACK:
            host_.callback = reinterpret_cast<Chart2DLabelCallback>(lParam_);
            machine_.ranges.RebuildTicks();
            return 0;
        default:
            return OnSeriesMessage(message);
    }
}

LRESULT Chart2DAnswerer::OnSeriesMessage(UINT message) {
    switch (message) {
        case CH2M_CLEARTICKS:
            chart_.ticks[kChart2DX].Clear();
            [[fallthrough]];
        case CH2M_CLEARYTICKS:
            chart_.ticks[kChart2DY].Clear();
            [[fallthrough]];
        case CH2M_ADDSERIES:
            return AddSeries();
        case CH2M_DELETESERIES:
            return machine_.DeleteSeries(First<IQZChart2DSeries>(), Redraws()) ? 1 : 0;
        case CH2M_GETSERIES:
            return wParam_ < chart_.series.size() ? reinterpret_cast<LRESULT>(As(chart_.series[wParam_].get())) : 0;
        case CH2M_GETSERIESCOUNT:
            return static_cast<LRESULT>(chart_.series.size());
        case CH2M_CLEARSELECTION:
            machine_.ClearSelection(lParam_ == 1);
            return 0;
        default:
            return OnRangeMessage(message);
    }
}

LRESULT Chart2DAnswerer::OnRangeMessage(UINT message) {
    const auto axisFrom = [message](UINT first) { return message == first ? kChart2DX : kChart2DY; };
    switch (message) {
        case CH2M_SETXRANGE:
        case CH2M_SETYRANGE:
            machine_.ranges.Set(axisFrom(CH2M_SETXRANGE), First<float>(), Second<float>());
            return 0;
        case CH2M_GETXRANGE:
        case CH2M_GETYRANGE:
            GetEnds(chart_.ranges[axisFrom(CH2M_GETXRANGE)], First<float>(), Second<float>());
            return 0;
        case CH2M_SETXLIMITS:
        case CH2M_SETYLIMITS:
            SetEnds(chart_.limits[axisFrom(CH2M_SETXLIMITS)], First<float>(), Second<float>());
            return 0;
        case CH2M_GETXLIMITS:
        case CH2M_GETYLIMITS:
            GetEnds(chart_.limits[axisFrom(CH2M_GETXLIMITS)], First<float>(), Second<float>());
            return 0;
        default:
            return OnTextMessage(message);
    }
}

LRESULT Chart2DAnswerer::OnTextMessage(UINT message) {
    switch (message) {
        case CH2M_SETXTITLE:
        case CH2M_SETYTITLE: {
            const auto length = std::min(static_cast<std::size_t>(lParam_), Chart2DModel::kAxisTitleLength);
            chart_.axisTitles[message == CH2M_SETXTITLE ? kChart2DX : kChart2DY] =
                BoundedText(First<const char>(), length);
            return 0;
        }
        case CH2M_GETXTITLE:
        case CH2M_GETYTITLE:
            return CopyText(chart_.axisTitles[message == CH2M_GETXTITLE ? kChart2DX : kChart2DY], First<char>(),
                            static_cast<std::size_t>(lParam_));
        case CH2M_SETSUBTITLE:
            chart_.subtitle = BoundedText(Second<const char>(), Chart2DModel::kSubtitleLength);
            return 0;
        case CH2M_GETSUBTITLE: {
            char* const buffer = Second<char>();
            const std::size_t length = chart_.subtitle.size();
            if (buffer == nullptr) return static_cast<LRESULT>(length);
            chart_.subtitle.copy(buffer, length);
            if (length < Chart2DModel::kSubtitleLength) buffer[length] = '\0';
            return static_cast<LRESULT>(length);
        }
        default:
            return OnTickMessage(message);
    }
}

LRESULT Chart2DAnswerer::OnTickMessage(UINT message) {
    const auto ticksFrom = [&](UINT first) -> TickList& {
        return chart_.ticks[message == first ? kChart2DX : kChart2DY];
    };
    switch (message) {
        case CH2M_SETXTICKCOUNT:
        case CH2M_SETYTICKCOUNT:
            ticksFrom(CH2M_SETXTICKCOUNT).SetCount(static_cast<std::size_t>(lParam_));
            return 0;
        case CH2M_GETXTICKCOUNT:
        case CH2M_GETYTICKCOUNT:
            return static_cast<LRESULT>(ticksFrom(CH2M_GETXTICKCOUNT).Count());
        case CH2M_SETXTICK:
        case CH2M_SETYTICK:
            return StoreTick(ticksFrom(CH2M_SETXTICK), Second<const TickBlock>());
        default:
            return 0;
    }
}

}  // namespace

LRESULT AnswerChart2DMessage(Chart2DMachine& machine, Chart2DWindowHost& host, UINT message, WPARAM wParam,
                             LPARAM lParam) {
    return Chart2DAnswerer(machine, host, wParam, lParam).OnMessage(message);
}

}  // namespace corvex
