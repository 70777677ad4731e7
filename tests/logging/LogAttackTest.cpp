// Logs that were cut, overwritten, lengthened and shortened at any place, against a count of what was written.
#include <gtest/gtest.h>

#include "logging/LogRescue.h"
#include "logging/LogWalk.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/logging/WrittenLog.h"
#include "tests/support/AttackRounds.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

struct Came {
    std::size_t place = 0;
    std::uint32_t timeMs = 0, item = 0;
    Bytes data;
};

// What a reader gave, and whether it told of a loss.
struct Reading {
    std::vector<Came> records;
    bool told = false;
};

class LogAttackTest : public ::testing::Test {
protected:
    bool Open(DataLogEngine& log, const DamagedLog& damaged) {
        files_.Put(kPath, damaged.bytes);
        return log.Open(kPath, kLogForLooking) == kLogSuccess;
    }
    Reading Walk(const DamagedLog& damaged) {
        Reading reading;
        DataLogEngine log(files_);
        if (!Open(log, damaged)) return {{}, true};
        LogWalk walk(log);
        while (walk.Next())
            reading.records.push_back({walk.Offset(), walk.Record().timeMs, walk.Record().itemIndex,
                                       Bytes(walk.Packed(), walk.Packed() + walk.Item().packedSize)});
        reading.told = walk.Left() + walk.Unknown() + walk.Gap() != 0 || walk.Records() < log.header.sampleCount;
        return reading;
    }

    Reading Rescue(const DamagedLog& damaged) {
        Reading reading;
        DataLogEngine log(files_);
        if (!Open(log, damaged)) return {{}, true};
        std::vector<LogItem> items;
        for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
            items.push_back(*log.GetItem(i));
        const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
        LogRescue rescue(*file, log.header, items, log.Position());
        while (rescue.Next())
            reading.records.push_back(
                {rescue.Offset(), rescue.Record().timeMs, rescue.Record().itemIndex,
                 Bytes(rescue.Packed(), rescue.Packed() + items[rescue.Record().itemIndex].packedSize)});
        reading.told =
            rescue.Places() + rescue.Unknown() + rescue.Left() != 0 || rescue.Records() < log.header.sampleCount;
        return reading;
    }

    // As a playback reads: the records in front of the damage come, whatever comes then.
    std::size_t Played(const DamagedLog& damaged) {
        DataLogEngine log(files_);
        if (!Open(log, damaged)) return 0;
        log.GoToData();
        const std::vector<ReadBack> records = ReadRest(log);
        std::size_t same = 0;
        for (; same < std::min(records.size(), damaged.written.records.size()); ++same) {
            const WrittenRecord& record = damaged.written.records[same];
            if (records[same].timeMs != record.timeMs || records[same].data != record.data) break;
        }
        return same;
    }

    // All that stands whole in front of byte `first` came; of what stands behind it `missed_` counts those that did
    // not; nothing came that was not written there. Returns how many came that were whole.
    std::size_t Judge(const DamagedLog& damaged, const Reading& reading, std::size_t first, bool goesOn) {
        std::size_t next = 0, whole = 0;
        for (const WrittenRecord& record : damaged.written.records) {
            const std::optional<std::size_t> place = damaged.PlaceOf(record);
            if (!place) continue;
            while (next < reading.records.size() && reading.records[next].place < *place)
                ExpectSpoiled(damaged, reading.records[next++]);
            const bool came = next < reading.records.size() && reading.records[next].place == *place;
            if (came) {
                const Came& found = reading.records[next++];
                EXPECT_TRUE(found.timeMs == record.timeMs && found.item == record.item && found.data == record.data);
                ++whole;
            }
            const bool before = record.offset + record.size <= first;
            EXPECT_TRUE(came || !before) << "the record at " << record.offset << " in front of the damage is lost";
            if (!before && goesOn) ++(came ? saved_ : missed_);
        }
        while (next < reading.records.size())
            ExpectSpoiled(damaged, reading.records[next++]);
        return whole;
    }

    // A record whose own bytes were hit behind its nextOffset can't be told from a whole one.
    void ExpectSpoiled(const DamagedLog& damaged, const Came& came) {
        ++spoiled_;
        for (const WrittenRecord& record : damaged.written.records) {
            if (record.offset != came.place || WrittenLog::kSizes[record.item] != came.data.size()) continue;
            const auto head = damaged.bytes.begin() + static_cast<std::ptrdiff_t>(came.place);
            if (std::equal(head, head + 4, damaged.written.bytes.begin() + static_cast<std::ptrdiff_t>(came.place)))
                return;
        }
        ADD_FAILURE() << "a record at " << came.place << " was never written: " << came.timeMs << " ms";
    }

    // `first` is the first byte that is lost or changed. Times of records that are let by do not fall, unless single
    // bits of them may have been changed.
    void Attack(const DamagedLog& damaged, std::size_t first, bool timesMayFall = false) {
        const auto before = static_cast<std::size_t>(
            std::count_if(damaged.written.records.begin(), damaged.written.records.end(),
                          [&](const WrittenRecord& record) { return record.offset + record.size <= first; }));
        EXPECT_GE(Played(damaged), before);
        const std::size_t count = damaged.written.records.size();
        const Reading walked = Walk(damaged), rescued = Rescue(damaged);
        Judge(damaged, walked, first, false);
        EXPECT_TRUE(walked.told || walked.records.size() == count || silent_);
        Judge(damaged, rescued, first, true);
        EXPECT_TRUE(rescued.told || rescued.records.size() == count || silent_);
        for (std::size_t i = 1; i < rescued.records.size() && !timesMayFall; ++i)
            EXPECT_LE(rescued.records[i - 1].timeMs, rescued.records[i].timeMs);
    }

