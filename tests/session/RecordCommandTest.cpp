#include "session/ScratchLog.h"
#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

class RecordCommandTest : public LogSessionTest {
protected:
    // Ends the recording and reads it.
    std::vector<Read> Recorded() {
        EXPECT_EQ(kLogSuccess, session.log.StopRecording());
        EXPECT_NE(0U, session.log.Close());
        return ReadLog(folder.Name("temp.xdl"));
    }
};

TEST_F(RecordCommandTest, RecordsIntoTheScratchFileOfTheProgramsFolder) {
    session.RecordCommand();
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ((Calls{"buttons"}), recorder.Take());
    EXPECT_EQ("", text.Text());
    EXPECT_EQ(folder.Name("temp.xdl"), ScratchLogPath());
    EXPECT_TRUE(folder.Has("temp.xdl"));
    EXPECT_EQ(3U, session.log.ItemCount());
}

TEST_F(RecordCommandTest, ScratchPathIsCut) {
    place.file = std::string(255, 'x') + place.separator + "corvex.exe";
    EXPECT_EQ(std::string(255, 'x') + place.separator + "temp", ScratchLogPath());
    place.file = "";
    EXPECT_EQ("temp.xdl", ScratchLogPath());
}

// The first good reply makes the connection; the recording takes those after it.
TEST_F(RecordCommandTest, TakesTheRepliesOfAConnectedLine) {
    RecordScan(3);
    EXPECT_EQ((std::vector<Read>{{0, {3, 4}}, {10, {3, 4}}, {20, {5, 6}}}), Recorded());
}

TEST_F(RecordCommandTest, FirstRecordHasTimeZeroHoweverLongTheScanRan) {
    AnswerAll();
    AutoResetEvent reached(false), recording(false);
    recorder.onReplyEnded = [&, replies = 0](const DataAcqStatus&, PacketView) mutable {
        ++replies;
        if (replies == 3) {
            clock.AdvanceMilliseconds(60'000);
            reached.Set();
            recording.Wait();
        }
        if (replies == 5) session.scanning = 0;
    };
    session.ToggleScan();
    reached.Wait();
    session.RecordCommand();
    recording.Set();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ((std::vector<Read>{{0, {3, 4}}, {10, {3, 4}}, {20, {5, 6}}}), Recorded());
}

// A scan that ends leaves the recording waiting; the gap shows in the time.
TEST_F(RecordCommandTest, OutlastsTheScan) {
    RecordScan(2);
    EXPECT_EQ(kLogRecording, session.log.State());
    clock.AdvanceMilliseconds(5000);
    EndAfter(2);
    Scan();
    EXPECT_EQ((std::vector<Read>{{0, {3, 4}}, {10, {5, 6}}, {5030, {3, 4}}, {5040, {5, 6}}}), Recorded());
}

TEST_F(RecordCommandTest, RunningRecordingIsNotBegunAnew) {
    RecordScan(3);
    recorder.Take();
    session.RecordCommand();
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ((Calls{"buttons"}), recorder.Take());
    EXPECT_EQ(3U, Recorded().size());
}

TEST_F(RecordCommandTest, ReplacesWhatAnOldRecordingLeft) {
    PutLog("temp.xdl", {0, 1, 2, 3});
    session.RecordCommand();
    EXPECT_EQ(0U, std::filesystem::file_size(folder.Path() / "temp.xdl"));
}

TEST_F(RecordCommandTest, LogThatCannotBeWrittenShowsByItsState) {
    place.file = folder.Name("gone") + place.separator + "corvex.exe";
    session.RecordCommand();
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_EQ((Calls{"buttons"}), recorder.Take());
    EXPECT_EQ("", text.Text());
}

TEST_F(RecordCommandTest, ResetsTheSpeedUnseen) {
    session.SetSpeed(4.0F);
    recorder.Take();
    session.RecordCommand();
    EXPECT_EQ(1.0F, session.log.speed);
    EXPECT_EQ((Calls{"buttons"}), recorder.Take());
}

}  // namespace
}  // namespace corvex::test
