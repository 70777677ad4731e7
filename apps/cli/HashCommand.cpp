#include <cstdint>
#include <ostream>
#include <string>

#include "apps/cli/Commands.h"
#include "definition/ADXObject.h"
#include "export/text/TextFormat.h"

namespace corvex {

ExitCode RunHash(const HashOptions& options, std::ostream& out, std::ostream& err) {
    for (const std::string& text : options.texts) {
        const std::string id = text.substr(0, ADXObject::kIdLength);
        out << HashText(HashId(id.data(), static_cast<std::uint32_t>(id.size()))) << '\n';
        if (id.size() != text.size())
            err << "corvex-cli: \"" << text << "\" is longer than an id can be; this is the hash of \"" << id << "\"\n";
    }
    return kExitSuccess;
}

}  // namespace corvex
