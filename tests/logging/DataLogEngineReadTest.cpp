// Reading record by record, good logs and bad ones.
#include "tests/logging/LogTestHelper.h"

namespace corvex::test {
namespace {

class DataLogEngineReadTest : public LogFixture {
protected:
    std::uint32_t Read(std::uint32_t size = 16) { return log_.ReadRecord(&record_, buffer_.data(), size, &item_); }
    Bytes Data() const { return {buffer_.begin(), buffer_.begin() + 3}; }

    LogRecord record_;
    Bytes buffer_ = Bytes(16);
    const LogItem* item_ = nullptr;
};

TEST_F(DataLogEngineReadTest, EachRecordIsCountedAndTimedUpToTheEnd) {
    EXPECT_EQ(1U, Read()) << "a closed log can't be read";
    ASSERT_EQ(0U, Open(SmallLog(3)));
    for (std::uint32_t i = 0; i < 3; ++i) {
        ASSERT_EQ(0U, Read());
        EXPECT_EQ(i * 80, record_.timeMs);
        EXPECT_EQ(kSmallDataOffset + (i + 1) * 15, record_.nextOffset);
        EXPECT_EQ(DataOf(i), Data());
        EXPECT_EQ(kId, item_->commandId);
        EXPECT_EQ(i + 1, log_.sampleIndex);
        EXPECT_EQ(i * 80, log_.CurrentTime());
    }
    EXPECT_EQ(7U, Read());
    EXPECT_EQ(7U, Read());
    EXPECT_EQ(3U, log_.sampleIndex);
    EXPECT_EQ(160U, log_.CurrentTime());
}

TEST_F(DataLogEngineReadTest, NullAndASmallBufferAreRefused) {
    ASSERT_EQ(0U, Open(SmallLog(1)));
    EXPECT_EQ(9U, log_.ReadRecord(nullptr, buffer_.data(), 16, &item_));
    EXPECT_EQ(9U, log_.ReadRecord(&record_, nullptr, 16, &item_));
    EXPECT_EQ(9U, log_.ReadRecord(&record_, buffer_.data(), 16, nullptr));
    EXPECT_EQ(8U, Read(2));
    EXPECT_EQ(8U, Read(0));
    EXPECT_EQ(0U, log_.sampleIndex);
    EXPECT_EQ(0U, Read(3));
    EXPECT_EQ(DataOf(0), Data());
    ASSERT_EQ(0U, Open(SmallLog(2).PutWord32(44 + 24, 0xFFFFFFFF)));
    EXPECT_EQ(8U, Read()) << "an enormous record is too large for any buffer";
    EXPECT_EQ(0xFFFFFFFF, log_.MaxPackedSize());
}

TEST_F(DataLogEngineReadTest, UnknownItemIsPassedOverThroughItsOffset) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0));
    const auto here = static_cast<std::uint32_t>(bytes.bytes.size());
    bytes.RecordTo(here + 20, 1, 80, {1, 2, 3, 4, 5, 6, 7, 8}).Record(0, 160, DataOf(2));
    ASSERT_EQ(0U, Open(bytes.MarkEnd()));
    ASSERT_EQ(0U, Read());
    EXPECT_EQ(4U, Read());
    EXPECT_EQ(1, record_.itemIndex);
    EXPECT_EQ(here + 20, log_.Position());
    EXPECT_EQ(1U, log_.sampleIndex);
    EXPECT_EQ(0U, log_.CurrentTime());
    ASSERT_EQ(0U, Read());
    EXPECT_EQ(160U, record_.timeMs);
}

TEST_F(DataLogEngineReadTest, UnknownItemMayPointAnywhere) {
    for (const std::uint32_t next : {0U, kSmallDataOffset, kSmallDataOffset + 12, 0xFFFFFFFFU}) {
        LogBytes bytes = SmallLogHead();
        ASSERT_EQ(0U, Open(bytes.RecordTo(next, 255, 0, {}).MarkEnd()));
        EXPECT_EQ(4U, Read());
        EXPECT_EQ(next, log_.Position());
    }
    EXPECT_EQ(7U, Read());
}

TEST_F(DataLogEngineReadTest, OffsetOfAGoodRecordIsNotFollowed) {
    LogBytes bytes = SmallLogHead();
    bytes.RecordTo(1, 0, 0, DataOf(0))
        .RecordTo(0xFFFFFFFF, 0, 1, DataOf(1))
        .RecordTo(kSmallDataOffset, 0, 2, DataOf(2));
    ASSERT_EQ(0U, Open(bytes.MarkEnd()));
    const std::vector<ReadBack> records = ReadRest(log_);
    ASSERT_EQ(3U, records.size());
    EXPECT_EQ(DataOf(2), records[2].data);
}

TEST_F(DataLogEngineReadTest, TwelveZerosAreTheEnd) {
    LogBytes bytes = SmallLogHead();
    ASSERT_EQ(0U,
              Open(bytes.Record(0, 0, DataOf(0)).Raw(Bytes(12, 0)).Raw(DataOf(1)).Record(0, 80, DataOf(2)).MarkEnd()));
    std::uint32_t last = 0;
    EXPECT_EQ(1U, ReadRest(log_, &last).size());
    EXPECT_EQ(7U, last);
    EXPECT_EQ(7U, Read());
    EXPECT_EQ(1U, log_.sampleIndex);
    EXPECT_EQ(kSmallDataOffset + 15, log_.Position());
    // Eleven are a record like any other.
    LogBytes nearly = SmallLogHead();
    ASSERT_EQ(0U, Open(nearly.Raw({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}).Raw(DataOf(1))));
    EXPECT_EQ(0U, Read());
}

