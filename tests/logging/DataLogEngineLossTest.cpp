// What a recording keeps when writing fails.
#include "tests/logging/LogTestHelper.h"

namespace corvex::test {
namespace {

class DataLogEngineLossTest : public LogFixture {
protected:
    void SetUp() override { BeginRecording({MakeItem(kId, 3), MakeItem(5, 60)}); }
    std::uint32_t AddLong() { return Add(Bytes(60, 0xBB), 5); }

    const std::uint64_t dataOffset_ = LogBytes::DataOffsetFor({15, 15});
};

TEST_F(DataLogEngineLossTest, SampleIsOneWrite) {
    ASSERT_EQ(0U, AddRecord(0));
    const std::uint64_t first = files_.writes;
    for (std::uint32_t i = 1; i <= 100; ++i) {
        ASSERT_EQ(0U, AddRecord(i));
        ASSERT_EQ(first + i, files_.writes);
    }
    EXPECT_EQ(15U, files_.Writes().back().count);
    EXPECT_EQ(0U, files_.reads);
}

TEST_F(DataLogEngineLossTest, FailedWriteLosesThatSampleAlone) {
    ASSERT_EQ(0U, AddRecord(0));
    files_.FailWriteAfter(0);
    EXPECT_EQ(1U, AddRecord(1));
    ASSERT_EQ(0U, AddRecord(2));
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(2)}), RecordedData());
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(2U, log_.header.sampleCount);
}

TEST_F(DataLogEngineLossTest, PartOfASampleIsTakenOutAgain) {
    for (std::uint32_t taken = 1; taken < 15; ++taken) {
        BeginRecording();
        ASSERT_EQ(0U, AddRecord(0));
        const Bytes before = files_.Get(kPath);
        files_.FailWriteAfter(0, taken);
        EXPECT_EQ(1U, AddRecord(1));
        EXPECT_EQ(before, files_.Get(kPath)) << taken;
        ASSERT_EQ(0U, AddRecord(2));
        EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(2)}), RecordedData()) << taken;
    }
}

TEST_F(DataLogEngineLossTest, FullDiskKeepsWhatItHoldsAndGoesOnWhenThereIsRoom) {
    files_.room = dataOffset_ + 2 * 15 + 7;
    ASSERT_EQ(0U, AddRecord(0));
    ASSERT_EQ(0U, AddRecord(1));
    EXPECT_EQ(1U, AddRecord(2));
    EXPECT_EQ(1U, AddLong());
    EXPECT_EQ(kLogRecording, log_.State());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1)}), RecordedData());
    files_.room = MemoryFiles::kNoLimit;
    ASSERT_EQ(0U, AddRecord(3));
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(3)}), RecordedData());
    EXPECT_EQ(dataOffset_ + 3 * 15 + 1, log_.header.endMark);
}

// The last room is enough for the head and for no sample.
TEST_F(DataLogEngineLossTest, HeadThatFindsNoRoomIsWrittenWithTheNextSample) {
    for (const std::uint64_t room : {std::uint64_t{0}, std::uint64_t{30}, std::uint64_t{60}, dataOffset_ + 4}) {
        files_.room = room;
        EXPECT_EQ(1U, AddRecord(0));
        EXPECT_EQ(0U, log_.header.sampleCount);
    }
    files_.room = MemoryFiles::kNoLimit;
    ASSERT_EQ(0U, AddRecord(1));
    EXPECT_EQ((std::vector<Bytes>{DataOf(1)}), RecordedData());
}

// A part that the system would not take out either is at least never read as a record of a finished log.
TEST_F(DataLogEngineLossTest, PartThatCannotBeTakenOutGoesAtTheStop) {
    ASSERT_EQ(0U, AddRecord(0));
    files_.failEndHere = true;
    files_.FailWriteAfter(0, 50);
    EXPECT_EQ(1U, AddLong());
    ASSERT_EQ(0U, AddRecord(1));
    files_.failEndHere = false;
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1)}), RecordedData());
    EXPECT_EQ(dataOffset_ + 30, files_.Get(kPath).size());
    EXPECT_EQ(dataOffset_ + 31, log_.header.endMark);
}

TEST_F(DataLogEngineLossTest, StopThatFailsGoesOnRecording) {
    ASSERT_EQ(0U, AddRecord(0));
    files_.FailWriteAfter(0);
    EXPECT_EQ(1U, log_.StopRecording());
    EXPECT_EQ(kLogRecording, log_.State());
    files_.FailWriteAfter(1);  // the table goes out, the header does not
    EXPECT_EQ(1U, log_.StopRecording());
    files_.failSize = true;
    EXPECT_EQ(1U, log_.StopRecording());
    files_.failSize = false;
    EXPECT_EQ(kLogRecording, log_.State());
    ASSERT_EQ(0U, AddRecord(1));
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1)}), RecordedData());
}

TEST_F(DataLogEngineLossTest, CloseThatFailsKeepsTheFile) {
    ASSERT_EQ(0U, AddRecord(0));
    files_.failSeeks = true;
    EXPECT_EQ(0U, log_.Close());
    EXPECT_EQ(kLogRecording, log_.State());
    files_.failSeeks = false;
    ASSERT_EQ(0U, AddRecord(1));
    EXPECT_NE(0U, log_.Close());
    EXPECT_EQ(2U, RecordedData().size());
}

TEST_F(DataLogEngineLossTest, SampleLargerThanAnyFileIsRefused) {
    BeginRecording({MakeItem(kId, 0xFFFFFFF4), MakeItem(6, 3)});
    EXPECT_EQ(1U, AddRecord(0));
    ASSERT_EQ(0U, Add(DataOf(1), 6));
    ASSERT_EQ(0U, Add(DataOf(2), 6));
    ASSERT_EQ(0U, log_.StopRecording());
}

}  // namespace
}  // namespace corvex::test