    void ExpectNearlyAllSaved() const {
        EXPECT_LE(missed_ * 100, saved_ + missed_);
        RecordProperty("saved", static_cast<int>(saved_));
        RecordProperty("missed", static_cast<int>(missed_));
        RecordProperty("spoiled", static_cast<int>(spoiled_));
    }

    MemoryFiles files_;
    std::size_t saved_ = 0, missed_ = 0, spoiled_ = 0;
    bool silent_ = false;  // nobody can know that something is lost
};

std::uint32_t Draw(std::mt19937& random, std::size_t below) {
    return static_cast<std::uint32_t>(random() % below);
}

Bytes Noise(std::mt19937& random, std::size_t count) {
    Bytes bytes(count);
    const std::uint32_t kind = Draw(random, 3);
    for (std::uint8_t& byte : bytes)
        byte = kind == 0 ? std::uint8_t{0} : kind == 1 ? std::uint8_t{0xFF} : static_cast<std::uint8_t>(random());
    return bytes;
}

bool IsBorder(const WrittenLog& log, std::size_t at) {
    return std::any_of(log.records.begin(), log.records.end(),
                       [&](const WrittenRecord& record) { return record.offset == at; });
}

TEST_F(LogAttackTest, CutAtEveryByte) {
    for (const bool crashed : {false, true}) {
        const WrittenLog log = WriteLog(1, 40, crashed);
        for (std::size_t size = WrittenLog::kTableEnd; size < log.bytes.size(); ++size) {
            SCOPED_TRACE(size);
            silent_ = crashed && IsBorder(log, size);
            Attack(Replace(log, size, log.bytes.size() - size, {}), size);
        }
    }
    ExpectNearlyAllSaved();
}

TEST_F(LogAttackTest, HoleOfZerosAtEveryBlock) {
    for (const bool crashed : {false, true}) {
        const WrittenLog log = WriteLog(2, 400, crashed);
        for (std::size_t at = 512; at < log.bytes.size(); at += 512) {
            SCOPED_TRACE(at);
            Bytes bytes = log.bytes;
            std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                      bytes.begin() + static_cast<std::ptrdiff_t>(std::min(at + 512, bytes.size())), std::uint8_t{0});
            Attack(Change(log, std::move(bytes)), at);
        }
    }
    ExpectNearlyAllSaved();
}

TEST_F(LogAttackTest, BlocksInsertedAndRemoved) {
    std::mt19937 random(3);
    for (unsigned i = 0; i < AttackRounds(40); ++i) {
        const bool crashed = i % 2 != 0, fewBytes = i % 8 < 2, inserts = i % 4 < 2;
        const WrittenLog log = WriteLog(Draw(random, 1000), 300, crashed);
        const std::size_t at = WrittenLog::kTableEnd + Draw(random, log.bytes.size() - WrittenLog::kTableEnd);
        const std::size_t count = 1 + Draw(random, !fewBytes ? 5000 : inserts ? 8 : 100);
        SCOPED_TRACE(testing::Message() << "round " << i << " at " << at << ", " << count);
        if (inserts) {
            Attack(Replace(log, at, 0, Noise(random, count)), at);
            continue;
        }
        const std::size_t removed = std::min(count, log.bytes.size() - at);
        silent_ = crashed && IsBorder(log, at) && at + removed == log.bytes.size();
        Attack(Replace(log, at, removed, {}), at);
        silent_ = false;
    }
    ExpectNearlyAllSaved();
}

// Where a flip leaves a log that says something else, or none: the version, the start, and of an item its id, its type,
// its mask and how long its records are.
bool IsUnknowable(std::size_t at) {
    if (at < 4 || (at >= 12 && at < 28)) return true;
    if (at < 40 || at >= WrittenLog::kTableEnd) return false;
    if (at < 44) return false;
    const std::size_t field = (at - 44) % 48;
    return field < 28 || field > 32;
}

TEST_F(LogAttackTest, TwoBitsFlipped) {
    std::mt19937 random(5);
    for (unsigned i = 0; i < AttackRounds(500); ++i) {
        const WrittenLog log = WriteLog(Draw(random, 50), 100, i % 2 != 0);
        Bytes bytes = log.bytes;
        std::size_t first = bytes.size();
        for (int flips = 0; flips < 2;) {
            const std::size_t at = Draw(random, bytes.size());
            if (IsUnknowable(at)) continue;
            bytes[at] = static_cast<std::uint8_t>(bytes[at] ^ 1U << Draw(random, 8));
            first = std::min(first, at);
            ++flips;
        }
        SCOPED_TRACE(testing::Message() << "round " << i << ", first at " << first);
        // A wrong dataOffset stands in front of all.
        Attack(Change(log, std::move(bytes)), first < WrittenLog::kTableEnd ? 0 : first, true);
    }
    ExpectNearlyAllSaved();
}

}  // namespace
}  // namespace corvex::test