TEST_F(DataLogEngineReadTest, AnyFlippedByteComesToAnEnd) {
    const Bytes whole = SmallLog(3).bytes;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const unsigned flip : {0x01U, 0x80U, 0xFFU}) {
            Bytes bad = whole;
            bad[at] = static_cast<std::uint8_t>(bad[at] ^ flip);
            files_.Put(kPath, bad);
            const std::uint32_t result = log_.Open(kPath, kLogForReading);
            EXPECT_TRUE(result == 0 || result == 1 || result == 13) << at;
            EXPECT_EQ(at < 4, result == 13) << at;
            if (result != 0) continue;
            EXPECT_GE(9U, ReadRest(log_).size()) << at;  // a packedSize of 0 makes more of them
            ASSERT_NE(0U, log_.Close());
            EXPECT_EQ(bad, files_.Get(kPath)) << at;
        }
    }
}

TEST_F(DataLogEngineReadTest, ReservedBytesMayBeAnything) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Record(0, 80, DataOf(1)).MarkEnd();
    for (std::size_t i = 28; i < 36; ++i)
        bytes.bytes[i] = 0xAA;
    for (std::size_t i = 48; i < 64; ++i)
        bytes.bytes[i] = 0xBB;
    for (std::size_t i = 9; i < 12; ++i)
        bytes.bytes[kSmallDataOffset + i] = bytes.bytes[kSmallDataOffset + 15 + i] = 0xCC;
    ASSERT_EQ(0U, Open(bytes));
    const std::vector<ReadBack> records = ReadRest(log_);
    ASSERT_EQ(2U, records.size());
    EXPECT_EQ(DataOf(1), records[1].data);
}

TEST_F(DataLogEngineReadTest, LogThatGrowsIsReadOn) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Raw({1, 2});
    ASSERT_EQ(0U, Open(bytes));
    ASSERT_EQ(1U, ReadRest(log_).size());
    // Those two bytes were of a sample that was taken out again.
    const std::unique_ptr<IFile> writer = files_.Open(kPath, FileAccess::kReadWrite);
    LogBytes more;
    more.RecordTo(0, 0, 99, DataOf(7));
    ASSERT_TRUE(writer->Seek(kSmallDataOffset + 15));
    ASSERT_TRUE(writer->Write(more.bytes.data(), 15));
    EXPECT_EQ((std::vector<ReadBack>{{99, 0, DataOf(7)}}), ReadRest(log_));
}

TEST_F(DataLogEngineReadTest, FailedReadLeavesTheRecordToBeReadAgain) {
    // The data lies beyond what is read ahead with the head.
    LogBytes bytes;
    bytes.Header(kSmallDataOffset, 1).ItemCount(1).Item(kId, kTypeSendCommand, 70'000, 70'000, Bytes(15, 0xFF));
    ASSERT_EQ(0U, Open(bytes.Record(0, 5, Bytes(70'000, 0x42)).MarkEnd()));
    Bytes large(70'000);
    files_.failReads = true;
    EXPECT_EQ(1U, log_.ReadRecord(&record_, large.data(), 70'000, &item_));
    EXPECT_EQ(kSmallDataOffset, log_.Position());
    EXPECT_EQ(0U, log_.sampleIndex);
    files_.failReads = false;
    EXPECT_EQ(0U, log_.ReadRecord(&record_, large.data(), 70'000, &item_));
    EXPECT_EQ(Bytes(70'000, 0x42), large);
}

TEST_F(DataLogEngineReadTest, RecordWithoutDataIsARecord) {
    LogBytes bytes;
    bytes.Header(kSmallDataOffset, 2).ItemCount(1).Item(kId, kTypeSendCommand, 0, 0, Bytes(15, 0xFF));
    ASSERT_EQ(0U, Open(bytes.Record(0, 0, {}).Record(0, 9, {}).MarkEnd()));
    EXPECT_EQ(0U, Read(0));
    EXPECT_EQ(0U, Read(0));
    EXPECT_EQ(9U, record_.timeMs);
    EXPECT_EQ(7U, Read(0));
}

TEST_F(DataLogEngineReadTest, GoesToTheDataFromOutsideItAlone) {
    ASSERT_EQ(0U, Open(SmallLog(3)));
    ASSERT_EQ(0U, Read());
    log_.GoToData();
    EXPECT_EQ(kSmallDataOffset + 15, log_.Position());
    log_.header.endMark = kSmallDataOffset + 16;
    log_.GoToData();
    EXPECT_EQ(kSmallDataOffset + 15, log_.Position());
    log_.header.endMark = kSmallDataOffset + 15;
    log_.GoToData();
    EXPECT_EQ(kSmallDataOffset, log_.Position());
    log_.header = {};
    log_.header.endMark = kNeverEnded;
    log_.header.dataOffset = kSmallDataOffset + 30;
    log_.GoToData();
    EXPECT_EQ(kSmallDataOffset + 30, log_.Position());
}

}  // namespace
}  // namespace corvex::test
