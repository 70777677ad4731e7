#include "session/diagnosis/ScanSummary.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "acquisition/DataAcqStatus.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// To the millisecond or millihertz, below which there is only noise.
double Rounded(double number) {
    return std::round(number * 1000.0) / 1000.0;
}

}  // namespace

const char* CodeName(std::uint32_t code) {
    switch (code) {
        case kCodeSuccess:
            return "success";
        case kCodeRefused:
            return "refused";
        case kCodeStopped:
            return "stopped by request";
        case kCodeTimeout:
            return "timeout";
        case kCodeShortWrite:
            return "short write";
        case kCodeShortReply:
            return "short reply";
        case kCodeBadFraming:
            return "badly framed byte";
        case kCodeNoSync:
            return "sync not found";
        case kCodeNodeSucceeded:
            return "ended as a node succeeded";
        case kCodeNodeFailed:
            return "ended as a node failed";
        default:
            return "unknown";
    }
}

void ScanSummary::Add(const ReplyEvent& event) {
    // A command cut off by the stop is nobody's fault.
    if (event.code == kCodeStopped) return;
    if (event.code != kCodeSuccess) {
        ++errors_[event.code];
        return;
    }
    // A command that brings no reply has brought no good one.
    if (!event.expected) return;
    if (good_++ == 0) first_ = event.t;
    last_ = event.t;
}

std::uint32_t ScanSummary::Errors() const {
    std::uint32_t sum = 0;
    for (const auto& [code, count] : errors_)
        sum += count;
    return sum;
}

double ScanSummary::Rate() const {
    return good_ < 2 || last_ <= first_ ? 0.0 : (good_ - 1) / (last_ - first_);
}

std::string ScanSummary::Text(double seconds) const {
    std::string text = Counted(good_, "good reply") + Printf(" in %.1f s, %.2f Hz; ", seconds, Rate());
    if (errors_.empty()) return text + "no errors";
    text += Counted(Errors(), "error") + ": ";
    const char* comma = "";
    for (const auto& [code, count] : errors_) {
        text += Printf("%s%u times %s (%u)", comma, count, CodeName(code), code);
        comma = ", ";
    }
    return text;
}

nlohmann::ordered_json ScanSummary::Json(double seconds) const {
    nlohmann::ordered_json json{
        {"seconds", Rounded(seconds)}, {"replies", good_}, {"rate", Rounded(Rate())}, {"errors", Errors()}};
    json["codes"] = nlohmann::ordered_json::object();
    for (const auto& [code, count] : errors_)
        json["codes"][std::to_string(code)] = {{"name", CodeName(code)}, {"count", count}};
    return json;
}

}  // namespace corvex
