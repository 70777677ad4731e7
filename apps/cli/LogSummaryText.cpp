#include "apps/cli/LogSummaryText.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <vector>

#include "apps/cli/LogFile.h"
#include "apps/cli/LogLoss.h"
#include "definition/ADXDefinition.h"
#include "export/LogSummary.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

constexpr std::size_t kGapsShown = 10;

std::string SecondsText(std::uint32_t milliseconds) {
    return Printf("%u.%03u s", static_cast<unsigned>(milliseconds / 1000), static_cast<unsigned>(milliseconds % 1000));
}

std::string RateText(std::uint32_t records, std::uint32_t firstMs, std::uint32_t lastMs) {
    return Printf("%.2f Hz", RecordRate(records, firstMs, lastMs));
}

std::string CommandName(const ADXDefinition* definition, std::uint32_t commandId) {
    const ADXObject* const command = definition == nullptr ? nullptr : definition->FindByHash(commandId);
    if (command == nullptr) return HashText(commandId);
    return ShortNameOf(*command) + ' ' + HashText(commandId);
}

std::string KindText(std::uint32_t type) {
    if (type == kTypeSendCommand) return "send command";
    if (type == kType160BaudListen) return "160 baud packet";
    return Printf("unknown type 0x%X", static_cast<unsigned>(type));
}

std::string CommandLines(const LogSummary& summary, const ADXDefinition* definition) {
    std::vector<std::vector<std::string>> rows;
    for (const LogSummary::Item& item : summary.items)
        rows.push_back({CommandName(definition, item.fields.commandId), KindText(item.fields.type),
                        Counted(item.fields.packedSize, "byte"), Counted(item.records, "record"),
                        RateText(item.records, item.firstMs, item.lastMs)});
    return rows.empty() ? "Commands  none\n" : "Commands\n" + AlignColumns(rows, "  ");
}

std::string GapLines(const LogSummary& summary) {
    const std::string rule = Printf("longer than %u s and than %u times the median interval of ",
                                    LogSummary::kShortestGap / 1000, LogSummary::kGapFactor) +
                             SecondsText(summary.medianMs);
    if (summary.gaps.empty()) return "Gaps      none " + rule + '\n';
    std::string text = "Gaps      " + std::to_string(summary.gaps.size()) + ' ' + rule + '\n';
    for (std::size_t i = 0; i < std::min(summary.gaps.size(), kGapsShown); ++i)
        text += "  at " + SecondsText(summary.gaps[i].beginMs) + " for " + SecondsText(summary.gaps[i].lengthMs) + '\n';
    if (summary.gaps.size() > kGapsShown)
        text += "  and " + std::to_string(summary.gaps.size() - kGapsShown) + " more\n";
    return text;
}

std::string EndText(const LogSummary& summary) {
    const std::uint32_t mark = summary.header.endMark;
    if (mark == kNeverEnded) return "never ended: the recording goes on, or was cut off";
    // A log that was ended without a record has none of its bytes in the file when its end is marked.
    if (mark == summary.fileSize + 1 || (mark == 1 && summary.records == 0)) return "ended properly";
    return Printf("ended, but its end mark is for a file of %u bytes and this one has %llu",
                  static_cast<unsigned>(mark - 1), static_cast<unsigned long long>(summary.fileSize));
}

std::string ReadingEndText(const LogSummary& summary) {
    const std::string left = Counted(static_cast<std::size_t>(summary.left), "byte");
    if (summary.result != kLogEndOfFile)
        return "reading ended " + left + " before the end of the file: " + LogErrorText(summary.result);
    if (summary.left == 0) return {};
    if (summary.damaged) return DamageText(summary.fileSize - summary.left, summary.left);
    return "cut: the last " + left + " are no whole record";
}

// What a reader of the records must know, a line each.
std::string DamageLines(const LogSummary& summary) {
    std::string text;
    const std::string indent(10, ' ');
    if (summary.unknown != 0) text += indent + Counted(summary.unknown, "record") + " of unknown items passed over\n";
    const std::string missing = MissingText(summary.header, summary.records), end = ReadingEndText(summary);
    if (!missing.empty())
        text += indent + missing + '\n';
    else if (summary.header.endMark != kNeverEnded && summary.header.sampleCount != summary.records)
        text += indent + "its header counts " + Counted(summary.header.sampleCount, "record") + '\n';
    for (const std::string& part : {GapText(summary.gap), end}) {
        if (!part.empty()) text += indent + part + '\n';
    }
    return text;
}

}  // namespace

std::string StartTimeText(const LogSummary& summary, char between) {
    const LocalTime& t = summary.header.startTime;
    return Printf("%04u-%02u-%02u%c%02u:%02u:%02u.%03u", t.year, t.month, t.day, between, t.hour, t.minute, t.second,
                  t.milliseconds);
}

std::string LossText(const LogSummary& summary) {
    std::string text;
    const std::string unknown =
        summary.unknown == 0 ? "" : Counted(summary.unknown, "record") + " of unknown items passed over";
    for (const std::string& part :
         {unknown, MissingText(summary.header, summary.records), GapText(summary.gap), ReadingEndText(summary)}) {
        if (!part.empty()) text += (text.empty() ? "" : "; ") + part;
    }
    return text;
}

nlohmann::ordered_json LogSummaryJson(const LogSummary& summary, const ADXDefinition* definition) {
    nlohmann::ordered_json json{{"version", summary.header.version},
                                {"dataOffset", summary.header.dataOffset},
                                {"endMark", summary.header.endMark},
                                {"sampleCount", summary.header.sampleCount},
                                {"startTime", StartTimeText(summary, 'T')}};
    json["items"] = nlohmann::ordered_json::array();
    for (const LogSummary::Item& item : summary.items) {
        json["items"].push_back({{"commandId", HashText(item.fields.commandId)},
                                 {"type", item.fields.type},
                                 {"packedSize", item.fields.packedSize},
                                 {"fullSize", item.fields.fullSize}});
        const ADXObject* const command =
            definition == nullptr ? nullptr : definition->FindByHash(item.fields.commandId);
        if (command != nullptr) json["items"].back()["command"] = ShortNameOf(*command);
    }
    json["records"] = summary.records;
    json["result"] = summary.result;
    return json;
}

std::string LogSummaryText(const LogSummary& summary, const ADXDefinition* definition) {
    const std::uint32_t duration = summary.lastMs > summary.firstMs ? summary.lastMs - summary.firstMs : 0;
    return "Began     " + StartTimeText(summary, ' ') + "\nDuration  " + SecondsText(duration) + "\nRecords   " +
           std::to_string(summary.records) + ", " + RateText(summary.records, summary.firstMs, summary.lastMs) +
           "\nState     " + EndText(summary) + '\n' + DamageLines(summary) + CommandLines(summary, definition) +
           GapLines(summary);
}

}  // namespace corvex
