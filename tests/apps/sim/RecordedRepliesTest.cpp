#include <gtest/gtest.h>

#include <filesystem>

#include "apps/sim/RecordedReplies.h"
#include "apps/sim/SimOptions.h"
#include "platform/Clock.h"
#include "tests/apps/sim/SimTestHelper.h"
#include "tests/support/LogBytes.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

class RecordedRepliesTest : public ::testing::Test {
protected:
    void Write(const LogBytes& log) { folder.Put("replies.xdl", std::string(log.bytes.begin(), log.bytes.end())); }
    bool Read(const LogBytes& log) {
        Write(log);
        return replies.Read(path, error);
    }
    // Items of three bytes; the second leaves the middle one out.
    static LogBytes Begin() {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor({15, 1}), 0).ItemCount(2);
        return log.Item(0x11, 0x20000, 3, 3, Bytes(15, 0xFF)).Item(0x22, 0x20000, 2, 3, {0x05});
    }

    const test::TestFolder folder;
    const std::string path = folder.Name("replies.xdl");
    std::string error;
    RecordedReplies replies;
};

TEST_F(RecordedRepliesTest, KeepsEachCommandsRepliesInTheOrderOfTheLog) {
    ASSERT_TRUE(Read(Begin().Record(0, 0, {1, 2, 3}).Record(1, 5, {7, 9}).Record(0, 10, {4, 5, 6}))) << error;
    ASSERT_EQ(replies.Count(0x11), 2U);
    EXPECT_EQ(replies.Reply(0x11, 0), (Bytes{1, 2, 3}));
    EXPECT_EQ(replies.Reply(0x11, 1), (Bytes{4, 5, 6}));
    ASSERT_EQ(replies.Count(0x22), 1U);
    EXPECT_EQ(replies.Reply(0x22, 0), (Bytes{7, 0, 9}));
    EXPECT_EQ(replies.Count(0x33), 0U);
}

TEST_F(RecordedRepliesTest, SaysWhyALogHasNothingToRepeat) {
    EXPECT_FALSE(Read(Begin().PutWord32(0, 2)));
    EXPECT_EQ(error, path + ": error 0xD");
    EXPECT_FALSE(replies.Read("/no/such.xdl", error));
    EXPECT_EQ(error, "/no/such.xdl: error 0xC");
    EXPECT_FALSE(Read(Begin()));
    EXPECT_EQ(error, path + ": holds no records");
}

TEST_F(RecordedRepliesTest, RefusesALogOfAnotherDefinition) {
    Write(Begin().Record(0, 0, {1, 2, 3}));
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {0xF4}, 3);
    SimOptions options;
    EXPECT_FALSE(LoadRecording(path, definition, options, error));
    EXPECT_EQ(error, path + ": holds no records of the definition's commands");
    EXPECT_EQ(options.recording, nullptr);
}

}  // namespace
}  // namespace corvex
