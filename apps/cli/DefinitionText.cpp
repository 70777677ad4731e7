#include "apps/cli/DefinitionText.h"

#include <vector>

#include "checking/EquationFacts.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string TimesText(std::uint32_t count) {
    return count == 1 ? "" : Printf(" x%u", count);
}

std::string MacroText(const ADXMacro& macro) {
    std::string text;
    ADXMacroNode node;
    for (std::uint32_t i = 0; i < macro.GetNodeCount(); ++i) {
        macro.GetNode(i, &node);
        if (i != 0) text += ", ";
        text += node.command != nullptr ? ShortNameOf(*node.command) : "missing " + DisplayText(node.commandid);
        text += TimesText(node.repeatcount);
        if ((node.flags & 1) != 0) text += " (end if it fails)";
        if ((node.flags & 2) != 0) text += " (end if it succeeds)";
    }
    if (text.empty()) text = "nothing";
    return text + (macro.repeatcount == 1 ? "" : Printf("; all of it %u times", macro.repeatcount));
}

std::string Within(std::uint32_t ms) {
    return ms == 0 ? "without a limit of time" : Printf("within %u ms", ms);
}

std::string SendText(const ADXCSendCommand& command) {
    std::string text = Counted(command.size(), "byte") + " out";
    if ((command.flags & 1) == 0) return text + ", no reply";
    return text + Printf(", %u back %s, packet of %u from %u", command.replysize, Within(command.replytimeout).c_str(),
                         command.packetsize, command.packetoffset);
}

std::string FieldText(const ADXDefinition& definition, std::uint32_t parent, std::uint32_t offset, std::uint32_t bits,
                      bool lowFirst, bool isSigned) {
    std::string text = "any command";
    if (parent != 0) {
        const ADXObject* command = definition.FindByHash(parent);
        text = command == nullptr ? "missing " + HashText(parent) : DisplayText(command->Id());
    }
    text += Printf(" 0x%.2X, %u bits", offset, bits);
    if (lowFirst && bits > 8) text += " low byte first";
    if (isSigned) text += " signed";
    return text;
}

std::string AlarmText(const ADXValue& value) {
    std::string text;
    if ((value.flags & ADXValue::kAlarmLow) != 0) text = Printf("below %g", static_cast<double>(value.alarmlow));
    if ((value.flags & ADXValue::kAlarmHigh) != 0)
        text += Printf("%sabove %g", text.empty() ? "" : ", ", static_cast<double>(value.alarmhigh));
    return text;
}

std::string AlarmText(const ADXBitmask& bit) {
    std::string text;
    if ((bit.flags & ADXBitmask::kAlarmOnSet) != 0) text = "when set";
    if ((bit.flags & ADXBitmask::kAlarmOnNotSet) != 0) text += text.empty() ? "when not set" : ", when not set";
    return text;
}

std::string ThroughText(const ADXDefinition& definition, const ADXValue& value) {
    std::string text = DisplayText(WholeEquation(value));
    ADXVar var;
    for (std::uint32_t i = 0; value.GetVar(i, &var) != 0; ++i) {
        if (var.type != 1) continue;
        const ADXObject* target = definition.FindByHash(var.linkidhash);
        text += Printf(" (%c: %s)", var.varid,
                       target != nullptr ? ShortNameOf(*target).c_str() : HashText(var.linkidhash).c_str());
    }
    if (value.lookup != nullptr) text += " -> " + ShortNameOf(*value.lookup);
    return text;
}

void AddValues(const ADXDefinition& definition, Rows& rows) {
    rows.push_back({"Id", "Title", "Units", "Equation", "Place", "Range", "Alarms"});
    for (const auto& object : definition.Objects()) {
        if (object->GetType() != kTypeValue) continue;
        const auto& value = static_cast<const ADXValue&>(*object);
        rows.push_back({DisplayText(value.Id()), DisplayText(value.Title()), DisplayText(value.Units()),
                        ThroughText(definition, value), PlaceText(definition, value),
                        Printf("%g to %g", static_cast<double>(value.rangelow), static_cast<double>(value.rangehigh)),
                        AlarmText(value)});
    }
}

void AddBitmasks(const ADXDefinition& definition, Rows& rows) {
    rows.push_back({"Id", "Title", "Set", "Not set", "Test", "Place", "Alarm"});
    for (const auto& object : definition.Objects()) {
        if (object->GetType() != kTypeBitmask) continue;
        const auto& bit = static_cast<const ADXBitmask&>(*object);
        rows.push_back(
            {DisplayText(bit.Id()), DisplayText(bit.Title()), DisplayText(bit.TrueString()),
             DisplayText(bit.FalseString()),
             Printf("%s 0x%.2X = 0x%.2X", bit.bitop == ADXBitmask::kXor ? "xor" : "and", bit.operand, bit.result),
             PlaceText(definition, bit), AlarmText(bit)});
    }
}

void AddTables(const ADXDefinition& definition, Rows& rows) {
    constexpr const char* modes[] = {"interpolated", "nearest", "lower", "higher"};
    rows.push_back({"Id", "Title", "Rows", "Between rows", "Output"});
    for (const auto& object : definition.Objects()) {
        if (object->GetType() != kTypeLookupTable) continue;
        const auto& table = static_cast<const ADXLookupTable&>(*object);
        const std::uint32_t mode = table.GetLookupMode();
        rows.push_back(
            {DisplayText(table.Id()), DisplayText(table.Title()), std::to_string(table.GetEntryCount()),
             mode < 4 ? modes[mode] : Printf("mode %u", mode),
             table.GetOutputType() == ADXLookupTable::kText ? "text" : Printf("numbers (%u)", table.GetOutputType())});
    }
}

