// Which labels of an axis are drawn: those that do not lie on the one before.
#pragma once

#include <optional>

#include "controls/chart/ChartTerms.h"

namespace corvex {

// Where a text of that size stands when its middle is level with `at`.
YUpBox LabelBox(YUpPoint at, TextSide side, YUpSize size);
// Touching is none.
bool Overlap(const YUpBox& a, const YUpBox& b);

// The labels of one axis along one line, one after the other.
class LabelThinning {
public:
    LabelThinning() = default;
    // Keeps off a label of another axis too.
    explicit LabelThinning(const std::optional<YUpBox>& other) : other_(other) {}

    // Whether a label with that box is drawn. Labels may come as close as the air within a font's lines lets them.
    bool Takes(const YUpBox& box);
    // Of the last one that is drawn, without that air.
    const std::optional<YUpBox>& Last() const { return last_; }

private:
    std::optional<YUpBox> other_, last_;
};

}  // namespace corvex
