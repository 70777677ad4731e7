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

// The keys go not by ten, but to the tenth, and from there on by one. They are known for it.
TEST_F(JumpCommandsTest, GoWhereTheyPointWithoutDeliveringAnything) {
    const auto slider = [this](std::uint32_t position) {
        session.MoveLogSlider(position);
        return Index();
    };
    const auto forward = [this] {
        session.JumpForward();
        return Index();
    };
    const auto backward = [this] {
        session.JumpBackward();
        return Index();
    };
    for (const std::uint32_t position : {20U, 3U, 30U, 0U})
        EXPECT_EQ(position, slider(position));
    EXPECT_EQ((Calls{"monitor time 1.900", "monitor time 0.200", "monitor time 2.900", "monitor time 2.900"}),
              recorder.Take());
    EXPECT_EQ(10U, forward());
    EXPECT_EQ(11U, forward());
    EXPECT_EQ(25U, slider(25));
    EXPECT_EQ(15U, backward());
    EXPECT_EQ(5U, backward());
    EXPECT_EQ(30U, backward()) << "among the first ten it runs to the end";
    EXPECT_EQ(0U, recorder.Count("reply 0 2"));
    EXPECT_EQ(0U, session.CopyLastPacket().size);
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
