#include "logging/LogCopy.h"
#include "tests/logging/LogTestHelper.h"

namespace corvex::test {
namespace {

constexpr LocalTime kStart{2026, 7, 3, 1, 12, 34, 56, 789};

class LogCopyTest : public ::testing::Test {
protected:
    bool Add(std::uint8_t item, std::uint32_t timeMs, const Bytes& data) {
        return copy_.Add(item, timeMs, data.data());
    }
    Bytes Written() const { return files_.Get(kPath); }

    MemoryFiles files_;
    std::unique_ptr<IFile> file_ = files_.Open(kPath, FileAccess::kCreate);
    LogCopy copy_{*file_};
};

TEST_F(LogCopyTest, WritesAFinishedLog) {
    ASSERT_TRUE(copy_.Begin(kStart, {MakeItem(0x11, 2), MakeItem(0x22, 3)}));
    EXPECT_TRUE(Add(1, 0, {1, 2, 3}));
    EXPECT_TRUE(Add(0, 83, {4, 5}));
    EXPECT_TRUE(copy_.Finish());
    LogBytes log;
    log.Header(140, 2)
        .ItemCount(2)
        .Item(0x11, 0x20000, 2, 2, Bytes(15, 0xFF))
        .Item(0x22, 0x20000, 3, 3, Bytes(15, 0xFF));
    log.Record(1, 0, {1, 2, 3}).Record(0, 83, {4, 5}).MarkEnd();
    EXPECT_EQ(Written(), log.bytes);
}

TEST_F(LogCopyTest, KeepsMasksAndEmptiesWhatIsReserved) {
    LogItem item = MakeItem(0x11, 1);
    item.mask = LogMask({0x05});
    item.title[0] = 'x';
    item.reserved = 9;
    item.fullSize = 3;
    ASSERT_TRUE(copy_.Begin(kStart, {item}));
    EXPECT_TRUE(Add(0, 5, {1}));
    EXPECT_TRUE(copy_.Finish());
    LogBytes log;
    log.Header(78, 1).ItemCount(1).Item(0x11, 0x20000, 1, 3, {0x05}).Record(0, 5, {1}).MarkEnd();
    EXPECT_EQ(Written(), log.bytes);
}

TEST_F(LogCopyTest, MarksALogWithoutRecordsAsTheRecorderDoes) {
    ASSERT_TRUE(copy_.Begin(kStart, {}));
    EXPECT_TRUE(copy_.Finish());
    LogBytes log;
    log.Header(44, 0).ItemCount(0).PutWord32(8, 1);
    EXPECT_EQ(Written(), log.bytes);
}

TEST_F(LogCopyTest, IsNoLogBeforeItIsFinished) {
    ASSERT_TRUE(copy_.Begin(kStart, {MakeItem(0x11, 300000)}));
    EXPECT_TRUE(Add(0, 0, Bytes(300000, 7)));
    ASSERT_GE(Written().size(), 4U);
    EXPECT_EQ(DecodeHeader(Written().data()).version, 0U);
    EXPECT_TRUE(copy_.Finish());
    EXPECT_EQ(DecodeHeader(Written().data()).version, kLogVersion);
    EXPECT_EQ(Written().size(), 92U + 12U + 300000U);
}

TEST_F(LogCopyTest, GathersManyRecordsIntoFewWrites) {
    ASSERT_TRUE(copy_.Begin(kStart, {MakeItem(0x11, 1)}));
    LogBytes log;
    log.Header(92, 50000).ItemCount(1).Item(0x11, 0x20000, 1, 1, Bytes(15, 0xFF));
    for (std::uint32_t i = 0; i < 50000; ++i) {
        const Bytes data{static_cast<std::uint8_t>(i)};
        ASSERT_TRUE(Add(0, i, data));
        log.Record(0, i, data);
    }
    EXPECT_TRUE(copy_.Finish());
    EXPECT_EQ(Written(), log.MarkEnd().bytes);
    EXPECT_LE(files_.writes, 5U);
}

TEST_F(LogCopyTest, RefusesAnItemThatTheTableDoesNotHave) {
    ASSERT_TRUE(copy_.Begin(kStart, {MakeItem(0x11, 1)}));
    EXPECT_FALSE(Add(1, 0, {1}));
}

TEST_F(LogCopyTest, TellsOfAFullDisk) {
    files_.room = 100;
    ASSERT_TRUE(copy_.Begin(kStart, {MakeItem(0x11, 1)}));
    EXPECT_TRUE(Add(0, 0, {1}));
    EXPECT_FALSE(copy_.Finish());
    EXPECT_FALSE(Add(0, 0, {1}));
    EXPECT_FALSE(copy_.Finish());
    EXPECT_EQ(DecodeHeader(Written().data()).version, 0U) << "what came of it is no log";
}

}  // namespace
}  // namespace corvex::test
