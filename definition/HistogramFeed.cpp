#include "definition/HistogramFeed.h"

#include "definition/ADXDefinition.h"
#include "definition/ADXHistogram.h"

namespace corvex {

HistogramFeed::HistogramFeed(const ADXDefinition& definition) : definition_(definition) {
    for (const auto& object : definition.Objects()) {
        if (auto* histogram = As<ADXHistogram>(object.get())) fed_.push_back({histogram, 0, 0});
    }
}

void HistogramFeed::Update(PacketView lastPacket, std::uint32_t lastPacketCommand, std::uint32_t commandId) {
    // Before the first packet there is nothing to take a sample from.
    if (!lastPacket) return;
    for (FedHistogram& fed : fed_) {
        ADXHistogram& histogram = *fed.histogram;
        if (!histogram.BelongsTo(commandId)) continue;
        const auto cell = static_cast<std::uint32_t>(histogram.AddSample(definition_, lastPacket, lastPacketCommand));
        ++fed.samples;
        if ((cell & 0xFFFFU) >= histogram.GetRows() || cell >> 16U >= histogram.GetCols()) ++fed.nowhere;
    }
}

}  // namespace corvex
