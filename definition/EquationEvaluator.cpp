#include "definition/EquationEvaluator.h"

#include <algorithm>
#include <utility>

#include "definition/EquationPostfix.h"
#include "definition/EquationText.h"

namespace corvex {

int EquationEvaluator::Parse(const char* text, unsigned len) {
    if (text == nullptr || len == 0) return 0;
    source_.assign(text, std::find(text, text + len, '\0'));
    std::string postfix;
    const PostfixResult result = ConvertToPostfix(source_, postfix);
    parseCode_ = static_cast<int>(result);
    if (result != PostfixResult::kDone) return 0;
    const auto letters = std::count_if(postfix.begin(), postfix.end(), IsEquationLetter);
    if (letters > kMaxLetters || postfix.size() >= EquationText::kSize) {
        parseCode_ = kDoesNotFit;
        return 0;
    }
    postfix_ = std::move(postfix);
    hasPostfix_ = true;
    BuildSlots();
    program_.Compile(postfix_, slots_);
    return 1;
}

void EquationEvaluator::BuildSlots() {
    slots_.clear();
    for (const char c : postfix_) {
        if (IsEquationLetter(c)) slots_.push_back({c, 0.0});
    }
    slots_.shrink_to_fit();
}

unsigned EquationEvaluator::GetText(char* out, unsigned size) const {
    if (out != nullptr && size > 0) out[source_.copy(out, size - 1)] = '\0';
    return static_cast<unsigned>(source_.size()) + 1;
}

int EquationEvaluator::SetVariable(char varid, double value) {
    const auto slot =
        std::find_if(slots_.begin(), slots_.end(), [varid](const EquationVar& s) { return s.varid == varid; });
    if (slot == slots_.end()) return 0;
    slot->value = value;
    return 1;
}

double EquationEvaluator::GetVariable(char varid) const {
    return LastValueOf(varid, slots_);
}

double EquationEvaluator::Evaluate() {
    if (const auto outcome = program_.Run(slots_)) {
        runCode_ = outcome->code;
        return outcome->value;
    }
    EquationText text;
    double result = 0.0;
    runCode_ = text.Substitute(postfix_, slots_) ? EquationText::Run(text.Text(), result) : kRunDoesNotFit;
    return result;
}

}  // namespace corvex
