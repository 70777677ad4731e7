#include <atomic>
#include <string>
#include <thread>

#include "tests/controls/digitalreadout/DigitalReadoutFixture.h"
#include "tests/support/Eventually.h"

namespace corvex {
namespace {

class DigitalReadoutThreadTest : public DigitalReadoutFixture {
protected:
    // Runs the work on another thread while this one pumps, doing `meanwhile` each time.
    template <class Work, class Meanwhile>
    void Elsewhere(const Work& work, const Meanwhile& meanwhile) {
        std::atomic<bool> done{false};
        std::thread worker([&] {
            work();
            done = true;
        });
        EXPECT_TRUE(test::Eventually([&] {
            Pump();
            meanwhile();
            return done.load();
        }));
        worker.join();
    }
};

TEST_F(DigitalReadoutThreadTest, EveryFunctionWorksFromAnotherThreadAndOnTheOwners) {
    DigitalReadoutInfo info{};
    Elsewhere(
        [&] {
            EXPECT_EQ(DigitalReadoutSetTitle(window, "Speed"), 5u);
            EXPECT_EQ(DigitalReadoutSetUnits(window, "km/h"), 4u);
            EXPECT_TRUE(DigitalReadoutSetFormat(window, 0, 1));
            EXPECT_TRUE(DigitalReadoutSetColor(window, 4, 0x0000AA));
            EXPECT_EQ(DigitalReadoutGetColor(window, 4), 0x0000AA);
            EXPECT_EQ(DigitalReadoutSetHighLimit(window, 100.0f), 256.0f);
            EXPECT_EQ(DigitalReadoutSetHighLimitInt(window, 120), 100.0f);
            EXPECT_EQ(DigitalReadoutGetHighLimit(window), 120.0f);
            EXPECT_EQ(DigitalReadoutSetLowLimit(window, 5.0f), -1.0f);
            EXPECT_EQ(DigitalReadoutSetLowLimitInt(window, 6), 5.0f);
            EXPECT_EQ(DigitalReadoutGetLowLimit(window), 6.0f);
            EXPECT_TRUE(DigitalReadoutEnableHighLimit(window, 4));
            EXPECT_TRUE(DigitalReadoutEnableLowLimit(window, 8));
            EXPECT_EQ(DigitalReadoutSetUserWord(window, 9), 0u);
            EXPECT_EQ(DigitalReadoutGetUserWord(window), 9u);
            EXPECT_EQ(DigitalReadoutSetValue(window, 80.0f), 0.0f);
            EXPECT_EQ(DigitalReadoutSetValueInt(window, 130), 80);
            EXPECT_EQ(DigitalReadoutGetInfo(window, &info), 1u);
            EXPECT_EQ(DigitalReadoutSetInfo(window, &info), 1u);
        },
        [] {});
    EXPECT_STREQ(info.units, "km/h");
    EXPECT_STREQ(Model().Text(), "130");
    EXPECT_EQ(Model().ColourInForce(), 0x0000AAu);
    EXPECT_EQ(gauge.threadsOfWork, std::vector<DWORD>(19, ::GetCurrentThreadId()));
}

TEST_F(DigitalReadoutThreadTest, CallerWaitsForTheRepaint) {
    int paints = 0;
    Elsewhere([&] { paints = gauge.PaintsIn([&] { DigitalReadoutSetValue(window, 5.0f); }); }, [] {});
    EXPECT_EQ(paints, 1);
}

TEST_F(DigitalReadoutThreadTest, OwnerPaintsWhileAWorkerSetsValues) {
    constexpr int kValues = 300;
    int wrong = 0, odd = 0;
    DigitalReadoutSetFormat(window, 1, 1);
    DigitalReadoutSetValue(window, 10.0f);
    Elsewhere(
        [&] {
            for (int i = 1; i <= kValues; ++i) {
                const float before = i == 1 ? 10.0f : static_cast<float>((i - 1) * 10);
                if (DigitalReadoutSetValue(window, static_cast<float>(i * 10)) != before) ++wrong;
            }
        },
        [&] {
            ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            if (!std::string(Model().Text()).ends_with("0.0")) ++odd;
        });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(odd, 0);
    EXPECT_STREQ(Model().Text(), "3000.0");
}

TEST_F(DigitalReadoutThreadTest, WindowMayGoWhileAWorkerSetsValues) {
    std::atomic<bool> gone{false};
    float last = -1.0f;
    int turns = 0;
    Elsewhere(
        [&] {
            for (int i = 1; !gone || i % 2 != 0; ++i)
                DigitalReadoutSetValue(window, static_cast<float>(i));
            last = DigitalReadoutSetValue(window, 4.0f);
        },
        [&] {
            if (++turns != 20) return;
            ::DestroyWindow(window);
            gone = true;
        });
    EXPECT_EQ(last, 0.0f);
}

}  // namespace
}  // namespace corvex
