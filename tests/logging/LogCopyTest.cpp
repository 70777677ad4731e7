#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "logging/LogCopy.h"
#include "tests/support/LogBytes.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

// A file in memory whose disk may be full.
class MemoryFile : public IFile {
public:
    std::optional<std::uint32_t> Read(void*, std::uint32_t) override { return std::nullopt; }
    bool Write(const void* from, std::uint32_t count) override {
        ++writes;
        if (at_ + count > room) return false;
        bytes.resize(std::max(bytes.size(), at_ + count));
        const auto* const data = static_cast<const std::uint8_t*>(from);
        std::copy(data, data + count, bytes.begin() + static_cast<std::ptrdiff_t>(at_));
        at_ += count;
        return true;
    }
    std::uint64_t Position() const override { return at_; }
    bool Seek(std::uint64_t offset) override {
        at_ = static_cast<std::size_t>(offset);
        return true;
    }
    std::optional<std::uint64_t> Size() const override { return bytes.size(); }
    bool EndHere() override { return false; }

    Bytes bytes;
    std::size_t room = std::numeric_limits<std::size_t>::max();
    int writes = 0;

private:
    std::size_t at_ = 0;
};

constexpr LocalTime kStart{2026, 7, 3, 1, 12, 34, 56, 789};

LogItem Item(std::uint32_t commandId, std::uint32_t size) {
    LogItem item;
    item.commandId = commandId;
    item.type = 0x20000;
    item.packedSize = item.fullSize = size;
    item.mask = LogMask::AllSet();
    return item;
}

TEST(LogCopyTest, WritesAFinishedLog) {
    MemoryFile file;
    LogCopy copy(file);
    ASSERT_TRUE(copy.Begin(kStart, {Item(0x11, 2), Item(0x22, 3)}));
    EXPECT_TRUE(copy.Add(1, 0, Bytes{1, 2, 3}.data()));
    EXPECT_TRUE(copy.Add(0, 83, Bytes{4, 5}.data()));
    EXPECT_TRUE(copy.Finish());
    LogBytes log;
    log.Header(140, 2)
        .ItemCount(2)
        .Item(0x11, 0x20000, 2, 2, Bytes(15, 0xFF))
        .Item(0x22, 0x20000, 3, 3, Bytes(15, 0xFF));
    log.Record(1, 0, {1, 2, 3}).Record(0, 83, {4, 5}).MarkEnd();
    EXPECT_EQ(file.bytes, log.bytes);
}

TEST(LogCopyTest, KeepsMasksAndEmptiesWhatIsReserved) {
    MemoryFile file;
    LogCopy copy(file);
    LogItem item = Item(0x11, 1);
    item.mask = LogMask({0x05});
    item.title[0] = 'x';
    item.reserved = 9;
    item.fullSize = 3;
    ASSERT_TRUE(copy.Begin(kStart, {item}));
    EXPECT_TRUE(copy.Add(0, 5, Bytes{1}.data()));
    EXPECT_TRUE(copy.Finish());
    LogBytes log;
    log.Header(78, 1).ItemCount(1).Item(0x11, 0x20000, 1, 3, {0x05}).Record(0, 5, {1}).MarkEnd();
    EXPECT_EQ(file.bytes, log.bytes);
}

TEST(LogCopyTest, MarksALogWithoutRecordsAsTheRecorderDoes) {
    MemoryFile file;
    LogCopy copy(file);
    ASSERT_TRUE(copy.Begin(kStart, {}));
    EXPECT_TRUE(copy.Finish());
    LogBytes log;
    log.Header(44, 0).ItemCount(0).PutWord32(8, 1);
    EXPECT_EQ(file.bytes, log.bytes);
}

TEST(LogCopyTest, IsNoLogBeforeItIsFinished) {
    MemoryFile file;
    LogCopy copy(file);
    ASSERT_TRUE(copy.Begin(kStart, {Item(0x11, 300000)}));
    EXPECT_TRUE(copy.Add(0, 0, Bytes(300000, 7).data()));
    ASSERT_GE(file.bytes.size(), 4U);
    EXPECT_EQ(DecodeHeader(file.bytes.data()).version, 0U);
    EXPECT_TRUE(copy.Finish());
    EXPECT_EQ(DecodeHeader(file.bytes.data()).version, kLogVersion);
    EXPECT_EQ(file.bytes.size(), 92U + 12U + 300000U);
}

TEST(LogCopyTest, GathersManyRecordsIntoFewWrites) {
    MemoryFile file;
    LogCopy copy(file);
    ASSERT_TRUE(copy.Begin(kStart, {Item(0x11, 1)}));
    LogBytes log;
    log.Header(92, 50000).ItemCount(1).Item(0x11, 0x20000, 1, 1, Bytes(15, 0xFF));
    for (std::uint32_t i = 0; i < 50000; ++i) {
        const Bytes data{static_cast<std::uint8_t>(i)};
        ASSERT_TRUE(copy.Add(0, i, data.data()));
        log.Record(0, i, data);
    }
    EXPECT_TRUE(copy.Finish());
    EXPECT_EQ(file.bytes, log.MarkEnd().bytes);
    EXPECT_LE(file.writes, 5);
}

TEST(LogCopyTest, RefusesAnItemThatTheTableDoesNotHave) {
    MemoryFile file;
    LogCopy copy(file);
    ASSERT_TRUE(copy.Begin(kStart, {Item(0x11, 1)}));
    EXPECT_FALSE(copy.Add(1, 0, Bytes{1}.data()));
}

TEST(LogCopyTest, TellsOfAFullDisk) {
    MemoryFile file;
    file.room = 100;
    LogCopy copy(file);
    ASSERT_TRUE(copy.Begin(kStart, {Item(0x11, 1)}));
    EXPECT_TRUE(copy.Add(0, 0, Bytes{1}.data()));
    EXPECT_FALSE(copy.Finish());
    EXPECT_FALSE(copy.Add(0, 0, Bytes{1}.data()));
    EXPECT_FALSE(copy.Finish());
    EXPECT_TRUE(file.bytes.empty());
}

}  // namespace
}  // namespace corvex
