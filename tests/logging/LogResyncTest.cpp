#include <gtest/gtest.h>

#include "logging/LogResync.h"
#include "tests/logging/FarFile.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kBegin = 100;
constexpr std::uint32_t kFloor = 1000;  // milliseconds

// Places of a file, behind kBegin bytes of its head. Two items, of three bytes and of five.
struct Places {
    Places() { log.Raw(Bytes(kBegin, 0)); }
    Places& Garbage(std::uint32_t count) {
        for (std::uint32_t i = 0; i < count; ++i)
            log.Word8(i * 7 + 0x31);
        return *this;
    }
    // A record that once stood `shortfall` bytes further in front.
    Places& Record(std::uint32_t item, std::uint32_t timeMs, std::uint32_t shortfall = 0) {
        const std::uint32_t size = item == 0 ? 3 : 5;
        const auto end = static_cast<std::uint32_t>(log.bytes.size() + 12 + size);
        log.RecordTo(end - shortfall, item, timeMs, Bytes(size, 0xAA));
        return *this;
    }
    Places& CutBy(std::size_t count) {
        log.bytes.resize(log.bytes.size() - count);
        return *this;
    }

    LogBytes log;
};

class LogResyncTest : public ::testing::Test {
protected:
    std::unique_ptr<IFile> Put(const Places& places) {
        files_.Put(kPath, places.log.bytes);
        return files_.Open(kPath, FileAccess::kRead);
    }
    // "offset shortfall", or "none".
    std::string Find(const Places& places, std::uint64_t from, std::uint32_t shortfall = 0,
                     std::uint32_t endMark = kNeverEnded) {
        const std::unique_ptr<IFile> file = Put(places);
        LogResync resync(*file, {3, 5}, kBegin, endMark);
        const std::optional<LogPlace> place = resync.Find(from, shortfall, kFloor);
        if (!place) return "none";
        return std::to_string(place->offset) + ' ' + std::to_string(static_cast<std::int32_t>(place->shortfall));
    }

    MemoryFiles files_;
};

// Garbage of fifty bytes, so that what is behind it begins at 150.
Places Behind() {
    return Places().Garbage(50);
}

TEST_F(LogResyncTest, FindsWhatIsProvenToBeARecord) {
    const struct {
        const char* behaviour;
        Places places;
        const char* found;
        std::uint64_t from = kBegin;
        std::uint32_t shortfall = 0, endMark = kNeverEnded;
    } cases[] = {
        {"two in a row", Behind().Record(1, 2000).Record(0, 2000).Garbage(9), "150 0"},
        {"from their own place on", Behind().Record(1, 2000).Record(0, 2000).Garbage(9), "150 0", 150},
        {"that once stood 40 bytes further in front", Behind().Record(1, 2000, 40).Record(0, 2000, 40).Garbage(9),
         "150 40"},
        {"or behind", Behind().Record(1, 2000, 0xFFFFF000).Record(0, 2000, 0xFFFFF000).Garbage(9), "150 -4096"},
        {"two must be wrong by the same amount", Behind().Record(0, 2000, 40).Record(0, 2080, 41).Garbage(30), "none"},
        {"their times must not fall", Behind().Record(0, 2080, 40).Record(0, 2000, 40).Garbage(30), "none"},
        {"their items must be known", Behind().Record(0, 2000, 40).Record(2, 2080, 40).Garbage(30), "none"},
        // A block of an older part of the log that was copied to here.
        {"two that moved must not go back in time", Behind().Record(0, 900, 40).Record(0, 980, 40).Garbage(30), "none"},
        {"unless all in front moved so", Behind().Record(0, 900, 40).Record(0, 980, 40).Garbage(30), "150 40", kBegin,
         40},
        // Nothing stood in the header or in the table.
        {"two in front of the data", Behind().Record(0, 2000, 51).Record(0, 2080, 51).Garbage(30), "none"},
        {"two at its begin", Behind().Record(0, 2000, 50).Record(0, 2080, 50).Garbage(30), "150 50"},
        // It stands where it was written, whatever was wrong in front of it.
        {"one alone is proven by a right offset", Behind().Record(1, 2000).Garbage(30), "150 0"},
        {"whatever moved in front", Behind().Record(1, 2000).Garbage(30), "150 0", kBegin, 40},
        {"and is not found from behind its begin", Behind().Record(1, 2000).Garbage(40), "none", 151},
        {"one alone that moved is none", Behind().Record(1, 2000, 40).Garbage(40), "none"},
        {"unless all in front of the damage moved so", Behind().Record(1, 2000, 40).Garbage(40), "150 40", kBegin, 40},
        {"or the end of its file did", Behind().Record(1, 2000, 40), "150 40", kBegin, 0, 150 + 17 + 1 - 40},
        {"as far", Behind().Record(1, 2000, 40), "none", kBegin, 0, 150 + 17 + 1 - 41},
        {"one alone must not go back in time", Behind().Record(1, 900).Garbage(40), "none"},
        {"one that is cut short is none", Behind().Record(1, 2000).CutBy(1), "none"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(one.found, Find(one.places, one.from, one.shortfall, one.endMark)) << one.behaviour;
    Places zeros;
    zeros.log.Raw(Bytes(200'000, 0));
    EXPECT_EQ("none", Find(zeros, kBegin));
}

TEST_F(LogResyncTest, SearchesAcrossItsBlocks) {
    for (const std::uint32_t gap : {65536U - 12, 65536U - 5, 65536U, 65536U + 5, 3 * 65536U}) {
        Places places;
        places.log.Raw(Bytes(gap, 0)).Raw(Bytes(20, 0xFF));
        places.Record(0, 2000, 7).Record(0, 2080, 7);
        EXPECT_EQ(Find(places, kBegin), std::to_string(kBegin + gap + 20) + " 7") << gap;
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
    Places places;
    std::uint64_t count = 0;
    for (; places.log.bytes.size() < 3'000'000; ++count) {
        places.log.Raw(Bytes(990, 1));
        places.Record(0, 2000);
    }
    const std::unique_ptr<IFile> file = Put(places);
    LogResync resync(*file, {3, 1'000'000}, kBegin, kNeverEnded);
    std::uint64_t found = 0;
    for (auto place = resync.Find(kBegin, 0, 0); place; place = resync.Find(place->offset + 1, 0, 0))
        ++found;
    EXPECT_EQ(found, count);
    EXPECT_LE(files_.reads, 5 * (places.log.bytes.size() / LogReader::kReadAhead + 2));
}

TEST_F(LogResyncTest, FailureToReadIsTold) {
    const std::unique_ptr<IFile> file = Put(Behind());
    for (const bool fails : {false, true}) {
        files_.failReads = fails;
        LogResync resync(*file, {3}, kBegin, kNeverEnded);
        EXPECT_FALSE(resync.Find(kBegin, 0, 0).has_value());
        EXPECT_EQ(fails, resync.Failed());
    }
}

}  // namespace
}  // namespace corvex::test
