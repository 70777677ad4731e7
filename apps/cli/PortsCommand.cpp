#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "apps/cli/Commands.h"
#include "export/text/TextFormat.h"
#include "platform/PortList.h"

namespace corvex {

ExitCode RunPorts(const PortsOptions& options, std::ostream& out, std::ostream& err, IPortList& list) {
    const std::vector<SerialPortEntry> ports = list.Ports();
    if (options.json) {
        auto json = nlohmann::ordered_json::array();
        for (const SerialPortEntry& port : ports)
            json.push_back(
                {{"name", Utf8Text(port.name)}, {"adapter", Utf8Text(port.adapter)}, {"link", Utf8Text(port.link)}});
        out << json.dump(2) << '\n';
        return kExitSuccess;
    }
    std::vector<std::vector<std::string>> rows;
    for (const SerialPortEntry& port : ports) {
        rows.push_back({DisplayText(port.name), port.adapter.empty() ? "-" : DisplayText(port.adapter)});
        if (!port.link.empty()) rows.push_back({"", DisplayText(port.link)});
    }
    out << AlignColumns(rows, "");
    if (ports.empty()) err << "corvex-cli: the system tells of no serial port; plug the adapter in and try again\n";
    return kExitSuccess;
}

}  // namespace corvex
