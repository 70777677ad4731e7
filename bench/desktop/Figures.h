// Few figures of many runs.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace corvex::bench {

// Of at least one.
inline double Median(std::vector<double> figures) {
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

// Of one run of the work.
template <class Work>
double Microseconds(const Work& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count();
}

inline double Largest(const std::vector<double>& figures) {
    return *std::max_element(figures.begin(), figures.end());
}

}  // namespace corvex::bench
