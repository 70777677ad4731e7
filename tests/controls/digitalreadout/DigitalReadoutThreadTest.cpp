#include "tests/controls/digitalreadout/DigitalReadoutFixture.h"

namespace corvex {
namespace {

using DigitalReadoutThreadTest = DigitalReadoutFixture;

TEST_F(DigitalReadoutThreadTest, EveryFunctionWorksFromAnotherThreadAndOnTheOwners) {
    DigitalReadoutInfo info{};
    gauge.Spy().Forget();
    EXPECT_TRUE(WhilePumping([&] {
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
    }));
    EXPECT_STREQ(info.units, "km/h");
    EXPECT_STREQ(Model().Text(), "130");
    EXPECT_EQ(Model().ColourInForce(), 0x0000AAu);
    std::vector<DWORD> threads;
    for (const HeardMessage& heard : gauge.Spy().Heard()) {
        if (heard.message >= WM_APP && heard.message < 0xC000) threads.push_back(heard.thread);
    }
    EXPECT_EQ(threads, std::vector<DWORD>(19, ::GetCurrentThreadId()));
}

TEST_F(DigitalReadoutThreadTest, OwnerPaintsWhileAWorkerSetsValues) {
    int wrong = 0, odd = 0;
    std::atomic<bool> done{false};
    DigitalReadoutSetFormat(window, 1, 1);
    std::thread worker([&] {
        for (int i = 1; i <= 300; ++i) {
            if (DigitalReadoutSetValue(window, static_cast<float>(i * 10)) != static_cast<float>((i - 1) * 10)) ++wrong;
        }
        done = true;
    });
    EXPECT_TRUE(Pumps([&] {
        gauge.Repaint();
        if (!std::string(Model().Text()).ends_with("0.0")) ++odd;
        return done.load();
    }));
    worker.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(odd, 0);
    EXPECT_STREQ(Model().Text(), "3000.0");
}

TEST_F(DigitalReadoutThreadTest, WindowMayGoWhileAWorkerSetsValues) {
    std::atomic<bool> gone{false};
    float last = -1.0f;
    int turns = 0;
    gauge.Spy().SetHandler([&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_PAINT || ++turns != 20) return std::nullopt;
        ::DestroyWindow(window);
        gone = true;
        return 0;
    });
    EXPECT_TRUE(WhilePumping([&] {
        for (int i = 1; !gone || i % 2 != 0; ++i)
            DigitalReadoutSetValue(window, static_cast<float>(i));
        last = DigitalReadoutSetValue(window, 4.0f);
    }));
    EXPECT_EQ(last, 0.0f);
}

}  // namespace
}  // namespace corvex
