#include <gtest/gtest.h>

#include <numeric>

#include "logging/LogItem.h"
#include "tests/support/LogBytes.h"

namespace corvex::test {
namespace {

constexpr std::uint8_t kUntouched = 0xEE;

Bytes Counted(std::size_t count) {
    Bytes bytes(count);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{1});
    return bytes;
}

Bytes Pack(const LogMask& mask, const Bytes& reply, std::uint32_t packedSize) {
    Bytes packed(packedSize, kUntouched);
    PackReply(mask, reply.data(), static_cast<std::uint32_t>(reply.size()), packed.data(), packedSize);
    return packed;
}

Bytes Expand(const LogMask& mask, const Bytes& packed, std::uint32_t fullSize) {
    Bytes reply(fullSize, kUntouched);
    ExpandRecord(mask, packed.data(), static_cast<std::uint32_t>(packed.size()), reply.data(), fullSize);
    return reply;
}

TEST(LogItemTest, RecordersMaskHasFifteenSetBytes) {
    EXPECT_EQ(Bytes(15, 0xFF), LogMask::AllSet().Bytes());
    EXPECT_EQ(120U, LogMask::AllSet().LengthInBits());
}

TEST(LogItemTest, BitsAreCountedFromTheLowestOfTheFirstByte) {
    const LogMask mask({0x01, 0x80});
    for (std::uint32_t i = 0; i < 16; ++i)
        EXPECT_EQ(i == 0 || i == 15, mask.IsSet(i)) << i;
}

TEST(LogItemTest, BitPastTheMaskIsSet) {
    const LogMask mask(Bytes{0});
    EXPECT_FALSE(mask.IsSet(7));
    EXPECT_TRUE(mask.IsSet(8));
    EXPECT_TRUE(mask.IsSet(0xFFFFFFFF));
    EXPECT_TRUE(LogMask().IsSet(0));
}

TEST(LogItemTest, PacksBytesAtTheirPlaces) {
    const struct {
        const char* behaviour;
        LogMask mask;
        Bytes reply;
        std::uint32_t size;
        Bytes packed;
    } cases[] = {
        {"a full mask", LogMask::AllSet(), Counted(63), 63, Counted(63)},
        {"bytes past the mask, too", LogMask::AllSet(), Counted(200), 200, Counted(200)},
        {"with gaps", LogMask(Bytes{0x05}), {1, 2, 3}, 3, {1, kUntouched, 3}},
        {"no further than the record", LogMask::AllSet(), Counted(5), 2, {1, 2}},
        {"or the reply", LogMask::AllSet(), Counted(2), 3, {1, 2, kUntouched}},
        {"a place in the reply only", LogMask(Bytes{0x02}), Counted(2), 1, {kUntouched}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(one.packed, Pack(one.mask, one.reply, one.size)) << one.behaviour;
}

// Writers and readers do not agree on gaps, and files depend on the reading side: bytes keep their places in the
// record, and are read as if they had been moved together.
TEST(LogItemTest, ExpandsBytesThatStandTogether) {
    const struct {
        const char* behaviour;
        LogMask mask;
        Bytes packed;
        std::uint32_t size;
        Bytes reply;
    } cases[] = {
        {"a full mask", LogMask::AllSet(), Counted(63), 63, Counted(63)},
        {"bytes past the mask, too", LogMask::AllSet(), Counted(200), 200, Counted(200)},
        {"a gap of the writer is read", LogMask(Bytes{0x05}), {1, kUntouched, 3}, 3, {1, 0, kUntouched}},
        {"no gap", LogMask(Bytes{0x05}), {1, 3}, 3, {1, 0, 3}},
        {"zeros where the record is shorter", LogMask::AllSet(), {1, 2}, 4, {1, 2, 0, 0}},
        {"without a mask", LogMask(), {1, 2}, 4, {1, 2, 0, 0}},
        {"with a gap", LogMask(Bytes{0xFD}), {1, 2}, 4, {1, 0, 2, 0}},
        {"no more than the reply", LogMask::AllSet(), Counted(5), 2, {1, 2}},
        {"nothing of nothing", LogMask(Bytes{0x00}), Counted(5), 0, {}},
        {"across the end of the mask", LogMask(Bytes{0xAA}), Counted(6), 11, {0, 1, 0, 2, 0, 3, 0, 4, 5, 6, 0}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(one.reply, Expand(one.mask, one.packed, one.size)) << one.behaviour;
}

}  // namespace
}  // namespace corvex::test
