#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

constexpr char kAskedForLog[] = "ask open Select datalog...";

class LoadLogCommandTest : public LogSessionTest {};

TEST_F(LoadLogCommandTest, ChosenLogIsTheOneToPlay) {
    recorder.answer = folder.Name("gone.xdl");
    session.LoadLogCommand();
    EXPECT_EQ(folder.Name("gone.xdl"), session.settings.lastxdlpath);
    EXPECT_EQ((Calls{kAskedForLog, "buttons", "title"}), recorder.Take());
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_EQ("", text.Text());
}

TEST_F(LoadLogCommandTest, NothingChosenChangesNothing) {
    Choose("before");
    session.LoadLogCommand();
    EXPECT_STREQ("before", session.settings.lastxdlpath);
    EXPECT_EQ((Calls{kAskedForLog, "buttons"}), recorder.Take());
}

// The other one is opened when it is played; until then the one that played goes on.
TEST_F(LoadLogCommandTest, PlaybackIsPausedFirstWithoutALineAndGoesOnAfterAnotherWasChosen) {
    Choose(PutLog("one.xdl", {0, 1'000'000}));
    session.PlayCommand();
    ASSERT_TRUE(PlaysUpTo(2));
    ASSERT_TRUE(recorder.WaitFor("slider 1"));
    recorder.Take();
    text.Clear();
    recorder.answer = PutLog("two.xdl", {0, 0, 0, 0});
    session.LoadLogCommand();
    EXPECT_TRUE(Rests(kLogReady));
    EXPECT_EQ(kLogPaused, session.connectionState);
    EXPECT_EQ("", text.Text());
    EXPECT_EQ(1U, recorder.Count(kAskedForLog));
    EXPECT_LE(1U, recorder.Count("status"));
    EXPECT_LE(2U, recorder.Count("buttons"));
    session.PlayCommand();
    EXPECT_EQ(2U, session.log.header.sampleCount);
    ASSERT_TRUE(Rests(kLogClosed));
    session.PlayCommand();
    EXPECT_EQ(4U, session.log.header.sampleCount);
    EXPECT_TRUE(Rests(kLogClosed));
}

}  // namespace
}  // namespace corvex::test
