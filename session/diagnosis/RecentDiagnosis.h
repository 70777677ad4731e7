// A diagnosis that goes by the last seconds: what a line was like for an hour would outvote what it is like now.
#pragma once

#include <utility>

#include "session/diagnosis/LineDiagnosis.h"

namespace corvex {

// One thread. Times as LinkRecord has them.
class RecentDiagnosis {
public:
    void Forget(bool echo) {
        echo_ = echo;
        now_ = older_ = LineDiagnosis(echo);
        any_ = false;
    }
    void Add(const ReplyEvent& event) {
        if (!any_) since_ = event.t;
        if (event.t - since_ > kSeconds && !now_.IsYoung()) {
            older_ = std::exchange(now_, LineDiagnosis(echo_));
            since_ = event.t;
        }
        now_.Add(event);
        any_ = true;
    }
    bool Any() const { return any_; }
    // While there is too little to go by, that of the time before.
    const LineDiagnosis& Now() const { return now_.IsYoung() && !older_.IsYoung() ? older_ : now_; }

private:
    static constexpr double kSeconds = 10.0;

    bool echo_ = false, any_ = false;
    LineDiagnosis now_{false}, older_{false};
    double since_ = 0.0;
};

}  // namespace corvex
