// What a recording keeps when writing fails.
#include <gtest/gtest.h>

#include "tests/logging/LogTestHelper.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

class DataLogEngineLossTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
        ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 3)));
        ASSERT_EQ(0U, log_.AddItem(MakeItem(5, 60)));
        ASSERT_EQ(0U, log_.StartRecording());
    }
    std::uint32_t Add(std::uint32_t i) { return log_.AddSample(kId, DataOf(i).data(), 3); }
    std::uint32_t AddLong() {
        const Bytes reply(60, 0xBB);
        return log_.AddSample(5, reply.data(), 60);
    }
    // Data of all records in the file as it is now.
    std::vector<Bytes> Recorded() {
        DataLogEngine reader(files_);
        EXPECT_EQ(0U, reader.Open(kPath, kLogForLooking));
        std::vector<Bytes> data;
        std::uint32_t last = 0;
        for (const ReadBack& record : ReadRest(reader, &last))
            data.push_back(record.data);
        EXPECT_EQ(7U, last);
        return data;
    }

    const std::uint64_t dataOffset_ = LogBytes::DataOffsetFor({15, 15});
    MemoryFiles files_;
    DataLogEngine log_{files_};
};

TEST_F(DataLogEngineLossTest, SampleIsOneWrite) {
    ASSERT_EQ(0U, Add(0));
    const std::uint64_t first = files_.writes;
    for (std::uint32_t i = 1; i <= 100; ++i) {
        ASSERT_EQ(0U, Add(i));
        ASSERT_EQ(first + i, files_.writes);
    }
    EXPECT_EQ(15U, files_.Writes().back().count);
    EXPECT_EQ(0U, files_.reads);
}

TEST_F(DataLogEngineLossTest, FailedWriteLosesThatSampleAlone) {
    ASSERT_EQ(0U, Add(0));
    files_.FailWriteAfter(0);
    EXPECT_EQ(1U, Add(1));
    ASSERT_EQ(0U, Add(2));
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(2)}), Recorded());
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(2U, log_.header.sampleCount);
}

TEST_F(DataLogEngineLossTest, PartOfASampleIsTakenOutAgain) {
    for (std::uint32_t taken = 1; taken < 15; ++taken) {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
        ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 3)));
        ASSERT_EQ(0U, log_.StartRecording());
        ASSERT_EQ(0U, Add(0));
        const Bytes before = files_.Get(kPath);
        files_.FailWriteAfter(0, taken);
        EXPECT_EQ(1U, Add(1));
        EXPECT_EQ(before, files_.Get(kPath)) << taken;
        ASSERT_EQ(0U, Add(2));
        EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(2)}), Recorded()) << taken;
    }
}

TEST_F(DataLogEngineLossTest, FullDiskKeepsWhatItHoldsAndGoesOnWhenThereIsRoom) {
    files_.room = dataOffset_ + 2 * 15 + 7;
    ASSERT_EQ(0U, Add(0));
    ASSERT_EQ(0U, Add(1));
    EXPECT_EQ(1U, Add(2));
    EXPECT_EQ(1U, AddLong());
    EXPECT_EQ(kLogRecording, log_.State());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1)}), Recorded());
    files_.room = MemoryFiles::kNoLimit;
    ASSERT_EQ(0U, Add(3));
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(3)}), Recorded());
    EXPECT_EQ(dataOffset_ + 3 * 15 + 1, log_.header.endMark);
}

TEST_F(DataLogEngineLossTest, FullDiskCanBeStoppedAndClosed) {
    files_.room = dataOffset_ + 15 + 7;
    ASSERT_EQ(0U, Add(0));
    EXPECT_EQ(1U, Add(1));
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_NE(0U, log_.Close());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0)}), Recorded());
}

TEST_F(DataLogEngineLossTest, HeadThatFindsNoRoomIsWrittenWithTheNextSample) {
    for (const std::uint64_t room : {0U, 30U, 60U}) {
        files_.room = room;
        EXPECT_EQ(1U, Add(0));
        EXPECT_EQ(0U, log_.header.sampleCount);
    }
    files_.room = MemoryFiles::kNoLimit;
    ASSERT_EQ(0U, Add(1));
    EXPECT_EQ((std::vector<Bytes>{DataOf(1)}), Recorded());
}

TEST_F(DataLogEngineLossTest, FirstSampleThatFailsIsNotTheFirst) {
    files_.FailWriteAfter(2, 4);
    EXPECT_EQ(1U, Add(0));
    ASSERT_EQ(0U, Add(1));
    EXPECT_EQ((std::vector<Bytes>{DataOf(1)}), Recorded());
}

// A part that the system would not take out either is at least never read as a record of a finished log.
TEST_F(DataLogEngineLossTest, PartThatCannotBeTakenOutGoesAtTheStop) {
    ASSERT_EQ(0U, Add(0));
    files_.failEndHere = true;
    files_.FailWriteAfter(0, 50);
    EXPECT_EQ(1U, AddLong());
    ASSERT_EQ(0U, Add(1));
    files_.failEndHere = false;
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1)}), Recorded());
    EXPECT_EQ(dataOffset_ + 30, files_.Get(kPath).size());
    EXPECT_EQ(dataOffset_ + 31, log_.header.endMark);
}

TEST_F(DataLogEngineLossTest, StopThatFailsGoesOnRecording) {
    ASSERT_EQ(0U, Add(0));
    files_.FailWriteAfter(0);
    EXPECT_EQ(1U, log_.StopRecording());
    EXPECT_EQ(kLogRecording, log_.State());
    files_.FailWriteAfter(1);  // the table goes out, the header does not
    EXPECT_EQ(1U, log_.StopRecording());
    files_.failSize = true;
    EXPECT_EQ(1U, log_.StopRecording());
    files_.failSize = false;
    EXPECT_EQ(kLogRecording, log_.State());
    ASSERT_EQ(0U, Add(1));
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1)}), Recorded());
}

TEST_F(DataLogEngineLossTest, CloseThatFailsKeepsTheFile) {
    ASSERT_EQ(0U, Add(0));
    files_.failSeeks = true;
    EXPECT_EQ(0U, log_.Close());
    EXPECT_EQ(kLogRecording, log_.State());
    files_.failSeeks = false;
    ASSERT_EQ(0U, Add(1));
    EXPECT_NE(0U, log_.Close());
    EXPECT_EQ(2U, Recorded().size());
}

TEST_F(DataLogEngineLossTest, SampleLargerThanAnyFileIsRefused) {
    ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
    ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 0xFFFFFFF4)));
    ASSERT_EQ(0U, log_.AddItem(MakeItem(6, 3)));
    ASSERT_EQ(0U, log_.StartRecording());
    EXPECT_EQ(1U, Add(0));
    ASSERT_EQ(0U, log_.AddSample(6, DataOf(1).data(), 3));
    ASSERT_EQ(0U, log_.AddSample(6, DataOf(2).data(), 3));
    ASSERT_EQ(0U, log_.StopRecording());
}

TEST_F(DataLogEngineLossTest, ReadingAndClosingNeverTouchesARecording) {
    for (std::uint32_t i = 0; i < 10; ++i)
        ASSERT_EQ(0U, Add(i));
    const Bytes died = files_.Get(kPath);  // as if the program had died here
    files_.Put("died.xdl", died);
    DataLogEngine reader(files_);
    ASSERT_EQ(0U, reader.Open("died.xdl", kLogForReading));
    EXPECT_EQ(10U, ReadRest(reader).size());
    ASSERT_NE(0U, reader.Close());
    EXPECT_EQ(died, files_.Get("died.xdl"));
}

}  // namespace
}  // namespace corvex::test
