#include "apps/cli/DefinitionFile.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "apps/cli/LegacyFile.h"
#include "export/ItemPattern.h"
#include "export/text/TextFormat.h"
#include "files/adx/ADXParser.h"
#include "platform/FileReplacement.h"

namespace corvex {

namespace {

constexpr const char* kNoText = "Unrecognized encoding";

// Why a file is not even the beginning of a definition; empty when there is nothing to add to the parser's own words.
std::string WhatItIs(const std::string& path, const ADXParser& parser) {
    if (!std::string_view(parser.GetError()).starts_with(kNoText)) return {};
    if (IsDeviceOrPipe(path)) return ": nothing can be read there: it is a device, or a pipe that nobody writes to";
    if (!IsLegacyFile(path)) return {};
    return ": a legacy definition; corvex-cli convert " + path + " NEW.adx makes one that can be used";
}

std::string Problem(const std::string& path, const ADXParser& parser) {
    if (std::string what = WhatItIs(path, parser); !what.empty()) return what;
    if (*parser.GetError() == '\0') return ": not a definition: no ADXFORMAT element with a version";
    const ErrorPlace& place = parser.GetErrorPlace();
    const std::string line = place.line != 0 ? Printf(":%u", place.line) : "";
    return line + (place.column ? Printf(":%u: ", *place.column) : ": ") + parser.GetError();
}

}  // namespace

bool LoadDefinition(ADXDefinition& definition, const std::string& path, std::ostream& err, IReadObserver* observer) {
    definition.Clear();
    ADXParser parser;
    parser.SetObserver(observer);
    if (parser.Parse(path.c_str(), definition) != 0) {
        definition.IndexHashes();
        return true;
    }
    err << "corvex-cli: " << path << Problem(path, parser) << '\n';
    return false;
}

bool CheckItems(const ADXDefinition& definition, const std::string& patterns, const std::string& path,
                std::ostream& err) {
    if (patterns.empty() || ItemChoice(definition, patterns).Count() != 0) return true;
    std::string text = patterns;
    std::ranges::replace(text, '\n', ',');
    err << "corvex-cli: no value or bitmask of " << path << " matches \"" << text << "\"; corvex-cli list " << path
        << " shows what there is\n";
    return false;
}

}  // namespace corvex
