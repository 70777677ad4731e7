#include "apps/cli/OutputGuard.h"

#include <algorithm>
#include <ostream>

#include "apps/cli/LogFile.h"
#include "logging/LogContent.h"

namespace corvex {

namespace {

const char* WhyNot(const std::string& output, const std::vector<std::string>& inputs) {
    if (std::ranges::any_of(inputs, [&](const std::string& input) { return SameFile(output, input); }))
        return "is what is read";
    return HoldsLog(output) ? "is a log" : nullptr;
}

}  // namespace

bool MayReplace(const std::string& output, const std::vector<std::string>& inputs, bool force, std::ostream& err) {
    const char* const why = force || output == "-" ? nullptr : WhyNot(output, inputs);
    if (why == nullptr) return true;
    err << "corvex-cli: " << output << ": " << why << "; --force replaces it\n";
    return false;
}

}  // namespace corvex
