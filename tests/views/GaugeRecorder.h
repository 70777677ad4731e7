// Writes down what a gauge of a dash page is told, in words.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex::test {

// From its construction to its end, in the order of the messages: "title Speed", "value 20 redraw", "range 20 180",
// "digits 2", "no alarms", "alarm 10 150 180 0000ff", "true Running", "state 1 redraw". Which words there are depends
// on the window's class. Must end before the window does. On the window's thread.
class GaugeRecorder {
public:
    explicit GaugeRecorder(HWND gauge);
    ~GaugeRecorder();
    GaugeRecorder(const GaugeRecorder&) = delete;
    GaugeRecorder& operator=(const GaugeRecorder&) = delete;

    std::vector<std::string> lines;
    int paints = 0;
    std::function<void()> onPaint;  // before it

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void NoteAnalog(UINT message, WPARAM wParam, LPARAM lParam);
    void NoteStatus(UINT message, WPARAM wParam, LPARAM lParam);

    const HWND gauge_;
    bool isAnalog_;
    WNDPROC former_;
};

std::string ClassNameOf(HWND window);
// What a gauge gives back of itself.
std::string TextOfGauge(HWND gauge, UINT message);

}  // namespace corvex::test
