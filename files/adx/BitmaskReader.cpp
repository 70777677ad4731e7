// Reads the children of an ADXBITMASK.
#include "definition/ADXBitmask.h"
#include "files/adx/ObjectReader.h"

namespace corvex {
namespace {

// The names of the operations mind their case; any other text changes nothing.
void ReadOperation(ADXBitmask& bitmask, const ADXElement& child) {
    if (child.Text() == "AND") bitmask.bitop = ADXBitmask::kAnd;
    if (child.Text() == "XOR") bitmask.bitop = ADXBitmask::kXor;
}

constexpr ChildField<ADXBitmask> kBitmaskFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXBitmask::flags>},
    {"parentcmdidhash", HexInto<&ADXBitmask::parentcmdidhash>},
    {"truestring",
     [](ADXBitmask& bitmask, const ADXElement& child) {
         bitmask.SetTrueString(child.Text().data(), static_cast<std::uint32_t>(child.Text().size()));
     }},
    {"falsestring",
     [](ADXBitmask& bitmask, const ADXElement& child) {
         bitmask.SetFalseString(child.Text().data(), static_cast<std::uint32_t>(child.Text().size()));
     }},
    {"ALARMONSET",
     [](ADXBitmask& bitmask, const ADXElement& child) { child.ReadHex("color", bitmask.alarmonsetcolor); }},
    {"ALARMONNOTSET",
     [](ADXBitmask& bitmask, const ADXElement& child) { child.ReadHex("color", bitmask.alarmonnotsetcolor); }},
    {"packetoffset", HexInto<&ADXBitmask::packetoffset>},
    {"sizeinbits", DecInto<&ADXBitmask::sizeinbits>},
    {"operand", HexInto<&ADXBitmask::operand>},
    {"bitop", ReadOperation},
    {"result", HexInto<&ADXBitmask::result>},
};

}  // namespace

bool ReadBitmaskChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kBitmaskFields, object, child);
}

}  // namespace corvex
