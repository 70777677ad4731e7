// What a paint function calls of the system, to be called again without the paint function.
#pragma once

#include <functional>
#include <vector>

#include "controls/window/GdiObjects.h"

namespace corvex::bench {

// The calls of one paint, read once from a metafile and kept ready with their arguments: tools made, selected and
// deleted, state set, figures drawn. Measuring a text draws nothing, so it is not among them. One thread.
class BareCalls {
public:
    // Throws std::runtime_error when the paint does something that there is no call for here.
    explicit BareCalls(const std::function<void(HDC)>& paint);

    // The context's mapping and objects are afterwards what they were, as the paint leaves them.
    void Run(HDC dc);
    // The same without any figure but ellipses and arcs.
    BareCalls Curves() const;

    using Objects = std::vector<GdiOwner<HGDIOBJ>>;  // by the metafile's numbers
    enum class Kind { kState, kCurve, kOtherFigure };
    struct Call {
        Kind kind;
        std::function<void(HDC, Objects&)> make;
    };

private:
    BareCalls(std::vector<Call> calls, std::size_t objects) : calls_(std::move(calls)), objects_(objects) {}

    std::vector<Call> calls_;
    Objects objects_;
};

}  // namespace corvex::bench
