#include "apps/sim/SimulatorSession.h"

#include <utility>

#include "apps/sim/LineDriver.h"

namespace corvex {

SimulatorSession::SimulatorSession() = default;

SimulatorSession::~SimulatorSession() {
    Stop();
}

std::string SimulatorSession::Start(const ADXDefinition& definition, const SimOptions& options, std::string& error) {
    auto line = OpenTerminalLine({}, error);
    if (!line) return {};
    Start(definition, options, std::move(line));
    return name_;
}

void SimulatorSession::Start(const ADXDefinition& definition, const SimOptions& options,
                             std::unique_ptr<ISimLine> line) {
    Stop();
    line_ = std::move(line);
    name_ = line_->Name();
    stats_ = {};
    driver_ = std::make_unique<LineDriver>(*line_, definition, options);
    stop_ = false;
    running_ = true;
    thread_ = std::thread([this] {
        driver_->Run(stop_);
        running_ = false;
    });
}

void SimulatorSession::Stop() {
    if (!thread_.joinable()) return;
    stop_ = true;
    thread_.join();
    stats_ = driver_->Stats();
    driver_.reset();
    line_.reset();
}

}  // namespace corvex
