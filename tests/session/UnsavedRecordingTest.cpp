#include <gtest/gtest.h>

#include "definition/ADXObject.h"
#include "logging/DataLogEngine.h"
#include "session/UnsavedRecording.h"
#include "tests/support/LogBytes.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

class UnsavedRecordingTest : public testing::Test {
protected:
    static LogBytes Log(int records) {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor({15}), 0).ItemCount(1).Item(7, kTypeSendCommand, 2, 2, Bytes(15, 0xFF));
        for (int i = 0; i < records; ++i)
            log.Record(0, 0, {1, 2});
        return log;
    }
    bool Finds(const Bytes& bytes) {
        folder.Put("temp.xdl", {bytes.begin(), bytes.end()});
        return FindUnsavedRecording(scratch).has_value();
    }

    TestFolder folder;
    const std::string scratch = folder.Name("temp.xdl");
};

TEST_F(UnsavedRecordingTest, OneWholeRecordMakesARecording) {
    EXPECT_TRUE(Finds(Log(1).bytes));
    EXPECT_TRUE(Finds(Log(3).bytes));
    EXPECT_TRUE(Finds(Log(0).RecordTo(200, 9, 0, Bytes(200, 1)).bytes));  // of a command that nobody knows
    EXPECT_TRUE(Finds(Log(1).PutWord32(4, 5000).bytes));                  // the header names another place
    Bytes cut = Log(1).bytes;
    cut.pop_back();
    EXPECT_TRUE(Finds(cut));  // maybe there is more to it than can be seen
}

TEST_F(UnsavedRecordingTest, NothingElseDoes) {
    EXPECT_FALSE(FindUnsavedRecording(scratch).has_value());
    EXPECT_FALSE(Finds({}));
    EXPECT_FALSE(Finds(Bytes(40, 0)));
    EXPECT_FALSE(Finds(Log(0).bytes));
    EXPECT_FALSE(KeepUnsavedRecording(scratch).has_value());
    EXPECT_EQ(1U, folder.FileCount());
}

// The program was started twice, and the other one records.
TEST_F(UnsavedRecordingTest, RecordingAtWorkIsNotUnsaved) {
    EXPECT_TRUE(Finds(Log(1).bytes));
    const std::unique_ptr<IFile> other = SystemFiles().Open(scratch, FileAccess::kReadWrite);
    ASSERT_TRUE(other);
    EXPECT_FALSE(FindUnsavedRecording(scratch).has_value());
}

TEST_F(UnsavedRecordingTest, IsNamedByItsBeginningOrByThePresentWhenThatIsSenseless) {
    const LocalTime begun{2026, 7, 3, 1, 12, 34, 56, 789};
    EXPECT_EQ("drive-2026-07-01-123456.xdl", NameOfUnsavedRecording(begun, 1));
    EXPECT_EQ("drive-2026-07-01-123456-2.xdl", NameOfUnsavedRecording(begun, 2));
    EXPECT_EQ("drive-2026-07-01-123456-999.xdl", NameOfUnsavedRecording(begun, 999));
    // A damaged header must not give a name that no file can have.
    const LocalTime none{}, month{2026, 13, 0, 1, 0, 0, 0, 0}, hour{2026, 1, 0, 1, 24, 0, 0, 0};
    for (const LocalTime& time : {none, month, hour}) {
        const std::string name = NameOfUnsavedRecording(time, 1);
        EXPECT_EQ(NameOfUnsavedRecording(begun, 1).size(), name.size()) << name;
        EXPECT_TRUE(name.starts_with("drive-2")) << name;
        EXPECT_FALSE(name.starts_with("drive-2026-13") || name.starts_with("drive-2026-01-01-24")) << name;
    }
}

TEST_F(UnsavedRecordingTest, WhatCannotBeReadIsKeptToo) {
    EXPECT_FALSE(Finds(Log(2).PutWord32(0, 7).bytes));
    const auto kept = KeepUnsavedRecording(scratch);
    ASSERT_TRUE(kept.has_value());
    EXPECT_EQ(0U, kept->error);
    EXPECT_FALSE(folder.Has("temp.xdl"));
}

TEST_F(UnsavedRecordingTest, NeverTakesANameThatIsInUse) {
    for (int round = 1; round <= 3; ++round) {
        const Bytes bytes = Log(round).bytes;
        ASSERT_TRUE(Finds(bytes));
        const auto kept = KeepUnsavedRecording(scratch);
        ASSERT_TRUE(kept.has_value());
        EXPECT_EQ(0U, kept->error);
        EXPECT_FALSE(folder.Has("temp.xdl"));
        const std::string behind = round == 1 ? "" : "-" + std::to_string(round);
        EXPECT_EQ(folder.Name("drive-2026-07-01-123456" + behind + ".xdl"), kept->path);
        EXPECT_EQ(std::string(bytes.begin(), bytes.end()), folder.Content("drive-2026-07-01-123456" + behind + ".xdl"));
    }
}

}  // namespace
}  // namespace corvex::test
