// The newest samples of a trace, as many as there is room for.
#pragma once

#include <cstddef>
#include <vector>

namespace corvex {

// One for each scope, on its thread.
class SampleRing {
public:
    // With a capacity of 0 nothing is kept.
    void Add(double sample);
    // A smaller one keeps the newest that fit, a larger one all of them.
    void SetCapacity(std::size_t capacity);

    std::size_t Capacity() const { return samples_.size(); }
    std::size_t Count() const { return hasWrapped_ ? samples_.size() : next_; }
    // By age: 0 is the oldest. The index must be below the count.
    double At(std::size_t index) const;

private:
    std::vector<double> samples_;  // all of the capacity
    std::size_t next_ = 0;         // where the next one goes
    bool hasWrapped_ = false;
};

}  // namespace corvex
