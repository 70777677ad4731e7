#include "apps/cli/SampleLines.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "definition/ADXDefinition.h"
#include "export/ItemPattern.h"
#include "export/ItemReading.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// Calls `use` with each item of the event's command or of none, and its reading.
template <class Use>
void ForEachItem(const ADXDefinition& definition, const ItemChoice& chosen, const ReplyEvent& event, Use use) {
    for (const auto& object : definition.Objects()) {
        if (!chosen.Has(*object)) continue;
        const std::uint32_t parent = ParentOf(*object);
        if (parent != 0 && parent != event.command->GetIdHash()) continue;
        use(*object, ReadItem(definition, *object, event.Packet()));
    }
}

std::string IdOrTitle(const ADXObject& object) {
    return *object.Id() != '\0' ? Utf8Text(object.Id()) : ShortNameOf(object);
}

nlohmann::ordered_json JsonReading(const ADXObject& item, const ItemReading& reading) {
    if (item.GetType() == kTypeBitmask) return reading.number != 0.0;
    if (reading.istext) return reading.text;
    if (!std::isfinite(reading.number)) return nullptr;
    return reading.number;
}

}  // namespace

std::string PlainSample(const ADXDefinition& definition, const ItemChoice& chosen, const ReplyEvent& event) {
    std::string line = Printf("%.3f %s:", event.t, IdOrTitle(*event.command).c_str());
    const char* comma = " ";
    ForEachItem(definition, chosen, event, [&](const ADXObject& item, const ItemReading& reading) {
        line += comma;
        line += ShortNameOf(item) + (reading.alarm ? " !" : " ") + reading.text;
        const std::string units = UnitsOf(item);
        if (!units.empty()) line += ' ' + units;
        comma = "; ";
    });
    return line;
}

nlohmann::ordered_json JsonSample(const ADXDefinition& definition, const ItemChoice& chosen, const ReplyEvent& event) {
    nlohmann::ordered_json json;
    // Milliseconds are what the line can tell; more digits would only be noise.
    json["t"] = std::round(event.t * 1000.0) / 1000.0;
    json["command"] = IdOrTitle(*event.command);
    json["values"] = nlohmann::ordered_json::object();
    ForEachItem(definition, chosen, event, [&](const ADXObject& item, const ItemReading& reading) {
        json["values"][IdOrTitle(item)] = JsonReading(item, reading);
    });
    return json;
}

}  // namespace corvex
