#include "apps/cli/LiveTable.h"

#include "definition/ADXDefinition.h"
#include "export/ItemPattern.h"
#include "export/ItemReading.h"
#include "export/text/ObjectNames.h"

namespace corvex {

LiveTable::LiveTable(const ADXDefinition& definition, const std::string& patterns) : definition_(definition) {
    for (const auto& object : definition.Objects()) {
        if (object->IsOneOf(kItemTypes) && ItemMatches(patterns, *object)) items_.push_back(object.get());
    }
}

void LiveTable::Add(const ReplyEvent& event) {
    if (!event.sampled || event.command == nullptr) return;
    answered_[event.command->GetIdHash()] = event.t;
    answered_[0] = event.t;
}

std::vector<LiveRow> LiveTable::Rows(double now) const {
    std::vector<LiveRow> rows;
    rows.reserve(items_.size());
    for (ADXObject* const item : items_) {
        LiveRow row{ShortNameOf(*item), "-", UnitsOf(*item), false, 0, -1.0};
        const auto answered = answered_.find(ParentOf(*item));
        if (answered != answered_.end()) {
            const ItemReading reading = ReadItem(definition_, *item, nullptr);
            row.value = reading.text;
            row.alarm = reading.alarm;
            row.colour = reading.colour;
            row.age = now > answered->second ? now - answered->second : 0.0;
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace corvex
