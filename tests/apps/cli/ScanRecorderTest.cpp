#include <gtest/gtest.h>

#include <filesystem>

#include "apps/cli/ScanRecorder.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "logging/LogWalk.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/MemoryFiles.h"

namespace corvex {
namespace {

using test::Bytes;
using test::MemoryFiles;

class ScanRecorderTest : public ::testing::Test {
protected:
    ScanRecorderTest() {
        const TempFile file(StreamDefinition(""));
        char error[ADXDefinition::kErrorSize] = {};
        EXPECT_NE(definition.Load(file.Path().c_str(), error), 0) << error;
        poll = definition.FindByHash(kPollHash);
        stream = definition.FindByHash(kStreamHash);
    }

    bool Begin(ScanRecorder& recorder, const std::string& path = "drive.xdl") {
        std::string error;
        const bool begun = recorder.Begin(path, definition, false, error);
        EXPECT_TRUE(begun) << error;
        return begun;
    }
    void Add(ScanRecorder& recorder, std::uint8_t byte) {
        const Bytes reply(24, byte);
        recorder.Add(*poll, {reply.data(), 24});
    }
    // Of a log without damage.
    static std::uint32_t RecordsIn(const std::string& path, IFileSystem& files = SystemFiles()) {
        DataLogEngine log(files);
        EXPECT_EQ(log.Open(path.c_str(), kLogForLooking), kLogSuccess);
        LogWalk walk(log);
        while (walk.Next()) {
        }
        EXPECT_EQ(walk.Result(), kLogEndOfFile);
        EXPECT_EQ(walk.Left(), 0U);
        return walk.Records();
    }

