// The fixed square of logical units in which every gauge is drawn, so that it stretches with its window.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// Maps the context to the square when it is built, and puts back all of the context's state, mapping and selected
// objects, when it goes. What is selected meanwhile must outlive the selection, not this.
class LogicalSquare {
public:
    // The square fills the client area, but is never drawn smaller than one pixel for each of its `side` units: a
    // client smaller than that shows its upper left part. `round` keeps the units as wide as they are high.
    LogicalSquare(HDC dc, const RECT& client, int side, bool round);
    ~LogicalSquare();
    LogicalSquare(const LogicalSquare&) = delete;
    LogicalSquare& operator=(const LogicalSquare&) = delete;

private:
    HDC dc_;
    int saved_;
};

}  // namespace corvex
