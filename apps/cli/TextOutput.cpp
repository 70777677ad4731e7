#include "apps/cli/TextOutput.h"

#include <ostream>

#include "platform/FileReplacement.h"
#include "platform/Terminal.h"

namespace corvex {

TextOutput::TextOutput(const std::string& path, std::ostream& standard) {
    if (path == "-") {
        MakeOutputBinary();
        target_ = &standard;
        return;
    }
    // What comes here is in large pieces already.
    file_.rdbuf()->pubsetbuf(nullptr, 0);
    if (IsDeviceOrPipe(path)) {
        file_.open(path, std::ios::binary);
    } else {
        fresh_ = std::make_unique<AtomicReplace>(path);
        if (fresh_->Name().empty()) return;
        file_.open(fresh_->Name(), std::ios::binary);
    }
    if (file_) target_ = &file_;
}

bool TextOutput::Write(const char* bytes, std::size_t count) {
    target_->write(bytes, static_cast<std::streamsize>(count));
    return target_->good();
}

bool TextOutput::Finish() {
    target_->flush();
    if (!target_->good()) return false;
    if (!file_.is_open()) return true;
    file_.close();
    return file_.good() && (!fresh_ || fresh_->MoveIntoPlace());
}

}  // namespace corvex
