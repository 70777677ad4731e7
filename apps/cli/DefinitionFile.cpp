#include "apps/cli/DefinitionFile.h"

#include <ostream>

#include "export/text/TextFormat.h"
#include "files/adx/ADXParser.h"

namespace corvex {

namespace {

std::string Problem(const ADXParser& parser) {
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
    err << "corvex-cli: " << path << Problem(parser) << '\n';
    return false;
}

}  // namespace corvex
