// Stands where a desktop stands: notes every call of a session in order.
#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "session/SampleViews.h"
#include "session/SessionCalls.h"

namespace corvex::test {

// Each call is a word with its arguments, "monitor 1.500 3 0xDC379ACF": the packet is told by its size, "-" for none.
// Any thread. To outlive the session.
class SessionRecorder {
public:
    using ReplyHook = std::function<void(const DataAcqStatus&, PacketView)>;

    SessionCalls Calls() {
        SessionCalls calls;
        calls.refreshStatus = [this] { Note("status"); };
        calls.refreshButtons = [this] { Note("buttons"); };
        calls.carrySample = [this](const PublishedSample& sample) { NoteSample(sample); };
        calls.flash = [this](const char* text, std::uint32_t front, std::uint32_t back, std::uint32_t ms) {
            Note(std::string("flash ") + text + " " + Hex(front) + " " + Hex(back) + " " + std::to_string(ms));
        };
        calls.clearMonitors = [this] { Note("clear monitors"); };
        calls.setMonitorTime = [this](double seconds) { Note("monitor time " + Number(seconds)); };
        calls.setLogSlider = [this](std::uint32_t index) { Note("slider " + std::to_string(index)); };
        calls.setLogRange = [this](std::uint32_t last) { Note("range " + std::to_string(last)); };
        calls.refreshTitle = [this] { Note("title"); };
        calls.checkSpeed = [this](std::uint32_t command) { Note("check " + std::to_string(command)); };
        calls.askSavePath = [this](const FilePrompt& prompt) {
            Note(std::string("ask save ") + prompt.title);
            suggested = prompt.suggested;
            if (whileAsked) whileAsked();
            return answer;
        };
        calls.askOpenPath = [this](const FilePrompt& prompt) {
            Note(std::string("ask open ") + prompt.title);
            return answer;
        };
        calls.showBox = [this](const char* caption, const char* message) {
            Note(std::string("box ") + caption + ": " + message);
        };
        calls.scanBegins = [this] { ++scans; };
        calls.recordingKept = [this](const std::string& path, bool saved) { kept = (saved ? "saved " : "") + path; };
        calls.postMain = [this](std::uint32_t message) { Note("post " + std::to_string(message)); };
        calls.portRefused = [this](const std::string& reason) { Note("port refused " + reason); };
        calls.deviceVanished = [this](const std::string& reason) { Note("device vanished " + reason); };
        calls.deviceBack = [this] { Note("device back"); };
        calls.replyEnded = [this](const DataAcqStatus& status, PacketView reply) {
            Note("reply " + std::to_string(status.code) + " " + (reply ? std::to_string(reply.Size()) : "-"));
            if (onReplyEnded) onReplyEnded(status, reply);
        };
        return calls;
    }

    // Stands where the pages stand: histograms and charts want every sample, dash and list when they are on show.
    void Watch(SampleViews& views) {
        views_ = &views;
        for (std::uint32_t kind = 0; kind < kSampleViewKinds; ++kind)
            views.Register(static_cast<SampleViewKind>(kind), &pages_[kind]);
        ShowDashAndList(false);
    }
    void ShowDashAndList(bool shown) {
        pages_[0].wants = pages_[1].wants = shown;
        views_->Announce();
    }

    std::vector<std::string> Noted() {
        const std::lock_guard lock(mutex_);
        return noted_;
    }
    // What was noted since the last time.
    std::vector<std::string> Take() {
        const std::lock_guard lock(mutex_);
        return std::exchange(noted_, {});
    }
    std::size_t Count(const std::string& call) {
        const std::lock_guard lock(mutex_);
        return CountHeld(call);
    }
    // Blocks until the call has been noted so often; false when it has not within a generous limit.
    bool WaitFor(const std::string& call, std::size_t times = 1) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        std::unique_lock lock(mutex_);
        return wake_.wait_until(lock, deadline, [&] { return CountHeld(call) >= times; });
    }

    std::optional<std::string> answer;                // to whoever asks for a path; nothing: he is refused
    std::function<void()> whileAsked;                 // for the name of a recording: what a dialog's own loop would do
    std::string suggested, kept;                      // main thread: the last name, and what became of a recording
    int scans = 0;                                    // that began
    ReplyHook onReplyEnded;                           // set before a scan
    std::function<void(const std::string&)> onNoted;  // likewise; called on whichever thread calls

private:
    struct Page final : ISampleView {
        bool WantsSamples() const override { return wants; }
        void Read(const PublishedSample&) override {}
        void Draw() override {}
        bool wants = true;
    };

    void NoteSample(const PublishedSample& sample) {
        const auto isFor = [&sample](SampleViewKind kind) { return (sample.views & BitOf(kind)) != 0; };
        const std::string words = Words(sample.packet, sample.commandId);
        if (isFor(SampleViewKind::kDash)) Note("dash " + words);
        if (isFor(SampleViewKind::kList)) Note("list");
        if (isFor(SampleViewKind::kHistograms)) Note("histograms " + Words(sample.last.View(), sample.commandId));
        if (isFor(SampleViewKind::kMonitors)) Note("monitor " + Number(sample.t) + " " + words);
    }
    void Note(const std::string& call) {
        {
            const std::lock_guard lock(mutex_);
            noted_.push_back(call);
            wake_.notify_all();
        }
        if (onNoted) onNoted(call);
    }
    std::size_t CountHeld(const std::string& call) const {
        return static_cast<std::size_t>(std::count(noted_.begin(), noted_.end(), call));
    }
    static std::string Number(double number) {
        char text[64];
        std::snprintf(text, sizeof text, "%.3f", number);
        return text;
    }
    static std::string Hex(std::uint32_t word) {
        char text[16];
        std::snprintf(text, sizeof text, "0x%06X", static_cast<unsigned>(word));
        return text;
    }
    static std::string Words(PacketView packet, std::uint32_t id) {
        return (packet ? std::to_string(packet.Size()) : "-") + " " + Hex(id);
    }

    std::array<Page, kSampleViewKinds> pages_;
    SampleViews* views_ = nullptr;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::vector<std::string> noted_;
};

}  // namespace corvex::test
