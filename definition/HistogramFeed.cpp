#include "definition/HistogramFeed.h"

#include "definition/ADXDefinition.h"
#include "definition/ADXHistogram.h"

namespace corvex {

HistogramFeed::HistogramFeed(const ADXDefinition& definition) : definition_(definition) {
    for (const auto& object : definition.Objects()) {
        if (auto* histogram = As<ADXHistogram>(object.get())) fed_.push_back({.histogram = histogram});
    }
}

void HistogramFeed::Update(PacketView lastPacket, std::uint32_t lastPacketCommand, std::uint32_t commandId) {
    for (FedHistogram& fed : fed_)
        fed.hit.reset();
    // Before the first packet there is nothing to take a sample from.
    if (!lastPacket) return;
    for (FedHistogram& fed : fed_) {
        ADXHistogram& histogram = *fed.histogram;
        if (!histogram.BelongsTo(commandId)) continue;
        const auto word = static_cast<std::uint32_t>(histogram.AddSample(definition_, lastPacket, lastPacketCommand));
        const HistogramCell cell{word & 0xFFFFU, word >> 16U};
        ++fed.samples;
        if (cell.row < histogram.GetRows() && cell.col < histogram.GetCols()) {
            fed.hit = cell;
        } else {
            ++fed.nowhere;
        }
    }
}

}  // namespace corvex
