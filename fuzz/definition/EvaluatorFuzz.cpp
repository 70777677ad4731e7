// The evaluator against the plain textual one: an equation, a line end, then eight bytes for each letter's value.
#include <cstdlib>
#include <cstring>

#include "tests/support/EvaluatorComparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::string equation = input.substr(0, input.find_first_of(std::string_view("\n\0", 2)));
    std::vector<double> values((size - equation.size()) / sizeof(double));
    if (!values.empty()) std::memcpy(values.data(), data + equation.size() + 1, (size - equation.size() - 1) / 8 * 8);
    const std::string difference = corvex::testing::DifferenceFromTextual(equation, values);
    if (difference.empty()) return 0;
    std::puts(difference.c_str());
    std::abort();
}
