// A definition's way to and from its file. These members stand here, above the model, because they need the format.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "definition/ADXDefinition.h"
#include "files/adx/ADXParser.h"
#include "files/adx/DefinitionSave.h"
#include "platform/FileReplacement.h"

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

namespace {

bool Finish(const ADXDefinition& definition, XMLWriter& writer, IProgress* progress) {
    WriteDefinition(definition, writer, CurrentLocalTime(), progress);
    writer.Close();
    return !writer.Failed();
}

}  // namespace

// The new file is written beside the old one and takes its place when it is whole: a disk that fills up halfway costs
// nothing. Where there can be no file beside, as in a folder that lets nobody in, the old one stands and nothing is
// saved.
int ADXDefinition::Save(const char* path, IProgress* progress) const {
    if (path == nullptr) return 0;
    XMLWriter writer;
    if (IsDeviceOrPipe(path)) return writer.Open(path) != 0 && Finish(*this, writer, progress) ? 1 : 0;
    SweepAbandoned(path);
    const std::string fresh = FreshNameFor(path);
    if (fresh.empty() || writer.Open(fresh.c_str()) == 0) return 0;
    if (Finish(*this, writer, progress)) return MoveIntoPlace(fresh, path) ? 1 : 0;
    std::remove(fresh.c_str());
    return 0;
}

}  // namespace corvex
