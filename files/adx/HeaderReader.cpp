#include "files/adx/HeaderReader.h"

#include <string_view>

namespace corvex {
namespace {

void ReadId(HeaderWords::CommandId& id, const ADXElement& child) {
    id = {};
    child.Text().copy(id.text, sizeof id.text - 1);
}

struct HeaderField {
    std::string_view name;
    void (*read)(ADXDefinition& definition, HeaderWords& header, const ADXElement& child);
};

template <void (ADXDefinition::*Set)(const char*, std::uint32_t)>
void TextInto(ADXDefinition& definition, HeaderWords&, const ADXElement& child) {
    (definition.*Set)(child.Text().data(), static_cast<std::uint32_t>(child.Text().size()));
}

template <std::uint32_t HeaderWords::*Word>
void CountInto(ADXDefinition&, HeaderWords& header, const ADXElement& child) {
    header.*Word = child.Dec();
}

template <HeaderWords::CommandId HeaderWords::*Id>
void IdInto(ADXDefinition&, HeaderWords& header, const ADXElement& child) {
    ReadId(header.*Id, child);
}

constexpr HeaderField kHeaderFields[] = {
    {"flags", [](ADXDefinition& definition, HeaderWords&, const ADXElement& child) { definition.flags = child.Hex(); }},
    {"objectcount", CountInto<&HeaderWords::objectcount>},
    {"commandcount", CountInto<&HeaderWords::commandcount>},
    {"userversion", TextInto<&ADXDefinition::SetUserVersion>},
    {"author", TextInto<&ADXDefinition::SetAuthor>},
    {"desc", TextInto<&ADXDefinition::SetDesc>},
    {"baud", [](ADXDefinition& definition, HeaderWords&, const ADXElement& child) { definition.baud = child.Dec(); }},
    {"connectcmd", IdInto<&HeaderWords::connectcmd>},
    {"monitorcmd", IdInto<&HeaderWords::monitorcmd>},
    {"disconnectcmd", IdInto<&HeaderWords::disconnectcmd>},
};

}  // namespace

bool ReadHeaderChild(ADXDefinition& definition, HeaderWords& header, const ADXElement& child) {
    for (const HeaderField& field : kHeaderFields) {
        if (!child.Is(field.name)) continue;
        field.read(definition, header, child);
        return true;
    }
    return false;
}

}  // namespace corvex
