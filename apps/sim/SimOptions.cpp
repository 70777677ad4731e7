#include "apps/sim/SimOptions.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace corvex {

std::string Describe(const SimStats& stats) {
    const auto number = [](std::uint64_t count) { return std::to_string(count); };
    std::string text = "requests: " + number(stats.requests) + " replies: " + number(stats.replies) +
                       " drops: " + number(stats.drops) + " noise: " + number(stats.noise) +
                       " cut: " + number(stats.cut) + " packets: " + number(stats.streamPackets) +
                       " frames: " + number(stats.idleFrames) + " unread: " + number(stats.unread);
    if (stats.pacedReplies == 0) return text;
    std::array<char, 160> pace{};
    std::snprintf(pace.data(), pace.size(),
                  "\npaced replies: %s mean error: %+.4f %% last byte late: p99 %.3f ms max %.3f ms",
                  number(stats.pacedReplies).c_str(), stats.meanErrorPercent, stats.lateness99Ms, stats.latenessMaxMs);
    return text + pace.data();
}

std::string DescribeAsJson(const SimStats& stats) {
    nlohmann::ordered_json json{{"requests", stats.requests}, {"replies", stats.replies},
                                {"drops", stats.drops},       {"noise", stats.noise},
                                {"cut", stats.cut},           {"packets", stats.streamPackets},
                                {"frames", stats.idleFrames}, {"unread", stats.unread}};
    if (stats.pacedReplies != 0) {
        json["pacedReplies"] = stats.pacedReplies;
        json["meanErrorPercent"] = stats.meanErrorPercent;
        json["lateness99Ms"] = stats.lateness99Ms;
        json["latenessMaxMs"] = stats.latenessMaxMs;
    }
    return json.dump();
}

}  // namespace corvex
