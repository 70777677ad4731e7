#include "apps/cli/PatientOutput.h"

#include <algorithm>
#include <ostream>

#include "platform/Terminal.h"

namespace corvex {

namespace {

constexpr std::size_t kMuch = 1U << 16U;

}  // namespace

PatientOutput::int_type PatientOutput::overflow(int_type character) {
    if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
    const char one = traits_type::to_char_type(character);
    return xsputn(&one, 1) == 1 ? character : traits_type::eof();
}

std::streamsize PatientOutput::xsputn(const char* text, std::streamsize count) {
    if (failed_) return 0;
    held_.append(text, static_cast<std::size_t>(count));
    return held_.size() < kMuch || Send() ? count : 0;
}

int PatientOutput::sync() {
    return !failed_ && Send() ? 0 : -1;
}

bool PatientOutput::Send() {
    for (std::size_t sent = 0; sent < held_.size() && !failed_;) {
        const std::size_t piece = std::min<std::size_t>(held_.size() - sent, kOutputPiece);
        failed_ = !WaitForRoom() || !target_.write(held_.data() + sent, static_cast<std::streamsize>(piece)) ||
                  !target_.flush();
        sent += piece;
    }
    held_.clear();
    return !failed_;
}

bool PatientOutput::WaitForRoom() {
    for (int waited = 0; !waiting_.hasRoom(kLook);) {
        waited += kLook;
        if (!waiting_.goOn(waited)) return false;
    }
    return true;
}

}  // namespace corvex
