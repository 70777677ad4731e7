// What a log holds, for programs and for people.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace corvex {

class ADXDefinition;
struct LogSummary;

// With "command" beside "commandId" where the definition has one of that hash; null for no definition.
nlohmann::ordered_json LogSummaryJson(const LogSummary& summary, const ADXDefinition* definition);

// Lines of text. Commands go by their names in `definition`, or by their id hashes where that is null or has none.
std::string LogSummaryText(const LogSummary& summary, const ADXDefinition* definition);

// What is not in the log any more, or cannot be read, in one line without its end; empty for nothing.
std::string LossText(const LogSummary& summary);

// "2026-07-01T12:34:56.789": the words as they stand in the header, whatever they are.
std::string StartTimeText(const LogSummary& summary, char between);

}  // namespace corvex
