// A definition's way to and from its file. These members stand here, above the model, because they need the format.
#include <algorithm>
#include <cstring>

#include "definition/ADXDefinition.h"
#include "files/adx/ADXParser.h"
#include "files/adx/DefinitionSave.h"

namespace corvex {

int ADXDefinition::Load(const char* path, char* error, IProgress* progress) {
    Clear();
    ADXParser parser;
    const int ok = parser.Parse(path, *this, progress);
    if (error != nullptr) {
        const std::size_t length = std::min<std::size_t>(std::strlen(parser.GetError()), kErrorSize - 1);
        std::memcpy(error, parser.GetError(), length);
        error[length] = '\0';
    }
    return ok;
}

// Writes straight to the file, which keeps its place, its rights and its links; a disk that fills up in between is told
// by the result, and the definition in memory is still whole.
int ADXDefinition::Save(const char* path, IProgress* progress) const {
    XMLWriter writer;
    if (writer.Open(path) == 0) return 0;
    WriteDefinition(*this, writer, CurrentLocalTime(), progress);
    writer.Close();
    return writer.Failed() ? 0 : 1;
}

}  // namespace corvex
