// What a recording puts into its file, and when.
#include <array>

#include "tests/logging/LogTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

class DataLogEngineRecordingTest : public StandingClock, public LogFixture {
protected:
    // Words of the header as they are in the file.
    std::uint32_t FileWord(std::size_t offset) const {
        const Bytes file = files_.Get(kPath);
        std::uint32_t word = 0;
        for (std::size_t i = 0; i < 4; ++i)
            word |= static_cast<std::uint32_t>(file.at(offset + i)) << (8 * i);
        return word;
    }
};

TEST_F(DataLogEngineRecordingTest, FileIsExactToTheByte) {
    BeginRecording({MakeItem(kId, 3), MakeItem(0xCAFE, 2, kType160BaudListen)});
    log_.header.startTime = {2026, 7, 3, 1, 12, 34, 56, 789};
    ASSERT_EQ(0U, Add({1, 2, 3}));
    clock_.AdvanceMilliseconds(80);
    ASSERT_EQ(0U, Add({8, 9}, 0xCAFE));
    clock_.AdvanceMilliseconds(100'000);
    ASSERT_EQ(0U, Add({4, 5, 6}));
    ASSERT_EQ(0U, log_.StopRecording());
    ASSERT_NE(0U, log_.Close());

    LogBytes expected;
    expected.Header(LogBytes::DataOffsetFor({15, 15}), 3).ItemCount(2);
    expected.Item(kId, 0x20000, 3, 3, Bytes(15, 0xFF)).Item(0xCAFE, 0x100000, 2, 2, Bytes(15, 0xFF));
    expected.Record(0, 0, {1, 2, 3}).Record(1, 80, {8, 9}).Record(0, 100'080, {4, 5, 6}).MarkEnd();
    EXPECT_EQ(expected.bytes, files_.Get(kPath));
}

TEST_F(DataLogEngineRecordingTest, StartTimeIsTheLocalTime) {
    const auto upToMinutes = [](const LocalTime& t) {
        return std::array{t.year, t.month, t.dayOfWeek, t.day, t.hour, t.minute};
    };
    LocalTime before{}, after{};
    do {  // within a minute
        before = CurrentLocalTime();
        BeginRecording();
        after = CurrentLocalTime();
    } while (before.minute != after.minute);
    const LocalTime& start = log_.header.startTime;
    EXPECT_EQ(upToMinutes(before), upToMinutes(start));
    ASSERT_EQ(0U, Add({1, 2, 3}));
    EXPECT_EQ(static_cast<std::uint32_t>(start.year | start.month << 16), FileWord(12));
}

TEST_F(DataLogEngineRecordingTest, StartsFromAFileOpenedForWritingAlone) {
    EXPECT_EQ(3U, log_.StartRecording());
    BeginRecording();
    EXPECT_EQ(kLogRecording, log_.State());
    EXPECT_EQ(3U, log_.StartRecording());
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(3U, log_.StartRecording());
    for (const std::uint32_t state : {kLogClosed, kLogReady, kLogOpenedForWrite, kLogPlaying, kLogStopRequested}) {
        log_.state = state;
        EXPECT_EQ(3U, log_.StopRecording());
        EXPECT_EQ(3U, Add({1, 2, 3}));
    }
    log_.state = kLogClosed;
}

TEST_F(DataLogEngineRecordingTest, FirstSampleBringsTheTableAndAHeaderWithoutEnd) {
    BeginRecording();
    EXPECT_EQ(0U, files_.writes);
    EXPECT_EQ(Bytes(), files_.Get(kPath));
    ASSERT_EQ(0U, Add({1, 2, 3}));
    EXPECT_EQ(Listed(3, kSmallDataOffset, 0xFFFFFFFF, 0), Listed(FileWord(0), FileWord(4), FileWord(8), FileWord(36)));
    EXPECT_EQ(kSmallDataOffset + 15, files_.Get(kPath).size());
    EXPECT_EQ(1U, log_.header.sampleCount);
}

TEST_F(DataLogEngineRecordingTest, StopMarksEndAndCountAndTheLogCanBeRead) {
    BeginRecording();
    ASSERT_EQ(0U, AddRecord(0));
    ASSERT_EQ(0U, AddRecord(1));
    EXPECT_EQ(0U, log_.readMode);
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(kLogReady, log_.State());
    EXPECT_EQ(1U, log_.readMode);
    EXPECT_EQ(kSmallDataOffset + 30 + 1, FileWord(8));
    EXPECT_EQ(2U, FileWord(36));
    EXPECT_EQ(DataOf(1), ReadRest(log_).at(1).data);
    const Bytes stopped = files_.Get(kPath);
    ASSERT_NE(0U, log_.Close());
    EXPECT_EQ(stopped, files_.Get(kPath));
}

// The size is taken before the table is written, and is 0 then: the order of the steps is part of the format's life.
TEST_F(DataLogEngineRecordingTest, RecordingWithoutSamplesEndsAtOne) {
    BeginRecording();
    ASSERT_EQ(0U, log_.StopRecording());
    ASSERT_NE(0U, log_.Close());
    EXPECT_EQ(1U, FileWord(8));
    EXPECT_EQ(0U, FileWord(36));
    EXPECT_EQ(kSmallDataOffset, files_.Get(kPath).size());
    EXPECT_TRUE(Recorded().empty());
}

TEST_F(DataLogEngineRecordingTest, TimesAreRoundedToNearest) {
    BeginRecording();
    ASSERT_EQ(0U, Add({1, 2, 3}));
    for (const std::int64_t step : {499, 2, 998, 2, 999}) {  // 0.499, 0.501, 1.499, 1.501, 2.500 ms
        clock_.Advance(step);
        ASSERT_EQ(0U, Add({1, 2, 3}));
    }
    std::vector<std::uint32_t> times;
    for (const ReadBack& record : Recorded())
        times.push_back(record.timeMs);
    EXPECT_EQ((std::vector<std::uint32_t>{0, 0, 1, 1, 2, 3}), times);
}

TEST_F(DataLogEngineRecordingTest, SecondRecordingBeginsAtZeroAgain) {
    clock_.AdvanceMilliseconds(1000);
    for (int round = 0; round < 2; ++round) {
        BeginRecording();
        clock_.AdvanceMilliseconds(300);
        ASSERT_EQ(0U, Add({1, 2, 3}));
        clock_.AdvanceMilliseconds(40);
        ASSERT_EQ(0U, Add({1, 2, 3}));
        ASSERT_EQ(0U, log_.StopRecording());
        clock_.AdvanceMilliseconds(7000);
        ASSERT_EQ(2U, Recorded().size());
        EXPECT_EQ(0U, Recorded().at(0).timeMs);
        EXPECT_EQ(40U, Recorded().at(1).timeMs);
    }
}

TEST_F(DataLogEngineRecordingTest, CommandsOfOneIdShareTheLastItemAndAnUnknownOneWritesNothing) {
    BeginRecording({MakeItem(kId, 3), MakeItem(kId, 2)});
    EXPECT_EQ(4U, Add({1, 2, 3}, 0x9999));
    EXPECT_EQ(0U, files_.writes);
    EXPECT_EQ(0U, log_.header.sampleCount);
    ASSERT_EQ(0U, Add({1, 2, 3}));
    EXPECT_EQ((std::vector<ReadBack>{{0, 1, {1, 2}}}), Recorded());
}

TEST_F(DataLogEngineRecordingTest, ReplyIsFittedToTheItem) {
    BeginRecording();
    for (const Bytes& reply : {Bytes{1, 2, 3, 4, 5}, Bytes{6}, Bytes{}})
        ASSERT_EQ(0U, Add(reply));
    ASSERT_EQ(0U, log_.AddSample(kId, nullptr, 3));
    EXPECT_EQ((std::vector<Bytes>{{1, 2, 3}, {6, 0, 0}, {0, 0, 0}, {0, 0, 0}}), RecordedData());
}

TEST_F(DataLogEngineRecordingTest, MaskLeavesGapsOfZeros) {
    LogItem item = MakeItem(kId, 4);
    item.mask = LogMask(Bytes{0x0A});
    BeginRecording({MakeItem(1, 4), item});
    ASSERT_EQ(0U, Add({9, 9, 9, 9}, 1));  // leaves nines in the buffer
    ASSERT_EQ(0U, Add({1, 2, 3, 4}));
    EXPECT_EQ((Bytes{0, 2, 0, 4}), Recorded().at(1).data);
}

TEST_F(DataLogEngineRecordingTest, OnlyTheFirst256ItemsCanBeRecorded) {
    std::vector<LogItem> items;
    for (std::uint32_t i = 0; i < 258; ++i)
        items.push_back(MakeItem(1000 + i, 1));
    BeginRecording(items);
    EXPECT_EQ(0U, Add({1}, 1000 + 255));
    EXPECT_EQ(4U, Add({1}, 1000 + 256));
    EXPECT_EQ(255U, Recorded().at(0).itemIndex);
}

TEST_F(DataLogEngineRecordingTest, TableStaysWhileRecording) {
    BeginRecording();
    EXPECT_EQ(3U, log_.AddItem(MakeItem(7, 7)));
    EXPECT_EQ(3U, log_.SetItem(0, MakeItem(7, 7)));
    EXPECT_EQ(3U, log_.SetItemCount(0));
    EXPECT_EQ(1U, log_.ItemCount());
    EXPECT_EQ(kId, log_.GetItem(0)->commandId);
}

TEST_F(DataLogEngineRecordingTest, HeadNeverReachesTheRecords) {
    BeginRecording({MakeItem(kId, 3), MakeItem(5, 5)});
    const std::uint32_t dataOffset = LogBytes::DataOffsetFor({15, 15});
    for (int i = 0; i < 5; ++i)
        ASSERT_EQ(0U, Add({1, 2, 3}));
    ASSERT_EQ(0U, log_.WriteHeader());
    ASSERT_EQ(0U, Add({1, 2, 3}));
    ASSERT_EQ(0U, log_.StopRecording());
    ASSERT_EQ(0U, log_.AddItem(MakeItem(6, 6)));  // no longer goes into the file
    ASSERT_NE(0U, log_.Close());
    std::uint64_t end = dataOffset;
    for (const MemoryFiles::Written& write : files_.Writes()) {
        if (write.offset < dataOffset) {
            EXPECT_LE(write.offset + write.count, dataOffset);
            continue;
        }
        EXPECT_EQ(end, write.offset);
        end = write.offset + write.count;
    }
    EXPECT_EQ(6U, Recorded().size());
}

TEST_F(DataLogEngineRecordingTest, TimesAreZeroWithoutACounter) {
    VirtualClock none(0);
    const ScopedClock scoped(none);
    BeginRecording();
    ASSERT_EQ(0U, AddRecord(0));
    ASSERT_EQ(0U, AddRecord(1));
    EXPECT_EQ(0U, Recorded().at(1).timeMs);
}

}  // namespace
}  // namespace corvex::test
