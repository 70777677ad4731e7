// Reads the children of an ADXVALUE.
#include "definition/ADXValue.h"
#include "files/adx/ObjectReader.h"

namespace corvex {
namespace {

void ReadRange(ADXValue& value, const ADXElement& child) {
    child.ReadFloat("low", value.rangelow);
    child.ReadFloat("high", value.rangehigh);
}

void ReadAlarms(ADXValue& value, const ADXElement& child) {
    child.ReadFloat("low", value.alarmlow);
    child.ReadFloat("high", value.alarmhigh);
}

void ReadMath(ADXValue& value, const ADXElement& child) {
    const std::string_view equation = child.Attribute("equation");
    if (equation.data() != nullptr) value.SetEquation(equation.data(), static_cast<std::uint32_t>(equation.size()));
    child.ReadHex("lookupidhash", value.lookupidhash);
}

// Takes effect only on a letter that the equation has, so the equation must have been read.
void ReadVar(ADXValue& value, const ADXElement& child) {
    ADXVar var;
    var.varid = child.Attribute("varID").empty() ? '\0' : child.Attribute("varID").front();
    // The kind of a variable is the one word that minds its case.
    if (child.Attribute("type") == "link") {
        var.type = 1;
        child.ReadHex("linkIDHash", var.linkidhash);
    }
    value.SetVar(var);
}

constexpr ChildField<ADXValue> kValueFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXValue::flags>},
    {"parentcmdidhash", HexInto<&ADXValue::parentcmdidhash>},
    {"units",
     [](ADXValue& value, const ADXElement& child) {
         value.SetUnits(child.Text().data(), static_cast<std::uint32_t>(child.Text().size()));
     }},
    {"packetoffset", HexInto<&ADXValue::packetoffset>},
    {"sizeinbits", DecInto<&ADXValue::sizeinbits>},
    {"range", ReadRange},
    {"alarms", ReadAlarms},
    {"digcount", DecInto<&ADXValue::digcount>},
    {"outputtype", DecInto<&ADXValue::outputtype>},
    {"datatype", DecInto<&ADXValue::datatype>},
    {"unittype", DecInto<&ADXValue::unittype>},
    {"MATH", ReadMath},
    {"VAR", ReadVar},
};

}  // namespace

bool ReadValueChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kValueFields, object, child);
}

}  // namespace corvex
