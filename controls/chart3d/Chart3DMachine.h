// The whole behaviour of a 3-D chart: what comes in by messages, keys and mouse becomes its state, and calls on its
// window.
#pragma once

#include "controls/chart3d/Chart3DHost.h"

namespace corvex {

enum class Chart3DKey : std::uint32_t {
    kShift = 0x10,
    kControl = 0x11,
    kLeft = 0x25,
    kUp = 0x26,
    kRight = 0x27,
    kDown = 0x28,
    kSmaller = 0xDB,
    kLarger = 0xDD,
};

// What is held down while the mouse speaks.
struct Chart3DModifiers {
    bool shift = false, control = false;
};

// On the window's thread. Each operation holds whatever the parent does when it is told of something: nothing of the
// chart's but numbers is kept over that, and they are looked at again.
class Chart3DMachine final : public IPlot3DOwner {
public:
    explicit Chart3DMachine(IChart3DHost& host) : host_(host) {}
    Chart3DMachine(const Chart3DMachine&) = delete;
    Chart3DMachine& operator=(const Chart3DMachine&) = delete;

    const Chart3DModel& Chart() const { return chart_; }

    // Plots. At the end for an index beyond it; null for want of memory.
    QZChart3DPlot* AddPlot(std::size_t index, bool redraws);
    bool DeletePlot(const IQZChart3DPlot* plot, bool redraws);
    void ClearSelection(bool redraws);

    // What the page sets: see Chart3DMessage.
    void SetStyle(std::uint32_t bits, bool redraws);
    void ClearStyle(std::uint32_t bits, bool redraws);
    void SetTitle(std::string_view text);
    void SetSubtitle(std::string_view text);
    void SetAxisTitle(Chart3DAxis axis, std::string_view text);
    void SetColour(std::uint32_t index, std::uint32_t colour);
    std::uint32_t Colour(std::uint32_t index) const;  // 0 for an unknown one
    void SetRange(Chart3DAxis axis, const float* minimum, const float* maximum);
    void SetLimits(Chart3DAxis axis, const float* minimum, const float* maximum);
    ChartRange Limits(Chart3DAxis axis) const { return limits_[axis]; }
    void SetTickCount(Chart3DAxis axis, std::size_t count) { chart_.ticks[axis].SetCount(count); }
    void SetTick(Chart3DAxis axis, std::size_t index, float value, std::string_view label);
    void RebuildTicks();
    void SetBoxSize(float pixels);
    void SetRotation(const Vector3D& radians, bool redraws);
    void SetTranslation(const Vector3D& pixels, bool redraws);
    void SetScale(float factor, bool redraws);

    void OnSize(int width, int height);
    // Places are the pointer's, in the chart's y-up space.
    void OnButtonDown(YUpPoint place, Chart3DModifiers held);
    void OnDoubleClick(YUpPoint place, Chart3DModifiers held);
    void OnMouseMove(YUpPoint place);
    void OnButtonUp() { EndGesture(); }
    void OnCaptureLost() { EndGesture(); }
    void OnKeyDown(Chart3DKey key);
    void OnKeyUp(Chart3DKey key);
    void OnFocusLost();

    // Of IPlot3DOwner.
    void OnPointSet(const QZChart3DPlot& plot, const Point3D& before, const Point3D& now) override;
    void OnPointsSet() override;
    void PaintSoon() override { host_.PaintSoon(); }

private:
    void EndGesture();

    IChart3DHost& host_;
    Chart3DModel chart_;
    std::array<ChartRange, kChart3DAxisCount> limits_;
};

}  // namespace corvex
