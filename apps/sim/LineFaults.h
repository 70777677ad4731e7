// Decides which replies fail, and damages them.
#pragma once

#include <cstdint>
#include <vector>

#include "apps/sim/SimOptions.h"

namespace corvex {

// The fate of the n-th reply depends on the seed and n alone, whatever else happens on the line. One thread.
class LineFaults {
public:
    explicit LineFaults(const SimOptions& options) : options_(options) {}

    // Takes the next reply (or stream packet as it goes out). False: it is not to be sent. True: send what is left of
    // it, which is damaged when the count of damaged ones has grown.
    bool Pass(std::vector<std::uint8_t>& reply, SimStats& stats);

private:
    double Chance(std::uint64_t purpose) const;
    void Damage(std::vector<std::uint8_t>& reply, SimStats& stats) const;

    const SimOptions options_;
    std::uint64_t number_ = 0;
};

}  // namespace corvex
