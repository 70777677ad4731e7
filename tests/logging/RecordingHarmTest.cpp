// What another program does to the file of a recording.
#include <gtest/gtest.h>

#include "logging/LogRescue.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

class RecordingHarmTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
        ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 3)));
        ASSERT_EQ(0U, log_.StartRecording());
        for (std::uint32_t i = 0; i < 4; ++i)
            ASSERT_EQ(0U, Add(i));
        EXPECT_EQ(LogHarm::kNone, log_.Harm());
    }
    std::uint32_t Add(std::uint32_t i) { return log_.AddSample(kId, DataOf(i).data(), 3); }
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

    const std::uint64_t dataOffset_ = LogBytes::DataOffsetFor({15});
    MemoryFiles files_;
    DataLogEngine log_{files_};
};

// Down to nothing, too: `> drive.xdl` in a shell.
TEST_F(RecordingHarmTest, CutIsToldAndTheRestCanBeSaved) {
    for (const std::uint64_t left : {dataOffset_ + 15 + 4, dataOffset_ - 5, std::uint64_t{0}}) {
        CutTo(left);
        ASSERT_EQ(0U, Add(7));
        ASSERT_EQ(0U, Add(8));
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
    CutTo(dataOffset_ + 15);
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(LogHarm::kCut, log_.Harm());
    EXPECT_EQ((std::vector<Bytes>{DataOf(0)}), Rescued());
}

TEST_F(RecordingHarmTest, WhatOthersHaveWrittenBehindIsToldAndCutOff) {
    const std::unique_ptr<IFile> other = files_.Open(kPath, FileAccess::kReadWrite);
    ASSERT_TRUE(other->Seek(dataOffset_ + 60) && other->Write("more", 4));
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(LogHarm::kLengthened, log_.Harm());
    EXPECT_EQ(dataOffset_ + 60, files_.Get(kPath).size());
}

// A full disk is no other program.
TEST_F(RecordingHarmTest, PartOfASampleIsNoHarm) {
    files_.failEndHere = true;
    files_.FailWriteAfter(0, 5);
    EXPECT_EQ(kLogFileError, Add(9));
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
    ASSERT_EQ(0U, Add(4));
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(5U, log_.header.sampleCount);
    DataLogEngine moved(files_);
    ASSERT_EQ(0U, moved.Open("drive", kLogForLooking));
    std::uint32_t last = 0;
    EXPECT_EQ(5U, ReadRest(moved, &last).size());
    EXPECT_EQ(files_.Get("drive").size() + 1, moved.header.endMark);
}

TEST_F(RecordingHarmTest, IsOverWhenItCannotGoOn) {
    EXPECT_EQ(kLogFileError, log_.ContinueIn("drive", [] { return false; }));
    EXPECT_EQ(kLogClosed, log_.State());
    EXPECT_EQ(kLogWrongState, Add(4));
    EXPECT_EQ(kLogWrongState, log_.ContinueIn("drive", [] { return true; }));
}

}  // namespace
}  // namespace corvex::test
