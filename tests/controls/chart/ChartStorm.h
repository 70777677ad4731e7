// What storms over the charts have in common: their numbers, and a parent that meddles.
#pragma once

#include <functional>
#include <limits>
#include <random>
#include <vector>

#include "controls/chart/ChartTerms.h"

namespace corvex {

class ChartStorm {
public:
    explicit ChartStorm(unsigned seed) : random_(seed) {}

    int Next(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    bool Once(int in) { return Next(in) == 0; }
    std::uint32_t Bit(int below) { return 1U << Next(below); }
    // One that no axis has room for, or none.
    float Odd() {
        constexpr float kInfinite = std::numeric_limits<float>::infinity();
        constexpr float odd[] = {0.0F,   -1.0F,     3.4028235e38F, -3.4028235e38F,
                                 1e-40F, kInfinite, -kInfinite,    std::numeric_limits<float>::quiet_NaN()};
        return odd[Next(std::size(odd))];
    }
    // An everyday one, now and then an odd one.
    float Number() { return Once(3) ? Odd() : static_cast<float>(Next(300)); }
    YUpPoint Place() { return {Next(300), Next(300)}; }

    using Doings = std::vector<std::function<void()>>;
    // One doing after the other, each of which may have the parent do others when it is told of something.
    template <class Check>
    void Rage(int rounds, const Doings& doings, std::function<void()>& parent, const Check& check) {
        const auto doOne = [&] { doings[static_cast<std::size_t>(Next(static_cast<int>(doings.size())))](); };
        int depth = 0;
        parent = [&] {
            if (depth == 3 || !Once(3)) return;
            ++depth;
            doOne();
            --depth;
        };
        for (int i = 0; i < rounds; ++i) {
            doOne();
            check(i);
        }
        parent = nullptr;
    }

private:
    std::mt19937 random_;
};

}  // namespace corvex
