#include "platform/PortList.h"

#include <algorithm>

namespace corvex {

namespace {

// The number at the end; 0 digits make 0.
std::size_t StemLength(const std::string& name) {
    std::size_t length = name.size();
    while (length != 0 && name[length - 1] >= '0' && name[length - 1] <= '9')
        --length;
    return length;
}

}  // namespace

bool ComesBefore(const std::string& port, const std::string& other) {
    const std::size_t stem = StemLength(port), otherStem = StemLength(other);
    const int order = port.compare(0, stem, other, 0, otherStem);
    if (order != 0) return order < 0;
    // Without zeros in front the longer number is the larger.
    return port.size() != other.size() ? port.size() < other.size() : port < other;
}

}  // namespace corvex
