#include "platform/VersionBlock.h"

namespace corvex {

bool ReadVersionBlock(const char* /*path*/, VersionBlock& /*block*/) {
    return false;
}

}  // namespace corvex
