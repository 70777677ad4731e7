// What a scope shows: its settings, where its frame and its labels lie, and the lines that samples make on it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/scope/SampleRing.h"

namespace corvex {

struct ScopePoint {
    int x = 0, y = 0;

    friend bool operator==(const ScopePoint&, const ScopePoint&) = default;
};

// In pixels of the client. Empty when its ends are no larger than its beginnings.
struct ScopeArea {
    int left = 0, top = 0, right = 0, bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    friend bool operator==(const ScopeArea&, const ScopeArea&) = default;
};

enum class ScopeTextAlign {
    kBelowLeft,      // the place is the upper left corner
    kBelowRight,     // the upper right one
    kBelowCentred,   // the middle of the upper edge
    kBaselineRight,  // the right end of the baseline
    kTurned,         // the middle of the upper edge of a text that runs upward
};

struct ScopeLabel {
    std::string text;
    ScopePoint place;
    ScopeTextAlign align = ScopeTextAlign::kBelowLeft;
};

// What stands still.
struct ScopeFrame {
    ScopeArea client, plot;
    std::vector<int> midlines;  // their heights; each runs over the plot's width
    std::vector<ScopeLabel> labels;
};

// What one sample does to the trace, in this order. Nothing of it leaves the plot, the edges of which are inside.
struct ScopeStroke {
    int shift = 0;        // the trace goes that many pixels to the left, but for the rows of the upper and lower edge
    int stripLeft = 0;    // from here to the right edge it is blanked
    ScopePoint from, to;  // and this line drawn
};

// On the thread of the scope's window.
class ScopeModel {
public:
    static constexpr std::size_t kLabelLength = 50, kMessageLength = 60;  // bytes
    // More than a double holds.
    static constexpr int kMaxDecimals = 20;

    // Everything but the left edge, which moves with the next frame.
    void SetClient(int width, int height);
    // Pixels from one sample to the next; 0 is taken for 1. Counts from the next sample on, and for the room that there
    // is for samples, with the number of the last of them, from the next frame on.
    void SetStep(std::uint32_t step) { step_ = step == 0 ? 1 : step; }
    std::uint32_t Step() const { return step_; }
    // The lower end may be the higher number. Where both are the same any value is in the middle.
    void SetYRange(double maximum, double minimum);
    void SetDecimals(std::int32_t decimals);

    // Lays out the frame and makes the history as long as it is wide.
    ScopeFrame LayOut();

    // Remembers a sample. Nothing where it is not drawn: in static mode, and where there is no room for samples.
    std::optional<ScopeStroke> AddSample(double sample);
    // The strokes of all samples that are remembered, the oldest one flat.
    std::vector<ScopeStroke> Replay();
    // The line through the static data, a point for each sample from edge to edge; 0 where there are no data.
    std::vector<ScopePoint> StaticTrace() const;

    // How many samples the plot has room for, with the step as it is now.
    std::uint32_t VisibleSamples() const;
    const ScopeArea& Plot() const { return plot_; }

    bool isLive = true;
    // Static data, not owned. Read by StaticTrace alone.
    const std::uint8_t* data = nullptr;
    std::size_t dataSize = 0;
    std::uint8_t sampleWidth = 1;  // bytes: 1 and 2 are whole numbers without sign, 4 is a float, others are 0
    std::int32_t start = 0;        // the number of the first sample, and its byte in static data
    bool hasMidlines = true, isHexadecimal = false;
    std::string xLabel, yLabel, message;
    std::uint32_t backColour = 0, textColour = 0xFFFF00, traceColour = 0xFFFFFF;  // 0x00BBGGRR
    std::uint32_t userValue = 0;                                                  // the page's own

private:
    int HeightOf(double value) const;
    double StaticValue(std::size_t index) const;
    ScopeStroke StrokeTo(double sample);
    std::string NumberText(std::int64_t number) const;
    void AddLabels(ScopeFrame& frame) const;

    std::uint32_t step_ = 3;
    int decimals_ = 2;
    double yMaximum_ = 10.0, yMinimum_ = -10.0;
    ScopeArea client_, plot_;
    SampleRing history_;
    double previous_ = 0.0;
    bool hasPrevious_ = false;
};

}  // namespace corvex
