// A session with a folder of its own, whose logs are real files.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "logging/LogWalk.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/Eventually.h"
#include "tests/support/LogBytes.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {

inline const std::string kStoppedPlayback = "post 32770", kPlaybackRests = "post 32771";

// The clock stands still unless the test moves it, so a record with a time is waited for without end.
class LogSessionTest : public ScanTest {
protected:
    // The user takes longer to find a name than the disk to take the recording.
    LogSessionTest() {
        recorder.whileAsked = [this] {
            EXPECT_TRUE(Eventually([this] {
                HandlePosts();
                return !session.IsStoppingLog();
            }));
        };
    }

    struct Read {
        std::uint32_t timeMs;
        Bytes data;
        bool operator==(const Read&) const = default;
        friend void PrintTo(const Read& read, std::ostream* out) {
            *out << read.timeMs << " ms " << ::testing::PrintToString(read.data);
        }
    };

    // A finished log of replies of the monitor command, one for each time; the reply holds its number.
    std::string PutLog(const std::string& file, const std::vector<std::uint32_t>& times) const {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor({15}), static_cast<std::uint32_t>(times.size())).ItemCount(1);
        log.Item(monitor->GetIdHash(), kTypeSendCommand, 2, 2, Bytes(15, 0xFF));
        for (std::size_t i = 0; i < times.size(); ++i)
            log.Record(0, times[i], {static_cast<std::uint8_t>(i), 0xEE});
        log.MarkEnd();
        folder.Put(file, {log.bytes.begin(), log.bytes.end()});
        return folder.Name(file);
    }
    void Choose(const std::string& log) { session.settings.SetLastLog(log); }
    // What a log holds, and that it is finished.
    std::vector<Read> ReadLog(const std::string& path) const {
        DataLogEngine log;
        EXPECT_EQ(kLogSuccess, log.Open(path.c_str(), kLogForLooking));
        EXPECT_EQ(log.FileSize() + 1, log.header.endMark);
        std::vector<Read> reads;
        LogWalk walk(log);
        while (walk.Next())
            reads.push_back({walk.Record().timeMs, Bytes(walk.Packed(), walk.Packed() + walk.Item().packedSize)});
        EXPECT_EQ(reads.size(), log.header.sampleCount);
        return reads;
    }
    // A recording of the replies of one scan, with the one that connects.
    void RecordScan(int replies) {
        AnswerAll();
        session.RecordCommand();
        EndAfter(replies);
        Scan();
    }

    // Does what a message loop would: handles what was posted, until the log has come to rest in this state.
    bool Rests(std::uint32_t state) {
        return Eventually([&] {
            HandlePosts();
            return session.log.State() == state && IsQuiet();
        });
    }
    // In this order: no playback that may still start a stop, no stop that may still post, nothing posted.
    bool IsQuiet() const {
        return !session.log.IsPlaying() && session.WaitForThreads(std::chrono::milliseconds(0)) &&
               !session.IsStoppingLog();
    }
    void HandlePosts() {
        for (; stopsHandled_ < recorder.Count(kStoppedPlayback); ++stopsHandled_)
            session.OnLogStopped();
        for (; restsHandled_ < recorder.Count(kPlaybackRests); ++restsHandled_)
            session.OnPlaybackRests();
    }
    // With what the recorder has noted.
    void ForgetPosts() { stopsHandled_ = restsHandled_ = 0; }
    // Plays a log whose second record is waited for.
    void PlayWaiting() {
        Choose(PutLog("one.xdl", {0, kFarAway, kFarAway, kFarAway}));
        session.PlayCommand();
        ASSERT_TRUE(recorder.WaitFor("reply 0 2"));
        ASSERT_TRUE(PlaysUpTo(2));
        recorder.Take();
        text.Clear();
    }
    bool PlaysUpTo(std::uint32_t records) {
        return Eventually([&] { return session.log.sampleIndex == records; });
    }
    std::string NewText() {
        const std::string all = text.Text();
        text.Clear();
        return all;
    }

    TestFolder folder;
    FixedProgramPlace place{folder};
    const ScopedProgramPlace placeScope{place};

    static constexpr std::uint32_t kFarAway = 1'000'000;  // ms: waited for, as the clock stands still

private:
    std::size_t stopsHandled_ = 0, restsHandled_ = 0;
};

}  // namespace corvex::test
