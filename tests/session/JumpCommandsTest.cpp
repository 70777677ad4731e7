#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

// On a log of 30 records that stands open and is not played.
class JumpCommandsTest : public LogSessionTest {
protected:
    JumpCommandsTest() {
        std::vector<std::uint32_t> times;
        for (std::uint32_t i = 0; i < 30; ++i)
            times.push_back(i * 100);
        Choose(PutLog("one.xdl", times));
        session.log.SetCallback(&session.callback);
        EXPECT_EQ(kLogSuccess, session.log.Open(session.settings.lastxdlpath, kLogForReading));
    }
    std::uint32_t Index() const { return session.log.sampleIndex; }
};

TEST_F(JumpCommandsTest, SliderGoesToItsRecord) {
    for (const std::uint32_t position : {20U, 3U, 30U, 0U}) {
        session.MoveLogSlider(position);
        EXPECT_EQ(position, Index());
    }
    EXPECT_EQ((Calls{"monitor time 1.900", "monitor time 0.200", "monitor time 2.900", "monitor time 2.900"}),
              recorder.Take());
}

// Not by ten, but to the tenth; from there on by one. The keys are known for it.
TEST_F(JumpCommandsTest, ForwardGoesToTheTenthAndThenByOne) {
    session.JumpForward();
    EXPECT_EQ(10U, Index());
    session.JumpForward();
    EXPECT_EQ(11U, Index());
    session.MoveLogSlider(4);
    session.JumpForward();
    EXPECT_EQ(10U, Index());
}

TEST_F(JumpCommandsTest, BackwardGoesByTen) {
    session.MoveLogSlider(25);
    session.JumpBackward();
    EXPECT_EQ(15U, Index());
    session.JumpBackward();
    EXPECT_EQ(5U, Index());
}

TEST_F(JumpCommandsTest, BackwardAmongTheFirstTenRunsToTheEnd) {
    session.MoveLogSlider(5);
    session.JumpBackward();
    EXPECT_EQ(30U, Index());
}

TEST_F(JumpCommandsTest, NothingIsDeliveredOnTheWay) {
    session.MoveLogSlider(20);
    session.JumpForward();
    session.JumpBackward();
    EXPECT_EQ(0U, recorder.Count("reply 0 2"));
    EXPECT_EQ(0U, session.CopyLastPacket().size);
}

TEST_F(JumpCommandsTest, ClosedLogStaysClosed) {
    static_cast<void>(session.log.Close());
    session.JumpForward();
    session.JumpBackward();
    session.MoveLogSlider(7);
    EXPECT_EQ(kLogClosed, session.log.State());
}

// The record that was waited for belongs to the place that was left; the views go on at the new one.
TEST_F(JumpCommandsTest, PlaybackGoesOnFromTheSlider) {
    session.PlayCommand();
    ASSERT_TRUE(PlaysUpTo(2));
    session.MoveLogSlider(29);
    ASSERT_TRUE(PlaysUpTo(30));
    clock.AdvanceMilliseconds(100);
    ASSERT_TRUE(recorder.WaitFor("reply 0 2", 2));
    EXPECT_EQ(29, session.CopyLastPacket().bytes[0]);
    EXPECT_TRUE(Rests(kLogClosed));
}

}  // namespace
}  // namespace corvex::test
