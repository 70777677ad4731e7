#include "tests/support/DefinitionCompare.h"

#include <algorithm>
#include <concepts>
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
    explicit Description(const ADXDefinition& definition) : definition_(definition) {
        Header();
        std::size_t index = 0;
        for (const auto& object : definition.Objects()) {
            where_ = "object " + std::to_string(index++) + " (" + object->Id() + "): ";
            Object(*object);
        }
    }
    std::vector<std::string> TakeLines() { return std::move(lines_); }

private:
    // Names and values in turn.
    template <class Value, class... More>
    void Members(const char* name, const Value& value, const More&... more) {
        lines_.push_back(where_ + name + " = " + TextOf(value));
        if constexpr (sizeof...(more) != 0) Members(more...);
    }
    static std::string TextOf(const std::string& text) { return text; }
    static std::string TextOf(std::integral auto word) { return std::to_string(word); }
    static std::string TextOf(float number) {
        char text[40];
        std::snprintf(text, sizeof text, "%.9g", static_cast<double>(number));
        return text;
    }
    std::string TextOf(const ADXObject* target) const {
        const auto& objects = definition_.Objects();
        const auto found =
            std::find_if(objects.begin(), objects.end(), [=](const auto& object) { return object.get() == target; });
        if (target == nullptr) return "none";
        return found == objects.end() ? "an object of no list" : "object " + std::to_string(found - objects.begin());
    }
    // An unset text and an empty one are not the same.
    static std::string TextOf(const OwnedText& text) {
        std::string quoted;
        if (text.IsSet()) quoted.append(1, '"').append(text.CStr()).append(1, '"');
        return quoted;
    }

    void Bytes(const std::uint8_t* bytes, std::uint32_t size) {
        std::string text = std::to_string(size) + ":";
        for (std::uint32_t i = 0; i < size; ++i)
            text.append(1, ' ').append(std::to_string(bytes[i]));
        Members("bytestring", text);
    }

    void Header() {
        where_ = "header: ";
        Members("flags", definition_.flags, "baud", definition_.baud, "userversion", definition_.UserVersion(),
                "author", definition_.Author(), "desc", definition_.Desc(), "connectcmd", definition_.connectcmd,
                "monitorcmd", definition_.monitorcmd, "disconnectcmd", definition_.disconnectcmd, "objects",
                definition_.GetCount());
    }

    void Object(const ADXObject& object) {
        Members("type", object.GetType(), "idhash", object.GetIdHash(), "baseflags", object.GetBaseFlags(), "title",
                object.Title(), "desc", object.Desc());
        DescribeIf<ADXValue, ADXBitmask, ADXLookupTable, ADXListView, ADXDashboard, ADXMonitor, ADXHistogram, ADXMacro,
                   ADXCSendCommand, ADXCListenSilence, ADXCListenChatter, ADXC160BaudListen, ADXCTrigger>(object);
    }
    template <class... Classes>
    void DescribeIf(const ADXObject& object) {
        ((As<Classes>(&object) != nullptr ? Describe(*As<Classes>(&object)) : void()), ...);
    }

    void Describe(const ADXValue& value) {
        Members("flags", value.flags, "parentcmdidhash", value.parentcmdidhash, "units", value.Units(), "packetoffset",
                value.packetoffset, "sizeinbits", value.sizeinbits, "rangelow", value.rangelow, "rangehigh",
                value.rangehigh, "alarmlow", value.alarmlow, "alarmhigh", value.alarmhigh, "digcount", value.digcount,
                "outputtype", value.outputtype, "datatype", value.datatype, "unittype", value.unittype);
        char equation[1024] = "";
        value.GetEquation(equation, sizeof equation);
        Members("equation", equation, "lookupidhash", value.lookupidhash, "lookup", value.lookup);
        for (std::uint32_t i = 0; i < value.GetVarCount(); ++i) {
            ADXVar var;
            value.GetVar(i, &var);
            Members("var",
                    std::string(1, var.varid) + ' ' + std::to_string(var.type) + ' ' + std::to_string(var.linkidhash));
        }
    }

    void Describe(const ADXBitmask& bitmask) {
        Members("flags", bitmask.flags, "parentcmdidhash", bitmask.parentcmdidhash, "truestring", bitmask.TrueString(),
                "falsestring", bitmask.FalseString(), "alarmonsetcolor", bitmask.alarmonsetcolor, "alarmonnotsetcolor",
                bitmask.alarmonnotsetcolor, "packetoffset", bitmask.packetoffset, "sizeinbits", bitmask.sizeinbits,
                "operand", bitmask.operand, "bitop", bitmask.bitop, "result", bitmask.result);
    }

    void Describe(const ADXLookupTable& table) {
        Members("flags", table.flags, "inputtype", table.inputtype, "outputtype", table.GetOutputType(), "lookupmode",
                table.GetLookupMode(), "entries", table.GetEntryCount());
        for (std::uint32_t i = 0; i < table.GetEntryCount(); ++i) {
            float input = 0.0F;
            float output = 0.0F;
            char text[1024] = "";
            table.GetEntry(i, &input, &output);
            table.GetEntryText(i, &input, text, sizeof text);
            Members("input", input, "output", output, "output text", text);
        }
    }

    void Describe(const ADXListView& view) {
        Members("flags", view.flags, "entries", view.GetEntryCount());
        for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i) {
            const ADXLVENTRY& row = *view.GetEntry(i);
            Members("row flags", row.flags, "row entrytype", row.entrytype, "row itemidhash", row.itemidhash,
                    "row title", row.title.IsSet() ? row.title.CStr() : "", "row item", row.item, "row color",
                    row.color);
        }
    }

    void Describe(const ADXDashboard& dashboard) {
        Members("flags", dashboard.flags, "entries", dashboard.GetEntryCount());
        for (std::uint32_t i = 0; i < dashboard.GetEntryCount(); ++i) {
            const ADXDGENTRY& gauge = *dashboard.GetEntry(i);
            Members("gauge flags", gauge.flags, "gauge gaugetype", gauge.gaugetype, "gauge top", gauge.top,
                    "gauge left", gauge.left, "gauge bottom", gauge.bottom, "gauge right", gauge.right, "gauge item",
                    gauge.item, "gauge itemidhash", gauge.itemidhash);
        }
    }

    void Describe(const ADXMonitor& monitor) {
        Members("flags", monitor.flags, "entries", monitor.GetEntryCount());
        for (std::uint32_t i = 0; i < monitor.GetEntryCount(); ++i) {
            const ADXMONSERIES& series = *monitor.GetEntry(i);
            Members("series flags", series.flags, "series linecolor", series.linecolor, "series axiscolor",
                    series.axiscolor, "series linewidth", series.linewidth, "series linetype", series.linetype,
                    "series item", series.item, "series itemidhash", series.itemidhash);
        }
    }

    void Describe(const ADXHistogram& histogram) {
        Members("flags", histogram.flags, "parentcmdidhash", histogram.parentcmdidhash, "rows", histogram.GetRows(),
                "cols", histogram.GetCols(), "xmin", histogram.GetXMin(), "xmax", histogram.GetXMax(), "ymin",
                histogram.GetYMin(), "ymax", histogram.GetYMax(), "historysize", histogram.GetHistorySize(), "xidhash",
                histogram.xidhash, "yidhash", histogram.yidhash, "zidhash", histogram.zidhash, "x", histogram.GetX(),
                "y", histogram.GetY(), "z", histogram.GetZ());
    }

    void Describe(const ADXMacro& macro) {
        Members("flags", macro.flags, "repeatcount", macro.repeatcount, "nodes", macro.GetNodeCount());
        for (std::uint32_t i = 0; i < macro.GetNodeCount(); ++i) {
            ADXMacroNode node;
            macro.GetNode(i, &node);
            Members("node command", node.command, "node commandid", node.commandid, "node flags", node.flags,
                    "node repeatcount", node.repeatcount);
        }
    }

    void Describe(const ADXCSendCommand& command) {
        Bytes(command.bytestring(), command.size());
        Members("replysize", command.replysize, "replytimeout", command.replytimeout, "packetoffset",
                command.packetoffset, "packetsize", command.packetsize, "flags", command.flags);
    }
    void Describe(const ADXCListenSilence& command) {
        Members("silencelen", command.silencelen, "totaltimeout", command.totaltimeout);
    }
    void Describe(const ADXCListenChatter& command) {
        Members("listentimeout", command.listentimeout);
        Bytes(command.bytestring(), command.size());
        Members("flags", command.flags);
    }
    void Describe(const ADXC160BaudListen& command) {
        Members("flags", command.flags, "packetsize", command.packetsize);
    }
    void Describe(const ADXCTrigger& command) { Members("triggertype", command.triggertype, "flags", command.flags); }

    const ADXDefinition& definition_;
    std::string where_;
    std::vector<std::string> lines_;
};

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
