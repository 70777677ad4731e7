#include "tests/program/ProgramTest.h"

#include <stdexcept>

namespace corvex::test {

const std::string& OwnDesktop() {
    static const std::string name = "corvex" + std::to_string(::GetCurrentProcessId());
    // Lives as long as the process.
    static const HDESK desktop = ::CreateDesktopA(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    if (desktop == nullptr || !::SetThreadDesktop(desktop)) throw std::runtime_error("no desktop");
    return name;
}

void ProgramTest::TearDown() {
    if (program && program->IsRunning() && window_) CloseProgram();
}

void ProgramTest::Settle(const std::map<std::string, std::string>& changes) {
    std::map<std::string, std::string> values{{"comport", TestPort()},
                                              {"lastadxpath", folder.TakeExample("harrier-8192.adx")}};
    for (const auto& [key, value] : changes)
        values[key] = value;
    folder.PutSettings(values);
}

std::string ProgramTest::TitleOf(const std::string& adx) const {
    std::string title = "Corvex - ADX: ";
    return title.append(adx).append("  XDL:  (Speed: 100%)");
}

void ProgramTest::Launch() {
    program = std::make_unique<RunningProgram>(folder.Program(), folder.Path(), OwnDesktop());
}

void ProgramTest::Start() {
    Launch();
    window_ = CorvexWindow::WaitFor(program->Id());
}

void ProgramTest::CloseProgram() {
    window_->Close();
    EXPECT_EQ(program->WaitForExit(kLongestEnd), std::optional<DWORD>(0));
    window_.reset();
    program.reset();
}

void ProgramTest::ExpectLeft(const std::string& text) {
    EXPECT_TRUE(Eventually([&] { return Window().LeftText() == text; }))
        << "the left panel says \"" << Window().LeftText() << "\", not \"" << text << "\"";
}

void ProgramTest::ExpectOutput(const std::string& part) {
    EXPECT_TRUE(Eventually([&] { return Window().OutputHas(part); })) << "no \"" << part << "\" in\n"
                                                                      << Window().Output();
}

void ProgramTest::ExpectLoadedLast(const std::string& path) {
    const auto isLoaded = [&] {
        const std::vector<std::string> lines = Window().OutputLines();
        return !lines.empty() && lines.back() == "Loaded " + path;
    };
    EXPECT_TRUE(Eventually(isLoaded)) << Window().Output();
}

void ProgramTest::ExpectBar(const BarStates& states) {
    EXPECT_TRUE(Eventually([&] { return Window().Bar() == states; }));
    EXPECT_EQ(Window().Bar(), states);
}

void ProgramTest::Connect() {
    engines.Start({"--pace"});
    Window().Send(kScan);
    ExpectLeft("ALDL: Connected");
}

}  // namespace corvex::test
