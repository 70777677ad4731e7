// Where a command's output goes.
#pragma once

#include <cstddef>

namespace corvex {

class ITextSink {
public:
    virtual ~ITextSink() = default;
    // False when not all could be written; nothing more is to be expected then.
    [[nodiscard]] virtual bool Write(const char* bytes, std::size_t count) = 0;
};

}  // namespace corvex
