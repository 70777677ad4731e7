// The text that a command writes, to a file or to standard output.
#pragma once

#include <fstream>
#include <iosfwd>
#include <memory>
#include <string>

#include "apps/cli/AtomicReplace.h"
#include "export/text/ITextSink.h"

namespace corvex {

// A file takes its place in one step when all is written, so that a failure leaves what was there. A device or a pipe
// is written to as it stands. One thread.
class TextOutput : public ITextSink {
public:
    // "-" is `standard`, which outlives this.
    TextOutput(const std::string& path, std::ostream& standard);

    // False when there is no way to write there.
    bool IsOpen() const { return target_ != nullptr; }
    [[nodiscard]] bool Write(const char* bytes, std::size_t count) override;
    // Everything was written, and has to be there now. False when it could not be.
    [[nodiscard]] bool Finish();
    // Of the first of these that failed, in the system's words; may be empty.
    const std::string& Reason() const { return reason_; }

private:
    bool Check(bool good);

    std::unique_ptr<AtomicReplace> fresh_;
    std::ofstream file_;
    std::ostream* target_ = nullptr;
    std::string reason_;
};

}  // namespace corvex
