#include "session/diagnosis/LineAdvice.h"

#include <algorithm>
#include <iterator>

namespace corvex {

namespace {

struct LineAdvice {
    std::string_view word;
    const char* text;
};

constexpr LineAdvice kAdvice[] = {
    {"silent", "Switch the ignition on, check the adapter's plug and wires, and that this is its port"},
    {"only-echo", "Switch the ignition on, and check the wire between adapter and engine and the definition's command"},
    {"unanswered", "Check that the definition is for this engine, and that its connect command silences the others"},
    {"unknown-echo", "Set the bit 0x1 in the flags of the definition's header"},
    {"missing-echo", "Clear the bit 0x1 in the flags of the definition's header"},
    {"chatter", "Let the connect command silence them, or wait for a silence before each request"},
    {"noise", "Check ground and shielding of the wire, the plug and the baud rate"},
    {"missing-replies", "Ask less often: put a delay into the monitor command; check the plug"},
    {"lost-port", "Plug the adapter in again, and check its cable"},
    {"nothing-to-ask", "Give the definition a monitor command that polls"},
};

}  // namespace

const char* AdviceFor(std::string_view word) {
    const auto* const found = std::ranges::find(kAdvice, word, &LineAdvice::word);
    return found == std::end(kAdvice) ? "" : found->text;
}

}  // namespace corvex
