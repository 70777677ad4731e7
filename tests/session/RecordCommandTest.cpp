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
    session.log.speed = 4.0F;
    session.RecordCommand();
    EXPECT_EQ(1.0F, session.log.speed);  // unseen
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ((Calls{"flash Recording started 0x000000 0x00FF00 2000", "status", "buttons"}), recorder.Take());
    EXPECT_EQ("Recording to " + folder.Name("temp.xdl"), text.Text());
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

// The first good reply makes the connection and is recorded with those after it.
TEST_F(RecordCommandTest, TakesTheRepliesOfAConnectedLine) {
    RecordScan(3);
    EXPECT_EQ((std::vector<Read>{{0, {1, 2}}, {10, {3, 4}}, {20, {3, 4}}, {30, {5, 6}}}), Recorded());
}

// A scan that ends leaves the recording waiting; the gap shows in the time.
TEST_F(RecordCommandTest, OutlastsTheScan) {
    RecordScan(2);
    EXPECT_EQ(kLogRecording, session.log.State());
    clock.AdvanceMilliseconds(5000);
    EndAfter(2);
    Scan();
    EXPECT_EQ(
        (std::vector<Read>{{0, {1, 2}}, {10, {3, 4}}, {20, {5, 6}}, {5030, {1, 2}}, {5040, {3, 4}}, {5050, {5, 6}}}),
        Recorded());
}

TEST_F(RecordCommandTest, UnsavedRecordingGetsANameOfItsOwn) {
    PutLog("temp.xdl", {0, 1, 2, 3});
    const std::string unsaved = folder.Content("temp.xdl"), name = "drive-2026-07-01-123456.xdl";
    session.RecordCommand();
    EXPECT_EQ(0U, std::filesystem::file_size(folder.Path() / "temp.xdl"));
    EXPECT_EQ(unsaved, folder.Content(name));
    EXPECT_EQ("The recording before was not saved. It is now " + folder.Name(name) + "\r\nRecording to " +
                  folder.Name("temp.xdl"),
              text.Text());
}

TEST_F(RecordCommandTest, TellsOnceThatRepliesAreNotRecorded) {
    session.RecordCommand();
    session.definition.monitorcmd = AddSend(session.definition, "LATE", {0xA0}, 2);  // the log has no item for it
    AnswerAll();
    EndAfter(5);
    text.Clear();
    Scan();
    EXPECT_EQ(1U, recorder.Count("flash Reply not recorded! 0x000000 0x0000FF 500"));
    EXPECT_NE(std::string::npos, text.Text().find("A reply could not be recorded, error 0x4"));
    EXPECT_EQ(2U, Recorded().size());
}

TEST_F(RecordCommandTest, TellsWhyItCannotBegin) {
    place.file = folder.Name("gone") + place.separator + "corvex.exe";
    session.RecordCommand();
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_EQ((Calls{"flash Recording failed! 0x000000 0x0000FF 2000", "buttons"}), recorder.Take());
    const std::string begin = "Unable to record to " + folder.Name("gone") + place.separator + "temp.xdl: ";
    EXPECT_EQ(begin, text.Text().substr(0, begin.size()));
    EXPECT_LT(begin.size(), text.Text().size());  // the system's own words
}

}  // namespace
}  // namespace corvex::test
