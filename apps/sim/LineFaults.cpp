#include "apps/sim/LineFaults.h"

#include "apps/sim/Mixer.h"

namespace corvex {

namespace {

enum Purpose : std::uint64_t { kDrop, kNoise, kPlace, kChange, kPurposes };

}  // namespace

double LineFaults::Chance(std::uint64_t purpose) const {
    return static_cast<double>(Mix(options_.seed, number_ * kPurposes + purpose) >> 11) * 0x1p-53;
}

void LineFaults::Damage(std::vector<std::uint8_t>& reply, SimStats& stats) const {
    const auto place = static_cast<std::size_t>(Chance(kPlace) * static_cast<double>(reply.size()));
    const auto change = static_cast<unsigned>(Chance(kChange) * 510.0);  // 0 to 254 changes the byte, the rest lose it
    if (change < 255) {
        reply[place] = static_cast<std::uint8_t>(reply[place] ^ (change + 1));
    } else {
        reply.erase(reply.begin() + static_cast<std::ptrdiff_t>(place));
        ++stats.cut;
    }
}

bool LineFaults::Pass(std::vector<std::uint8_t>& reply, SimStats& stats) {
    ++number_;
    if (options_.faultyReplies && number_ > *options_.faultyReplies) return true;
    if (Chance(kDrop) < options_.drop) {
        ++stats.drops;
        return false;
    }
    if (!reply.empty() && Chance(kNoise) < options_.noise) {
        Damage(reply, stats);
        ++stats.noise;
    }
    return true;
}

}  // namespace corvex
