// Where these systems tell of their serial ports.
#pragma once

#include <string>
#include <vector>

#include "platform/PortList.h"

namespace corvex {

// `devices` is the folder of the terminals' descriptions, /sys/class/tty; `links` that of the names that stay,
// /dev/serial/by-id.
std::vector<SerialPortEntry> PortsIn(const std::string& devices, const std::string& links);

}  // namespace corvex
