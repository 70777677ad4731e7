#include <gtest/gtest.h>

#include "controls/window/GdiObjects.h"

namespace corvex {
namespace {

OwnedBrush MakeBrush() {
    return OwnedBrush(::CreateSolidBrush(0x123456));
}

TEST(GdiObjectsTest, OwnerDeletesItsObjectAndCountsIt) {
    const std::size_t before = LiveGdiObjects();
    HBRUSH handle = nullptr;
    {
        const OwnedBrush brush = MakeBrush();
        handle = brush.Get();
        ASSERT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
        EXPECT_EQ(LiveGdiObjects(), before + 1);
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST(GdiObjectsTest, MovedFromOwnerIsEmptyAndTheOtherDropsWhatItHeld) {
    const std::size_t before = LiveGdiObjects();
    OwnedBrush first = MakeBrush();
    const HBRUSH kept = first.Get();
    OwnedBrush second = std::move(first);
    EXPECT_EQ(second.Get(), kept);
    EXPECT_EQ(first.Get(), nullptr);
    OwnedBrush third = MakeBrush();
    const HBRUSH dropped = third.Get();
    third = std::move(second);
    EXPECT_EQ(::GetObjectType(dropped), 0u);
    OwnedBrush& same = third;
    third = std::move(same);
    EXPECT_EQ(third.Get(), kept);
    EXPECT_EQ(::GetObjectType(kept), static_cast<DWORD>(OBJ_BRUSH)) << "assigned to itself it keeps it";
    EXPECT_FALSE(OwnedBrush(nullptr));
    EXPECT_EQ(LiveGdiObjects(), before + 1);
}

TEST(GdiObjectsTest, ReleasedObjectLivesAndIsNoLongerCounted) {
    const std::size_t before = LiveGdiObjects();
    OwnedBrush brush = MakeBrush();
    const HBRUSH handle = brush.Release();
    EXPECT_FALSE(brush);
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    const OwnedBrush again(handle);
}

TEST(GdiObjectsTest, ContextsAreCountedAndGivenBack) {
    const std::size_t before = LiveGdiObjects();
    HDC memory = nullptr;
    {
        const MemoryDc first;
        const ClientDc screen(nullptr);
        memory = first.Get();
        EXPECT_NE(screen.Get(), nullptr);
        EXPECT_EQ(LiveGdiObjects(), before + 2);
    }
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(::GetObjectType(memory), 0u);
}

TEST(GdiObjectsTest, SelectGuardPutsTheFormerObjectBackAndOfNothingChangesNothing) {
    const MemoryDc dc;
    const OwnedBrush brush = MakeBrush();
    const HGDIOBJ former = ::GetCurrentObject(dc.Get(), OBJ_BRUSH);
    {
        const SelectGuard guard(dc.Get(), brush.Get()), nothing(dc.Get(), nullptr);
        EXPECT_EQ(::GetCurrentObject(dc.Get(), OBJ_BRUSH), brush.Get());
    }
    EXPECT_EQ(::GetCurrentObject(dc.Get(), OBJ_BRUSH), former);
}

}  // namespace
}  // namespace corvex
