#include "definition/ADXValue.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <utility>

#include "definition/ADXDefinition.h"
#include "definition/ADXLookupTable.h"
#include "definition/Truncation.h"
#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

void WriteSpan(XMLWriter& writer, const char* name, float low, float high) {
    writer.StartElement(name);
    writer.WriteAttributeFloat("low", low);
    writer.WriteAttributeFloat("high", high);
    writer.EndElement();
}

void WriteVar(XMLWriter& writer, const ADXVar& var) {
    writer.StartElement("VAR");
    writer.WriteAttributeFormat("varID", "%c", var.varid);
    const bool link = var.IsLink();
    writer.WriteAttribute("type", link ? "link" : "native");
    if (link) writer.WriteAttributeFormat("linkIDHash", "0x%X", static_cast<unsigned>(var.linkidhash));
    writer.EndElement();
}

}  // namespace

// What is left before a chain of links is cut.
struct ADXValue::LinkWalk {
    unsigned depth = kLinkDepth;
    unsigned budget = kLinkBudget;
};

double ADXValue::GetNative(PacketView packet, std::uint32_t offset, std::uint32_t options) {
    const std::uint32_t word = GetRaw(packet, offset, options);
    if (!IsSigned()) return word;
    switch (sizeinbits) {
        case 8:
            return static_cast<std::int8_t>(word & 0xFF);
        case 16:
            return static_cast<std::int16_t>(word & 0xFFFF);
        case 32:
            return static_cast<std::int32_t>(word);
        default:
            return 0.0;
    }
}

double ADXValue::Compute(const ADXDefinition& definition, PacketView packet, std::uint32_t offset,
                         std::uint32_t options) {
    LinkWalk walk;
    return ComputeLinked(definition, packet, offset, options, walk);
}

double ADXValue::ComputeLinked(const ADXDefinition& definition, PacketView packet, std::uint32_t offset,
                               std::uint32_t options, LinkWalk& walk) {
    double number = 0.0;  // a variable that finds none takes that of the variable before it
    for (const ADXVar& var : vars_) {
        if (var.type == ADXVar::kNative) {
            number = GetNative(packet, offset, options);
        } else if (var.IsLink()) {
            auto* linked = As<ADXValue>(definition.FindByHash(var.linkidhash));
            if (linked != nullptr && walk.depth != 0 && walk.budget != 0) {
                const bool samePacket = linked->parentcmdidhash == parentcmdidhash;
                --walk.budget;
                --walk.depth;
                number = linked->ComputeLinked(definition, samePacket ? packet : nullptr, offset, options, walk);
                ++walk.depth;
            }
        }
        equation_.SetVariable(var.varid, number);
    }
    const double result = equation_.Evaluate();
    if (lookup == nullptr || (options & kReadBeforeTable) != 0) return result;
    return lookup->Convert(static_cast<float>(result));
}

double ADXValue::Format(char* out, std::size_t size, const ADXDefinition& definition, PacketView packet,
                        std::uint32_t offset, std::uint32_t options) {
    const double value = Compute(definition, packet, offset, options | kReadBeforeTable);
    if (out == nullptr || size == 0) return value;
    if (lookup != nullptr && (options & kReadBeforeTable) == 0) {
        const auto limit = static_cast<std::uint32_t>(size < UINT32_MAX ? size : UINT32_MAX);
        lookup->Format(static_cast<float>(value), out, limit, nullptr, digcount);
    } else {
        FormatNumber(out, size, value);
    }
    return value;
}

void ADXValue::FormatNumber(char* out, std::size_t size, double value) const {
    const int digits = digcount;
    switch (outputtype) {
        case kHexadecimal:
            std::snprintf(out, size, "%.*X", digits, static_cast<unsigned>(TruncateToWord(value)));
            break;
        case kInteger:
            std::snprintf(out, size, "%.*i", digits, static_cast<int>(TruncateToInt32(value)));
            break;
        case kUnsigned:
            std::snprintf(out, size, "%.*u", digits, static_cast<unsigned>(TruncateToWord(value)));
            break;
        case kFloat:
            std::snprintf(out, size, "%.*f", digits, value);
            break;
        default:
            break;
    }
}

int ADXValue::SetEquation(const char* text, std::uint32_t len) {
    if (equation_.Parse(text, len) == 0) return 1;
    try {
        std::vector<ADXVar> vars(static_cast<std::size_t>(equation_.GetSlotCount()));
        std::size_t next = 0;
        const std::size_t length = TextLength(text, len);
        for (std::size_t i = 0; i < length && next < vars.size(); ++i) {
            if (IsLetter(text[i])) vars[next++].varid = text[i];
        }
        vars_ = std::move(vars);
    } catch (const std::bad_alloc&) {
        vars_.clear();
        return 0;
    }
    return 1;
}

std::uint32_t ADXValue::GetEquation(char* out, std::uint32_t size) const {
    return static_cast<std::uint32_t>(equation_.GetText(out, size));
}

int ADXValue::SetVar(const ADXVar& var) {
    for (ADXVar& own : vars_) {
        if (own.varid != var.varid) continue;
        own = var;
        return 1;
    }
    return 0;
}

bool ADXValue::HasLinks() const {
    return std::any_of(vars_.begin(), vars_.end(), [](const ADXVar& var) { return var.IsLink(); });
}

bool ADXValue::ReadsField() const {
    return std::any_of(vars_.begin(), vars_.end(), [](const ADXVar& var) { return !var.IsLink(); });
}

int ADXValue::GetVar(std::uint32_t index, ADXVar* out) const {
    if (out == nullptr || index >= vars_.size()) return 0;
    *out = vars_[index];
    return 1;
}

std::uint32_t ADXValue::GetUnits(char* out, std::uint32_t size) const {
    return static_cast<std::uint32_t>(units_.CopyWithTerminator(out, size));
}

int ADXValue::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXVALUE");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementHex8UnlessZero(*writer, "parentcmdidhash", parentcmdidhash);
    WriteElementTextUnlessEmpty(*writer, "units", Units());
    WriteElementHex2(*writer, "packetoffset", packetoffset);
    if (sizeinbits != 8) WriteElementDec(*writer, "sizeinbits", sizeinbits);
    WriteSpan(*writer, "range", rangelow, rangehigh);
    WriteSpan(*writer, "alarms", alarmlow, alarmhigh);
    WriteElementDec(*writer, "digcount", digcount);
    WriteElementDec(*writer, "outputtype", outputtype);
    if (datatype != 0) WriteElementDec(*writer, "datatype", datatype);
    if (unittype != 0) WriteElementDec(*writer, "unittype", unittype);
    WriteMath(*writer);
    writer->EndElement();
    return 1;
}

void ADXValue::WriteMath(XMLWriter& writer) const {
    char equation[100] = "";  // a longer equation is cut in the file
    GetEquation(equation, sizeof equation);
    writer.StartElement("MATH");
    writer.WriteAttribute("equation", equation);
    if (lookup != nullptr) WriteAttributeHex8(writer, "lookupidhash", lookup->GetIdHash());
    for (const ADXVar& var : vars_) {
        WriteVar(writer, var);
    }
    writer.EndElement();
}

}  // namespace corvex
