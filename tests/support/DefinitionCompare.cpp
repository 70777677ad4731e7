#include "tests/support/DefinitionCompare.h"

#include <algorithm>
#include <cstdio>

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

namespace corvex {
namespace {

class Description {
public:
    explicit Description(const ADXDefinition& definition);
    std::vector<std::string> TakeLines() { return std::move(lines_); }

private:
    void Word(const std::string& name, std::uint32_t word) { Text(name, std::to_string(word)); }
    void Number(const std::string& name, float number);
    void Text(const std::string& name, const std::string& text) { lines_.push_back(where_ + name + " = " + text); }
    void Link(const std::string& name, const ADXObject* target);
    void Bytes(const std::uint8_t* bytes, std::uint32_t size);

    void Header();
    void Object(const ADXObject& object);
    void Value(const ADXValue& value);
    void Bitmask(const ADXBitmask& bitmask);
    void Table(const ADXLookupTable& table);
    void ListView(const ADXListView& view);
    void Dashboard(const ADXDashboard& dashboard);
    void Monitor(const ADXMonitor& monitor);
    void Histogram(const ADXHistogram& histogram);
    void Macro(const ADXMacro& macro);
    void Command(const ADXObject& object);

    const ADXDefinition& definition_;
    std::string where_;
    std::vector<std::string> lines_;
};

Description::Description(const ADXDefinition& definition) : definition_(definition) {
    Header();
    std::size_t index = 0;
    for (const auto& object : definition.Objects()) {
        where_ = "object " + std::to_string(index++) + " (" + object->Id() + "): ";
        Object(*object);
    }
}

void Description::Number(const std::string& name, float number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.9g", static_cast<double>(number));
    Text(name, text);
}

void Description::Link(const std::string& name, const ADXObject* target) {
    const auto& objects = definition_.Objects();
    const auto found =
        std::find_if(objects.begin(), objects.end(), [=](const auto& object) { return object.get() == target; });
    Text(name, target == nullptr        ? "none"
               : found == objects.end() ? "an object of no list"
                                        : "object " + std::to_string(found - objects.begin()));
}

void Description::Bytes(const std::uint8_t* bytes, std::uint32_t size) {
    std::string text = std::to_string(size) + ":";
    for (std::uint32_t i = 0; i < size; ++i)
        text.append(1, ' ').append(std::to_string(bytes[i]));
    Text("bytestring", text);
}

void Description::Header() {
    where_ = "header: ";
    // An unset text and an empty one are not the same.
    const auto optional = [](const OwnedText& text) {
        std::string quoted;
        if (text.IsSet()) quoted.append(1, '"').append(text.CStr()).append(1, '"');
        return quoted;
    };
    Word("flags", definition_.flags);
    Word("baud", definition_.baud);
    Text("userversion", optional(definition_.UserVersion()));
    Text("author", optional(definition_.Author()));
    Text("desc", optional(definition_.Desc()));
    Link("connectcmd", definition_.connectcmd);
    Link("monitorcmd", definition_.monitorcmd);
    Link("disconnectcmd", definition_.disconnectcmd);
    Word("objects", definition_.GetCount());
}

void Description::Object(const ADXObject& object) {
    Word("type", object.GetType());
    Word("idhash", object.GetIdHash());
    Word("baseflags", object.GetBaseFlags());
    Text("title", object.Title());
    Text("desc", object.Desc());
    switch (object.GetType()) {
        case kTypeValue:
            return Value(static_cast<const ADXValue&>(object));
        case kTypeBitmask:
            return Bitmask(static_cast<const ADXBitmask&>(object));
        case kTypeLookupTable:
            return Table(static_cast<const ADXLookupTable&>(object));
        case kTypeListView:
            return ListView(static_cast<const ADXListView&>(object));
        case kTypeDashboard:
            return Dashboard(static_cast<const ADXDashboard&>(object));
        case kTypeMonitor:
            return Monitor(static_cast<const ADXMonitor&>(object));
        case kTypeHistogram:
            return Histogram(static_cast<const ADXHistogram&>(object));
        case kTypeMacro:
            return Macro(static_cast<const ADXMacro&>(object));
        default:
            return Command(object);
    }
}

void Description::Value(const ADXValue& value) {
    Word("flags", value.flags);
    Word("parentcmdidhash", value.parentcmdidhash);
    Text("units", value.Units());
    Word("packetoffset", value.packetoffset);
    Word("sizeinbits", value.sizeinbits);
    Number("rangelow", value.rangelow);
    Number("rangehigh", value.rangehigh);
    Number("alarmlow", value.alarmlow);
    Number("alarmhigh", value.alarmhigh);
    Word("digcount", value.digcount);
    Word("outputtype", value.outputtype);
    Word("datatype", value.datatype);
    Word("unittype", value.unittype);
    char equation[1024] = "";
    value.GetEquation(equation, sizeof equation);
    Text("equation", equation);
    Word("lookupidhash", value.lookupidhash);
    Link("lookup", value.lookup);
    for (std::uint32_t i = 0; i < value.GetVarCount(); ++i) {
        ADXVar var;
        value.GetVar(i, &var);
        Text("var", std::string(1, var.varid) + ' ' + std::to_string(var.type) + ' ' + std::to_string(var.linkidhash));
    }
}

void Description::Bitmask(const ADXBitmask& bitmask) {
    Word("flags", bitmask.flags);
    Word("parentcmdidhash", bitmask.parentcmdidhash);
    Text("truestring", bitmask.TrueString());
    Text("falsestring", bitmask.FalseString());
    Word("alarmonsetcolor", bitmask.alarmonsetcolor);
    Word("alarmonnotsetcolor", bitmask.alarmonnotsetcolor);
    Word("packetoffset", bitmask.packetoffset);
    Word("sizeinbits", bitmask.sizeinbits);
    Word("operand", bitmask.operand);
    Word("bitop", bitmask.bitop);
    Word("result", bitmask.result);
}

void Description::Table(const ADXLookupTable& table) {
    Word("flags", table.flags);
    Word("inputtype", table.inputtype);
    Word("outputtype", table.GetOutputType());
    Word("lookupmode", table.GetLookupMode());
    Word("entries", table.GetEntryCount());
    for (std::uint32_t i = 0; i < table.GetEntryCount(); ++i) {
        float input = 0.0F;
        float output = 0.0F;
        char text[1024] = "";
        table.GetEntry(i, &input, &output);
        table.GetEntryText(i, &input, text, sizeof text);
        Number("input", input);
        Number("output", output);
        Text("output text", text);
    }
}

void Description::ListView(const ADXListView& view) {
    Word("flags", view.flags);
    Word("entries", view.GetEntryCount());
    for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i) {
        const ADXLVENTRY& row = *view.GetEntry(i);
        Word("row flags", row.flags);
        Word("row entrytype", row.entrytype);
        Word("row itemidhash", row.itemidhash);
        Text("row title", row.title.IsSet() ? row.title.CStr() : "");
        Link("row item", row.item);
        Word("row color", row.color);
    }
}

void Description::Dashboard(const ADXDashboard& dashboard) {
    Word("flags", dashboard.flags);
    Word("entries", dashboard.GetEntryCount());
    for (std::uint32_t i = 0; i < dashboard.GetEntryCount(); ++i) {
        const ADXDGENTRY& gauge = *dashboard.GetEntry(i);
        Word("gauge flags", gauge.flags);
        Word("gauge gaugetype", gauge.gaugetype);
        Word("gauge top", gauge.top);
        Word("gauge left", gauge.left);
        Word("gauge bottom", gauge.bottom);
        Word("gauge right", gauge.right);
        Link("gauge item", gauge.item);
        Word("gauge itemidhash", gauge.itemidhash);
    }
}

void Description::Monitor(const ADXMonitor& monitor) {
    Word("flags", monitor.flags);
    Word("entries", monitor.GetEntryCount());
    for (std::uint32_t i = 0; i < monitor.GetEntryCount(); ++i) {
        const ADXMONSERIES& series = *monitor.GetEntry(i);
        Word("series flags", series.flags);
        Word("series linecolor", series.linecolor);
        Word("series axiscolor", series.axiscolor);
        Word("series linewidth", series.linewidth);
        Word("series linetype", series.linetype);
        Link("series item", series.item);
        Word("series itemidhash", series.itemidhash);
    }
}

void Description::Histogram(const ADXHistogram& histogram) {
    Word("flags", histogram.flags);
    Word("parentcmdidhash", histogram.parentcmdidhash);
    Word("rows", histogram.GetRows());
    Word("cols", histogram.GetCols());
    Number("xmin", histogram.GetXMin());
    Number("xmax", histogram.GetXMax());
    Number("ymin", histogram.GetYMin());
    Number("ymax", histogram.GetYMax());
    Word("historysize", histogram.GetHistorySize());
    Word("xidhash", histogram.xidhash);
    Word("yidhash", histogram.yidhash);
    Word("zidhash", histogram.zidhash);
    Link("x", histogram.GetX());
    Link("y", histogram.GetY());
    Link("z", histogram.GetZ());
}

void Description::Macro(const ADXMacro& macro) {
    Word("flags", macro.flags);
    Word("repeatcount", macro.repeatcount);
    Word("nodes", macro.GetNodeCount());
    for (std::uint32_t i = 0; i < macro.GetNodeCount(); ++i) {
        ADXMacroNode node;
        macro.GetNode(i, &node);
        Link("node command", node.command);
        Text("node commandid", node.commandid);
        Word("node flags", node.flags);
        Word("node repeatcount", node.repeatcount);
    }
}

void Description::Command(const ADXObject& object) {
    if (object.GetType() == kTypeSendCommand) {
        const auto& command = static_cast<const ADXCSendCommand&>(object);
        Bytes(command.bytestring(), command.size());
        Word("replysize", command.replysize);
        Word("replytimeout", command.replytimeout);
        Word("packetoffset", command.packetoffset);
        Word("packetsize", command.packetsize);
        Word("flags", command.flags);
    } else if (object.GetType() == kTypeListenSilence) {
        const auto& command = static_cast<const ADXCListenSilence&>(object);
        Word("silencelen", command.silencelen);
        Word("totaltimeout", command.totaltimeout);
    } else if (object.GetType() == kTypeListenChatter) {
        const auto& command = static_cast<const ADXCListenChatter&>(object);
        Word("listentimeout", command.listentimeout);
        Bytes(command.bytestring(), command.size());
        Word("flags", command.flags);
    } else if (object.GetType() == kType160BaudListen) {
        const auto& command = static_cast<const ADXC160BaudListen&>(object);
        Word("flags", command.flags);
        Word("packetsize", command.packetsize);
    } else if (object.GetType() == kTypeTrigger) {
        const auto& command = static_cast<const ADXCTrigger&>(object);
        Word("triggertype", command.triggertype);
        Word("flags", command.flags);
    }
}

}  // namespace

std::vector<std::string> DescribeDefinition(const ADXDefinition& definition) {
    return Description(definition).TakeLines();
}

std::string DescribeMember(const ADXDefinition& definition, const std::string& member) {
    const std::size_t blank = member.find(' ');
    const std::string where = member.substr(0, blank), name = ": " + member.substr(blank + 1) + " = ";
    const std::string begin = where == "header" ? "header:" : "object " + where + " (";
    std::string all;
    for (const std::string& line : DescribeDefinition(definition)) {
        const std::size_t at = line.find(name);
        if (line.starts_with(begin) && at != std::string::npos)
            all.append(all.empty() ? "" : ", ").append(line.substr(at + name.size()));
    }
    return all;
}

std::string FirstDifference(const ADXDefinition& mine, const ADXDefinition& theirs) {
    const std::vector<std::string> a = DescribeDefinition(mine);
    const std::vector<std::string> b = DescribeDefinition(theirs);
    const auto [left, right] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    if (left == a.end() && right == b.end()) return {};
    return (left == a.end() ? "nothing" : *left) + " | " + (right == b.end() ? "nothing" : *right);
}

}  // namespace corvex
