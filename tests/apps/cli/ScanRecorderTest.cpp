#include <gtest/gtest.h>

#include <filesystem>

#include "apps/cli/ScanRecorder.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "logging/LogWalk.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/Listed.h"
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

    // Why it did not; empty when it did.
    std::string Begin(ScanRecorder& recorder, const std::string& path = "drive.xdl", bool force = false) {
        std::string error;
        const bool begun = recorder.Begin(path, definition, force, error);
        EXPECT_EQ(begun, error.empty());
        return error;
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
    ASSERT_EQ(Begin(recorder), "");
    Add(recorder, 0x11);
    const Bytes packet(20, 0x22);
    recorder.Add(*stream, {packet.data(), 20});
    EXPECT_TRUE(recorder.End());
    EXPECT_EQ(recorder.Records(), 2U);
    EXPECT_EQ(RecordsIn("drive.xdl", files), 2U);
    DataLogEngine log(files);
    ASSERT_EQ(log.Open("drive.xdl", kLogForLooking), kLogSuccess);
    EXPECT_EQ(test::Listed(log.header.sampleCount, log.header.endMark),
              test::Listed(2, files.Get("drive.xdl").size() + 1));
    LogWalk walk(log);
    for (const ADXObject* command : {poll, stream}) {
        ASSERT_TRUE(walk.Next());
        EXPECT_EQ(test::Listed(walk.Item().commandId, walk.Item().type),
                  test::Listed(command->GetIdHash(), command->GetType()));
        EXPECT_EQ(Bytes(walk.Packed(), walk.Packed() + 20), command == poll ? Bytes(20, 0x11) : packet);
    }
}

TEST_F(ScanRecorderTest, GoesOnBehindASampleThatCouldNotBeWritten) {
    ScanRecorder recorder(files);
    ASSERT_EQ(Begin(recorder), "");
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
    EXPECT_EQ(test::Listed(recorder.Records(), recorder.Lost(), RecordsIn("drive.xdl", files)), "2 2 2");
}

TEST_F(ScanRecorderTest, SaysThatTheFileCannotBeMadeOrHasNoRoomForTheTable) {
    ScanRecorder recorder(files);
    files.failOpen = true;
    EXPECT_EQ(Begin(recorder), "drive.xdl: cannot be opened: no such file");
    files.failOpen = false;
    files.room = 20;
    EXPECT_EQ(Begin(recorder), "drive.xdl: the recording cannot be written");
}

TEST_F(ScanRecorderTest, KeepsAFileThatHoldsSomethingUnlessForced) {
    for (const std::string& text : {std::string("precious"), std::string(1, '\0')}) {
        const TempFile old(text, ".xdl");
        ScanRecorder refused, recorder;
        EXPECT_EQ(Begin(refused, old.Path()), old.Path() + ": exists and is not empty; --force replaces it");
        EXPECT_EQ(ReadFile(old.Path()), text);
        EXPECT_EQ(Begin(recorder, old.Path(), true), "");
        Add(recorder, 1);
        EXPECT_TRUE(recorder.End());
    }
}

// A port that can't be opened, or a line that stays silent, costs nobody the drive of the day before.
TEST_F(ScanRecorderTest, OldLogStaysUntilTheFirstReply) {
    const TempFile old("precious", ".xdl");
    {
        ScanRecorder recorder, other;
        ASSERT_EQ(Begin(recorder, old.Path(), true), "");
        EXPECT_NE(Begin(other, old.Path(), true), "");
        EXPECT_TRUE(recorder.End());
        EXPECT_TRUE(recorder.KeptOld());
    }
    EXPECT_EQ(ReadFile(old.Path()), "precious");
    ScanRecorder recorder;
    ASSERT_EQ(Begin(recorder, old.Path(), true), "");
    EXPECT_EQ(ReadFile(old.Path()), "precious");
    for (std::uint32_t count = 1; count < 3; ++count) {
        Add(recorder, 1);
        EXPECT_EQ(RecordsIn(old.Path()), count);
    }
    EXPECT_TRUE(recorder.End());
    EXPECT_FALSE(recorder.KeptOld());
    EXPECT_EQ(recorder.Trouble(), "");
    EXPECT_EQ(RecordsIn(old.Path()), 2U);
}

// Somebody else's recording may stand there by now.
TEST_F(ScanRecorderTest, RecordingOfAnotherIsNeverReplaced) {
    const TempFile old("precious", ".xdl");
    ScanRecorder recorder;
    ASSERT_EQ(Begin(recorder, old.Path(), true), "");
    std::error_code held;
    std::filesystem::rename(old.Path(), old.Path() + ".moved", held);
    if (held) return;  // where the system itself sees to it that nobody else comes to stand there
    {
        ScanRecorder other;
        ASSERT_EQ(Begin(other, old.Path()), "");
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
    ASSERT_EQ(Begin(first, file.Path()), "");
    EXPECT_TRUE(Has(Begin(second, file.Path()), ": cannot be opened: "));
    Add(first, 1);
    EXPECT_TRUE(Has(Begin(second, file.Path(), true), ": cannot be replaced: "));
    EXPECT_TRUE(first.End());
    EXPECT_EQ(RecordsIn(file.Path()), 1U);
}

TEST_F(ScanRecorderTest, KeepsALogWithARecordAndReplacesOneWithout) {
    const TempFile file("", ".xdl");
    for (const int records : {0, 0, 1}) {  // nothing stands there, then a table alone
        ScanRecorder recorder;
        ASSERT_EQ(Begin(recorder, file.Path()), "");
        if (records != 0) Add(recorder, 1);
        EXPECT_TRUE(recorder.End());
        EXPECT_EQ(std::filesystem::file_size(file.Path()), 44U + 2 * 48 + (records != 0 ? 36U : 0U));
    }
    ScanRecorder recorder;
    EXPECT_NE(Begin(recorder, file.Path()), "");
    EXPECT_EQ(RecordsIn(file.Path()), 1U);
}

}  // namespace
}  // namespace corvex
