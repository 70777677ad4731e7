// What another program does to the file of a recording.
#include "logging/LogRescue.h"
#include "tests/logging/LogTestHelper.h"

namespace corvex::test {
namespace {

class RecordingHarmTest : public LogFixture {
protected:
    void SetUp() override {
        BeginRecording();
        for (std::uint32_t i = 0; i < 4; ++i)
            ASSERT_EQ(0U, AddRecord(i));
        EXPECT_EQ(LogHarm::kNone, log_.Harm());
    }
    void CutTo(std::uint64_t size) {
        const std::unique_ptr<IFile> other = files_.Open(kPath, FileAccess::kReadWrite);
        ASSERT_TRUE(other->Seek(size) && other->EndHere());
    }
    // Data of all records that can be saved.
    std::vector<Bytes> Rescued() {
        DataLogEngine log(files_);
        EXPECT_EQ(0U, log.Open(kPath, kLogForLooking));
        const std::unique_ptr<IFile> file = files_.Open(kPath, FileAccess::kRead);
        LogRescue rescue(*file, log.header, {*log.GetItem(0)}, log.Position());
        std::vector<Bytes> data;
        while (rescue.Next())
            data.emplace_back(rescue.Packed(), rescue.Packed() + 3);
        return data;
    }
};

// Down to nothing, too: `> drive.xdl` in a shell.
TEST_F(RecordingHarmTest, CutIsToldAndTheRestCanBeSaved) {
    for (const std::uint64_t left : {kSmallDataOffset + 15 + 4, kSmallDataOffset - 5, 0U}) {
        CutTo(left);
        ASSERT_EQ(0U, AddRecord(7));
        ASSERT_EQ(0U, AddRecord(8));
        EXPECT_EQ(LogHarm::kCut, log_.Harm());
        const std::vector<Bytes> saved = Rescued();  // by now, in case that it is killed
        ASSERT_LE(2U, saved.size());
        EXPECT_EQ(DataOf(8), saved.back());
    }
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(LogHarm::kCut, log_.Harm());
    EXPECT_EQ((std::vector<Bytes>{DataOf(7), DataOf(8)}), Rescued());
}

TEST_F(RecordingHarmTest, CutIsToldAtTheEndWhenNoSampleFollows) {
    CutTo(kSmallDataOffset + 15);
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(LogHarm::kCut, log_.Harm());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0)}), Rescued());
}

TEST_F(RecordingHarmTest, WhatOthersHaveWrittenBehindIsToldAndCutOff) {
    const std::unique_ptr<IFile> other = files_.Open(kPath, FileAccess::kReadWrite);
    ASSERT_TRUE(other->Seek(kSmallDataOffset + 60) && other->Write("more", 4));
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(LogHarm::kLengthened, log_.Harm());
    EXPECT_EQ(kSmallDataOffset + 60, files_.Get(kPath).size());
}

// A full disk is no other program.
TEST_F(RecordingHarmTest, PartOfASampleIsNoHarm) {
    files_.failEndHere = true;
    files_.FailWriteAfter(0, 5);
    EXPECT_EQ(kLogFileError, AddRecord(9));
    files_.failEndHere = false;
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(LogHarm::kNone, log_.Harm());
}

TEST_F(RecordingHarmTest, NextRecordingKnowsNothingOfIt) {
    CutTo(0);
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(0U, log_.Open(kPath, kLogForWriting));
    EXPECT_EQ(LogHarm::kNone, log_.Harm());
}

TEST_F(RecordingHarmTest, GoesOnUnderAnotherName) {
    const auto move = [&] {
        files_.Put("drive", files_.Get(kPath));
        return true;
    };
    ASSERT_EQ(0U, log_.ContinueIn("drive", move));
    ASSERT_EQ(0U, AddRecord(4));
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(5U, log_.header.sampleCount);
    EXPECT_EQ(5U, Recorded("drive").size());
    EXPECT_EQ(files_.Get("drive").size() + 1, log_.header.endMark);
}

TEST_F(RecordingHarmTest, IsOverWhenItCannotGoOn) {
    EXPECT_EQ(kLogFileError, log_.ContinueIn("drive", [] { return false; }));
    EXPECT_EQ(kLogClosed, log_.State());
    EXPECT_EQ(kLogWrongState, AddRecord(4));
    EXPECT_EQ(kLogWrongState, log_.ContinueIn("drive", [] { return true; }));
}

}  // namespace
}  // namespace corvex::test
