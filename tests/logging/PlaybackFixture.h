// A log in memory that is played on a clock that the test moves.
#pragma once

#include "tests/logging/LogTestHelper.h"
#include "tests/support/Eventually.h"
#include "tests/support/LogCallbackRecorder.h"

namespace corvex::test {

// Told by the playback thread, and so a base in front of the log's, too.
struct PlaybackListener {
    LogCallbackRecorder told_;
};

class PlaybackFixture : public PlaybackListener, public StandingClock, public LogFixture {
protected:
    void Play(const LogBytes& bytes, float speed = 1.0F) {
        ASSERT_EQ(0U, Open(bytes));
        log_.SetCallback(&told_);
        log_.speed = speed;
        ASSERT_EQ(0U, log_.StartPlayback());
    }
    // As fast as it goes, to the end.
    void PlayAll(const LogBytes& bytes) {
        Play(bytes, 0.0F);
        ASSERT_TRUE(Ends());
    }
    bool Ends() {
        return Eventually([this] { return !log_.IsPlaying(); });
    }
    bool Delivers(std::size_t count) {
        return Eventually([this, count] { return told_.RecordCount() >= count; });
    }
    // The playback thread has looked at the clock often enough to have seen its present reading.
    bool LooksAtClock() {
        const std::uint64_t readings = clock_.Readings();
        return Eventually([this, readings] { return clock_.Readings() >= readings + 3; });
    }
    // The record in hand is waiting for its moment: all before it were delivered, and nothing more comes.
    bool Waits(std::size_t delivered) {
        return Delivers(delivered) && LooksAtClock() && told_.RecordCount() == delivered;
    }
    // The next record comes after so many virtual milliseconds and not before.
    void ExpectAfter(std::int64_t milliseconds) {
        const std::size_t before = told_.RecordCount();
        ASSERT_TRUE(Waits(before));
        clock_.AdvanceMilliseconds(milliseconds - 1);
        ASSERT_TRUE(Waits(before));
        clock_.AdvanceMilliseconds(2);
        ASSERT_TRUE(Delivers(before + 1));
    }
    std::vector<Bytes> DeliveredData() const {
        std::vector<Bytes> data;
        for (const LogCallbackRecorder::Delivered& record : told_.Records())
            data.push_back(record.bytes);
        return data;
    }
};

}  // namespace corvex::test
