#include "apps/cli/DefinitionText.h"

#include <utility>
#include <vector>

#include "checking/EquationFacts.h"
#include "export/DefinitionWalk.h"
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
    for (const ADXMacroNode& node : macro.Nodes()) {
        if (!text.empty()) text += ", ";
        text += node.command != nullptr ? ShortNameOf(*node.command) : "missing " + DisplayText(node.commandid);
        text += TimesText(node.repeatcount);
        if (node.EndsIfFailed()) text += " (end if it fails)";
        if (node.EndsIfSucceeded()) text += " (end if it succeeds)";
    }
    if (text.empty()) text = "nothing";
    return text + (macro.repeatcount == 1 ? "" : Printf("; all of it %u times", macro.repeatcount));
}

std::string Within(std::uint32_t ms) {
    return ms == 0 ? "without a limit of time" : Printf("within %u ms", ms);
}

std::string SendText(const ADXCSendCommand& command) {
    std::string text = Counted(command.size(), "byte") + " out";
    if (!command.ExpectsReply()) return text + ", no reply";
    return text + Printf(", %u back %s, packet of %u from %u", command.replysize, Within(command.replytimeout).c_str(),
                         command.packetsize, command.packetoffset);
}

// The place of an item: command, offset, width, byte order and sign: "POLL 0x02, 16 bits signed".
std::string PlaceText(const ADXDefinition& definition, const ADXItem& item, bool isSigned) {
    std::string text = "any command";
    if (item.parentcmdidhash != 0) {
        const ADXObject* command = definition.FindByHash(item.parentcmdidhash);
        text = command == nullptr ? "missing " + HashText(item.parentcmdidhash) : DisplayText(command->Id());
    }
    text += Printf(" 0x%.2X, %u bits", item.packetoffset, item.sizeinbits);
    if (item.IsLowByteFirst() && item.sizeinbits > 8) text += " low byte first";
    if (isSigned) text += " signed";
    return text;
}

std::string AlarmText(const ADXValue& value) {
    std::string text;
    if (value.HasLowAlarm()) text = Printf("below %g", static_cast<double>(value.alarmlow));
    if (value.HasHighAlarm())
        text += Printf("%sabove %g", text.empty() ? "" : ", ", static_cast<double>(value.alarmhigh));
    return text;
}

std::string AlarmText(const ADXBitmask& bit) {
    std::string text;
    if (bit.HasAlarmOnSet()) text = "when set";
    if (bit.HasAlarmOnNotSet()) text += text.empty() ? "when not set" : ", when not set";
    return text;
}

std::string ThroughText(const ADXDefinition& definition, const ADXValue& value) {
    std::string text = DisplayText(WholeEquation(value));
    for (const ADXVar& var : value.Vars()) {
        if (!var.IsLink()) continue;
        const ADXObject* target = definition.FindByHash(var.linkidhash);
        text += Printf(" (%c: %s)", var.varid,
                       target != nullptr ? ShortNameOf(*target).c_str() : HashText(var.linkidhash).c_str());
    }
    if (value.lookup != nullptr) text += " -> " + ShortNameOf(*value.lookup);
    return text;
}

std::string Section(const char* title, const Rows& rows) {
    const std::string head = Printf("\n%s (%u)\n", title, static_cast<unsigned>(rows.size() - 1));
    return rows.size() == 1 ? head : head + AlignColumns(rows, "  ");
}

// One row for each object, in the table of its kind.
class TextSink {
public:
    explicit TextSink(const ADXDefinition& definition) : definition_(definition) {}

    std::string Text() const {
        return Section("Commands", commands_) + Section("Values", values_) + Section("Bitmasks", bitmasks_) +
               Section("Tables", tables_) + Section("Views", views_);
    }

    void Add(const ADXCSendCommand& command) { AddCommand(command, SendText(command)); }
    void Add(const ADXC160BaudListen& command) { AddCommand(command, Printf("packet of %u", command.packetsize)); }
    void Add(const ADXCListenSilence& command) {
        AddCommand(command, command.silencelen == 0
                                ? Printf("waits %u ms", command.totaltimeout)
                                : Printf("%u ms of silence within %u ms", command.silencelen, command.totaltimeout));
    }
    void Add(const ADXCListenChatter& command) {
        AddCommand(command, BytesText(command.bytestring(), command.size()) + " " + Within(command.listentimeout));
    }
    void Add(const ADXCTrigger& command) { AddCommand(command, Printf("views 0x%.2X", command.triggertype)); }
    void Add(const ADXMacro& macro) { AddCommand(macro, MacroText(macro)); }

