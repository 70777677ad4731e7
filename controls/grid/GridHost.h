// What the behaviour of a grid asks of the window that it is the behaviour of.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/grid/GridLookModel.h"

namespace corvex {

enum class GridPointer { kArrow = 1, kSizeColumn = 2, kSizeRow = 3 };

struct GridTextSize {
    int width = 0, height = 0;
};

// On the window's thread. Tell and TakeFocus let somebody else work, who may send the grid any message meanwhile.
class IGridHost {
public:
    virtual ~IGridHost() = default;

    // Sends a notification to the parent.
    virtual void Tell(std::uint32_t code, std::uint32_t value) = 0;
    // Paints everything at once.
    virtual void Repaint() = 0;
    // Has a part painted: with the next paint, or at once.
    virtual void PaintSoon(const GridBox& part) = 0;
    virtual void PaintNow(const GridBox& part) = 0;
    // Of one line.
    virtual GridTextSize Measure(GridFont font, std::string_view line) = 0;

    virtual bool HasFocus() = 0;
    virtual void TakeFocus() = 0;
    virtual void PassFocusToParent() = 0;
    // The caret is there while the grid has the focus.
    virtual void MakeCaret() = 0;
    virtual void DropCaret() = 0;
    virtual void ShowCaretAt(int x, int y) = 0;
    virtual void HideCaret() = 0;
    virtual int CaretHeight() = 0;  // of the text beside it
    virtual void Beep() = 0;

    virtual void Capture() = 0;
    virtual void Release() = 0;
    virtual void StartTimer() = 0;  // Tick each 10 ms
    virtual void StopTimer() = 0;
    virtual void SetPointer(GridPointer pointer) = 0;
    // May change the client's size, by this much.
    virtual void ShowBar(bool isVertical, bool isShown) = 0;
    virtual int BarThickness(bool isVertical) = 0;
    virtual void SetBar(bool isVertical, int maximum, int position) = 0;
    // Reads the client's size anew, and repaints.
    virtual void SizeAnew() = 0;

    virtual void PutOnClipboard(const std::string& text) = 0;
    // Nothing when there is no text on it, or when it can't be opened.
    virtual std::optional<std::string> TextOfClipboard() = 0;
};

}  // namespace corvex
