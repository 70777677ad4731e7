#include "definition/EquationText.h"

#include <algorithm>
#include <span>

#include "definition/FixedDecimal.h"

namespace corvex {
namespace {

// A number takes at least one character, so the stack can't outgrow the text.
struct NumberStack {
    std::array<double, EquationText::kSize> numbers;
    std::size_t depth = 0;
};

RunCode Apply(int row, NumberStack& stack) {
    if (stack.depth < 2) return kRunShortOfOperands;
    --stack.depth;
    return ApplyOperator(row, stack.numbers[stack.depth - 1], stack.numbers[stack.depth]);
}

}  // namespace

double LastValueOf(char varid, const std::vector<EquationVar>& slots) {
    const auto slot =
        std::find_if(slots.rbegin(), slots.rend(), [varid](const EquationVar& s) { return s.varid == varid; });
    return slot == slots.rend() ? 0.0 : slot->value;
}

bool EquationText::Substitute(std::string_view postfix, const std::vector<EquationVar>& slots) {
    work_.fill('\0');
    std::size_t position = 0;
    for (const char c : postfix) {
        if (!IsEquationLetter(c)) {
            if (position == kSize) return false;
            work_[position++] = c;
            continue;
        }
        position += PrintFixed(LastValueOf(c, slots), std::span(work_).subspan(position));
        if (position < kSize) {
            work_[position] = '\0';
        } else {
            position = 0;
        }
    }
    return true;
}

std::string_view EquationText::Text() const {
    return {work_.data(), static_cast<std::size_t>(std::find(work_.begin(), work_.end(), '\0') - work_.begin())};
}

RunCode EquationText::Run(std::string_view text, double& result) {
    NumberStack stack;
    std::size_t i = 0;
    while (i < text.size()) {
        if (IsEquationSpace(text[i])) {
            ++i;
            continue;
        }
        const int row = MatchOperator(text[i]);
        const bool digitFollows = i + 1 < text.size() && IsEquationDigit(text[i + 1]);
        if (row == -1 || digitFollows) {
            // An operator with a digit behind it begins no token unless it is a minus, which only a text written over
            // itself can show; without characters to read there is no number.
            const std::size_t n = TokenLength(text.substr(i));
            if (!ReadNumber(text.substr(i, n), stack.numbers[stack.depth])) return kRunBadNumber;
            ++stack.depth;
            i += n;
        } else {
            const RunCode code = Apply(row, stack);
            if (code != kRunDone) return code;
            ++i;
        }
    }
    if (stack.depth > 0) result = stack.numbers[stack.depth - 1];
    return stack.depth > 1 ? kRunLeftOver : kRunDone;
}

}  // namespace corvex