    void Add(const ADXValue& value) {
        AddRow(values_, value,
               {DisplayText(value.Units()), ThroughText(definition_, value),
                PlaceText(definition_, value, value.IsSigned()),
                Printf("%g to %g", static_cast<double>(value.rangelow), static_cast<double>(value.rangehigh)),
                AlarmText(value)});
    }
    void Add(const ADXBitmask& bit) {
        AddRow(bitmasks_, bit,
               {DisplayText(bit.TrueString()), DisplayText(bit.FalseString()),
                Printf("%s 0x%.2X = 0x%.2X", bit.bitop == ADXBitmask::kXor ? "xor" : "and", bit.operand, bit.result),
                PlaceText(definition_, bit, false), AlarmText(bit)});
    }
    void Add(const ADXLookupTable& table) {
        constexpr const char* modes[] = {"interpolated", "nearest", "lower", "higher"};
        const std::uint32_t mode = table.GetLookupMode();
        AddRow(
            tables_, table,
            {std::to_string(table.GetEntryCount()), mode < 4 ? modes[mode] : Printf("mode %u", mode),
             table.GetOutputType() == ADXLookupTable::kText ? "text" : Printf("numbers (%u)", table.GetOutputType())});
    }

    void Add(const ADXListView& view) { AddView(view, Counted(view.GetEntryCount(), "row")); }
    void Add(const ADXDashboard& dash) { AddView(dash, Counted(dash.GetEntryCount(), "gauge")); }
    void Add(const ADXHistogram& grid) { AddView(grid, Printf("%u rows, %u columns", grid.GetRows(), grid.GetCols())); }
    void Add(const ADXMonitor& monitor) { AddView(monitor, Counted(monitor.GetEntryCount(), "trace")); }

private:
    static void AddRow(Rows& rows, const ADXObject& object, std::vector<std::string> more) {
        std::vector<std::string> row{DisplayText(object.Id()), DisplayText(object.Title())};
        row.insert(row.end(), more.begin(), more.end());
        rows.push_back(std::move(row));
    }
    void AddCommand(const ADXObject& command, const std::string& does) {
        AddRow(commands_, command, {KindOfType(command.GetType())->noun, does});
    }
    void AddView(const ADXObject& view, const std::string& holds) {
        AddRow(views_, view, {KindOfType(view.GetType())->noun, holds});
    }

    const ADXDefinition& definition_;
    Rows commands_{{"Id", "Title", "Kind", "Does"}};
    Rows values_{{"Id", "Title", "Units", "Equation", "Place", "Range", "Alarms"}};
    Rows bitmasks_{{"Id", "Title", "Set", "Not set", "Test", "Place", "Alarm"}};
    Rows tables_{{"Id", "Title", "Rows", "Between rows", "Output"}};
    Rows views_{{"Id", "Title", "Kind", "Holds"}};
};

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

std::string HeaderText(const ADXDefinition& definition) {
    Rows rows;
    const auto add = [&](const char* name, const OwnedText& text) {
        if (text.IsSet()) rows.push_back({name, DisplayText(text.CStr())});
    };
    add("description", definition.Desc());
    add("author", definition.Author());
    add("version", definition.UserVersion());
    rows.push_back({"line", Printf("%u baud%s", definition.baud, definition.HasEcho() ? ", with echo" : "")});
    rows.push_back({"connect", CommandName(definition.connectcmd)});
    rows.push_back({"monitor", CommandName(definition.monitorcmd)});
    rows.push_back({"disconnect", CommandName(definition.disconnectcmd)});
    return AlignColumns(rows, "  ");
}

std::string DefinitionText(const ADXDefinition& definition) {
    TextSink sink(definition);
    WalkObjects(definition, sink);
    return HeaderText(definition) + sink.Text();
}

}  // namespace corvex
