#include "controls/scope/SampleRing.h"

#include <algorithm>
#include <utility>

namespace corvex {

void SampleRing::Add(double sample) {
    if (samples_.empty()) return;
    samples_[next_] = sample;
    next_ = (next_ + 1) % samples_.size();
    if (next_ == 0) hasWrapped_ = true;
}

void SampleRing::SetCapacity(std::size_t capacity) {
    if (capacity == samples_.size()) return;
    const std::size_t kept = std::min(capacity, Count());
    const std::size_t first = Count() - kept;
    std::vector<double> fresh(capacity);
    for (std::size_t i = 0; i < kept; ++i)
        fresh[i] = At(first + i);
    samples_ = std::move(fresh);
    hasWrapped_ = kept == capacity;
    next_ = hasWrapped_ ? 0 : kept;
}

double SampleRing::At(std::size_t index) const {
    return hasWrapped_ ? samples_[(next_ + index) % samples_.size()] : samples_[index];
}

}  // namespace corvex
