#include "session/SessionCalls.h"

#include <utility>

namespace corvex {

namespace {

template <class R, class... Arguments>
void Fill(std::function<R(Arguments...)>& call) {
    if (!call) call = [](Arguments...) { return R(); };
}

}  // namespace

SessionCalls WithoutGaps(SessionCalls calls) {
    Fill(calls.refreshStatus);
    Fill(calls.refreshButtons);
    Fill(calls.carrySample);
    Fill(calls.flash);
    Fill(calls.scanBegins);
    Fill(calls.clearMonitors);
    Fill(calls.setMonitorTime);
    Fill(calls.setLogSlider);
    Fill(calls.setLogRange);
    Fill(calls.refreshTitle);
    Fill(calls.checkSpeed);
    Fill(calls.askSavePath);
    Fill(calls.askOpenPath);
    Fill(calls.showBox);
    Fill(calls.recordingKept);
    Fill(calls.postMain);
    Fill(calls.portRefused);
    Fill(calls.deviceVanished);
    Fill(calls.deviceBack);
    Fill(calls.replyEnded);
    return calls;
}

}  // namespace corvex
