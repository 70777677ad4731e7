#include "apps/cli/TextOutput.h"

#include <ostream>

#include "apps/cli/WriteFailure.h"
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
    ForgetReason();
    if (IsDeviceOrPipe(path)) {
        file_.open(path, std::ios::binary);
    } else {
        fresh_ = std::make_unique<AtomicReplace>(path);
        if (!fresh_->Name().empty()) file_.open(fresh_->Name(), std::ios::binary);
    }
    if (file_.is_open())
        target_ = &file_;
    else
        reason_ = ReasonNotWritten(path);
}

bool TextOutput::Check(bool good) {
    if (!good && reason_.empty()) reason_ = ReasonNotWritten("");
    return good;
}

bool TextOutput::Write(const char* bytes, std::size_t count) {
    ForgetReason();
    target_->write(bytes, static_cast<std::streamsize>(count));
    return Check(target_->good());
}

bool TextOutput::Finish() {
    ForgetReason();
    target_->flush();
    if (!Check(target_->good())) return false;
    if (!file_.is_open()) return true;
    file_.close();
    return Check(file_.good() && (!fresh_ || fresh_->MoveIntoPlace()));
}

}  // namespace corvex
