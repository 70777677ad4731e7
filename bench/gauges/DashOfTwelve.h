// Definitions of one command: with one dashboard of twelve gauges, or with one histogram.
#pragma once

#include <cstdint>
#include <string>

namespace corvex::bench {

inline constexpr std::size_t kGaugesOnDash = 12;
inline constexpr char kPollId[] = "POLL";
inline constexpr std::uint32_t kPollReply = 12;  // bytes; each gauge reads one of its own

// Four columns by three rows: the first `dials` gauges are analog ones, the last four status gauges, all others
// readouts.
std::string DashOfTwelve(std::size_t dials);
// A histogram of 16 by 16 cells of the same command.
std::string HistogramOfSixteen();

}  // namespace corvex::bench
