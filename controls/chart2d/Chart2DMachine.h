// The whole behaviour of a 2-D chart: what comes in by messages, keys and mouse becomes its state, and calls on its
// window.
#pragma once

#include "controls/chart2d/Chart2DMouse.h"

namespace corvex {

// On the window's thread. Each operation holds whatever the parent does when it is told of something: nothing of the
// chart's but numbers is kept over that, and they are looked at again. It may even destroy the window, when whoever
// calls sees to it that the machine outlives the call.
class Chart2DMachine final : public ISeries2DOwner {
public:
    // The series call `owner`, which hands on here, or the machine itself.
    Chart2DMachine(IChart2DHost& host, ISeries2DOwner& owner) : host_(host), owner_(owner) {}
    explicit Chart2DMachine(IChart2DHost& host) : Chart2DMachine(host, *this) {}
    Chart2DMachine(const Chart2DMachine&) = delete;
    Chart2DMachine& operator=(const Chart2DMachine&) = delete;

    // Series. At the end for an index beyond it; null for want of memory.
    QZChart2DSeries* AddSeries(std::size_t index, bool redraws);
    bool DeleteSeries(const IQZChart2DSeries* series, bool redraws);
    void ClearSelection(bool redraws);

    // What the page sets: see Chart2DMessage.
    void SetStyle(std::uint32_t bits, bool redraws);
    void ClearStyle(std::uint32_t bits, bool redraws);
    void SetColour(std::uint32_t index, std::uint32_t colour);  // nothing for an unknown one
    std::uint32_t Colour(std::uint32_t index) const;            // 0 for one

    void OnSize(int width, int height);
    // By the number in which the system tells it.
    void OnKey(std::uint32_t key, bool isDown) { chart.Hold(key, isDown); }

    // Of ISeries2DOwner.
    void OnPointChanged(const Point2D* before, const Point2D* now) override { ranges.OnPointChanged(before, now); }
    void OnPointsCleared() override { ranges.Recompute(); }
    void PaintSoon() override { host_.PaintSoon(); }

private:
    void RepaintIf(bool isWanted);

    IChart2DHost& host_;
    ISeries2DOwner& owner_;

public:
    Chart2DModel chart;
    Chart2DRanges ranges{chart, host_};
    Chart2DMouse mouse{chart, host_, ranges};
};

}  // namespace corvex
