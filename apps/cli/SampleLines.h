// One reply as a line of output.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "session/diagnosis/ReplyEvent.h"

namespace corvex {

class ADXDefinition;
class ItemChoice;

// Read the chosen items of the event's command and of no command from its packet; they drive the evaluators (one
// thread).

// "1.234 POLL: Engine Speed 812 rpm; Throttle 3.1 %", an alarm marked with "!".
std::string PlainSample(const ADXDefinition& definition, const ItemChoice& chosen, const ReplyEvent& event);

// {"t": seconds, "command": id, "values": {id: number, ...}}. A bitmask is true or false, a value with texts its text,
// a number that is none null. An item without id stands under its title.
nlohmann::ordered_json JsonSample(const ADXDefinition& definition, const ItemChoice& chosen, const ReplyEvent& event);

}  // namespace corvex
