// Fills a definition's histograms as a session's samples come.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "definition/PacketView.h"

namespace corvex {

class ADXDefinition;
class ADXHistogram;

// Counted from 0.
struct HistogramCell {
    std::uint32_t row, col;
};

// One of the histograms, and what became of its samples.
struct FedHistogram {
    ADXHistogram* histogram = nullptr;
    std::uint32_t samples = 0;
    std::uint32_t nowhere = 0;  // of them, those that fell into no cell
    // Of the last update; none when that was not for this histogram, or fell into no cell.
    std::optional<HistogramCell> hit{};
};

// Keeps pointers to the definition's histograms, which stay where they are. One thread at a time.
class HistogramFeed {
public:
    // All histograms, in definition order.
    explicit HistogramFeed(const ADXDefinition& definition);

    // A sample for the histograms of this command and of no command, taken from the session's last packet.
    void Update(PacketView lastPacket, std::uint32_t lastPacketCommand, std::uint32_t commandId);

    const std::vector<FedHistogram>& All() const { return fed_; }

private:
    const ADXDefinition& definition_;
    std::vector<FedHistogram> fed_;
};

}  // namespace corvex
