#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "session/SessionState.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

// Keeps its letter when it reads, and that in small when it draws.
struct NotedView final : ISampleView {
    NotedView(char letter, std::string& to) : name(letter), kept(to) {}
    bool WantsSamples() const override { return wants; }
    void Read(const PublishedSample& sample) override {
        kept += name;
        if (onRead) onRead(sample);
    }
    void Draw() override { kept += static_cast<char>(name - 'A' + 'a'); }

    const char name;
    std::string& kept;
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
    // What a sample brings.
    std::string Publish(std::uint32_t views = kAllSampleViews) {
        kept.clear();
        session.PublishSample(0.0, nullptr, 7, views);
        return kept;
    }

    std::string kept;
    NotedView dash{'D', kept}, list{'L', kept}, histograms{'H', kept}, monitors{'M', kept};
    SessionState session;
};

TEST_F(SampleViewsTest, AllReadInTheirOrderAndThenAllDraw) {
    RegisterAll();
    EXPECT_EQ("DLHMdlhm", Publish());
    EXPECT_EQ("Ll", Publish(BitOf(SampleViewKind::kList)));
}

TEST_F(SampleViewsTest, SampleIsOneMoment) {
    session.views.Register(SampleViewKind::kHistograms, &histograms);
    const std::uint8_t older[] = {1, 2}, newer[] = {3};
    session.StoreLastPacket(LastPacket::Of(PacketView(older, 2), 5));
    histograms.onRead = [&](const PublishedSample& sample) {
        session.StoreLastPacket({});
        EXPECT_EQ("1.5 7 2 5", Listed(sample.t, sample.commandId, sample.last.size, sample.last.command));
        EXPECT_EQ(newer, sample.packet.Bytes());
    };
    session.PublishSample(1.5, PacketView(newer, 1), 7);
    EXPECT_EQ("Hh", kept);
}

TEST_F(SampleViewsTest, NobodyIsAskedWhoWantsNone) {
    dash.wants = false;
    RegisterAll();
    EXPECT_EQ(kAllSampleViews & ~BitOf(SampleViewKind::kDash), session.views.Wanted());
    dash.wants = true;
    list.wants = histograms.wants = monitors.wants = false;
    EXPECT_EQ("", Publish());  // the dash has not said so yet, and the others are asked once more
    session.views.Announce();
    EXPECT_EQ("Dd", Publish());
}

// A page can be closed, or come, while another one reads or draws.
TEST_F(SampleViewsTest, ViewThatIsGoneDrawsNothingNorDoesOneThatComesInBetween) {
    RegisterAll();
    monitors.onRead = [&](const PublishedSample&) { session.views.Register(SampleViewKind::kList, nullptr); };
    EXPECT_EQ("DLHMdhm", Publish());
    EXPECT_EQ(0U, session.views.Wanted() & BitOf(SampleViewKind::kList));
    NotedView other('O', kept);
    monitors.onRead = [&](const PublishedSample&) { session.views.Register(SampleViewKind::kDash, &other); };
    EXPECT_EQ("DHMhm", Publish());
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
    EXPECT_EQ("", kept);
}

}  // namespace
}  // namespace corvex::test
