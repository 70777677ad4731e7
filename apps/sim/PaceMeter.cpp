#include "apps/sim/PaceMeter.h"

#include <algorithm>

namespace corvex {

void PaceMeter::Add(double taken, double nominal, double lateness) {
    errors_ += taken / nominal - 1.0;
    if (latenesses_.size() < kKept) {
        latenesses_.push_back(lateness);
    } else {
        latenesses_[count_ % kKept] = lateness;
    }
    ++count_;
}

void PaceMeter::Report(SimStats& stats) const {
    stats.pacedReplies = count_;
    if (count_ == 0) return;
    stats.meanErrorPercent = 100.0 * errors_ / static_cast<double>(count_);
    std::vector<double> sorted = latenesses_;
    std::ranges::sort(sorted);
    stats.lateness99Ms = 1000.0 * sorted[(sorted.size() * 99 - 1) / 100];
    stats.latenessMaxMs = 1000.0 * sorted.back();
}

}  // namespace corvex
