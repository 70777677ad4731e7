#include "session/diagnosis/LineState.h"

#include "export/text/TextFormat.h"
#include "session/ConnectionState.h"
#include "session/diagnosis/LineDiagnosis.h"
#include "session/diagnosis/ScanSummary.h"

namespace corvex {

namespace {

// A connected line that is quiet for longer than this is told to be; a 160-baud packet takes 1.2 s.
constexpr double kQuietSeconds = 3.0;

}  // namespace

std::string CountsText(const ScanSummary& summary) {
    return Printf("%.2f Hz, ", summary.Rate()) + Counted(summary.Good(), "good reply") + ", " +
           Counted(summary.Errors(), "error");
}

std::string LineStateText(std::uint32_t connection, double seconds, const ScanSummary& summary,
                          const LineDiagnosis& diagnosis) {
    const double quiet = seconds - summary.LastGood();
    if (connection == kConnecting) {
        // The first moments say nothing about a line yet.
        if (seconds < 1.0) return "Connecting";
        return "Connecting: " + diagnosis.WhyNoReply(seconds);
    }
    if (connection == kConnected && quiet > kQuietSeconds)
        return Printf("No reply for %.1f s; ", quiet) + CountsText(summary);
    if (connection == kConnected) return "Connected, " + CountsText(summary);
    return "Not connected, " + CountsText(summary);
}

}  // namespace corvex
