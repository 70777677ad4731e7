// What the log engine tells the program, beside the replies that it plays back.
#pragma once

#include <cstdint>

#include "acquisition/IDataAcqCallback.h"

namespace corvex {

// One chain with the acquisition callback, so that live and logged replies take one path. Results as there. Called on
// the playback thread.
class IDataLogCallback : public IDataAcqCallback {
public:
    virtual std::int32_t OnLogEnd() = 0;
    virtual std::int32_t OnLogSeekBegin(std::uint32_t target, std::uint32_t flags) = 0;
    virtual std::int32_t OnLogSeekEnd() = 0;
    virtual std::int32_t OnLogProgress(std::uint32_t timeMs, std::uint32_t recordIndex) = 0;
};

}  // namespace corvex
