#include "platform/PortList_posix.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

namespace corvex {

namespace {

namespace fs = std::filesystem;

constexpr int kDeepestDevice = 8;  // folders from an adapter's port up to the adapter

// The first line of a description; empty when there is none.
std::string LineOf(const fs::path& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

// The adapter is some folders above the port: the first that has a product number.
std::string AdapterOf(const fs::path& device) {
    fs::path folder = device;
    for (int i = 0; i < kDeepestDevice && folder.has_relative_path(); ++i, folder = folder.parent_path()) {
        const std::string vendor = LineOf(folder / "idVendor");
        if (vendor.empty()) continue;
        std::string text;
        for (const char* part : {"manufacturer", "product"}) {
            const std::string word = LineOf(folder / part);
            if (!word.empty()) text += (text.empty() ? "" : " ") + word;
        }
        text += (text.empty() ? "" : ", ") + vendor + ':' + LineOf(folder / "idProduct");
        const std::string serial = LineOf(folder / "serial");
        return serial.empty() ? text : text + ", serial number " + serial;
    }
    return {};
}

// The links' names by the device's.
std::map<std::string, std::string> LinksIn(const std::string& folder) {
    std::map<std::string, std::string> links;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none)) {
        const fs::path target = fs::read_symlink(entry.path(), none);
        if (!target.empty()) links[target.filename().string()] = entry.path().string();
    }
    return links;
}

class PosixPorts final : public IPortList {
public:
    std::vector<SerialPortEntry> Ports() override { return PortsIn("/sys/class/tty", "/dev/serial/by-id"); }
};

}  // namespace

std::vector<SerialPortEntry> PortsIn(const std::string& devices, const std::string& links) {
    std::map<std::string, std::string> byId = LinksIn(links);
    std::vector<SerialPortEntry> ports;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(devices, none)) {
        // A terminal without a device is a screen or a program's; a board's port of type 0 has no chip behind it.
        const fs::path device = fs::canonical(entry.path() / "device", none);
        if (none || LineOf(entry.path() / "type") == "0") continue;
        const std::string name = entry.path().filename().string();
        ports.push_back({"/dev/" + name, AdapterOf(device), byId[name]});
    }
    std::ranges::sort(ports, ComesBefore, &SerialPortEntry::name);
    return ports;
}

IPortList& SystemPorts() {
    static PosixPorts ports;
    return ports;
}

}  // namespace corvex
