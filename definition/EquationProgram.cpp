#include "definition/EquationProgram.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "definition/EquationText.h"
#include "definition/FixedDecimal.h"

namespace corvex {
namespace {

// Tokens take two characters each, space included.
constexpr std::size_t kMostSteps = EquationText::kSize / 2;

// Sign, point, six decimals, and the digit that rounding up may add.
constexpr std::size_t kBesidesDigits = 9;

// The power of ten below which a variable leaves the text inside its bytes however many others there are; 0.0 when
// that can't be promised for any. Beyond 15 digits nothing is gained.
double FittingLimit(std::size_t textLength, std::size_t letters) {
    if (textLength >= EquationText::kSize) return 0.0;
    if (letters == 0) return 1.0;
    const std::size_t room = (EquationText::kSize - 1 - (textLength - letters)) / letters;
    if (room <= kBesidesDigits) return 0.0;
    double limit = 1.0;
    for (std::size_t digits = std::min<std::size_t>(room - kBesidesDigits, 15); digits > 0; --digits)
        limit *= 10.0;
    return limit;
}

// Every letter of the postfix text has a slot.
unsigned char LastSlotOf(char varid, const std::vector<EquationVar>& slots) {
    std::size_t i = slots.size() - 1;
    while (i > 0 && slots[i].varid != varid)
        --i;
    return static_cast<unsigned char>(i);
}

}  // namespace

void EquationProgram::Compile(std::string_view postfix, const std::vector<EquationVar>& slots) {
    steps_.clear();
    end_ = kRunDone;
    depth_ = 0;
    limit_ = FittingLimit(postfix.size(), slots.size());
    std::size_t i = 0;
    while (i < postfix.size() && limit_ > 0.0 && end_ == kRunDone) {
        if (postfix[i] == ' ') {
            ++i;
        } else {
            i += CompileToken(postfix, i, slots);
        }
    }
    if (end_ == kRunDone && depth_ > 1) end_ = kRunLeftOver;
    steps_.shrink_to_fit();
}

std::size_t EquationProgram::CompileToken(std::string_view postfix, std::size_t i,
                                          const std::vector<EquationVar>& slots) {
    const char c = postfix[i];
    const char next = i + 1 < postfix.size() ? postfix[i + 1] : ' ';
    const int row = MatchOperator(c);
    if (IsEquationLetter(c)) {
        if (next != ' ') limit_ = 0.0;
        steps_.push_back({Kind::kVariable, LastSlotOf(c, slots), 0.0});
        ++depth_;
        return 1;
    }
    if (row == -1 || IsEquationDigit(next)) {
        const std::string_view token = postfix.substr(i, TokenLength(postfix.substr(i)));
        double number = 0.0;
        if (std::any_of(token.begin(), token.end(), IsEquationLetter)) {
            limit_ = 0.0;
        } else if (!ReadNumber(token, number)) {
            end_ = kRunBadNumber;
        }
        steps_.push_back({Kind::kNumber, 0, number});
        ++depth_;
        return std::max<std::size_t>(token.size(), 1);
    }
    // A minus in front of a letter is a sign or an operator, depending on what the letter prints.
    if (IsEquationLetter(next)) limit_ = 0.0;
    if (depth_ < 2) {
        end_ = kRunShortOfOperands;
        return 1;
    }
    steps_.push_back({Kind::kOperator, static_cast<unsigned char>(row), 0.0});
    --depth_;
    return 1;
}

std::optional<EquationProgram::Outcome> EquationProgram::Run(const std::vector<EquationVar>& slots) const {
    if (limit_ <= 0.0) return std::nullopt;
    // Before the first step: a number that leaves the bytes overwrites the beginning of the text as well.
    for (const EquationVar& slot : slots) {
        if (!(std::fabs(slot.value) < limit_)) return std::nullopt;  // NaN too
    }
    std::array<double, kMostSteps> stack;
    std::size_t depth = 0;
    for (const Step& step : steps_) {
        switch (step.kind) {
            case Kind::kNumber:
                stack[depth++] = step.number;
                break;
            case Kind::kVariable:
                stack[depth++] = RoundToSixDecimals(slots[step.index].value);
                break;
            case Kind::kOperator: {
                --depth;
                const RunCode code = ApplyOperator(step.index, stack[depth - 1], stack[depth]);
                if (code != kRunDone) return Outcome{0.0, code};
                break;
            }
        }
    }
    const bool hasResult = depth > 0 && (end_ == kRunDone || end_ == kRunLeftOver);
    return Outcome{hasResult ? stack[depth - 1] : 0.0, end_};
}

}  // namespace corvex
