// The serial ports of the machine and what hangs on them, told without opening one.
#pragma once

#include <string>
#include <vector>

namespace corvex {

struct SerialPortEntry {
    std::string name;  // as it is opened: "/dev/ttyUSB0", "COM3"
    // What the system tells of the adapter, UTF-8: its maker, product, numbers, serial number. May be empty.
    std::string adapter;
    std::string link;  // a second name that stays with the adapter, whatever it is plugged into; may be empty
};

// Any thread.
class IPortList {
public:
    virtual ~IPortList() = default;
    // In the order of their names, numbers counted as such. Empty when there is none, or the system tells of none.
    virtual std::vector<SerialPortEntry> Ports() = 0;
};

IPortList& SystemPorts();

// "ttyUSB2" before "ttyUSB10".
bool ComesBefore(const std::string& port, const std::string& other);

}  // namespace corvex
