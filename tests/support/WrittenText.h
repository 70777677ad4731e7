// What an object writes of itself, without line ends and indents.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "definition/ADXObject.h"
#include "files/xml/XMLWriter.h"

namespace corvex::test {

inline std::string WrittenText(const ADXObject& object) {
    std::vector<char> memory(100000);
    XMLWriter writer;
    if (writer.OpenMemory(memory.data(), memory.size()) == 0) return "the writer does not open";
    writer.SetPretty(false);
    writer.SetIndent(0);
    if (object.Write(&writer) != 1) return "the object refuses";
    writer.Close();
    if (writer.Failed()) return "the memory is too small";
    return {memory.data(), writer.MemoryLength()};
}

inline bool Contains(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

inline std::size_t Count(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + piece.size())) {
        ++count;
    }
    return count;
}

}  // namespace corvex::test
