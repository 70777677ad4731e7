#include <gtest/gtest.h>

#include "logging/LogResync.h"
#include "tests/logging/FarFile.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

// Two items, of three bytes and of five; all places are those of the file.
class LogResyncTest : public ::testing::Test {
public:
    static constexpr std::uint32_t kBegin = 100;
    static constexpr std::uint32_t kFloor = 1000;

    LogResyncTest() { log_.Raw(Bytes(kBegin, 0)); }

    LogResyncTest& Garbage(std::uint32_t count) {
        for (std::uint32_t i = 0; i < count; ++i)
            log_.Word8(i * 7 + 0x31);
        return *this;
    }
    // A record that once stood `shortfall` bytes further in front.
    LogResyncTest& Record(std::uint32_t item, std::uint32_t timeMs, std::uint32_t shortfall = 0) {
        const std::uint32_t size = item == 0 ? 3 : 5;
        const auto end = static_cast<std::uint32_t>(log_.bytes.size() + 12 + size);
        log_.RecordTo(end - shortfall, item, timeMs, Bytes(size, 0xAA));
        return *this;
    }
    // "offset shortfall", or "none".
    std::string Find(std::uint64_t from, std::uint32_t shortfall = 0, std::uint32_t endMark = kNeverEnded) {
        files_.Put(kPath, log_.bytes);
        const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
        LogResync resync(*file, {3, 5}, kBegin, endMark);
        const std::optional<LogPlace> place = resync.Find(from, shortfall, kFloor);
        if (!place) return "none";
        return std::to_string(place->offset) + ' ' + std::to_string(static_cast<std::int32_t>(place->shortfall));
    }

    LogBytes log_;
    MemoryFiles files_;
};

TEST_F(LogResyncTest, FindsTwoInARowWhereverTheyOnceStood) {
    for (const std::uint32_t shortfall : {0U, 40U, 0xFFFFF000U}) {
        log_.bytes.resize(kBegin);
        Garbage(50).Record(1, 2000, shortfall).Record(0, 2000, shortfall).Garbage(9);
        EXPECT_EQ(Find(kBegin), "150 " + std::to_string(static_cast<std::int32_t>(shortfall)));
        EXPECT_EQ(Find(150), Find(kBegin));
    }
}

// It stands where it was written, whatever was wrong in front of it.
TEST_F(LogResyncTest, FindsOneAloneWhoseOffsetIsRight) {
    Garbage(50).Record(1, 2000).Garbage(30);
    EXPECT_EQ(Find(kBegin, 40), "150 0");
}

TEST_F(LogResyncTest, TwoMustBeWrongByTheSameAmount) {
    Garbage(50).Record(0, 2000, 40).Record(0, 2080, 41).Garbage(30);
    EXPECT_EQ(Find(kBegin), "none");
}

TEST_F(LogResyncTest, TimesOfTwoMustNotFall) {
    Garbage(50).Record(0, 2080, 40).Record(0, 2000, 40).Garbage(30);
    EXPECT_EQ(Find(kBegin), "none");
}

TEST_F(LogResyncTest, ItemsOfTwoMustBeKnown) {
    Garbage(50).Record(0, 2000, 40).Record(2, 2080, 40).Garbage(30);
    EXPECT_EQ(Find(kBegin), "none");
}

// A block of an older part of the log that was copied to here.
TEST_F(LogResyncTest, TwoThatMovedMustNotGoBackInTime) {
    Garbage(50).Record(0, 900, 40).Record(0, 980, 40).Garbage(30);
    EXPECT_EQ(Find(kBegin), "none");
    EXPECT_EQ(Find(kBegin, 40), "150 40");
}

// Nothing stood in the header or in the table.
TEST_F(LogResyncTest, TwoCannotHaveStoodInFrontOfTheData) {
    Garbage(50).Record(0, 2000, 51).Record(0, 2080, 51).Garbage(30);
    EXPECT_EQ(Find(kBegin), "none");
    log_.bytes.resize(kBegin);
    Garbage(50).Record(0, 2000, 50).Record(0, 2080, 50).Garbage(30);
    EXPECT_EQ(Find(kBegin), "150 50");
}

