#include "tools/driver/DemoRun.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/driver/LogFiles.h"
#include "tools/driver/Operator.h"
#include "tools/driver/ReplyLines.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

constexpr double kScanSeconds = 10.0;
constexpr std::size_t kLastLines = 5;
constexpr std::array<const char*, 5> kTabs{"output", "dash", "lists", "histograms", "monitors"};

void TakeTabs(Operator& person, const std::string& pictures) {
    const RECT place = person.Window().Rectangle();
    for (std::size_t i = 0; i < kTabs.size(); ++i) {
        person.Window().ShowTab(static_cast<int>(i));
        person.engines.TakePicture(pictures + "/" + kTabs[i] + ".png", place);
        std::printf("picture: %s.png\n", kTabs[i]);
    }
    person.Window().ShowTab(0);
}

void Tell(const char* when, const CorvexWindow& window) {
    const std::vector<std::string> lines = window.OutputLines();
    const ReplyCounts replies = CountReplies(lines);
    std::printf("%s: %zu lines of output, %d replies well, %d failed. The last:\n", when, lines.size(), replies.good,
                replies.bad);
    for (std::size_t i = lines.size() - std::min(kLastLines, lines.size()); i < lines.size(); ++i)
        std::printf("    %s\n", lines[i].c_str());
    if (replies.good == 0) throw std::runtime_error("no reply came well");
}

}  // namespace

void RunDemo(const std::string& folder, const std::string& pictures) {
    Operator person(folder);
    person.WaitFor("definition", [&] { return person.Window().OutputHas("Loaded "); });
    person.Connect();
    std::printf("%s\n", person.Window().Title().c_str());
    person.StartRecording();
    person.Watch(kScanSeconds);
    std::printf("%s, %s\n", person.Window().LeftText().c_str(), person.Window().RightText().c_str());
    TakeTabs(person, pictures);
    Tell("after the scan", person.Window());
    person.SaveRecording("drive.xdl");
    person.StopScan();
    std::printf("engine: %s\n", person.engines.Stop().c_str());
    person.Window().Send(kSpeed400);
    person.Play();
    person.Watch(1.0);
    person.engines.TakePicture(pictures + "/playing.png", person.Window().Rectangle());
    person.WaitForPlaybackEnd();
    Tell("after the playback", person.Window());
    person.Exit();
    std::printf("done\n");
}

}  // namespace corvex::test
