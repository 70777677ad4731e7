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
    void (*read)(ADXDefinition& definition, HeaderWords& words, const ADXElement& child);
};

template <void (ADXDefinition::*Set)(const char*, std::uint32_t)>
void TextInto(ADXDefinition& definition, HeaderWords&, const ADXElement& child) {
    (definition.*Set)(child.Text().data(), static_cast<std::uint32_t>(child.Text().size()));
}

template <std::uint32_t HeaderWords::*Word>
void CountInto(ADXDefinition&, HeaderWords& words, const ADXElement& child) {
    words.*Word = child.Dec();
}

template <HeaderWords::CommandId HeaderWords::*Id>
void IdInto(ADXDefinition&, HeaderWords& words, const ADXElement& child) {
    ReadId(words.*Id, child);
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

void ReadHeaderChild(ADXDefinition& definition, HeaderWords& words, const ADXElement& child) {
    for (const HeaderField& field : kHeaderFields) {
        if (child.Is(field.name)) return field.read(definition, words, child);
    }
}

}  // namespace corvex
