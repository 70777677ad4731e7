// How a scanned line does, in words.
#pragma once

#include <cstdint>
#include <string>

namespace corvex {

class LineDiagnosis;
class ScanSummary;

// One sentence that is true `seconds` after the scan began: "Connected, 12.05 Hz, 120 good replies, 2 errors".
// `connection` is a ConnectionState.
std::string LineStateText(std::uint32_t connection, double seconds, const ScanSummary& summary,
                          const LineDiagnosis& diagnosis);

// "12.05 Hz, 120 good replies, 2 errors".
std::string CountsText(const ScanSummary& summary);

}  // namespace corvex
