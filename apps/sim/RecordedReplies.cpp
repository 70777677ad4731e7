#include "apps/sim/RecordedReplies.h"

#include <array>
#include <cstdio>
#include <utility>

#include "apps/sim/SimOptions.h"
#include "definition/ADXDefinition.h"
#include "logging/DataLogEngine.h"
#include "logging/LogBuffers.h"
#include "logging/LogWalk.h"

namespace corvex {

bool RecordedReplies::Read(const std::string& path, std::string& error) {
    DataLogEngine log;
    if (const std::uint32_t result = log.Open(path.c_str(), kLogForLooking); result != kLogSuccess) {
        std::array<char, 32> code{};
        std::snprintf(code.data(), code.size(), ": error 0x%X", static_cast<unsigned>(result));
        error = path + code.data();
        return false;
    }
    fileSize_ = log.FileSize();
    for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
        items_.push_back(*log.GetItem(i));
    LogWalk walk(log);
    while (walk.Next()) {
        const LogItem& item = walk.Item();
        records_[item.commandId].push_back({walk.Record().itemIndex, packed_.size()});
        packed_.insert(packed_.end(), walk.Packed(), walk.Packed() + item.packedSize);
    }
    if (!records_.empty()) return true;
    error = path + ": holds no records";
    return false;
}

bool RecordedReplies::Serves(const ADXDefinition& definition) const {
    for (const auto& [command, records] : records_) {
        if (definition.FindByHash(command) != nullptr) return true;
    }
    return false;
}

std::size_t RecordedReplies::Count(std::uint32_t command) const {
    const auto found = records_.find(command);
    return found != records_.end() ? found->second.size() : 0;
}

std::vector<std::uint8_t> RecordedReplies::Reply(std::uint32_t command, std::size_t n) const {
    const Record& record = records_.at(command)[n];
    const LogItem& item = items_[record.item];
    std::vector<std::uint8_t> reply(ExpandedSize(item, fileSize_));
    ExpandRecord(item.mask, packed_.data() + record.offset, item.packedSize, reply.data(),
                 static_cast<std::uint32_t>(reply.size()));
    return reply;
}

bool LoadRecording(const std::string& path, const ADXDefinition& definition, SimOptions& options, std::string& error) {
    auto recording = std::make_shared<RecordedReplies>();
    if (!recording->Read(path, error)) return false;
    if (!recording->Serves(definition)) {
        error = path + ": holds no records of the definition's commands";
        return false;
    }
    options.recording = std::move(recording);
    return true;
}

}  // namespace corvex
