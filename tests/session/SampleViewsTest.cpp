#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "session/SessionState.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex::test {
namespace {

using Lines = std::vector<std::string>;

struct NotedView final : ISampleView {
    NotedView(std::string called, Lines& to) : name(std::move(called)), lines(to) {}
    bool WantsSamples() const override { return wants; }
    void Read(const PublishedSample& sample) override {
        lines.push_back(name + " reads " + std::to_string(sample.commandId));
        if (onRead) onRead(sample);
    }
    void Draw() override { lines.push_back(name + " draws"); }

    const std::string name;
    Lines& lines;
    bool wants = true;
    std::function<void(const PublishedSample&)> onRead;
};

class SampleViewsTest : public ::testing::Test {
protected:
    void RegisterAll() {
        session.views.Register(SampleViewKind::kMonitors, &monitors);
        session.views.Register(SampleViewKind::kHistograms, &histograms);
        session.views.Register(SampleViewKind::kList, &list);
        session.views.Register(SampleViewKind::kDash, &dash);
    }

    Lines lines;
    NotedView dash{"dash", lines}, list{"list", lines}, histograms{"histograms", lines}, monitors{"monitors", lines};
    SessionState session;
};

TEST_F(SampleViewsTest, AllReadInTheirOrderAndThenAllDraw) {
    RegisterAll();
    session.PublishSample(0.0, nullptr, 7);
    EXPECT_EQ((Lines{"dash reads 7", "list reads 7", "histograms reads 7", "monitors reads 7", "dash draws",
                     "list draws", "histograms draws", "monitors draws"}),
              lines);
}

TEST_F(SampleViewsTest, SampleIsOneMoment) {
    session.views.Register(SampleViewKind::kHistograms, &histograms);
    const std::uint8_t older[] = {1, 2}, newer[] = {3};
    session.StoreLastPacket(LastPacket::Of(PacketView(older, 2), 5));
    histograms.onRead = [&](const PublishedSample& sample) {
        session.StoreLastPacket({});
        EXPECT_EQ(1.5, sample.t);
        EXPECT_EQ(newer, sample.packet.Bytes());
        EXPECT_EQ(2U, sample.last.size);
        EXPECT_EQ(5U, sample.last.command);
    };
    session.PublishSample(1.5, PacketView(newer, 1), 7);
    EXPECT_EQ((Lines{"histograms reads 7", "histograms draws"}), lines);
}

TEST_F(SampleViewsTest, NobodyIsAskedWhoWantsNone) {
    dash.wants = false;
    RegisterAll();
    EXPECT_EQ(kAllSampleViews & ~BitOf(SampleViewKind::kDash), session.views.Wanted());
    dash.wants = true;
    list.wants = histograms.wants = monitors.wants = false;
    session.PublishSample(0.0, nullptr, 7);  // the dash has not said so yet, and the others are asked once more
    EXPECT_EQ(Lines{}, lines);
    session.views.Announce();
    session.PublishSample(0.0, nullptr, 7);
    EXPECT_EQ((Lines{"dash reads 7", "dash draws"}), lines);
}

TEST_F(SampleViewsTest, SampleForOneIsForNoOther) {
    RegisterAll();
    session.PublishSample(0.0, nullptr, 6);
    lines.clear();
    session.PublishSample(0.0, nullptr, 7, BitOf(SampleViewKind::kList));
    EXPECT_EQ((Lines{"list reads 7", "list draws"}), lines);
}

// A page can be closed while another one reads or draws.
TEST_F(SampleViewsTest, ViewThatIsGoneDrawsNothing) {
    RegisterAll();
    monitors.onRead = [&](const PublishedSample&) { session.views.Register(SampleViewKind::kList, nullptr); };
    session.PublishSample(0.0, nullptr, 7);
    EXPECT_EQ((Lines{"dash reads 7", "list reads 7", "histograms reads 7", "monitors reads 7", "dash draws",
                     "histograms draws", "monitors draws"}),
              lines);
    EXPECT_EQ(0U, session.views.Wanted() & BitOf(SampleViewKind::kList));
}

TEST_F(SampleViewsTest, ViewThatComesInBetweenHasNothingToDraw) {
    NotedView other("other", lines);
    RegisterAll();
    monitors.onRead = [&](const PublishedSample&) { session.views.Register(SampleViewKind::kDash, &other); };
    session.PublishSample(0.0, nullptr, 7);
    EXPECT_EQ(lines.end(), std::find(lines.begin(), lines.end(), "other draws"));
}

TEST_F(SampleViewsTest, NothingIsCarriedToNobody) {
    SessionCalls calls;
    int carried = 0;
    calls.carrySample = [&](const PublishedSample&) { ++carried; };
    SessionState bare(calls);
    bare.PublishSample(0.0, nullptr, 7);
    EXPECT_EQ(0, carried);
    bare.views.Register(SampleViewKind::kDash, &dash);
    bare.PublishSample(0.0, nullptr, 7);
    EXPECT_EQ(1, carried);
    EXPECT_EQ(Lines{}, lines);
}

}  // namespace
}  // namespace corvex::test
