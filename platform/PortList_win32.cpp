#include <algorithm>
#include <cstring>

#include "platform/PortList.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

// The drivers leave a word for each port: its value's name is the driver's device, the value the port.
class WindowsPorts final : public IPortList {
public:
    std::vector<SerialPortEntry> Ports() override {
        std::vector<SerialPortEntry> ports;
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_READ, &key) != ERROR_SUCCESS)
            return ports;
        for (DWORD i = 0;; ++i) {
            char device[256], port[256] = {};
            DWORD deviceSize = sizeof device, portSize = sizeof port - 1, type = 0;
            const LSTATUS result =
                RegEnumValueA(key, i, device, &deviceSize, nullptr, &type, reinterpret_cast<BYTE*>(port), &portSize);
            if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA) break;
            if (result != ERROR_SUCCESS || type != REG_SZ) continue;
            const char* const last = std::strrchr(device, '\\');
            ports.push_back({port, last != nullptr ? last + 1 : device, {}});
        }
        RegCloseKey(key);
        std::ranges::sort(ports, ComesBefore, &SerialPortEntry::name);
        return ports;
    }
};

}  // namespace

IPortList& SystemPorts() {
    static WindowsPorts ports;
    return ports;
}

}  // namespace corvex
