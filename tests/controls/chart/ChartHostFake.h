// A window for the behaviour of a chart, without a system under it: it paints nothing and writes down what it is told.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "controls/chart/ChartMouse.h"

namespace corvex {

// `Host` is the chart's IChartHost, `Note` what one word to the parent is written down as.
template <class Host, class Note>
class ChartHostFake : public Host {
public:
    void Repaint() override {
        ++repaints;
        if (handler) handler();
    }
    void PaintSoon() override { ++soon; }
    void Capture() override {
        hasCapture = true;
        if (onCapture) onCapture();
    }
    // As the system does: the window hears of its loss.
    void Release() override {
        if (std::exchange(hasCapture, false)) mouse->EndGesture();
    }
    void HidePointer() override { --pointer; }
    void ShowPointer() override { ++pointer; }

    std::vector<Note> TakeNotes() { return std::exchange(notes, {}); }

    ChartMouse* mouse = nullptr;
    std::function<void()> onCapture;
    std::function<void()> handler;  // of the parent's, and of whoever watches a repaint
    std::vector<Note> notes;
    int repaints = 0, soon = 0, pointer = 0;
    bool hasCapture = false;

protected:
    void Write(const Note& note) {
        notes.push_back(note);
        if (handler) handler();
    }
};

}  // namespace corvex