std::string ViewText(const ADXObject& object) {
    switch (object.GetType()) {
        case kTypeListView:
            return Counted(static_cast<const ADXListView&>(object).GetEntryCount(), "row");
        case kTypeDashboard:
            return Counted(static_cast<const ADXDashboard&>(object).GetEntryCount(), "gauge");
        case kTypeMonitor:
            return Counted(static_cast<const ADXMonitor&>(object).GetEntryCount(), "trace");
        case kTypeHistogram: {
            const auto& grid = static_cast<const ADXHistogram&>(object);
            return Printf("%u rows, %u columns", grid.GetRows(), grid.GetCols());
        }
        default:
            return {};
    }
}

constexpr std::uint32_t kViewTypes = kTypeListView | kTypeDashboard | kTypeMonitor | kTypeHistogram;

void AddPlain(const ADXDefinition& definition, std::uint32_t types, Rows& rows) {
    rows.push_back({"Id", "Title", "Kind", (types & kCommandTypes) != 0 ? "Does" : "Holds"});
    for (const auto& object : definition.Objects()) {
        if ((object->GetType() & types) == 0) continue;
        rows.push_back({DisplayText(object->Id()), DisplayText(object->Title()), KindOfType(object->GetType())->noun,
                        (types & kCommandTypes) != 0 ? CommandText(*object) : ViewText(*object)});
    }
}

std::string Section(const char* title, const Rows& rows) {
    const std::string head = Printf("\n%s (%u)\n", title, static_cast<unsigned>(rows.size() - 1));
    return rows.size() == 1 ? head : head + AlignColumns(rows, "  ");
}

std::string CommandName(const ADXObject* command) {
    return command == nullptr ? "none" : DisplayText(command->Id());
}

}  // namespace

std::size_t CountOfType(const ADXDefinition& definition, std::uint32_t type) {
    std::size_t count = 0;
    for (const auto& object : definition.Objects())
        count += object->GetType() == type ? 1 : 0;
    return count;
}

std::string BytesText(const std::uint8_t* bytes, std::uint32_t count) {
    std::string text;
    for (std::uint32_t i = 0; i < count; ++i)
        text += Printf(i == 0 ? "%.2X" : " %.2X", bytes[i]);
    return text;
}

std::string PlaceText(const ADXDefinition& definition, const ADXObject& item) {
    if (item.GetType() == kTypeValue) {
        const auto& value = static_cast<const ADXValue&>(item);
        return FieldText(definition, value.parentcmdidhash, value.packetoffset, value.sizeinbits,
                         (value.flags & kFlagLowByteFirst) != 0, (value.flags & ADXValue::kSigned) != 0);
    }
    const auto& bit = static_cast<const ADXBitmask&>(item);
    return FieldText(definition, bit.parentcmdidhash, bit.packetoffset, bit.sizeinbits,
                     (bit.flags & kFlagLowByteFirst) != 0, false);
}

std::string CommandText(const ADXObject& command) {
    switch (command.GetType()) {
        case kTypeSendCommand:
            return SendText(static_cast<const ADXCSendCommand&>(command));
        case kType160BaudListen:
            return Printf("packet of %u", static_cast<const ADXC160BaudListen&>(command).packetsize);
        case kTypeListenSilence: {
            const auto& silence = static_cast<const ADXCListenSilence&>(command);
            if (silence.silencelen == 0) return Printf("waits %u ms", silence.totaltimeout);
            return Printf("%u ms of silence within %u ms", silence.silencelen, silence.totaltimeout);
        }
        case kTypeListenChatter: {
            const auto& chatter = static_cast<const ADXCListenChatter&>(command);
            return BytesText(chatter.bytestring(), chatter.size()) + " " + Within(chatter.listentimeout);
        }
        case kTypeTrigger:
            return Printf("views 0x%.2X", static_cast<const ADXCTrigger&>(command).triggertype);
        case kTypeMacro:
            return MacroText(static_cast<const ADXMacro&>(command));
        default:
            return {};
    }
}

std::string HeaderText(const ADXDefinition& definition) {
    Rows rows;
    const auto add = [&](const char* name, const OwnedText& text) {
        if (text.IsSet()) rows.push_back({name, DisplayText(text.CStr())});
    };
    add("description", definition.Desc());
    add("author", definition.Author());
    add("version", definition.UserVersion());
    rows.push_back({"line", Printf("%u baud%s", definition.baud, (definition.flags & 1) != 0 ? ", with echo" : "")});
    rows.push_back({"connect", CommandName(definition.connectcmd)});
    rows.push_back({"monitor", CommandName(definition.monitorcmd)});
    rows.push_back({"disconnect", CommandName(definition.disconnectcmd)});
    return AlignColumns(rows, "  ");
}

std::string DefinitionText(const ADXDefinition& definition) {
    Rows commands, values, bitmasks, tables, views;
    AddPlain(definition, kCommandTypes, commands);
    AddValues(definition, values);
    AddBitmasks(definition, bitmasks);
    AddTables(definition, tables);
    AddPlain(definition, kViewTypes, views);
    return HeaderText(definition) + Section("Commands", commands) + Section("Values", values) +
           Section("Bitmasks", bitmasks) + Section("Tables", tables) + Section("Views", views);
}

}  // namespace corvex
