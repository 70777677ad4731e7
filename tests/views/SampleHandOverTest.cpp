#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/support/Eventually.h"
#include "tests/support/VirtualClock.h"
#include "tests/views/DashTestHelper.h"

namespace corvex::test {
namespace {

bool IsSenderReleased() {
    return (::InSendMessageEx(nullptr) & ISMEX_REPLIED) != 0;
}

// Handles what other threads have sent, and leaves what is posted.
void HandleSent() {
    MSG message;
    ::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

// Samples brought by another thread, as an engine's come.
class SampleHandOver : public DashTest {
protected:
    SampleHandOver() { ShowAll({{0, speed}, {1, load}, {2, fan}}); }
    void Handle(const std::atomic<int>& brought, int wanted) {
        EXPECT_TRUE(Eventually([&] {
            HandleSent();
            return brought == wanted;
        }));
    }

    void Bring(const std::vector<std::uint8_t>& packet) {
        brought = 0;
        std::thread worker([&] {
            Update(packet);
            brought = 1;
        });
        Handle(brought, 1);
        worker.join();
    }

    VirtualClock clock;
    ScopedClock inForce{clock};
    std::atomic<int> brought{0};
};

TEST_F(SampleHandOver, WhoBringsASampleGoesOnWhileItIsPainted) {
    GaugeRecorder needle(Gauge(0)), light(Gauge(2));
    bool wentOn = false;
    clock.Advance(1000);
    needle.onPaint = [&] { wentOn = Eventually([&] { return brought == 1; }); };
    std::vector<std::uint8_t> packet = {50, 80, 1};
    std::thread worker([&] {
        Update(packet);
        packet.assign(3, 0);  // it is the worker's again
        brought = 1;
    });
    Handle(brought, 1);
    worker.join();
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(1, needle.Paints());
    EXPECT_EQ(50, Needle(Gauge(0)));
    EXPECT_EQ(40.0F, Digits(Gauge(1)));
    EXPECT_EQ((Strings{"state 1 redraw"}), light.lines);
}

TEST_F(SampleHandOver, WhoBringsThemFasterThanTheyArePaintedWaits) {
    GaugeRecorder needle(Gauge(0));
    std::vector<bool> isReleased;
    needle.onPaint = [&] {
        isReleased.push_back(IsSenderReleased());
        clock.Advance(10);
    };
    for (const int pause : {100, 9, 10, 0, 11}) {
        clock.Advance(pause);
        Bring({50, 80, 1});
    }
    EXPECT_EQ((std::vector<bool>{true, false, true, false, true}), isReleased);
}

TEST_F(SampleHandOver, EverySampleOfAFloodIsShownInItsOrder) {
    GaugeRecorder needle(Gauge(0));
    Strings wanted;
    for (int i = 0; i < 100; ++i)
        wanted.push_back("value " + std::to_string(i) + " redraw");
    WhilePumping([&] {
        for (std::uint8_t i = 0; i < 100; ++i)
            Update({i, 0, 0});
    });
    EXPECT_EQ(wanted, needle.lines);
    EXPECT_EQ(100, needle.Paints());
}

}  // namespace
}  // namespace corvex::test
