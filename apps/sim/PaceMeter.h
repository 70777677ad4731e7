// Measures how well paced replies keep the line's time.
#pragma once

#include <cstdint>
#include <vector>

#include "apps/sim/SimOptions.h"

namespace corvex {

// Keeps the newest kKept latenesses, some 90 minutes of polling. One thread.
class PaceMeter {
public:
    static constexpr std::size_t kKept = 65536;

    // In seconds: what the request and its reply took from first to last byte, what they should have taken, and how
    // long after its moment the last byte went out.
    void Add(double taken, double nominal, double lateness);
    void Report(SimStats& stats) const;

private:
    double errors_ = 0.0;  // sum of relative errors
    std::uint64_t count_ = 0;
    std::vector<double> latenesses_;
};

}  // namespace corvex
