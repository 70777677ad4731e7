#include <gtest/gtest.h>

#include <deque>
#include <random>

#include "controls/scope/SampleRing.h"

namespace corvex {
namespace {

void ExpectSame(const SampleRing& ring, const std::deque<double>& wanted, int step) {
    ASSERT_EQ(ring.Count(), wanted.size()) << step;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        ASSERT_EQ(ring.At(i), wanted[i]) << step << " " << i;
}

TEST(SampleRingTest, WithoutRoomNothingIsKept) {
    SampleRing ring;
    ring.Add(1.0);
    EXPECT_EQ(ring.Count(), 0U);
    ring.SetCapacity(2);
    EXPECT_EQ(ring.Count(), 0U);
    EXPECT_EQ(ring.Capacity(), 2U);
}

TEST(SampleRingTest, KeepsTheNewestByAgeWhateverItsCapacityBecomes) {
    std::mt19937 random(7);
    SampleRing ring;
    std::deque<double> wanted;
    std::size_t capacity = 0;
    for (int step = 0; step < 20000; ++step) {
        if (random() % 8 == 0) {
            capacity = random() % 12;
            ring.SetCapacity(capacity);
        } else {
            ring.Add(step);
            wanted.push_back(step);
        }
        while (wanted.size() > capacity)
            wanted.pop_front();
        ExpectSame(ring, wanted, step);
        if (HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace corvex
