// The whole behaviour of a 3-D chart: what comes in by messages, keys and mouse becomes its state, and calls on its
// window.
#pragma once

#include "controls/chart3d/Chart3DKeys.h"
#include "controls/chart3d/Chart3DMouse.h"

namespace corvex {

// On the window's thread. Each operation holds whatever the parent does when it is told of something: nothing of the
// chart's but numbers is kept over that, and they are looked at again. It may even destroy the window, when whoever
// calls sees to it that the machine outlives the call.
class Chart3DMachine final : public IPlot3DOwner {
public:
    // The plots call `owner`, which hands on here, or the machine itself.
    Chart3DMachine(IChart3DHost& host, IPlot3DOwner& owner) : host_(host), owner_(owner) {}
    explicit Chart3DMachine(IChart3DHost& host) : Chart3DMachine(host, *this) {}
    Chart3DMachine(const Chart3DMachine&) = delete;
    Chart3DMachine& operator=(const Chart3DMachine&) = delete;

    // Plots. At the end for an index beyond it; null for want of memory.
    QZChart3DPlot* AddPlot(std::size_t index, bool redraws);
    bool DeletePlot(const IQZChart3DPlot* plot, bool redraws);
    void ClearSelection(bool redraws);

    // What the page sets: see Chart3DMessage.
    void SetStyle(std::uint32_t bits, bool redraws);
    void ClearStyle(std::uint32_t bits, bool redraws);
    void SetSubtitle(std::string_view text);
    void SetAxisTitle(Chart3DAxis axis, std::string_view text);
    void SetColour(std::uint32_t index, std::uint32_t colour);
    std::uint32_t Colour(std::uint32_t index) const;  // 0 for an unknown one
    // Where null is given, that end stays.
    void SetRange(Chart3DAxis axis, const float* minimum, const float* maximum);
    void SetLimits(Chart3DAxis axis, const float* minimum, const float* maximum);
    void SetBoxSize(float pixels);
    void SetRotation(const Vector3D& radians, bool redraws);
    void SetTranslation(const Vector3D& pixels, bool redraws);
    void SetScale(float factor, bool redraws);

    void OnSize(int width, int height);
    // By the number in which the system tells it.
    void OnKey(std::uint32_t key, bool isDown);

    // Of IPlot3DOwner.
    void OnPointSet(const QZChart3DPlot& plot, const Point3D& before, const Point3D& now) override;
    void OnPointsSet() override { ranges.Recompute(); }
    void OnGridSized() override { ranges.Forget(); }
    void PaintSoon() override { host_.PaintSoon(); }

private:
    void RepaintIf(bool isWanted);

    IChart3DHost& host_;
    IPlot3DOwner& owner_;

public:
    Chart3DModel chart;
    Chart3DRanges ranges{chart, host_};
    Chart3DKeys keys{chart, host_};
    Chart3DMouse mouse{chart, host_, ranges};
};

}  // namespace corvex
