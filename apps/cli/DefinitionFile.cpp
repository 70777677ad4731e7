#include "apps/cli/DefinitionFile.h"

#include <ostream>

#include "export/text/TextFormat.h"

namespace corvex {

std::string LoadFailure(const std::string& path, const std::string& error, const FileFacts& facts) {
    if (error.empty()) return path + ": not a definition: no ADXFORMAT element with a version";
    // A refused version is no complaint of the XML engine, so the second look at the file has none to show.
    if (error != facts.error) return path + (facts.formatline != 0 ? Printf(":%u: ", facts.formatline) : ": ") + error;
    if (facts.errorline == 0 || error == "Error opening file") return path + ": " + error;
    return path + Printf(":%u:%u: ", facts.errorline, facts.errorcolumn) + error;
}

bool LoadDefinition(ADXDefinition& definition, const std::string& path, std::ostream& err) {
    char error[ADXDefinition::kErrorSize] = {};
    if (definition.Load(path.c_str(), error) != 0) return true;
    err << "corvex-cli: " << LoadFailure(path, error, ReadFileFacts(path.c_str())) << '\n';
    return false;
}

}  // namespace corvex
