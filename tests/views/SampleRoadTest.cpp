// Samples of a worker, a histogram that counts them and a list that paints the same value, each on its own thread's
// side of the road.
#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <thread>

#include "definition/ADXHistogram.h"
#include "definition/HistogramFeed.h"
#include "session/SessionState.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/ItemAlarmModel.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kCommand = 0x1111;
constexpr int kSamples = 2000;

// Stands where the page thread stands: a sample is brought to it, and the worker waits until it is read.
class PageThread {
public:
    explicit PageThread(SampleViews& views) : views_(views) {}

    void Bring(const PublishedSample& sample) {
        std::unique_lock lock(mutex_);
        sample_ = &sample;
        wake_.notify_all();
        wake_.wait(lock, [this] { return sample_ == nullptr; });
    }
    void End() {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        wake_.notify_all();
    }
    // Until the end.
    void Run() {
        std::unique_lock lock(mutex_);
        while (true) {
            wake_.wait(lock, [this] { return sample_ != nullptr || ended_; });
            if (sample_ == nullptr) return;
            views_.Read(*sample_);
            sample_ = nullptr;
            wake_.notify_all();
            lock.unlock();  // the worker goes on while it is drawn
            views_.Draw();
            lock.lock();
        }
    }

private:
    SampleViews& views_;
    std::mutex mutex_;
    std::condition_variable wake_;
    const PublishedSample* sample_ = nullptr;
    bool ended_ = false;
};

class SampleRoadTest : public ::testing::Test {
protected:
    SampleRoadTest() {
        value_ = AddValue(session_.definition, "SPEED", "X/2");
        auto* const histogram = Add<ADXHistogram>(session_.definition, "MAP");
        histogram->SetCols(4);
        histogram->SetRows(4);
        histogram->SetXMax(200);
        histogram->SetYMax(200);
        for (const int taken : {histogram->SetX(value_), histogram->SetY(value_), histogram->SetZ(value_)})
            EXPECT_EQ(1, taken);
    }
    SessionCalls Calls() {
        SessionCalls calls;
        calls.carrySample = [this](const PublishedSample& sample) { pages_.Bring(sample); };
        return calls;
    }

    SessionState session_{Calls()};
    PageThread pages_{session_.views};
    ADXValue* value_ = nullptr;
};

// Wants all, reads into the histogram, and computes the value again when it draws. The user looks at one statistic
// after the other meanwhile, and forgets all now and then.
struct HistogramAndList final : ISampleView {
    explicit HistogramAndList(SessionState& owner, ADXValue* value) : session(owner), feed(owner.definition) {
        entry.item = value;
    }
    bool WantsSamples() const override { return true; }
    void Read(const PublishedSample& sample) override {
        feed.Update(sample.last.View(), sample.last.command, sample.commandId);
    }
    void Draw() override {
        cell = ReadValueCell(entry, session.definition, session.CopyLastPacket());
        ADXHistogram& histogram = *feed.All().front().histogram;
        char text[60];
        for (std::uint32_t division = 0; division < 4; ++division)
            histogram.GetCellValue(draws % 12, division, division, text, sizeof text);
        if (++draws % 64 == 0) histogram.Clear();
    }

    SessionState& session;
    HistogramFeed feed;
    ADXLVENTRY entry;
    ValueCell cell{};
    int draws = 0;
};

TEST_F(SampleRoadTest, AHistogramIsFedWhileAListPaintsTheSameValue) {
    HistogramAndList view(session_, value_);
    session_.views.Register(SampleViewKind::kHistograms, &view);
    std::thread worker([this] {
        for (int i = 0; i < kSamples; ++i) {
            const auto byte = static_cast<std::uint8_t>(i % 200);
            const PacketView packet(&byte, 1);
            value_->GetRaw(packet);  // as a callback does before it publishes
            session_.StoreLastPacket(LastPacket::Of(packet, kCommand));
            session_.PublishSample(i, packet, kCommand);
        }
        pages_.End();
    });
    pages_.Run();
    worker.join();
    EXPECT_EQ(static_cast<std::uint32_t>(kSamples), view.feed.All().at(0).samples);
    EXPECT_STREQ("99.50", view.cell.text);
    session_.views.Register(SampleViewKind::kHistograms, nullptr);
}

}  // namespace
}  // namespace corvex::test
