// Reads the children of an ADXLOOKUPTABLE.
#include "definition/ADXLookupTable.h"
#include "files/adx/ObjectReader.h"

namespace corvex {
namespace {

// Rows are read as what the output type says at this moment, so it must precede them. Rows of the integer and the
// unformatted types are written and yet dropped here: files of that kind have always loaded empty.
void ReadRow(ADXLookupTable& table, const ADXElement& child) {
    float input = 0.0F;
    child.ReadFloat("input", input);
    if (table.GetOutputType() == ADXLookupTable::kText) {
        const std::string_view text = child.Attribute("output");
        table.AddEntryText(input, text.data(), static_cast<std::uint32_t>(text.size()));
    } else if (table.GetOutputType() == ADXLookupTable::kFloat) {
        float output = 0.0F;
        child.ReadFloat("output", output);
        table.AddEntry(input, output);
    }
}

constexpr ChildField<ADXLookupTable> kTableFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXLookupTable::flags>},
    {"inputtype", DecInto<&ADXLookupTable::inputtype>},
    {"outputtype", [](ADXLookupTable& table, const ADXElement& child) { table.SetOutputType(child.Dec()); }},
    {"lookupmode", [](ADXLookupTable& table, const ADXElement& child) { table.SetLookupMode(child.Dec()); }},
    {"entrycount", ReadNothing},
    {"tableentry", ReadRow},
};

}  // namespace

bool ReadLookupTableChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kTableFields, object, child);
}

}  // namespace corvex