TEST_F(LogResyncTest, OneAloneIsProvenByARightOffset) {
    Garbage(50).Record(1, 2000).Garbage(40);
    EXPECT_EQ(Find(kBegin), "150 0");
    EXPECT_EQ(Find(151), "none");
}

TEST_F(LogResyncTest, OneAloneIsProvenByTheShortfallInFrontOfTheDamage) {
    Garbage(50).Record(1, 2000, 40).Garbage(40);
    EXPECT_EQ(Find(kBegin), "none");
    EXPECT_EQ(Find(kBegin, 40), "150 40");
}

TEST_F(LogResyncTest, OneAloneIsProvenByTheEndOfItsFile) {
    Garbage(50).Record(1, 2000, 40);
    const auto size = static_cast<std::uint32_t>(log_.bytes.size());
    EXPECT_EQ(Find(kBegin, 0, size + 1 - 40), "150 40");
    EXPECT_EQ(Find(kBegin, 0, size + 1 - 41), "none");
}

TEST_F(LogResyncTest, OneAloneMustNotGoBackInTime) {
    Garbage(50).Record(1, 900).Garbage(40);
    EXPECT_EQ(Find(kBegin), "none");
}

TEST_F(LogResyncTest, OneThatIsCutShortIsNone) {
    Garbage(50).Record(1, 2000);
    log_.bytes.pop_back();
    EXPECT_EQ(Find(kBegin), "none");
}

TEST_F(LogResyncTest, ZerosAreNone) {
    log_.Raw(Bytes(200'000, 0));
    EXPECT_EQ(Find(kBegin), "none");
}

TEST_F(LogResyncTest, SearchesAcrossItsBlocks) {
    for (const std::uint32_t gap : {65536U - 12, 65536U - 5, 65536U, 65536U + 5, 3 * 65536U}) {
        log_.bytes.resize(kBegin);
        log_.Raw(Bytes(gap, 0)).Raw(Bytes(20, 0xFF));
        Record(0, 2000, 7).Record(0, 2080, 7);
        EXPECT_EQ(Find(kBegin), std::to_string(kBegin + gap + 20) + " 7") << gap;
    }
}

TEST_F(LogResyncTest, OffsetsWrapIn32Bits) {
    const std::uint64_t begin = 0x100000000 - 20;
    LogBytes tail;
    tail.Raw(Bytes(3, 0xEE)).RecordTo(0xFFFFFFFE, 0, 2000, DataOf(1)).RecordTo(13, 0, 2000, DataOf(1));
    FarFile file({}, begin, tail.bytes);
    LogResync resync(file, {3, 5}, kBegin, kNeverEnded);
    const std::optional<LogPlace> place = resync.Find(begin, 0, 0);
    ASSERT_TRUE(place);
    EXPECT_EQ(begin + 3, place->offset);
    EXPECT_EQ(0U, place->shortfall);
}

// Garbage in which every place looks like the begin of a record with much data, and damage at many places.
TEST_F(LogResyncTest, ReadsEachByteAFixedNumberOfTimes) {
    std::uint64_t count = 0;
    for (; log_.bytes.size() < 3'000'000; ++count)
        log_.Raw(Bytes(990, 1)), Record(0, 2000);
    files_.Put(kPath, log_.bytes);
    const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
    LogResync resync(*file, {3, 1'000'000}, kBegin, kNeverEnded);
    std::uint64_t found = 0;
    for (auto place = resync.Find(kBegin, 0, 0); place; place = resync.Find(place->offset + 1, 0, 0))
        ++found;
    EXPECT_EQ(found, count);
    EXPECT_LE(files_.reads, 5 * (log_.bytes.size() / LogReader::kReadAhead + 2));
}

TEST_F(LogResyncTest, FailureToReadIsTold) {
    Garbage(50);
    files_.Put(kPath, log_.bytes);
    const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
    LogResync resync(*file, {3}, kBegin, kNeverEnded);
    EXPECT_FALSE(resync.Find(kBegin, 0, 0).has_value());
    EXPECT_FALSE(resync.Failed());
    LogResync failing(*file, {3}, kBegin, kNeverEnded);
    files_.failReads = true;
    EXPECT_FALSE(failing.Find(kBegin, 0, 0).has_value());
    EXPECT_TRUE(failing.Failed());
}

}  // namespace
}  // namespace corvex::test
