// Writes down what a gauge of a dash page is told, in words.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/controls/window/WindowSpy.h"

namespace corvex::test {

// From its construction to its end, in the order of the messages: "title Speed", "value 20 redraw", "range 20 180",
// "digits 2", "no alarms", "alarm 10 150 180 0000ff", "true Running", "state 1 redraw". Which words there are depends
// on the window's class. On the window's thread.
class GaugeRecorder {
public:
    explicit GaugeRecorder(HWND gauge);

    int Paints() const { return spy_.Paints(); }

    std::vector<std::string> lines;
    std::function<void()> onPaint;  // before it

private:
    WindowSpy spy_;
};

// What a gauge gives back of itself.
std::string TextOfGauge(HWND gauge, UINT message);

}  // namespace corvex::test
