#include "tools/driver/Operator.h"

#include <stdexcept>
#include <utility>

#include "tests/support/Eventually.h"
#include "tools/driver/DialogAnswers.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

Operator::Operator(std::string folder, const std::string& desktop)
    : folder_(std::move(folder)),
      program_(std::make_unique<RunningProgram>(File("Corvex.exe"), folder_, desktop)),
      window_(CorvexWindow::WaitFor(program_->Id())) {}

void Operator::WaitFor(const std::string& what, const std::function<bool()>& isSo) const {
    if (!Eventually(isSo)) throw std::runtime_error("no " + what + "; the status is " + Window().LeftText());
}

void Operator::WaitForLeft(const std::string& text) const {
    WaitFor(text, [&] { return Window().LeftText() == text; });
}

void Operator::Connect() {
    engines.Start({"--pace"});
    Window().Send(kScan);
    WaitForLeft("ALDL: Connected");
}

void Operator::StopScan() {
    Window().Send(kScan);
    WaitForLeft("ALDL: Not Connected");
}

void Operator::StartRecording() {
    Window().Send(kRecord);
    WaitForLeft("Log Recording");
}

void Operator::SaveRecording(const std::string& name) {
    Window().Send(kStop);
    ChooseFile(Process(), kSaveLogTitle, File(name));
    WaitFor("saved log", [&] { return Window().OutputHas("Log saved to " + File(name)); });
}

void Operator::Play() {
    Window().Send(kPlay);
    WaitForLeft("Log Playing");
}

void Operator::WaitForPlaybackEnd() {
    WaitFor("end of playback", [&] { return Window().OutputHas("Playback stopped"); });
}

void Operator::Watch(double seconds) const {
    IClock& clock = SystemClock();
    const std::int64_t end =
        clock.Counter() + static_cast<std::int64_t>(seconds * static_cast<double>(clock.Frequency()));
    while (clock.Counter() < end) {
        if (!program_->IsRunning()) throw std::runtime_error("the program has ended by itself");
        Ask(Window().Handle(), WM_NULL);
        SleepUntil(clock.Counter() + clock.Frequency() / 10);
    }
}

void Operator::Exit() {
    Window().Close();
    const std::optional<DWORD> code = WaitForExit();
    if (!code) throw std::runtime_error("the program does not end");
    if (*code != 0) throw std::runtime_error("the program ended with " + std::to_string(*code));
}

}  // namespace corvex::test
