// What a playback delivers and how it ends. Its pace, and what disturbs it, have tests of their own.
#include "tests/logging/PlaybackFixture.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

class DataLogEnginePlaybackTest : public PlaybackFixture {};

TEST_F(DataLogEnginePlaybackTest, NeedsACallbackAndAnOpenLog) {
    EXPECT_EQ(6U, log_.StartPlayback());
    log_.SetCallback(&told_);
    EXPECT_EQ(3U, log_.StartPlayback());
    ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
    EXPECT_EQ(3U, log_.StartPlayback());
    ASSERT_EQ(0U, log_.StartRecording());
    EXPECT_EQ(3U, log_.StartPlayback());
    EXPECT_FALSE(log_.IsPlaying());
}

TEST_F(DataLogEnginePlaybackTest, TellsWhatTheLogHoldsAndItsEnd) {
    LogBytes other;
    other.Header(LogBytes::DataOffsetFor({0, 0}), 2).ItemCount(2);
    other.Item(1, 0x40000, 2, 2, {}).Item(kId, kTypeSendCommand, 3, 3, {});
    other.Record(0, 0, {8, 9}).Record(1, 5, DataOf(1)).MarkEnd();
    const LogBytes one = SmallLogHead().Record(0, 0, DataOf(0));
    const struct {
        const char* behaviour;
        LogBytes log;
        std::vector<std::string> words;
    } cases[] = {
        {"each record, its progress, the end",
         SmallLog(3),
         {"Send 3", "Progress 0 1", "Send 3", "Progress 80 2", "Send 3", "Progress 160 3", "End"}},
        {"other types are read and dropped", other, {"Progress 0 1", "Send 3", "Progress 5 2", "End"}},
        {"an unknown item ends it without an end",
         LogBytes(one).Record(1, 80, DataOf(1)).Record(0, 160, DataOf(2)).MarkEnd(),
         {"Send 3", "Progress 0 1"}},
        {"zeros are its end",
         LogBytes(one).Raw(Bytes(30, 0)).Record(0, 160, DataOf(2)).MarkEnd(),
         {"Send 3", "Progress 0 1", "End"}},
        {"a record that is cut short is the end",
         LogBytes(one).Raw({1, 2, 3, 4, 5, 6, 7, 8, 0, 10, 11, 12, 13}),
         {"Send 3", "Progress 0 1", "End"}},
        {"a recording without samples ends at once", SmallLog(0).PutWord32(8, 1), {"End"}},
        {"one without items, too", LogBytes().Header(44, 0).ItemCount(0), {"End"}},
        {"a record of an enormous size is none", SmallLog(3).PutWord32(44 + 24, 0xFFFFFFFF), {"End"}},
    };
    for (const auto& each : cases) {
        const std::size_t before = told_.Words().size();
        PlayAll(each.log);
        const std::vector<std::string> words = told_.Words();
        EXPECT_EQ(each.words,
                  std::vector<std::string>(words.begin() + static_cast<std::ptrdiff_t>(before), words.end()))
            << each.behaviour;
        EXPECT_EQ(kLogReady, log_.State());
        ASSERT_NE(0U, log_.Close());
        EXPECT_EQ(each.log.bytes, files_.Get(kPath)) << "a played log is left as it was";
    }
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(2), DataOf(1), DataOf(0), DataOf(0), DataOf(0)}),
              DeliveredData());
}

TEST_F(DataLogEnginePlaybackTest, StandInsTellCommandAndSize) {
    LogBytes bytes;
    bytes.Header(LogBytes::DataOffsetFor({1, 0}), 2).ItemCount(2);
    bytes.Item(0xAAAA, kTypeSendCommand, 2, 4, Bytes{0x05}).Item(0xBBBB, kType160BaudListen, 3, 3, {});
    PlayAll(bytes.Record(0, 0, {8, 9}).Record(1, 5, {1, 2, 3}).MarkEnd());
    std::vector<std::string> records;
    for (const LogCallbackRecorder::Delivered& one : told_.Records())
        records.push_back(Listed(one.source, one.code, one.commandId, one.sampleIndex, one.type, one.flags, one.size));
    EXPECT_EQ((std::vector<std::string>{"1 0 43690 1 131072 1 4", "1 0 48059 2 1048576 0 3"}), records);
    EXPECT_EQ((std::vector<Bytes>{{8, 0, 9, 0}, {1, 2, 3}}), DeliveredData());
}

TEST_F(DataLogEnginePlaybackTest, FailedReadEndsItWithoutAnEnd) {
    told_.hook = [this](const std::string& word) {
        if (word == "Progress 0 1") files_.failReads = true;
    };
    PlayAll(SmallLog(6000, 1));  // longer than what is read ahead
    EXPECT_LT(1U, told_.RecordCount());
    EXPECT_GT(6000U, told_.RecordCount());
    EXPECT_EQ(0U, told_.CountOf("End"));
    EXPECT_EQ(kLogReady, log_.State());
}

TEST_F(DataLogEnginePlaybackTest, StandsAtItsEndOrBeginsAnewFromPastTheEndMark) {
    for (const bool past : {false, true}) {
        const std::size_t before = told_.RecordCount();
        PlayAll(past ? SmallLog(3).PutWord32(8, kSmallDataOffset + 45) : SmallLog(3));
        ASSERT_EQ(0U, log_.StartPlayback());
        ASSERT_TRUE(Ends());
        EXPECT_EQ(past ? 6U : 3U, told_.RecordCount() - before);
    }
    EXPECT_EQ(4U, told_.CountOf("End"));
}

TEST_F(DataLogEnginePlaybackTest, EnormousReplyIsCut) {
    PlayAll(SmallLog(3).PutWord32(44 + 28, 0xFFFFFFFF));
    ASSERT_EQ(3U, told_.RecordCount());
    EXPECT_EQ(65536U, told_.Records()[0].size);
    EXPECT_EQ(65536U, told_.Records()[0].bytes.size());
}

TEST_F(DataLogEnginePlaybackTest, TableMayChangeWhileItPlays) {
    bool changed = false;
    told_.hook = [&](const std::string&) {
        if (changed) return;
        changed = true;
        ASSERT_EQ(0U, log_.SetItem(0, MakeItem(7, 5000)));
        ASSERT_EQ(0U, log_.SetItem(0, MakeItem(8, 90'000)));
        ASSERT_EQ(0U, log_.SetItemCount(0));
    };
    PlayAll(SmallLog(5));
    ASSERT_EQ(5U, told_.RecordCount());
    for (std::uint32_t i = 0; i < 5; ++i) {
        EXPECT_EQ(kId, told_.Records()[i].commandId);
        EXPECT_EQ(DataOf(i), told_.Records()[i].bytes);
    }
}

TEST_F(DataLogEnginePlaybackTest, GoesOnTellingTheCallbackItBeganWithWhateverThatAnswers) {
    LogCallbackRecorder other;
    told_.answer = -1;
    told_.hook = [&](const std::string&) { log_.SetCallback(&other); };
    PlayAll(SmallLog(3));
    EXPECT_EQ(3U, told_.RecordCount());
    EXPECT_EQ(1U, told_.CountOf("End"));
    EXPECT_TRUE(other.Words().empty());
}

}  // namespace
}  // namespace corvex::test
