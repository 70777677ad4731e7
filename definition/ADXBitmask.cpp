#include "definition/ADXBitmask.h"

#include <algorithm>

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

std::uint32_t CopyMeasured(const OwnedText& text, char* out, std::uint32_t size) {
    constexpr std::size_t kMeasured = 512;
    text.CopyTo(out, size);
    return static_cast<std::uint32_t>(std::min(text.Length(), kMeasured));
}

void WriteAlarm(XMLWriter& writer, const char* name, std::uint32_t color) {
    writer.StartElement(name);
    WriteAttributeHex8(writer, "color", color);
    writer.EndElement();
}

}  // namespace

int ADXBitmask::IsSet(const ADXDefinition& /*definition*/, PacketView packet, std::uint32_t offset,
                      std::uint32_t options) {
    return Compare(GetRaw(packet, offset, options));
}

int ADXBitmask::WouldBeSet(PacketView packet) const {
    return Compare(rawvalue_.Peek(Place(), packet, 0, 0));
}

int ADXBitmask::Compare(std::uint32_t word) const {
    switch (bitop) {
        case kAnd:
            return (operand & word) == result;
        case kXor:
            return (operand ^ word) == result;
        default:
            return 0;
    }
}

int ADXBitmask::GetText(char* out, std::uint32_t size, const ADXDefinition& definition, PacketView packet,
                        std::uint32_t offset, std::uint32_t options) {
    const int set = IsSet(definition, packet, offset, options);
    (set != 0 ? truestring_ : falsestring_).CopyTo(out, size);
    return set;
}

std::uint32_t ADXBitmask::GetAlarmOnSet(std::uint32_t* out) const {
    if (out != nullptr) *out = alarmonsetcolor;
    return flags & kAlarmOnSet;
}

std::uint32_t ADXBitmask::GetAlarmOnNotSet(std::uint32_t* out) const {
    if (out != nullptr) *out = alarmonnotsetcolor;
    return flags & kAlarmOnNotSet;
}

std::uint32_t ADXBitmask::GetColor(int which) const {
    if (which == 1) return alarmonsetcolor;
    return which == 2 ? alarmonnotsetcolor : 0;
}

void ADXBitmask::SetColor(int which, std::uint32_t color) {
    if (which == 1) alarmonsetcolor = color;
    if (which == 2) alarmonnotsetcolor = color;
}

std::uint32_t ADXBitmask::GetTrueString(char* out, std::uint32_t size) const {
    return CopyMeasured(truestring_, out, size);
}

std::uint32_t ADXBitmask::GetFalseString(char* out, std::uint32_t size) const {
    return CopyMeasured(falsestring_, out, size);
}

int ADXBitmask::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXBITMASK");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementHex8(*writer, "parentcmdidhash", parentcmdidhash);
    WriteElementTextUnlessEmpty(*writer, "truestring", TrueString());
    WriteElementTextUnlessEmpty(*writer, "falsestring", FalseString());
    WriteAlarm(*writer, "ALARMONSET", alarmonsetcolor);
    WriteAlarm(*writer, "ALARMONNOTSET", alarmonnotsetcolor);
    WriteElementHex2(*writer, "packetoffset", packetoffset);
    if (sizeinbits != 8) WriteElementDec(*writer, "sizeinbits", sizeinbits);
    WriteElementHex8UnlessZero(*writer, "operand", operand);
    if (bitop == kAnd) writer->WriteElementText("bitop", "AND");
    if (bitop == kXor) writer->WriteElementText("bitop", "XOR");
    WriteElementHex8UnlessZero(*writer, "result", result);
    writer->EndElement();
    return 1;
}

}  // namespace corvex