    ADXDefinition definition;
    const ADXObject *poll, *stream;
    MemoryFiles files;
};

TEST_F(ScanRecorderTest, KeepsWholeRepliesUnderTheirCommands) {
    ScanRecorder recorder(files);
    ASSERT_TRUE(Begin(recorder));
    Add(recorder, 0x11);
    const Bytes packet(20, 0x22);
    recorder.Add(*stream, {packet.data(), 20});
    EXPECT_TRUE(recorder.End());
    EXPECT_EQ(recorder.Records(), 2U);

    DataLogEngine log(files);
    ASSERT_EQ(log.Open("drive.xdl", kLogForLooking), kLogSuccess);
    EXPECT_EQ(log.header.sampleCount, 2U);
    EXPECT_EQ(log.header.endMark, files.Get("drive.xdl").size() + 1);
    LogWalk walk(log);
    ASSERT_TRUE(walk.Next());
    EXPECT_EQ(walk.Item().commandId, kPollHash);
    EXPECT_EQ(walk.Item().type, kTypeSendCommand);
    EXPECT_EQ(Bytes(walk.Packed(), walk.Packed() + 24), Bytes(24, 0x11));
    ASSERT_TRUE(walk.Next());
    EXPECT_EQ(walk.Item().commandId, kStreamHash);
    EXPECT_EQ(walk.Item().type, kType160BaudListen);
    EXPECT_EQ(Bytes(walk.Packed(), walk.Packed() + 20), packet);
    EXPECT_FALSE(walk.Next());
}

TEST_F(ScanRecorderTest, GoesOnBehindASampleThatCouldNotBeWritten) {
    ScanRecorder recorder(files);
    ASSERT_TRUE(Begin(recorder));
    Add(recorder, 1);
    EXPECT_FALSE(recorder.Failed());
    files.room = files.Get("drive.xdl").size() + 10;  // less than a record
    Add(recorder, 2);
    Add(recorder, 3);
    EXPECT_TRUE(recorder.Failed());
    EXPECT_EQ(recorder.Trouble(), "drive.xdl: the recording cannot be written");
    EXPECT_EQ(RecordsIn("drive.xdl", files), 1U);
    files.room = MemoryFiles::kNoLimit;
    Add(recorder, 4);
    EXPECT_TRUE(recorder.End());
    EXPECT_EQ(recorder.Records(), 2U);
    EXPECT_EQ(recorder.Lost(), 2U);
    EXPECT_EQ(RecordsIn("drive.xdl", files), 2U);
}

TEST_F(ScanRecorderTest, SaysThatTheFileCannotBeMadeOrHasNoRoomForTheTable) {
    ScanRecorder recorder(files);
    files.failOpen = true;
    std::string error;
    EXPECT_FALSE(recorder.Begin("drive.xdl", definition, false, error));
    EXPECT_EQ(error, "drive.xdl: cannot be opened: no such file");
    files.failOpen = false;
    files.room = 20;
    EXPECT_FALSE(recorder.Begin("drive.xdl", definition, false, error));
    EXPECT_EQ(error, "drive.xdl: the recording cannot be written");
}

TEST_F(ScanRecorderTest, KeepsAFileThatHoldsSomethingUnlessForced) {
    for (const std::string& text : {std::string("precious"), std::string(1, '\0')}) {
        const TempFile old(text, ".xdl");
        std::string error;
        {
            ScanRecorder recorder;
            EXPECT_FALSE(recorder.Begin(old.Path(), definition, false, error));
            EXPECT_EQ(error, old.Path() + ": exists and is not empty; --force replaces it");
            EXPECT_EQ(ReadFile(old.Path()), text);
        }
        ScanRecorder recorder;
        EXPECT_TRUE(recorder.Begin(old.Path(), definition, true, error)) << error;
        Add(recorder, 1);
        EXPECT_TRUE(recorder.End());
    }
}

// A port that can't be opened, or a line that stays silent, costs nobody the drive of the day before.
TEST_F(ScanRecorderTest, OldLogStaysUntilTheFirstReply) {
    const TempFile old("precious", ".xdl");
    ScanRecorder recorder;
    std::string error;
    ASSERT_TRUE(recorder.Begin(old.Path(), definition, true, error)) << error;
    EXPECT_EQ(ReadFile(old.Path()), "precious");
    Add(recorder, 1);
    EXPECT_EQ(RecordsIn(old.Path()), 1U);
    Add(recorder, 2);
    EXPECT_EQ(RecordsIn(old.Path()), 2U);
    EXPECT_TRUE(recorder.End());
    EXPECT_FALSE(recorder.KeptOld());
    EXPECT_EQ(recorder.Trouble(), "");
    EXPECT_EQ(RecordsIn(old.Path()), 2U);
}

TEST_F(ScanRecorderTest, OldLogStaysWhenNoReplyComes) {
    const TempFile old("precious", ".xdl");
    {
        ScanRecorder recorder;
        std::string error;
        ASSERT_TRUE(recorder.Begin(old.Path(), definition, true, error)) << error;
        ScanRecorder other;
        EXPECT_FALSE(other.Begin(old.Path(), definition, true, error));
        EXPECT_TRUE(recorder.End());
        EXPECT_TRUE(recorder.KeptOld());
    }
    EXPECT_EQ(ReadFile(old.Path()), "precious");
}

// Somebody else's recording may stand there by now.
TEST_F(ScanRecorderTest, RecordingOfAnotherIsNeverReplaced) {
    const TempFile old("precious", ".xdl");
    ScanRecorder recorder;
    std::string error;
    ASSERT_TRUE(recorder.Begin(old.Path(), definition, true, error)) << error;
    std::error_code held;
    std::filesystem::rename(old.Path(), old.Path() + ".moved", held);
    if (held) return;  // where the system itself sees to it that nobody else comes to stand there
    {
        ScanRecorder other;
        ASSERT_TRUE(Begin(other, old.Path()));
        Add(other, 1);
        Add(recorder, 2);
        EXPECT_EQ(recorder.Trouble(), old.Path() + ": the old log cannot be replaced");
        Add(other, 1);
        EXPECT_TRUE(other.End());
    }
    EXPECT_EQ(RecordsIn(old.Path()), 2U);
    Add(recorder, 3);  // as --force has it, once nobody writes there
    EXPECT_TRUE(recorder.End());
    EXPECT_EQ(recorder.Lost(), 1U);
    EXPECT_EQ(RecordsIn(old.Path()), 1U);
    std::filesystem::remove(old.Path() + ".moved");
}

TEST_F(ScanRecorderTest, OneAtATimeRecordsIntoAFile) {
    const TempFile file("", ".xdl");
    ScanRecorder first, second;
    ASSERT_TRUE(Begin(first, file.Path()));
    std::string error;
    EXPECT_FALSE(second.Begin(file.Path(), definition, false, error));
    EXPECT_NE(error.find(": cannot be opened: "), std::string::npos) << error;
    Add(first, 1);
    EXPECT_FALSE(second.Begin(file.Path(), definition, true, error));
    EXPECT_NE(error.find(": cannot be replaced: "), std::string::npos) << error;
    EXPECT_TRUE(first.End());
    EXPECT_EQ(RecordsIn(file.Path()), 1U);
}

TEST_F(ScanRecorderTest, KeepsALogWithARecordAndReplacesOneWithout) {
    const TempFile file("", ".xdl");
    for (int scan = 0; scan < 2; ++scan) {
        ScanRecorder recorder;
        ASSERT_TRUE(Begin(recorder, file.Path()));  // nothing, then a table alone
        EXPECT_TRUE(recorder.End());
        EXPECT_EQ(std::filesystem::file_size(file.Path()), 44U + 2 * 48);
    }
    {
        ScanRecorder recorder;
        ASSERT_TRUE(Begin(recorder, file.Path()));
        Add(recorder, 1);
    }
    ScanRecorder recorder;
    std::string error;
    EXPECT_FALSE(recorder.Begin(file.Path(), definition, false, error));
    EXPECT_EQ(std::filesystem::file_size(file.Path()), 44U + 2 * 48 + 36);
}

}  // namespace
}  // namespace corvex
