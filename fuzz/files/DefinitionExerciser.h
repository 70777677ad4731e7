#pragma once

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXValue.h"
#include "files/adx/ADXParser.h"
#include "files/adx/DefinitionSave.h"

namespace corvex {

// Loads the bytes and checks what a result promises.
inline void LoadDefinition(const void* bytes, std::size_t size, ADXDefinition& definition) {
    ADXParser parser;
    const int ok = parser.ParseMemory(bytes, size, definition);
    if (ok == 1 && *parser.GetError() != '\0') std::abort();
    if (ok == 0 && definition.monitorcmd != nullptr) std::abort();
}

// Samples a packet and asks every item for all it can tell.
inline void ExerciseDefinition(ADXDefinition& definition) {
    const std::uint8_t packet[] = {0x00, 0xFF, 0x7F, 0x80, 0x12, 0x34, 0x56, 0x78};
    const PacketView view(packet, sizeof packet);
    definition.UpdateValues(view, 0);
    char text[40];
    for (const auto& object : definition.Objects()) {
        if (auto* value = As<ADXValue>(object.get())) {
            value->Compute(definition, view);
            value->Format(text, sizeof text, definition, nullptr);
        } else if (auto* bitmask = As<ADXBitmask>(object.get())) {
            bitmask->GetText(text, sizeof text, definition, view);
        } else if (auto* histogram = As<ADXHistogram>(object.get())) {
            const auto cell = static_cast<std::uint32_t>(histogram->AddSample(definition, view, 0));
            for (int mode = 0; mode < 12; ++mode) {
                histogram->GetCellValue(mode, cell & 0xFFFF, cell >> 16, text, sizeof text);
            }
        }
    }
}

inline std::string SaveDefinition(const ADXDefinition& definition, std::size_t limit) {
    std::vector<char> memory(limit);
    XMLWriter writer;
    if (writer.OpenMemory(memory.data(), memory.size()) == 0) std::abort();
    WriteDefinition(definition, writer, {2000, 1, 6, 1, 0, 0, 0, 0});
    writer.Close();
    return {memory.data(), writer.MemoryLength()};
}

}  // namespace corvex
